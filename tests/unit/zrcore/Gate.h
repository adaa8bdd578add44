// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

/// A job waits here until the test opens it, and the test sees that the job has come.
class Gate
{
public:
    void pass()
    {
        std::unique_lock lock(m_mutex);
        m_reached = true;
        m_condition.notify_all();
        m_condition.wait(lock, [this] { return m_open; });
    }
    void open()
    {
        const std::lock_guard lock(m_mutex);
        m_open = true;
        m_condition.notify_all();
    }
    /// False after ten seconds.
    bool waitUntilReached()
    {
        std::unique_lock lock(m_mutex);
        return m_condition.wait_until(lock, std::chrono::steady_clock::now() + std::chrono::seconds(10),
                                      [this] { return m_reached; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_open = false;
    bool m_reached = false;
};
