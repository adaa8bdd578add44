// SPDX-License-Identifier: Apache-2.0
#include "Placement.h"

#include <QMargins>

namespace services::x11 {

namespace {

/// In ms: window managers answer within a few.
constexpr int PatienceMs = 400;
constexpr int CheckMs = 80;

/// Some keep a window on its screen at first and let it go to another one when they are told again.
constexpr int MostTries = 3;

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
    QObject::connect(&m_patience, &QTimer::timeout, &m_patience, [this] { check(); });
    m_listener = events.listen([this](const xcb_generic_event_t& event) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if ((event.response_type & ~0x80) == XCB_PROPERTY_NOTIFY && m_window != XCB_WINDOW_NONE &&
            change.window == m_window)
            follow(change.atom);
    });
}

Placement::~Placement()
{
    m_events.forget(m_listener);
}

void Placement::place(xcb_window_t window, const QRect& rect)
{
    if (m_window != XCB_WINDOW_NONE && !m_sent)
        send();
    forget();
    m_window = window;
    m_rect = rect;
    m_events.select(m_window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    m_events.connection().sync();
    m_patience.start(PatienceMs);
    if (!isCovering()) {
        send();
        return;
    }
    const Connection& requests = m_windows.connection();
    requests.tellWindowManager(window, NetWmState,
                               {RemoveState, requests.atom(NetWmStateMaximizedVert),
                                requests.atom(NetWmStateMaximizedHorz), FromPager});
    if (m_windows.hasState(window, NetWmStateFullscreen))
        requests.tellWindowManager(window, NetWmState,
                                   {RemoveState, requests.atom(NetWmStateFullscreen), 0, FromPager});
    xcb_flush(requests);
}

bool Placement::isCovering() const
{
    for (const Atom state : coveringStates) {
        if (m_windows.hasState(m_window, state))
            return true;
    }
    return false;
}

// A frame that a maximised window lacks comes after the state has gone, and makes the window larger. One that
// goes is that of a window which a person makes full-screen meanwhile.
void Placement::follow(xcb_atom_t property)
{
    const Connection& connection = m_windows.connection();
    if (m_sent == 0) {
        if (property == connection.atom(NetWmState) && !isCovering())
            send();
    } else if (property == connection.atom(NetFrameExtents)) {
        const QMargins frame = m_windows.extentsOf(m_window, NetFrameExtents);
        if (frame != m_frame && !frame.isNull() && !isCovering())
            send();
    }
}

void Placement::send()
{
    ++m_sent;
    m_patience.start(CheckMs);
    m_frame = m_windows.extentsOf(m_window, NetFrameExtents);
    const QRect outer = outerRect();
    const QRect inner = outer.marginsRemoved(m_frame);
    const Connection& requests = m_windows.connection();
    requests.tellWindowManager(m_window, NetMoveResizeWindow,
                               {GravityNorthWest | AllGiven | AskedByPager, std::uint32_t(outer.x()),
                                std::uint32_t(outer.y()), std::uint32_t(qMax(1, inner.width())),
                                std::uint32_t(qMax(1, inner.height()))});
    xcb_flush(requests);
}

// Shadows that the application draws itself lie outside of what a person sees as the window.
QRect Placement::outerRect() const
{
    return m_rect.marginsAdded(m_windows.extentsOf(m_window, GtkFrameExtents));
}

// The place alone: a window may have sizes that it does not take.
bool Placement::isThere() const
{
    const std::optional<QRect> present = m_windows.geometryOf(m_window);
    const QMargins frame = m_windows.extentsOf(m_window, NetFrameExtents);
    return !present || present->marginsAdded(frame).topLeft() == outerRect().topLeft();
}

void Placement::check()
{
    // A person who maximises it meanwhile has the last word.
    if (m_sent == 0 || (m_sent < MostTries && !isCovering() && !isThere()))
        send();
    else
        forget();
}

void Placement::forget()
{
    m_patience.stop();
    if (m_window != XCB_WINDOW_NONE)
        m_events.deselect(m_window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    m_window = XCB_WINDOW_NONE;
    m_sent = 0;
}

} // namespace services::x11
