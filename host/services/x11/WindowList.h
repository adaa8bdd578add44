// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Connection.h"

#include <QRect>
#include <QStringList>

#include <optional>

namespace services::x11 {

/// Windows of applications, as the window manager tells of them. Any thread.
class WindowList
{
public:
    explicit WindowList(std::shared_ptr<Connection> connection) : m_connection(std::move(connection)) {}

    const Connection& connection() const { return *m_connection; }

    /// Of the application in the foreground; none if there is none.
    xcb_window_t active() const;

    /// The process that shows a window; 0 if it is not known.
    unsigned long pidOf(xcb_window_t window) const;

    /// The application's window inside a window manager's frame; none for a menu, a panel or the desktop.
    xcb_window_t clientIn(xcb_window_t frame) const;

    /// The window that a process's person works with: the active one, else the highest; none without one.
    xcb_window_t mainWindowOf(unsigned long pid) const;

    /// The two parts of WM_CLASS of a process's windows.
    QStringList classesOf(unsigned long pid) const;

    /// Place and size of a window on the root window, without its border.
    std::optional<QRect> geometryOf(xcb_window_t window) const;

    bool hasState(xcb_window_t window, Atom state) const;

    /// Left, right, top, bottom of a frame property; zeros if the window has none.
    QMargins extentsOf(xcb_window_t window, Atom property) const;

private:
    QList<xcb_window_t> stacked() const;

    const std::shared_ptr<Connection> m_connection;
};

} // namespace services::x11
