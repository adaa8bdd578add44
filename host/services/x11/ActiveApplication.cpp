// SPDX-License-Identifier: Apache-2.0
#include "ActiveApplication.h"

#include <LuShared/LuPlatformNotifications.h>

#include <QCoreApplication>

namespace services::x11 {

ActiveApplication::ActiveApplication(EventSource& events, const WindowList& windows)
    : m_events(events), m_windows(windows)
{
    const Connection& connection = events.connection();
    events.select(connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    const xcb_atom_t active = connection.atom(NetActiveWindow);
    m_listener = events.listen([this, active](const xcb_generic_event_t& event) {
        if ((event.response_type & ~0x80) == XCB_PROPERTY_NOTIFY &&
            reinterpret_cast<const xcb_property_notify_event_t&>(event).atom == active)
            look();
    });
    connection.sync();
    m_pid = windows.pidOf(windows.active());
}

ActiveApplication::~ActiveApplication()
{
    m_events.forget(m_listener);
    m_events.deselect(m_events.connection().root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
}

void ActiveApplication::look()
{
    const unsigned long pid = m_windows.pidOf(m_windows.active());
    // Between two windows none is active for a moment.
    if (pid == 0 || pid == m_pid)
        return;
    m_pid = pid;
    if (pid != static_cast<unsigned long>(QCoreApplication::applicationPid()))
        Q_EMIT LuPlatformNotifications::instance()->activeAppChanged(pid);
}

} // namespace services::x11
