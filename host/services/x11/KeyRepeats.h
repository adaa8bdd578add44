// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <optional>

namespace services::x11 {

/// Tells a press that a held key repeats from one of the person's. Keeps which keys are down and nothing
/// else.
class KeyRepeats
{
public:
    /// Times are the server's, in ms.
    /// @return whether the press is a repetition; nothing for one that was reported before.
    std::optional<bool> press(std::uint8_t code, std::uint32_t time)
    {
        const auto held = m_held.find(code);
        if (held == m_held.end()) {
            m_held.emplace(code, time);
            return false;
        }
        const std::uint32_t pause = time - held->second;
        held->second = time;
        if (pause == 0)
            return std::nullopt;
        // A release may be lost, as when another program takes the whole keyboard; no key repeats that
        // slowly.
        return pause < LongestPause;
    }

    void release(std::uint8_t code) { m_held.erase(code); }
    void clear() { m_held.clear(); }

private:
    static constexpr std::uint32_t LongestPause = 2500;
    std::map<std::uint8_t, std::uint32_t> m_held; ///< Time of each held key's last press.
};

} // namespace services::x11
