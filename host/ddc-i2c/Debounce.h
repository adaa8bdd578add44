// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <chrono>
#include <optional>

namespace ddci2c {

/// Tells when a burst of events is over: after a while without any, and at the latest after a while with
/// many. It keeps no clock: its caller tells the time.
class Debounce
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    using Ms = std::chrono::milliseconds;

    static constexpr Ms Quiet{300};
    static constexpr Ms Longest{
        3000}; ///< A connector with a loose contact must not hold up the others for ever.

    explicit Debounce(Ms quiet = Quiet, Ms longest = Longest) : m_quiet(quiet), m_longest(longest) {}

    void note(TimePoint now)
    {
        if (!m_last)
            m_first = now;
        m_last = now;
    }

    /// How long until take() gives true, 0 if it does now; nothing if nothing has happened.
    std::optional<Ms> remaining(TimePoint now) const
    {
        if (!m_last)
            return std::nullopt;
        const TimePoint due = std::min(*m_last + m_quiet, m_first + m_longest);
        return std::max(Ms(0), std::chrono::ceil<Ms>(due - now));
    }

    /// True once for each burst, when it is over.
    bool take(TimePoint now)
    {
        if (!m_last || remaining(now) > Ms(0))
            return false;
        m_last.reset();
        return true;
    }

private:
    const Ms m_quiet;
    const Ms m_longest;
    TimePoint m_first{};
    std::optional<TimePoint> m_last;
};

} // namespace ddci2c
