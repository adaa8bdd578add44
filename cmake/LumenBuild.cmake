# SPDX-License-Identifier: Apache-2.0
# Flags, output folders and sanitizers that every target shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(LUMEN_PACKAGE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib/lumen-desk/packages)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

option(LUMEN_WERROR "Treat warnings as errors" ON)
option(LUMEN_FUZZ "Build the fuzzers (clang)" OFF)
set(LUMEN_SANITIZE "" CACHE STRING "address (with undefined) or thread; empty for none")

find_program(LUMEN_CCACHE ccache)
if(LUMEN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Paths relative to the tree and no folder in the hash: another clone finds what this one has compiled.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros ${LUMEN_CCACHE})
endif()

find_program(LUMEN_LLD ld.lld)
if(LUMEN_LLD)
  # Links the seventy test programs in a fifth of the time of the default linker.
  add_link_options(-fuse-ld=lld)
endif()

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Network Qml Quick QuickControls2 Multimedia Test)
find_package(Threads REQUIRED)

add_library(lumen_flags INTERFACE)
target_compile_options(lumen_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(LUMEN_WERROR)
  target_compile_options(lumen_flags INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # gcc 12 sees uninitialised std::optional values where it optimises or a sanitizer has added calls.
  target_compile_options(lumen_flags INTERFACE -Wno-maybe-uninitialized)
endif()
target_compile_definitions(lumen_flags INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
                                                 QT_NO_KEYWORDS_CONFLICT QT_MESSAGELOGCONTEXT)
target_include_directories(lumen_flags INTERFACE ${PROJECT_SOURCE_DIR}/packages/shared)
# gcc links only what is used, but not with a sanitizer: then all that Qt names would be linked.
if(LUMEN_SANITIZE STREQUAL "address")
  target_compile_options(lumen_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                               -fno-omit-frame-pointer)
  target_link_options(lumen_flags INTERFACE -fsanitize=address,undefined -Wl,--as-needed)
  set(keep_libraries ${PROJECT_SOURCE_DIR}/tests/support/keep_libraries.cpp)
  target_sources(lumen_flags INTERFACE $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:${keep_libraries}>)
elseif(LUMEN_SANITIZE STREQUAL "thread")
  target_compile_options(lumen_flags INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
  target_link_options(lumen_flags INTERFACE -fsanitize=thread -Wl,--as-needed)
elseif(LUMEN_SANITIZE)
  message(FATAL_ERROR "LUMEN_SANITIZE is address, thread or empty, not ${LUMEN_SANITIZE}")
endif()
