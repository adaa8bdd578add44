// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QString>

#include <memory>

namespace services {

class AudioService;
class BacklightService;
class ClipboardKeysService;
class DesktopEvents;
class DisplayService;
class KvmService;
class LocationService;
class PointerService;
class ProgramService;
class WindowService;

/// The session's services; each may be absent.
struct ServiceSet
{
    QString name; ///< Of the implementation, for the log: "x11", "wayland", "simulated".
    std::shared_ptr<DisplayService> display;
    std::shared_ptr<BacklightService> backlight;
    std::shared_ptr<DesktopEvents> events;
    std::shared_ptr<ProgramService> programs;
    std::shared_ptr<AudioService> audio;
    std::shared_ptr<LocationService> location;
    std::shared_ptr<KvmService> kvm;
    std::shared_ptr<WindowService> windows;
    std::shared_ptr<ClipboardKeysService> clipboardKeys;
    std::shared_ptr<PointerService> pointer;
};

/// Holds the services that the fronts of LuShared ask.
class LUSHARED_EXPORT Registry
{
public:
    Registry() = delete;

    /// Takes the services into use. Called by the application on the GUI thread before any model exists, and
    /// with an empty set as it ends. A call that runs in another thread meanwhile keeps the service that it
    /// began with.
    static void install(const ServiceSet& set);

    /// The services in use. Any thread.
    static ServiceSet current();

    /// Kind of the desktop session that the program runs in, for a line in the log: "x11", "wayland",
    /// "offscreen" or another name of a Qt platform. GUI thread, after the QGuiApplication was constructed.
    static QString sessionName();
};

} // namespace services
