// SPDX-License-Identifier: Apache-2.0
#include "Breaker.h"

namespace ddc {

Breaker::Verdict Breaker::admit(std::uint8_t code, std::int64_t nowMs)
{
    Code& state = m_codes[code];
    while (!state.writes.empty() && state.writes.front() <= nowMs - WindowMs)
        state.writes.pop_front();
    if (state.isClosed && nowMs < state.closedUntil) {
        ++state.refused;
        ++m_refused;
        return Verdict::Refuse;
    }
    if (state.writes.size() >= std::size_t(Limit)) {
        state.isClosed = true;
        state.closedUntil = nowMs + WindowMs;
        state.refused = 1;
        ++m_refused;
        ++m_trips;
        return Verdict::Trip;
    }
    state.writes.push_back(nowMs);
    if (!state.isClosed)
        return Verdict::Pass;
    state.isClosed = false;
    return Verdict::PassAgain;
}

std::vector<Breaker::Closed> Breaker::closed(std::int64_t nowMs) const
{
    std::vector<Closed> list;
    for (const auto& [code, state] : m_codes) {
        if (state.isClosed && nowMs < state.closedUntil)
            list.push_back({code, state.closedUntil, state.refused});
    }
    return list;
}

std::uint64_t Breaker::refusedOf(std::uint8_t code) const
{
    const auto found = m_codes.find(code);
    return found == m_codes.end() ? 0 : found->second.refused;
}

} // namespace ddc
