// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "lushared/services/ServiceRegistry.h"

namespace services::wayland {

/// Adds what the compositor offers to the session's services: displays under GNOME and Plasma. What Wayland
/// keeps from programs (keys and windows of others, the pointer) stays absent, with a line in the log. GUI
/// thread.
void addServices(ServiceSet* set);

} // namespace services::wayland
