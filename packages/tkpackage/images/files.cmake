# SPDX-License-Identifier: Apache-2.0
# The pictures of the package, relative to TKPACKAGE_IMAGE_DIR; resource prefix /TKPackage/images/packages.
#
# icons/ holds one drawing each, in currentColor. From it come the forms that panels name: NAME.svg and
# NAME_active.svg, and both below +dark/. docs/icons.md says how they are drawn.
include_guard()

set(TKPACKAGE_IMAGE_DIR ${CMAKE_BINARY_DIR}/tkpackage-images)
set(TKPACKAGE_IMAGE_FILES "")

# One picture in one ink.
function(tkpackage_image_form drawing file color opacity)
  string(REPLACE "currentColor" "${color}\" stroke-opacity=\"${opacity}" text "${drawing}")
  file(CONFIGURE OUTPUT ${TKPACKAGE_IMAGE_DIR}/${file} CONTENT "${text}" @ONLY)
  set(TKPACKAGE_IMAGE_FILES ${TKPACKAGE_IMAGE_FILES} ${file} PARENT_SCOPE)
endfunction()

file(GLOB tkpackage_drawings CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/icons/*.svg)
foreach(path IN LISTS tkpackage_drawings)
  get_filename_component(name ${path} NAME_WE)
  file(READ ${path} drawing)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
  tkpackage_image_form("${drawing}" ${name}.svg "#000000" 0.66)
  tkpackage_image_form("${drawing}" ${name}_active.svg "#ffffff" 1)
  tkpackage_image_form("${drawing}" +dark/${name}.svg "#ffffff" 0.82)
  tkpackage_image_form("${drawing}" +dark/${name}_active.svg "#ffffff" 1)
endforeach()
