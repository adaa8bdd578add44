# SPDX-License-Identifier: Apache-2.0
# The pictures of the package, relative to TKPACKAGE_IMAGE_DIR; resource prefix /TKPackage/images/packages.
#
# icons/ holds one drawing each, in words for its inks. From it come the forms that panels name: NAME.svg,
# NAME_active.svg, NAME_hover.svg and NAME_disabled.svg, and all of them below +dark/. plain/ holds pictures in
# colours of their own. docs/icons.md says how they are drawn.
include_guard()

set(TKPACKAGE_IMAGE_DIR ${CMAKE_BINARY_DIR}/tkpackage-images)
set(TKPACKAGE_IMAGE_FILES "")

# One row a form: suffix of the file, then the ink of lines, of a surface, of a second surface, of what stands out,
# and of lines on the accent.
set(tkpackage_forms_light
  "|#4a4f57|#e3e7ed|#cbd2db|#097bf8|#ffffff"
  "_active|#ffffff|#2c8ffb|#55a5fc|#ffffff|#ffffff"
  "_hover|#16191d|#e3e7ed|#cbd2db|#097bf8|#ffffff"
  "_disabled|#b0b5bd|#f0f2f5|#e3e7ed|#b0b5bd|#ffffff")
set(tkpackage_forms_dark
  "|#d5d8dc|#3a414c|#4a5260|#4da3ff|#ffffff"
  "_active|#ffffff|#2c8ffb|#55a5fc|#ffffff|#ffffff"
  "_hover|#ffffff|#3a414c|#4a5260|#4da3ff|#ffffff"
  "_disabled|#6a717c|#2b3038|#343a44|#6a717c|#ffffff")

function(tkpackage_image_forms name drawing folder)
  foreach(form IN LISTS ARGN)
    string(REPLACE "|" ";" inks "${form}")
    list(POP_FRONT inks suffix line surface second accent on)
    string(REPLACE "currentColor" "${line}" text "${drawing}")
    string(REPLACE "currentFill2" "${second}" text "${text}")
    string(REPLACE "currentFill" "${surface}" text "${text}")
    string(REPLACE "currentAccent" "${accent}" text "${text}")
    string(REPLACE "currentOn" "${on}" text "${text}")
    set(file ${folder}${name}${suffix}.svg)
    file(CONFIGURE OUTPUT ${TKPACKAGE_IMAGE_DIR}/${file} CONTENT "${text}" @ONLY)
    list(APPEND TKPACKAGE_IMAGE_FILES ${file})
  endforeach()
  set(TKPACKAGE_IMAGE_FILES ${TKPACKAGE_IMAGE_FILES} PARENT_SCOPE)
endfunction()

file(GLOB tkpackage_drawings CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/icons/*.svg)
foreach(path IN LISTS tkpackage_drawings)
  get_filename_component(name ${path} NAME_WE)
  file(READ ${path} drawing)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
  tkpackage_image_forms(${name} "${drawing}" "" ${tkpackage_forms_light})
  tkpackage_image_forms(${name} "${drawing}" "+dark/" ${tkpackage_forms_dark})
endforeach()

file(GLOB tkpackage_pictures CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/plain/*.svg)
foreach(path IN LISTS tkpackage_pictures)
  get_filename_component(name ${path} NAME)
  configure_file(${path} ${TKPACKAGE_IMAGE_DIR}/${name} COPYONLY)
  list(APPEND TKPACKAGE_IMAGE_FILES ${name})
endforeach()
