# SPDX-License-Identifier: Apache-2.0

# lumen_nano_shaders(<target> [<option of qt_add_resources>...])
# Compiles the shaders of the core library's shapes for every graphics interface of Qt and puts them into a target's
# resources as /NanoShape/NanoShader.{vert,frag}.qsb.
function(lumen_nano_shaders target)
  find_program(LUMEN_QSB NAMES qsb HINTS /usr/lib/qt6/bin REQUIRED)
  set(sources ${PROJECT_SOURCE_DIR}/packages/tkpackage/shaders)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/NanoShape)
  file(MAKE_DIRECTORY ${folder})
  set(shaders "")
  foreach(stage vert frag)
    set(compiled ${folder}/NanoShader.${stage}.qsb)
    # The scene graph draws many shapes at once with a second form of the vertex shader, which -b adds.
    set(batch "")
    if(stage STREQUAL vert)
      set(batch -b)
    endif()
    add_custom_command(OUTPUT ${compiled}
      COMMAND ${LUMEN_QSB} ${batch} --glsl "100 es,120,150" --hlsl 50 --msl 12 -o ${compiled} ${sources}/NanoShader.${stage}
      DEPENDS ${sources}/NanoShader.${stage} VERBATIM)
    list(APPEND shaders ${compiled})
  endforeach()
  qt_add_resources(${target} ${target}_nano_shaders PREFIX "/NanoShape" BASE ${folder} FILES ${shaders} ${ARGN})
endfunction()
