// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/Windows.h"

#include <QEvent>
#include <QGuiApplication>
#include <QQuickWindow>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>
#include <wayland-client.h>

#include <qpa/qplatformnativeinterface.h>
#include <wayland-plasma-shell-client-protocol.h>

namespace services::wayland {

/// What the compositor has to offer, as it tells.
struct WindowsEvents
{
    /// The version from which a surface can be left out of the list of windows to switch to.
    static constexpr std::uint32_t Version = ORG_KDE_PLASMA_SURFACE_SET_SKIP_SWITCHER_SINCE_VERSION;

    static void found(void* data, wl_registry* registry, std::uint32_t name, const char* interface,
                      std::uint32_t version)
    {
        auto* const windows = static_cast<Windows*>(data);
        if (windows->m_shell || std::strcmp(interface, org_kde_plasma_shell_interface.name) != 0)
            return;
        windows->m_shell = static_cast<org_kde_plasma_shell*>(
            wl_registry_bind(registry, name, &org_kde_plasma_shell_interface, std::min(version, Version)));
        windows->m_shellName = name;
    }
    static void lost(void* data, wl_registry*, std::uint32_t name)
    {
        auto* const windows = static_cast<Windows*>(data);
        if (windows->m_shell && windows->m_shellName == name)
            org_kde_plasma_shell_destroy(std::exchange(windows->m_shell, nullptr));
    }
    static constexpr wl_registry_listener Registry{found, lost};
};

Windows::Windows()
{
    QPlatformNativeInterface* const native = QGuiApplication::platformNativeInterface();
    auto* const display =
        native ? static_cast<wl_display*>(native->nativeResourceForIntegration("wl_display")) : nullptr;
    if (!display)
        return;
    // Qt reads the connection, and delivers what comes on it in the GUI thread.
    m_registry = wl_display_get_registry(display);
    wl_registry_add_listener(m_registry, &WindowsEvents::Registry, this);
    wl_display_flush(display);
}

Windows::~Windows()
{
    // Once the application object is gone, so is the connection with all that it had.
    if (!qGuiApp || !m_registry)
        return;
    const QList<QObject*> all = m_feedback.keys();
    for (QObject* const each : all)
        letGo(each);
    if (m_shell)
        org_kde_plasma_shell_destroy(m_shell);
    wl_registry_destroy(m_registry);
}

bool Windows::placeFeedback(QQuickWindow* window, const QPoint& position)
{
    if (!m_shell)
        return false;
    if (!m_feedback.contains(window)) {
        window->installEventFilter(this);
        // The window still has its surface then, as the compositor wants it.
        connect(window, &QWindow::visibleChanged, this, [this, window](bool visible) {
            if (!visible)
                letGo(window);
        });
        connect(window, &QObject::destroyed, this, [this](QObject* gone) {
            letGo(gone);
            m_feedback.remove(gone);
        });
    }
    Feedback& feedback = m_feedback[window];
    feedback.position = position;
    if (feedback.surface)
        org_kde_plasma_surface_set_position(feedback.surface, position.x(), position.y());
    return true;
}

bool Windows::eventFilter(QObject* object, QEvent* event)
{
    auto* const window = qobject_cast<QWindow*>(object);
    if (window && event->type() == QEvent::Expose && window->isExposed())
        show(window);
    return QObject::eventFilter(object, event);
}

void Windows::show(QWindow* window)
{
    const auto feedback = m_feedback.find(window);
    if (feedback == m_feedback.end() || feedback->surface || !m_shell)
        return;
    auto* const surface = static_cast<wl_surface*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForWindow("surface", window));
    if (!surface)
        return;
    feedback->surface = org_kde_plasma_shell_get_surface(m_shell, surface);
    org_kde_plasma_surface_set_role(feedback->surface, ORG_KDE_PLASMA_SURFACE_ROLE_ONSCREENDISPLAY);
    org_kde_plasma_surface_set_position(feedback->surface, feedback->position.x(), feedback->position.y());
    const std::uint32_t version = org_kde_plasma_surface_get_version(feedback->surface);
    if (version >= ORG_KDE_PLASMA_SURFACE_SET_SKIP_TASKBAR_SINCE_VERSION)
        org_kde_plasma_surface_set_skip_taskbar(feedback->surface, 1);
    if (version >= ORG_KDE_PLASMA_SURFACE_SET_SKIP_SWITCHER_SINCE_VERSION)
        org_kde_plasma_surface_set_skip_switcher(feedback->surface, 1);
}

void Windows::letGo(QObject* window)
{
    const auto feedback = m_feedback.find(window);
    if (feedback != m_feedback.end() && feedback->surface)
        org_kde_plasma_surface_destroy(std::exchange(feedback->surface, nullptr));
}

} // namespace services::wayland
