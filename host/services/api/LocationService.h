// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace services {

/// Where the person is. Called by LuServerLocation on the GUI thread; a change raises
/// LuServerLocation::locationStatusChanged().
class LocationService
{
public:
    struct Location
    {
        double latitude = 0;  ///< Degrees, north positive.
        double longitude = 0; ///< Degrees, east positive.
        int status = 0;       ///< A LuServerLocation::Status.
    };

    virtual ~LocationService() = default;
    virtual Location location() const = 0;

    /// Somebody began to listen to locationStatusChanged(). A service that has found the place before tells
    /// it once more, later, since whoever comes late waits for the first report.
    virtual void listenerAdded() {}
};

} // namespace services
