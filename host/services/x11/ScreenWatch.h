// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "EventSource.h"
#include "Outputs.h"

#include <QTimer>

namespace services::x11 {

/// Raises LuPlatformNotifications::screenGeometryChanged() once for each change of the screens or of the
/// scaling. GUI thread.
class ScreenWatch
{
public:
    ScreenWatch(EventSource& events, std::shared_ptr<Connection> requests);
    ~ScreenWatch();

private:
    void settle();

    EventSource& m_events;
    const std::shared_ptr<Connection> m_requests;
    EventSource::Id m_listener = 0;
    std::optional<Outputs> m_told;
    double m_toldDpi = 0;
    QTimer m_soon; ///< One change comes as several events, some of them with sizes in between.
};

} // namespace services::x11
