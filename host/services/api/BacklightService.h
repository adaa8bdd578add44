// SPDX-License-Identifier: Apache-2.0
#pragma once

class MonitorInfo;

namespace services {

/// The operating system's brightness of a built-in panel.
///
/// Called by LuPlatform for built-in panels only, from the GUI thread and from the panel's queue.
class BacklightService
{
public:
    virtual ~BacklightService() = default;

    /// 0 to 1.
    virtual double brightness(const MonitorInfo& panel) const = 0;
    virtual void setBrightness(const MonitorInfo& panel, double brightness) = 0;

    /// Called once as a panel's model is set up. From then on a change, whoever made it, raises
    /// LuPlatformNotifications::systemBrightnessChanged() on the GUI thread.
    virtual void watch(const MonitorInfo& panel) = 0;
};

} // namespace services
