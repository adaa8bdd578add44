// SPDX-License-Identifier: Apache-2.0
#include "DragWatch.h"

#include "ScreenCoordinates.h"

#include <LuShared/LuPlatformNotifications.h>

#include <QCoreApplication>

namespace services::x11 {

namespace {

constexpr int FirstButton = 1;

/// Between two looks at the pointer, in ms: one frame of a fast monitor.
constexpr int LookMs = 8;

/// A busy window manager moves the window after the pointer has come to rest: looks until it has, and their
/// distance in ms.
constexpr int LateLooks = 20;
constexpr int LateLookMs = 50;

Owned<xcb_query_pointer_reply_t> pointer(const Connection& connection)
{
    return Owned<xcb_query_pointer_reply_t>(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, connection.root()), nullptr));
}

} // namespace

DragWatch::DragWatch(RawInput& input, const WindowList& windows) : m_input(input), m_windows(windows)
{
    m_soon.setSingleShot(true);
    QObject::connect(&m_soon, &QTimer::timeout, &m_soon, [this] { look(); });
    m_listener = input.listen({
        [this](int button, bool pressed) {
            if (button == FirstButton)
                pressed ? press() : release();
        },
        [this](QPointF) {
            m_lateLooks = LateLooks;
            if (!m_soon.isActive() || m_soon.interval() != LookMs)
                m_soon.start(LookMs);
        },
    });
}

DragWatch::~DragWatch()
{
    m_input.forget(m_listener);
}

void DragWatch::press()
{
    end();
    const auto where = pointer(m_windows.connection());
    if (!where || where->child == XCB_WINDOW_NONE)
        return;
    const xcb_window_t client = m_windows.clientIn(where->child);
    const unsigned long pid = m_windows.pidOf(client);
    const std::optional<QRect> rect = m_windows.geometryOf(where->child);
    if (!rect || pid == 0 || pid == static_cast<unsigned long>(QCoreApplication::applicationPid()))
        return;
    m_frame = where->child;
    m_client = client;
    m_pid = pid;
    m_rect = *rect;
    m_input.wantMotion(m_listener, true);
}

void DragWatch::look()
{
    if (m_frame == XCB_WINDOW_NONE)
        return;
    const std::optional<QRect> rect = m_windows.geometryOf(m_frame);
    const auto where = pointer(m_windows.connection());
    if (!rect || !where) {
        // The window closed under the pointer.
        release();
        return;
    }
    // A window that is sized at its left or upper edge changes both; a maximised one that is pulled off its
    // place changes its size once and then moves.
    if (rect->size() == m_rect.size() && rect->topLeft() != m_rect.topLeft())
        m_dragging = true;
    m_rect = *rect;
    if (!m_dragging) {
        if (m_lateLooks-- > 0)
            m_soon.start(LateLookMs);
        return;
    }
    m_lastDragged = m_client;
    Q_EMIT LuPlatformNotifications::instance()->activeAppDragged(
        m_pid, toDesktop(QPoint(where->root_x, where->root_y)));
}

void DragWatch::release()
{
    const unsigned long pid = m_pid;
    const bool dragged = m_dragging;
    end();
    if (!dragged)
        return;
    if (const auto where = pointer(m_windows.connection()))
        Q_EMIT LuPlatformNotifications::instance()->activeAppReleased(
            pid, toDesktop(QPoint(where->root_x, where->root_y)));
}

void DragWatch::end()
{
    m_soon.stop();
    m_frame = XCB_WINDOW_NONE;
    m_client = XCB_WINDOW_NONE;
    m_pid = 0;
    m_dragging = false;
    m_input.wantMotion(m_listener, false);
}

} // namespace services::x11
