// SPDX-License-Identifier: Apache-2.0
#include "Windows.h"

#include <QEvent>
#include <QQuickWindow>

namespace services::x11 {

namespace {

/// Kept on the window, where whoever describes it finds them.
constexpr const char* LayerProperty = "windowLayer";
constexpr const char* JoinProperty = "joinActiveSpaces";
/// The window has marks that showing it again puts on.
constexpr const char* UntoldProperty = "_x11MarksUntold";

constexpr std::uint32_t AllDesktops = 0xffffffff;
constexpr std::uint32_t RemoveState = 0;
constexpr std::uint32_t AddState = 1;
constexpr std::uint32_t FromApplication = 1;

bool isAbove(const QQuickWindow* window)
{
    return window->property(LayerProperty).toInt() > 0;
}

} // namespace

void Windows::setLayer(QQuickWindow* window, int layer)
{
    window->setProperty(LayerProperty, layer);
    window->installEventFilter(this);
    mark(window);
    tell(window);
}

void Windows::setJoinActiveSpaces(QQuickWindow* window, bool join)
{
    window->setProperty(JoinProperty, join);
    window->installEventFilter(this);
    mark(window);
    tell(window);
}

bool Windows::eventFilter(QObject* object, QEvent* event)
{
    if (auto* window = qobject_cast<QQuickWindow*>(object)) {
        if (event->type() == QEvent::Show) {
            mark(window);
            window->setProperty(UntoldProperty, true);
        } else if (event->type() == QEvent::Expose && window->property(UntoldProperty).toBool()) {
            window->setProperty(UntoldProperty, false);
            tell(window);
        }
    }
    return QObject::eventFilter(object, event);
}

// What the window manager reads as it begins to manage a window.
void Windows::mark(QQuickWindow* window)
{
    if (!window->handle())
        return;
    const auto id = xcb_window_t(window->winId());
    if (isAbove(window)) {
        // Window managers keep these kinds above full-screen windows, too, which "above" alone does not.
        m_connection->setValues(id, m_connection->atom(NetWmWindowType), XCB_ATOM_ATOM,
                                {m_connection->atom(KdeWindowTypeOnScreenDisplay),
                                 m_connection->atom(NetWmWindowTypeNotification),
                                 m_connection->atom(NetWmWindowTypeNormal)});
    }
    if (window->property(JoinProperty).toBool())
        m_connection->setValues(id, m_connection->atom(NetWmDesktop), XCB_ATOM_CARDINAL, {AllDesktops});
    xcb_flush(*m_connection);
}

// What it is told of a window that it manages.
void Windows::tell(QQuickWindow* window)
{
    if (!window->handle() || !window->isVisible())
        return;
    const auto id = xcb_window_t(window->winId());
    if (window->property(LayerProperty).isValid()) {
        const bool above = isAbove(window) || window->flags().testFlag(Qt::WindowStaysOnTopHint);
        m_connection->tellWindowManager(
            id, NetWmState,
            {above ? AddState : RemoveState, m_connection->atom(NetWmStateAbove), 0, FromApplication});
    }
    if (window->property(JoinProperty).isValid()) {
        const std::uint32_t desktop =
            window->property(JoinProperty).toBool()
                ? AllDesktops
                : m_connection->value(m_connection->root(), m_connection->atom(NetCurrentDesktop));
        m_connection->tellWindowManager(id, NetWmDesktop, {desktop, FromApplication});
    }
    if (isAbove(window)) {
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(*m_connection, id, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    }
    xcb_flush(*m_connection);
}

} // namespace services::x11
