// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "EventSource.h"
#include "WindowList.h"

namespace services::x11 {

/// Raises LuPlatformNotifications::activeAppChanged() as other applications come to the foreground. GUI
/// thread.
class ActiveApplication
{
public:
    ActiveApplication(EventSource& events, const WindowList& windows);
    ~ActiveApplication();

private:
    void look();

    EventSource& m_events;
    const WindowList& m_windows;
    EventSource::Id m_listener = 0;
    unsigned long m_pid = 0; ///< In the foreground, the program itself included.
};

} // namespace services::x11
