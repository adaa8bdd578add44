// SPDX-License-Identifier: Apache-2.0
#include "Timing.h"

namespace ddc {

namespace {

class SteadyClock : public WireClock
{
public:
    TimePoint now() const override { return std::chrono::steady_clock::now(); }
    bool sleepUntil(TimePoint time, const CancelToken& cancel) override { return cancel.waitUntil(time); }
};

} // namespace

std::shared_ptr<WireClock> WireClock::steady()
{
    static const std::shared_ptr<WireClock> clock = std::make_shared<SteadyClock>();
    return clock;
}

} // namespace ddc
