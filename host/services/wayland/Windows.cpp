// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/Windows.h"

#include <QEvent>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QScreen>

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
    if (!m_registry || !QCoreApplication::instance())
        return;
    const QList<QObject*> all = m_displays.keys();
    for (QObject* const each : all)
        letGo(each);
    if (m_shell)
        org_kde_plasma_shell_destroy(m_shell);
    wl_registry_destroy(m_registry);
}

void Windows::setLayer(QQuickWindow* window, int layer)
{
    if (layer > 0 || m_displays.contains(window))
        watch(window).wanted = layer > 0;
}

bool Windows::placeFeedback(QQuickWindow* window, const QPoint& position)
{
    if (!m_shell)
        return false;
    watch(window).position = position;
    place(window);
    return true;
}

Windows::Display& Windows::watch(QQuickWindow* window)
{
    if (m_displays.contains(window))
        return m_displays[window];
    window->installEventFilter(this);
    // The window still has its surface then, as the compositor wants it.
    connect(window, &QWindow::visibleChanged, this, [this, window](bool visible) {
        if (!visible)
            letGo(window);
    });
    connect(window, &QWindow::screenChanged, this, [this, window] { place(window); });
    connect(window, &QObject::destroyed, this, [this](QObject* gone) {
        letGo(gone);
        m_displays.remove(gone);
    });
    return m_displays[window];
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
    const auto display = m_displays.find(window);
    if (display == m_displays.end() || !display->wanted || display->surface || !m_shell)
        return;
    auto* const surface = static_cast<wl_surface*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForWindow("surface", window));
    if (!surface)
        return;
    display->surface = org_kde_plasma_shell_get_surface(m_shell, surface);
    org_kde_plasma_surface_set_role(display->surface, ORG_KDE_PLASMA_SURFACE_ROLE_ONSCREENDISPLAY);
    place(window);
    const std::uint32_t version = org_kde_plasma_surface_get_version(display->surface);
    if (version >= ORG_KDE_PLASMA_SURFACE_SET_SKIP_TASKBAR_SINCE_VERSION)
        org_kde_plasma_surface_set_skip_taskbar(display->surface, 1);
    if (version >= ORG_KDE_PLASMA_SURFACE_SET_SKIP_SWITCHER_SINCE_VERSION)
        org_kde_plasma_surface_set_skip_switcher(display->surface, 1);
}

void Windows::place(QWindow* window)
{
    const auto display = m_displays.constFind(window);
    if (display == m_displays.constEnd() || !display->surface || !window->screen())
        return;
    const QPoint position = display->position.value_or(window->screen()->geometry().topLeft());
    org_kde_plasma_surface_set_position(display->surface, position.x(), position.y());
}

void Windows::letGo(QObject* window)
{
    const auto display = m_displays.find(window);
    if (display != m_displays.end() && display->surface)
        org_kde_plasma_surface_destroy(std::exchange(display->surface, nullptr));
}

} // namespace services::wayland
