// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/DisplayService.h"
#include "services/wayland/OutputControl.h"

#include <memory>

namespace services::wayland {

/// Modes, rotation and scale of a Wayland desktop through its compositor's own interface.
///
/// A monitor is found by its connector. Nothing waits for the compositor: a setter checks a value against
/// what the compositor offers and hands it over, and true is that it did both; until the compositor has
/// answered the value counts as set (OutputKeeper). HiDPI is a scale of 2 or more: switching it on sets 2,
/// off 1. Made on the GUI thread.
std::shared_ptr<DisplayService> makeDisplay(std::shared_ptr<OutputControl> control);

} // namespace services::wayland
