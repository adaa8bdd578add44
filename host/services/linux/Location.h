// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/LocationService.h"

#include <QDBusConnection>
#include <QString>

#include <memory>

namespace services {

/// Where LinuxLocation looks; tests name other places.
struct LocationSources
{
    QDBusConnection systemBus = QDBusConnection::systemBus();
    QString zoneFolder = QStringLiteral("/usr/share/zoneinfo");
    /// The person waits this long for the location service before the time zone's city is taken.
    int serviceWaitMs = 10'000;
};

/// The person's place, from where the setting "location/source" says: "place" (the settings
/// "location/latitude" and "location/longitude"), "service" (the location service of the system, and without
/// one the city of the time zone), "zone" (that city), "off" (none). Where the setting is missing it is
/// "place" if both numbers are there, "zone" if "location/service" is false, else "service". Rounded to
/// hundredths of a degree, so that a service's jitter does not count as a move.
///
/// Follows changes of the settings file, of the service's position and of the time zone. GUI thread.
std::shared_ptr<LocationService> makeLinuxLocation(const LocationSources& sources = {});

} // namespace services
