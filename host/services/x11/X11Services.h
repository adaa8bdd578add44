// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "lushared/services/ServiceRegistry.h"

#include <memory>

namespace services {
class ApplicationWindows;
}

namespace services::x11 {

/// Adds what the X server offers to the session's services: displays, windows, keys, the pointer. Without a
/// connection nothing is added.
/// @return the windows of applications, for a ProgramService; null without a connection. GUI thread.
std::shared_ptr<ApplicationWindows> addServices(ServiceSet* set);

} // namespace services::x11
