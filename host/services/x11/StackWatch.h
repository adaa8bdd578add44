// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "EventSource.h"

#include <QElapsedTimer>
#include <QHash>
#include <QTimer>

#include <memory>

namespace services::x11 {

/// Keeps windows of the program that no window manager manages above everything that comes to the screen
/// after them: menus and tool tips of other programs, docks, windows that were raised. GUI thread.
///
/// It answers an event with one raise at most. A window that insists on its place (a screen locker that
/// raises itself whenever it is covered) is left there for a while: the two would flicker for ever.
class StackWatch
{
public:
    StackWatch(std::shared_ptr<EventSource> events, std::shared_ptr<Connection> requests);
    ~StackWatch();

    /// Raises a window that is on the screen and keeps it there. Again for a window that is kept: nothing.
    void keep(xcb_window_t window);
    /// For a window that leaves the screen or becomes an ordinary one.
    void drop(xcb_window_t window);

private:
    /// How often another window has come above.
    struct Rival
    {
        int times = 0;
        QElapsedTimer last;
    };
    void follow(const xcb_generic_event_t& event);
    void look();
    void raise(xcb_window_t window, xcb_window_t above) const;
    bool insists(xcb_window_t window) const;
    void note(xcb_window_t window);
    bool isShown(xcb_window_t window) const;

    const std::shared_ptr<EventSource> m_events;
    const std::shared_ptr<Connection> m_requests;
    EventSource::Id m_listener = 0;
    QTimer m_soon; ///< Several events of one moment are answered at once.
    QList<xcb_window_t> m_kept;
    QHash<xcb_window_t, Rival> m_rivals; ///< Until they leave the screen.
};

} // namespace services::x11
