// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StackWatch.h"
#include "services/api/WindowService.h"

#include <QObject>

namespace services::x11 {

/// Layer and desktops of the program's own windows. Qt itself makes a window with
/// Qt::WindowTransparentForInput let the pointer through.
///
/// A window above everything is none of the window manager's ("override-redirect"): what EWMH calls above
/// lies below a full-screen window, and under some window managers every other kind does, too.
class Windows : public QObject, public WindowService
{
public:
    Windows(const std::shared_ptr<EventSource>& events, std::shared_ptr<Connection> requests)
        : m_connection(std::move(requests)), m_stack(events, m_connection)
    {
    }

    void setLayer(QQuickWindow* window, int layer) override;
    void setJoinActiveSpaces(QQuickWindow* window, bool join) override;
    /// A compositing manager owns the selection of the screen. Asked anew each time: it may come and go.
    bool blends() const override;

    /// A window gets its marks anew each time that it is shown: the window manager takes them off a window
    /// that is hidden.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void mark(QQuickWindow* window);
    void tell(QQuickWindow* window);
    void keepAbove(QQuickWindow* window);
    void letGo(QObject* window);

    const std::shared_ptr<Connection> m_connection;
    StackWatch m_stack;
    QHash<QObject*, xcb_window_t> m_above; ///< On the screen, above everything.
};

} // namespace services::x11
