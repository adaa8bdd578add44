// SPDX-License-Identifier: Apache-2.0
#include "TrafficLog.h"

#include <algorithm>

namespace sim {

TrafficLog::TrafficLog(const Options& options) : m_epoch(options.epoch), m_sequence(options.sequence) {}

double TrafficLog::milliseconds(Clock::time_point time) const
{
    return std::chrono::duration<double, std::milli>(time - m_epoch).count();
}

void TrafficLog::add(TrafficEntry entry)
{
    entry.seq = m_sequence ? m_sequence() : m_lastSequence + 1;
    m_lastSequence = entry.seq;
    m_entries.push_back(entry);
    if (m_entries.size() > Capacity)
        m_entries.pop_front();
}

QList<TrafficEntry> TrafficLog::since(quint64 seq) const
{
    const auto first =
        std::upper_bound(m_entries.begin(), m_entries.end(), seq,
                         [](quint64 wanted, const TrafficEntry& entry) { return wanted < entry.seq; });
    return {first, m_entries.end()};
}

void TrafficLog::setRawEnabled(bool enabled)
{
    m_rawEnabled = enabled;
    m_raw.clear();
}

void TrafficLog::addRaw(RawTransfer transfer)
{
    if (!m_rawEnabled)
        return;
    m_raw.push_back(std::move(transfer));
    if (m_raw.size() > Capacity)
        m_raw.pop_front();
}

QList<RawTransfer> TrafficLog::raw() const
{
    return {m_raw.begin(), m_raw.end()};
}

} // namespace sim
