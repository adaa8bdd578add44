# SPDX-License-Identifier: Apache-2.0
# Where the parts of the program are installed below the prefix. Libraries find each other relative to themselves, so
# that the tree may be moved. The libraries are the program's own and stay out of the system's folder of libraries.

set(LUMEN_INSTALL_LIBRARY_DIR lib/lumen-desk)
set(LUMEN_INSTALL_PACKAGE_DIR ${LUMEN_INSTALL_LIBRARY_DIR}/packages) # where the program looks: PackageLoader
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${LUMEN_INSTALL_LIBRARY_DIR}")

# A shared library of the host.
function(lumen_install_library target)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  install(TARGETS ${target} LIBRARY DESTINATION ${LUMEN_INSTALL_LIBRARY_DIR})
endfunction()

# A feature package.
function(lumen_install_package target)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/..")
  install(TARGETS ${target} LIBRARY DESTINATION ${LUMEN_INSTALL_PACKAGE_DIR})
endfunction()
