// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

namespace ddci2c {

/// Hears from udev when monitors, their buses or back-lights come and go.
///
/// It does not wait: an event loop watches descriptor() and calls readEvents(). One thread at a time.
class HotplugWatcher
{
public:
    /// Check isOpen(): without udev there is nothing to hear.
    HotplugWatcher();
    ~HotplugWatcher();
    HotplugWatcher(const HotplugWatcher&) = delete;
    HotplugWatcher& operator=(const HotplugWatcher&) = delete;

    bool isOpen() const;
    /// Why it is not open.
    const std::string& problem() const { return m_problem; }

    /// Readable when events wait; -1 if not open.
    int descriptor() const;

    /// Takes all waiting events; true if monitors may have come, gone or changed places. After a loss of
    /// events too.
    bool readEvents();

private:
    struct Private;
    std::unique_ptr<Private> d;
    std::string m_problem;
};

} // namespace ddci2c
