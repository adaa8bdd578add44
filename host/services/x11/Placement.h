// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "EventSource.h"
#include "WindowList.h"

#include <QMargins>
#include <QRect>
#include <QTimer>

namespace services::x11 {

/// Moves and sizes a window of another application, its frame included, after it has given up being maximised
/// or full-screen. GUI thread.
class Placement
{
public:
    Placement(EventSource& events, const WindowList& windows);
    ~Placement();

    /// @p rect in native coordinates is what the window and its frame are to cover. Returns at once; a window
    /// that is still on its way to its former place goes there.
    void place(xcb_window_t window, const QRect& rect);

private:
    bool isCovering() const;
    void follow(xcb_atom_t property);
    QRect outerRect() const;
    bool isThere() const;
    void check();
    void send();
    void forget();

    EventSource& m_events;
    const WindowList& m_windows;
    EventSource::Id m_listener = 0;
    QTimer m_patience; ///< For a window manager that refuses to give a state up, or that put the window
                       ///< elsewhere.
    xcb_window_t m_window = XCB_WINDOW_NONE;
    QRect m_rect;
    QMargins m_frame; ///< As the window manager was told last.
    int m_sent = 0;   ///< How often the window manager was told.
};

} // namespace services::x11
