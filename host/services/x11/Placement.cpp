// SPDX-License-Identifier: Apache-2.0
#include "Placement.h"

#include <QMargins>

namespace services::x11 {

namespace {

/// In ms: window managers answer within a few.
constexpr int PatienceMs = 400;

constexpr std::uint32_t RemoveState = 0;
constexpr std::uint32_t FromPager = 2;

/// Of _NET_MOVERESIZE_WINDOW: the place is that of the frame; x, y, width and height are given; a pager asks.
constexpr std::uint32_t GravityNorthWest = 1;
constexpr std::uint32_t AllGiven = 0xf << 8;
constexpr std::uint32_t AskedByPager = FromPager << 12;

constexpr Atom coveringStates[] = {NetWmStateMaximizedVert, NetWmStateMaximizedHorz, NetWmStateFullscreen};

} // namespace

Placement::Placement(EventSource& events, const WindowList& windows) : m_events(events), m_windows(windows)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(PatienceMs);
    QObject::connect(&m_patience, &QTimer::timeout, &m_patience, [this] { finish(); });
    m_listener = events.listen([this](const xcb_generic_event_t& event) {
        if ((event.response_type & ~0x80) == XCB_PROPERTY_NOTIFY && m_window != XCB_WINDOW_NONE &&
            reinterpret_cast<const xcb_property_notify_event_t&>(event).window == m_window)
            tryNow();
    });
}

Placement::~Placement()
{
    m_events.forget(m_listener);
}

void Placement::place(xcb_window_t window, const QRect& rect)
{
    if (m_window != XCB_WINDOW_NONE)
        finish();
    m_window = window;
    m_rect = rect;
    if (!isCovering()) {
        m_events.select(m_window, XCB_EVENT_MASK_PROPERTY_CHANGE);
        finish();
        return;
    }
    m_events.select(m_window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    m_events.connection().sync();
    const Connection& requests = m_windows.connection();
    requests.tellWindowManager(window, NetWmState,
                               {RemoveState, requests.atom(NetWmStateMaximizedVert),
                                requests.atom(NetWmStateMaximizedHorz), FromPager});
    if (m_windows.hasState(window, NetWmStateFullscreen))
        requests.tellWindowManager(window, NetWmState,
                                   {RemoveState, requests.atom(NetWmStateFullscreen), 0, FromPager});
    xcb_flush(requests);
    m_patience.start();
}

bool Placement::isCovering() const
{
    for (const Atom state : coveringStates) {
        if (m_windows.hasState(m_window, state))
            return true;
    }
    return false;
}

void Placement::tryNow()
{
    if (!isCovering())
        finish();
}

void Placement::finish()
{
    m_patience.stop();
    const xcb_window_t window = m_window;
    m_window = XCB_WINDOW_NONE;
    m_events.deselect(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    // Shadows that the application draws itself lie outside of what a person sees as the window.
    const QMargins frame = m_windows.extentsOf(window, NetFrameExtents);
    const QMargins shadow = m_windows.extentsOf(window, GtkFrameExtents);
    const QRect outer = m_rect.marginsAdded(shadow);
    const QRect inner = outer.marginsRemoved(frame);
    const Connection& requests = m_windows.connection();
    requests.tellWindowManager(window, NetMoveResizeWindow,
                               {GravityNorthWest | AllGiven | AskedByPager, std::uint32_t(outer.x()),
                                std::uint32_t(outer.y()), std::uint32_t(qMax(1, inner.width())),
                                std::uint32_t(qMax(1, inner.height()))});
    xcb_flush(requests);
}

} // namespace services::x11
