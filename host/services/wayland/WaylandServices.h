// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "lushared/services/ServiceRegistry.h"

namespace services {
class ApplicationWindows;
}

namespace services::wayland {

/// Adds what the compositor offers to the session's services: displays under GNOME and Plasma, and under
/// Plasma the windows of other applications, the program's own key combinations, and feedback and overlays
/// that leave the focus where it is. What Wayland keeps from programs stays absent, with a line in the log.
/// GUI thread.
/// @return the windows of other applications; null where they are kept.
std::shared_ptr<ApplicationWindows> addServices(ServiceSet* set);

} // namespace services::wayland
