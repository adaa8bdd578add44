# SPDX-License-Identifier: Apache-2.0
# Interfaces of Wayland that libwayland does not bring itself.
find_package(PlasmaWaylandProtocols REQUIRED)
find_package(PkgConfig REQUIRED)
find_program(WAYLAND_SCANNER wayland-scanner REQUIRED)
pkg_check_modules(WAYLAND_CLIENT REQUIRED IMPORTED_TARGET wayland-client)

# lumen_plasma_protocol(<name>)
# A static library wayland-<name> with <wayland-<name>-client-protocol.h>, from Plasma's description of that name.
function(lumen_plasma_protocol name)
  set(protocol ${PLASMA_WAYLAND_PROTOCOLS_DIR}/${name}.xml)
  set(header ${CMAKE_CURRENT_BINARY_DIR}/wayland-${name}-client-protocol.h)
  set(code ${CMAKE_CURRENT_BINARY_DIR}/wayland-${name}-protocol.c)
  add_custom_command(OUTPUT ${header} DEPENDS ${protocol} VERBATIM
                     COMMAND ${WAYLAND_SCANNER} client-header ${protocol} ${header})
  add_custom_command(OUTPUT ${code} DEPENDS ${protocol} VERBATIM
                     COMMAND ${WAYLAND_SCANNER} private-code ${protocol} ${code})
  add_library(wayland-${name} STATIC ${code} ${header})
  set_target_properties(wayland-${name} PROPERTIES AUTOMOC OFF)
  target_include_directories(wayland-${name} SYSTEM PUBLIC ${CMAKE_CURRENT_BINARY_DIR})
  target_link_libraries(wayland-${name} PUBLIC PkgConfig::WAYLAND_CLIENT)
endfunction()
