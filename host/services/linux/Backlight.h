// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/BacklightService.h"

#include <QDBusConnection>

#include <memory>

namespace services {

/// The built-in panel's back-light: read from /sys/class/backlight, set through logind, which every person at
/// the computer may, or in the file itself where logind is absent.
///
/// Where a panel has several drivers the one below its own connector is taken, else the kernel's preference:
/// firmware, platform, raw. The lowest brightness that is set is one step above 0, which switches some panels
/// off. While logind works on a value the latest one waits, and brightness() answers what is asked for.
/// Created on the GUI thread.
std::shared_ptr<BacklightService>
makeLinuxBacklight(const QDBusConnection& systemBus = QDBusConnection::systemBus());

} // namespace services
