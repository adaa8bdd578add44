// SPDX-License-Identifier: Apache-2.0
#include "HotplugWatcher.h"

#include <libudev.h>

#include <cerrno>
#include <cstring>
#include <string_view>

namespace ddci2c {

namespace {

constexpr const char* Subsystems[] = {"drm", "i2c-dev", "backlight"};

template <auto function>
struct Release
{
    template <typename T>
    void operator()(T* object) const
    {
        function(object);
    }
};

using Udev = std::unique_ptr<udev, Release<udev_unref>>;
using Monitor = std::unique_ptr<udev_monitor, Release<udev_monitor_unref>>;
using Device = std::unique_ptr<udev_device, Release<udev_device_unref>>;

bool matters(udev_device* device)
{
    const char* subsystem = udev_device_get_subsystem(device);
    const char* action = udev_device_get_action(device);
    if (!subsystem || !action)
        return false;
    // Each step of a back-light's brightness is a "change"; one of a bus may mean that it may be opened now.
    return std::string_view(subsystem) != "backlight" || std::string_view(action) != "change";
}

} // namespace

struct HotplugWatcher::Private
{
    Udev udev;
    Monitor monitor;
};

HotplugWatcher::HotplugWatcher() : d(new Private)
{
    d->udev.reset(udev_new());
    Monitor monitor(d->udev ? udev_monitor_new_from_netlink(d->udev.get(), "udev") : nullptr);
    if (!monitor) {
        m_problem = "no connection to udev";
        return;
    }
    for (const char* subsystem : Subsystems)
        udev_monitor_filter_add_match_subsystem_devtype(monitor.get(), subsystem, nullptr);
    if (const int error = udev_monitor_enable_receiving(monitor.get()); error < 0) {
        m_problem = std::string("udev does not report events: ") + std::strerror(-error);
        return;
    }
    d->monitor = std::move(monitor);
}

HotplugWatcher::~HotplugWatcher() = default;

bool HotplugWatcher::isOpen() const
{
    return d->monitor != nullptr;
}

int HotplugWatcher::descriptor() const
{
    return d->monitor ? udev_monitor_get_fd(d->monitor.get()) : -1;
}

bool HotplugWatcher::readEvents()
{
    if (!d->monitor)
        return false;
    bool relevant = false;
    for (;;) {
        errno = 0;
        const Device device(udev_monitor_receive_device(d->monitor.get()));
        if (device) {
            relevant = matters(device.get()) || relevant;
            continue;
        }
        // Too many events at once: some are lost, and with them maybe one that matters.
        if (errno != ENOBUFS)
            return relevant;
        relevant = true;
    }
}

} // namespace ddci2c
