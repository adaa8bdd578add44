// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/simulated/World.h"

#include "lushared/services/ServiceRegistry.h"

namespace services {

/// All services, answering from one world.
ServiceSet servicesOf(const std::shared_ptr<World>& world);

/// The foreground application puts its selection on the clipboard; without a selection nothing happens. GUI
/// thread.
void copySelection(const World& world);

} // namespace services
