// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <vector>

namespace ddc {

/// Stops a fault of the program from wearing a monitor out: one code may be written so often in so long, and
/// is closed for as long again once more is asked for. Not thread safe.
class Breaker
{
public:
    static constexpr int Limit = 40;                 ///< Writes of one code
    static constexpr std::int64_t WindowMs = 10'000; ///< in this time.

    /// What a wish to write came to.
    enum class Verdict {
        Pass,
        PassAgain, ///< The first that passes since the code was closed.
        Trip,      ///< Refused: the code is closed from now on.
        Refuse,
    };

    /// A code that is closed at the moment.
    struct Closed
    {
        std::uint8_t code = 0;
        std::int64_t untilMs = 0;
        std::uint64_t refused = 0; ///< Since it was closed.
    };

    /// Asks for a write of @p code at @p nowMs, on a clock that never goes backwards. A write that passes
    /// counts.
    Verdict admit(std::uint8_t code, std::int64_t nowMs);

    /// By code, ascending.
    std::vector<Closed> closed(std::int64_t nowMs) const;

    std::uint64_t trips() const { return m_trips; }
    std::uint64_t refused() const { return m_refused; }
    /// Writes that the closed time of @p code has refused so far, or had when it ended.
    std::uint64_t refusedOf(std::uint8_t code) const;

private:
    struct Code
    {
        std::deque<std::int64_t> writes; ///< Of the last WindowMs.
        std::int64_t closedUntil = 0;
        std::uint64_t refused = 0;
        bool isClosed = false; ///< Until a write passes.
    };

    std::map<std::uint8_t, Code> m_codes;
    std::uint64_t m_trips = 0;
    std::uint64_t m_refused = 0;
};

} // namespace ddc
