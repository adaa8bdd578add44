// SPDX-License-Identifier: Apache-2.0
#include "Windows.h"

#include <QEvent>
#include <QQuickWindow>

namespace services::x11 {

namespace {

/// Kept on the window, where whoever describes it finds them.
constexpr const char* LayerProperty = "windowLayer";
constexpr const char* JoinProperty = "joinActiveSpaces";

constexpr std::uint32_t AllDesktops = 0xffffffff;
constexpr std::uint32_t FromApplication = 1;

bool isAbove(const QQuickWindow* window)
{
    return window->property(LayerProperty).toInt() > 0;
}

} // namespace

void Windows::setLayer(QQuickWindow* window, int layer)
{
    const bool changes = isAbove(window) != (layer > 0);
    window->setProperty(LayerProperty, layer);
    window->installEventFilter(this);
    // A window manager looks at a window as it is shown.
    if (changes && window->isVisible()) {
        window->hide();
        window->show();
    }
}

void Windows::setJoinActiveSpaces(QQuickWindow* window, bool join)
{
    window->setProperty(JoinProperty, join);
    window->installEventFilter(this);
    mark(window);
    tell(window);
}

bool Windows::blends() const
{
    static const QByteArray name = QByteArrayLiteral("_NET_WM_CM_S0");
    const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        *m_connection, xcb_intern_atom(*m_connection, 0, std::uint16_t(name.size()), name.constData()),
        nullptr));
    if (!atom)
        return false;
    const Owned<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        *m_connection, xcb_get_selection_owner(*m_connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

bool Windows::eventFilter(QObject* object, QEvent* event)
{
    auto* window = qobject_cast<QQuickWindow*>(object);
    switch (event->type()) {
    case QEvent::Show:
        if (window)
            mark(window);
        break;
    case QEvent::Expose:
        if (window && window->isVisible())
            isAbove(window) ? keepAbove(window) : tell(window);
        break;
    case QEvent::Hide:
    case QEvent::PlatformSurface: // Made or destroyed: not on the screen either way.
        letGo(object);
        break;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

// What a window manager reads as a window is shown. Qt's connection is another one: it shows the window after
// the server has these.
void Windows::mark(QQuickWindow* window)
{
    if (!window->handle())
        return;
    const auto id = xcb_window_t(window->winId());
    const std::uint32_t unmanaged = isAbove(window);
    if (window->property(LayerProperty).isValid())
        xcb_change_window_attributes(*m_connection, id, XCB_CW_OVERRIDE_REDIRECT, &unmanaged);
    m_connection->sync();
}

// What it is told of a window that it manages. Not beforehand: a window manager takes the mark off a window
// that is hidden, also when that is shown again already, and xfwm4 takes "all" for the number of a desktop.
void Windows::tell(QQuickWindow* window)
{
    if (!window->handle() || !window->isVisible() || !window->property(JoinProperty).isValid())
        return;
    const auto id = xcb_window_t(window->winId());
    const bool join = window->property(JoinProperty).toBool();
    const bool isJoined = m_connection->value(id, m_connection->atom(NetWmDesktop)) == AllDesktops;
    if (join == isJoined)
        return;
    const std::uint32_t desktop =
        join ? AllDesktops : m_connection->value(m_connection->root(), m_connection->atom(NetCurrentDesktop));
    m_connection->tellWindowManager(id, NetWmDesktop, {desktop, FromApplication});
    xcb_flush(*m_connection);
}

void Windows::keepAbove(QQuickWindow* window)
{
    const auto id = xcb_window_t(window->winId());
    m_above.insert(window, id);
    m_stack.keep(id);
}

void Windows::letGo(QObject* window)
{
    if (const xcb_window_t id = m_above.take(window))
        m_stack.drop(id);
}

} // namespace services::x11
