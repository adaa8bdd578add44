// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/WindowService.h"

#include <QHash>
#include <QObject>
#include <QPoint>

class QWindow;
struct org_kde_plasma_shell;
struct org_kde_plasma_surface;
struct wl_registry;

namespace services::wayland {

/// Feedback above all windows that never takes the focus, under compositors with Plasma's shell interface.
/// Layers and virtual desktops of the program's own windows are what Wayland keeps from programs.
///
/// Nobody waits for the compositor: until it has told that it has the interface, it counts as without.
class Windows : public QObject, public WindowService
{
public:
    Windows();
    ~Windows() override;

    void setLayer(QQuickWindow*, int) override {}
    void setJoinActiveSpaces(QQuickWindow*, bool) override {}
    bool keepsAbove() const override { return false; }
    bool placeFeedback(QQuickWindow* window, const QPoint& position) override;

    /// The compositor gives a window the focus with its first picture: it learns of the role before that,
    /// each time that the window is shown.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Feedback
    {
        QPoint position;
        org_kde_plasma_surface* surface = nullptr; ///< Of a window that is shown.
    };

    friend struct WindowsEvents;

    void show(QWindow* window);
    void letGo(QObject* window);

    wl_registry* m_registry = nullptr;
    org_kde_plasma_shell* m_shell = nullptr;
    unsigned m_shellName = 0;
    QHash<QObject*, Feedback> m_feedback;
};

} // namespace services::wayland
