// SPDX-License-Identifier: Apache-2.0
#include "NativeServices.h"

#include <ZrCore/ZrS.h>
#include <lushared/LuSettings.h>

#include "services/kvm/NativeKvm.h"
#include "services/linux/Backlight.h"
#include "services/linux/Location.h"
#include "services/programs/Programs.h"
#include "services/pulse/PulseAudio.h"
#include "services/wayland/WaylandServices.h"
#include "services/x11/X11Services.h"

#include <QDebug>

services::ServiceSet services::nativeServices()
{
    ServiceSet set;
    set.name = Registry::sessionName();
    qInfo().noquote() << "[Services] session" << set.name;

    // The computer's, whatever the display system.
    set.audio = makePulseAudio();
    set.backlight = makeLinuxBacklight();
    set.location = makeLinuxLocation();
    std::shared_ptr<ApplicationWindows> windows;
    if (set.name == QLatin1String("x11"))
        windows = x11::addServices(&set);
    else if (set.name.startsWith(QLatin1String("wayland")))
        windows = wayland::addServices(&set);
    set.programs = std::make_shared<Programs>(windows);
    if (set.pointer) {
        KvmChannelOptions channel;
        channel.folder = ZrS::dataPath() + QStringLiteral("/kvm");
        const QHostAddress address(LuSettings::instance().value(QStringLiteral("kvm/address")).toString());
        if (!address.isNull())
            channel.address = address;
        const int port = LuSettings::instance().value(QStringLiteral("kvm/port"), channel.port).toInt();
        if (port > 0 && port <= 65535)
            channel.port = quint16(port);
        set.kvm = std::make_shared<NativeKvm>(set.pointer, channel, QDBusConnection::systemBus());
    }
    return set;
}
