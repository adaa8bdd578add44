// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "RawInput.h"
#include "WindowList.h"

#include <QRect>
#include <QTimer>

#include <atomic>

namespace services::x11 {

/// Raises activeAppDragged() and activeAppReleased() of LuPlatformNotifications while the person moves a
/// window of another application with the pointer. GUI thread.
///
/// Neither the application nor the window manager tells of it: a window is being dragged if it changes its
/// place but not its size while the first button, pressed over it, is held.
class DragWatch
{
public:
    DragWatch(RawInput& input, const WindowList& windows);
    ~DragWatch();

    /// The window that was dragged last; none before the first. Any thread.
    xcb_window_t lastDragged() const { return m_lastDragged; }

private:
    void press();
    void release();
    void look();
    void end();

    RawInput& m_input;
    const WindowList& m_windows;
    RawInput::Id m_listener = 0;
    QTimer m_soon;                          ///< A mouse moves up to 1,000 times a second.
    xcb_window_t m_frame = XCB_WINDOW_NONE; ///< Under the held button.
    xcb_window_t m_client = XCB_WINDOW_NONE;
    std::atomic<xcb_window_t> m_lastDragged = XCB_WINDOW_NONE;
    QRect m_rect;
    unsigned long m_pid = 0;
    int m_lateLooks = 0;
    bool m_dragging = false;
};

} // namespace services::x11
