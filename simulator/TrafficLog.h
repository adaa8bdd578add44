// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "MonitorTypes.h"

#include <QList>

#include <deque>

namespace sim {

/// What went over the wire of one monitor: VCP tries always, bytes where asked for. Not thread safe.
class TrafficLog
{
public:
    static constexpr std::size_t Capacity = 100'000;

    explicit TrafficLog(const Options& options);

    double milliseconds(Clock::time_point time) const;

    void add(TrafficEntry entry);
    QList<TrafficEntry> since(quint64 seq) const;

    void setRawEnabled(bool enabled);
    void addRaw(RawTransfer transfer);
    QList<RawTransfer> raw() const;

private:
    Clock::time_point m_epoch;
    std::function<quint64()> m_sequence;
    quint64 m_lastSequence = 0;
    std::deque<TrafficEntry> m_entries;
    std::deque<RawTransfer> m_raw;
    bool m_rawEnabled = false;
};

} // namespace sim
