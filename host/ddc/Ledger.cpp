// SPDX-License-Identifier: Apache-2.0
#include "Ledger.h"

#include <iterator>
#include <utility>

namespace ddc {

void Ledger::book(std::uint8_t code, std::int64_t day)
{
    ++m_days[day][code];
    ++m_totals[code];
    trim(day);
}

void Ledger::trim(std::int64_t today)
{
    m_days.erase(m_days.begin(), m_days.upper_bound(today - KeptDays));
    // A clock that was set back leaves days that are still to come; no more of them than of the others.
    while (m_days.size() > std::size_t(2 * KeptDays))
        m_days.erase(std::prev(m_days.end()));
}

std::uint32_t Ledger::on(std::int64_t day, std::uint8_t code) const
{
    const auto found = m_days.find(day);
    if (found == m_days.end())
        return 0;
    const auto count = found->second.find(code);
    return count == found->second.end() ? 0 : count->second;
}

void Ledger::restore(Counts totals, std::map<std::int64_t, Counts> days)
{
    m_totals = std::move(totals);
    m_days = std::move(days);
}

} // namespace ddc
