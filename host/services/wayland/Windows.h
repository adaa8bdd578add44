// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/WindowService.h"

#include <QHash>
#include <QObject>
#include <QPoint>

#include <optional>

class QWindow;
struct org_kde_plasma_shell;
struct org_kde_plasma_surface;
struct wl_registry;

namespace services::wayland {

/// Windows above all others that never take the focus, under compositors with Plasma's shell interface:
/// feedback, and every window of a layer above the normal one. Both are on-screen displays, which show on
/// every virtual desktop.
///
/// Nobody waits for the compositor: until it has told that it has the interface, it counts as without.
class Windows : public QObject, public WindowService
{
public:
    Windows();
    ~Windows() override;

    void setLayer(QQuickWindow* window, int layer) override;
    void setJoinActiveSpaces(QQuickWindow*, bool) override {}
    bool keepsAbove() const override { return m_shell != nullptr; }
    bool placeFeedback(QQuickWindow* window, const QPoint& position) override;

    /// The compositor gives a window the focus with its first picture: it learns of the role before that,
    /// each time that the window is shown.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Display
    {
        bool wanted = true;
        std::optional<QPoint> position;            ///< Without one it stands at its screen's corner.
        org_kde_plasma_surface* surface = nullptr; ///< Of a window that is shown.
    };

    friend struct WindowsEvents;

    Display& watch(QQuickWindow* window);
    void show(QWindow* window);
    void place(QWindow* window);
    void letGo(QObject* window);

    wl_registry* m_registry = nullptr;
    org_kde_plasma_shell* m_shell = nullptr;
    unsigned m_shellName = 0;
    QHash<QObject*, Display> m_displays;
};

} // namespace services::wayland
