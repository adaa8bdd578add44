// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>

namespace ddc {

/// How often each code of a monitor was written, by day, for the last KeptDays days, and in all. Not thread
/// safe.
class Ledger
{
public:
    using Counts = std::map<std::uint8_t, std::uint32_t>;

    static constexpr std::int64_t KeptDays = 30; ///< Today among them.

    /// Books one write on @p day, a running number of days.
    void book(std::uint8_t code, std::int64_t day);

    /// Forgets the days that are out of reach on @p today; the totals keep them.
    void trim(std::int64_t today);

    std::uint32_t on(std::int64_t day, std::uint8_t code) const;
    const std::map<std::int64_t, Counts>& days() const { return m_days; }
    const Counts& totals() const { return m_totals; }

    /// Puts kept numbers in the place of the present ones.
    void restore(Counts totals, std::map<std::int64_t, Counts> days);

private:
    std::map<std::int64_t, Counts> m_days;
    Counts m_totals;
};

} // namespace ddc
