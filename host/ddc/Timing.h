// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Cancel.h"

#include <chrono>
#include <memory>

namespace ddc {

/// The waits of the protocol for one monitor.
struct Timing
{
    using Ms = std::chrono::milliseconds;

    Ms replyDelay{40};    ///< Between a request and the read of its reply.
    Ms afterSet{50};      ///< After a set VCP, before anything else.
    Ms afterSave{200};    ///< After saving the settings.
    Ms afterFragment{50}; ///< After a fragment of the capabilities, before anything else.
    bool waits = true;    ///< False: no waits at all, not even those of delay tables, retries and a busy bus.

    /// The waits that DDC/CI 1.1 asks for.
    static constexpr Timing real() { return {}; }

    /// For simulated buses that need no waits.
    static constexpr Timing none() { return {Ms(0), Ms(0), Ms(0), Ms(0), false}; }
};

/// Waits that a monitor was found to need. Zero: nothing learnt.
struct LearntWaits
{
    std::chrono::milliseconds replyDelay{0};
    std::chrono::milliseconds afterSet{0};

    bool operator==(const LearntWaits&) const = default;
};

/// No wait is learnt to be longer than this.
inline constexpr std::chrono::milliseconds LongestLearntWait{200};

/// The next longer wait: 40, 50, 65, 85, 110, 140, 175, 200 ms and no further.
constexpr std::chrono::milliseconds longerWait(std::chrono::milliseconds wait)
{
    const auto rounded = (wait.count() * 5 / 4 + 4) / 5 * 5;
    const auto longest = LongestLearntWait.count();
    return std::chrono::milliseconds(wait.count() >= longest ? wait.count()
                                     : rounded < longest     ? rounded
                                                             : longest);
}

/// The time that a transactor lives by; tests put one of their own in its place.
class WireClock
{
public:
    using TimePoint = CancelToken::TimePoint;

    virtual ~WireClock() = default;

    /// Never goes backwards. Any thread.
    virtual TimePoint now() const = 0;

    /// Returns when now() has reached @p time: true, or false as soon as @p cancel ends. Any thread.
    virtual bool sleepUntil(TimePoint time, const CancelToken& cancel) = 0;

    /// The clock of the machine, one for all.
    static std::shared_ptr<WireClock> steady();
};

} // namespace ddc
