# SPDX-License-Identifier: Apache-2.0

# One precompiled header for all features: each is a handful of small files.
function(lumen_feature_pch)
  if(TARGET feature_pch)
    return()
  endif()
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/feature_pch.cpp CONTENT "")
  add_library(feature_pch OBJECT ${CMAKE_CURRENT_BINARY_DIR}/feature_pch.cpp)
  set_target_properties(feature_pch PROPERTIES AUTOMOC OFF)
  target_link_libraries(feature_pch PUBLIC LuShared PRIVATE lumen_flags)
  target_precompile_headers(feature_pch PRIVATE <QtCore> <QtQml/qqmlregistration.h> <functional> <memory>
    <LuShared/LuMonitorModel.h> <ZrCore/ZrDispatch.h> <ZrCore/ZrShared.h>)
endfunction()

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
  lumen_feature_pch()
  target_precompile_headers(${target} REUSE_FROM feature_pch)
  list(TRANSFORM F_USES PREPEND feature_ OUTPUT_VARIABLE used)
  foreach(other IN LISTS used)
    target_link_libraries(${target} PUBLIC ${other})
  endforeach()
  lumen_check_layer(${target} module LuShared ${used})
  set_property(GLOBAL APPEND PROPERTY LUMEN_FEATURES ${target})
endfunction()
