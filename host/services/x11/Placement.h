// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "EventSource.h"
#include "WindowList.h"

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
    void tryNow();
    void finish();

    EventSource& m_events;
    const WindowList& m_windows;
    EventSource::Id m_listener = 0;
    QTimer m_patience; ///< A window manager may refuse to give a state up.
    xcb_window_t m_window = XCB_WINDOW_NONE;
    QRect m_rect;
};

} // namespace services::x11
