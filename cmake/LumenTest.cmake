# SPDX-License-Identifier: Apache-2.0
enable_testing()

# One precompiled header for all tests: each is one file that mostly reads Qt's headers.
function(lumen_test_pch)
  if(TARGET lumen_test_pch)
    return()
  endif()
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/lumen_test_pch.cpp CONTENT "int main() { return 0; }\n")
  add_executable(lumen_test_pch EXCLUDE_FROM_ALL ${PROJECT_BINARY_DIR}/lumen_test_pch.cpp)
  set_target_properties(lumen_test_pch PROPERTIES AUTOMOC OFF)
  # Without QtTest: it is compiled with the name of each test's own folder.
  target_link_libraries(lumen_test_pch PRIVATE Qt6::Core lumen_flags)
  target_precompile_headers(lumen_test_pch PRIVATE <QtCore> <functional> <memory>)
endfunction()

# lumen_test(NAME tst_x SOURCES <file>... LINKS <target>... [LABELS <label>...] [TIMEOUT s] [ENVIRONMENT A=B...]
#            [RUN_SERIAL])
# A Qt Test program. It runs off-screen, with a home of its own, and any QML warning or critical message is its own
# business to fail on.
function(lumen_test)
  cmake_parse_arguments(T "RUN_SERIAL" "NAME;TIMEOUT" "SOURCES;LINKS;LABELS;ENVIRONMENT;ARGS" ${ARGN})
  add_executable(${T_NAME} ${T_SOURCES})
  target_link_libraries(${T_NAME} PRIVATE ${T_LINKS} Qt6::Test lumen_flags)
  target_include_directories(${T_NAME} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support ${PROJECT_SOURCE_DIR}/host)
  lumen_test_pch()
  target_precompile_headers(${T_NAME} REUSE_FROM lumen_test_pch)
  if(NOT T_TIMEOUT)
    set(T_TIMEOUT 60)
  endif()
  if(LUMEN_SANITIZE)
    math(EXPR T_TIMEOUT "${T_TIMEOUT} * 5")
  endif()
  if("qml" IN_LIST T_LABELS)
    # Each of their functions has an engine of its own. In Qt 6.8 a cast to a type of a file gives null in some engine after
    # the first one of a process where compiled files come from the disk; the program itself has one engine.
    list(APPEND T_ENVIRONMENT QML_DISABLE_DISK_CACHE=1)
  endif()
  add_test(NAME ${T_NAME} COMMAND ${T_NAME} ${T_ARGS})
  # die_after_fork: QProcess forks with shared memory, which the thread sanitizer takes for a fork of the test itself.
  set(home ${CMAKE_BINARY_DIR}/home/${T_NAME})
  file(MAKE_DIRECTORY ${home})
  set_tests_properties(${T_NAME} PROPERTIES TIMEOUT ${T_TIMEOUT} LABELS "${T_LABELS}"
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;QT_LOGGING_RULES=qt.qpa.*=false;LC_ALL=C.UTF-8;TSAN_OPTIONS=ignore_noninstrumented_modules=1 history_size=7 die_after_fork=0 exitcode=66 suppressions=${PROJECT_SOURCE_DIR}/tests/support/tsan.supp;ASAN_OPTIONS=detect_stack_use_after_return=1 suppressions=${PROJECT_SOURCE_DIR}/tests/support/asan.supp;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1;QSG_RENDER_LOOP=basic;${T_ENVIRONMENT}")
  if(T_RUN_SERIAL)
    set_tests_properties(${T_NAME} PROPERTIES RUN_SERIAL ON)
  endif()
endfunction()
