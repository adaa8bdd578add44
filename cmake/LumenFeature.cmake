# SPDX-License-Identifier: Apache-2.0

# lumen_feature_module(<directory> SOURCES <file>... [USES <feature>...])
# One feature of the package: packages/modules/<directory>/src. A feature links the declarations of the host's
# libraries and those features whose classes its constructor takes, nothing else. Its tests stand in
# tests/unit/modules/tst_<directory>.cpp.
function(lumen_feature_module directory)
  cmake_parse_arguments(F "" "" "SOURCES;USES" ${ARGN})
  set(target feature_${directory})
  list(TRANSFORM F_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/${directory}/src/)
  add_library(${target} OBJECT ${F_SOURCES})
  target_include_directories(${target} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/${directory}/src)
  target_link_libraries(${target} PUBLIC LuShared PRIVATE lumen_flags)
  list(TRANSFORM F_USES PREPEND feature_ OUTPUT_VARIABLE used)
  foreach(other IN LISTS used)
    target_link_libraries(${target} PUBLIC ${other})
  endforeach()
  lumen_check_layer(${target} module LuShared ${used})
  set_property(GLOBAL APPEND PROPERTY LUMEN_FEATURES ${target})
endfunction()
