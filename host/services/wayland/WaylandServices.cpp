// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/WaylandServices.h"

#include "services/wayland/Display.h"
#include "services/wayland/KWinEvents.h"
#include "services/wayland/PortalKeys.h"
#include "services/wayland/Windows.h"

#include <QDebug>

std::shared_ptr<services::ApplicationWindows> services::wayland::addServices(ServiceSet* set)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    std::shared_ptr<OutputControl> control = makeMutterControl(bus);
    if (!control)
        control = makeKScreenControl(bus);
    set->display = makeDisplay(control);
    if (!set->display)
        qInfo() << "[Services] this compositor does not let programs change displays";
    set->windows = std::make_shared<Windows>();
    const auto events = KWinEvents::make(bus);
    set->events = events;
    if (events)
        return events;
    set->events = std::make_shared<PortalKeys>(bus);
    qInfo() << "[Services] on Wayland there are no global keys but the portal's, no windows of other "
               "applications, "
               "no pointer at the edge";
    return nullptr;
}
