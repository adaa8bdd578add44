# SPDX-License-Identifier: Apache-2.0
# `cpack -G DEB` in the build folder makes one Debian package of all that is installed.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lumen-desk)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Lumen Desk maintainers <maintainers@lumen-desk.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "control of monitors over DDC/CI")
set(CPACK_PACKAGE_DESCRIPTION
    "Every function that otherwise hides in a monitor's own menu, from the desktop: brightness and colours, inputs, picture by picture, eye care, with schedules and shortcuts.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
# What the program and its libraries link to is found by itself; the QML modules and plug-ins that they load are not.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qml6-module-qtqml, qml6-module-qtqml-workerscript, qml6-module-qtquick, qml6-module-qtquick-window, qml6-module-qtquick-templates, qt6-svg-plugins | libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-inter, fonts-noto-core, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/deb/postinst)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
