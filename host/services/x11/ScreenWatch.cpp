// SPDX-License-Identifier: Apache-2.0
#include "ScreenWatch.h"

#include <LuShared/LuPlatformNotifications.h>

#include "Resources.h"

#include <QDebug>

namespace services::x11 {

namespace {

/// From the last event on, in ms: the events of one change follow each other within a few milliseconds.
constexpr int SettleMs = 120;

} // namespace

ScreenWatch::ScreenWatch(EventSource& events, std::shared_ptr<Connection> requests)
    : m_events(events), m_requests(std::move(requests))
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(SettleMs);
    QObject::connect(&m_soon, &QTimer::timeout, &m_soon, [this] { settle(); });

    const Connection& connection = events.connection();
    const std::uint8_t randr = connection.firstEvent(&xcb_randr_id);
    if (!connection.opcode(&xcb_randr_id))
        qWarning() << "[X11] the X server lacks RandR: no rotation, no display modes";
    else
        xcb_randr_select_input(connection, connection.root(),
                               XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                                   XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
    events.select(connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    const xcb_atom_t resources = connection.atom(ResourceManager);
    m_listener = events.listen([this, randr, resources](const xcb_generic_event_t& event) {
        const int type = event.response_type & ~0x80;
        const bool isScreen =
            randr && (type == randr + XCB_RANDR_SCREEN_CHANGE_NOTIFY || type == randr + XCB_RANDR_NOTIFY);
        const bool isScaling = type == XCB_PROPERTY_NOTIFY &&
                               reinterpret_cast<const xcb_property_notify_event_t&>(event).atom == resources;
        if (isScreen || isScaling)
            m_soon.start();
    });
    connection.sync();
    m_told = Outputs::read(*m_requests);
    m_toldDpi = readXftDpi(*m_requests);
}

ScreenWatch::~ScreenWatch()
{
    m_events.forget(m_listener);
}

void ScreenWatch::settle()
{
    const std::optional<Outputs> present = Outputs::read(*m_requests);
    const double dpi = readXftDpi(*m_requests);
    if (!present || !m_requests->isAlive())
        return;
    // Off and on again between two modes: not yet over.
    const bool isSame = m_told && present->isSameDesktop(*m_told) && dpi == m_toldDpi;
    m_told = present;
    m_toldDpi = dpi;
    if (!isSame)
        Q_EMIT LuPlatformNotifications::instance()->screenGeometryChanged();
}

} // namespace services::x11
