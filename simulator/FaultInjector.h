// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "MonitorTypes.h"

#include <random>
#include <vector>

namespace sim {

/// Says which tries suffer which fault. It knows a transaction by its tries, since a device sees nothing else
/// of it. Not thread safe.
class FaultInjector
{
public:
    /// Tries that are further apart belong to different transactions.
    static constexpr std::chrono::milliseconds LongestRetryPause{2000};

    /// What a try is about; equal tries in a row may be repeats of each other.
    struct Subject
    {
        Op op = Op::Get;
        int code = -1; ///< -1: not a VCP code (capabilities, saving); faults for a code do not meet it.
        int value = 0;
        bool operator==(const Subject&) const = default;
    };

    explicit FaultInjector(quint32 seed) : m_random(seed) {}

    void arm(const Fault& fault);
    void clear();

    /// A try begins. Returns the fault that it suffers.
    std::optional<Fault> begin(const Subject& subject, Clock::time_point now);
    /// The present try is over. Success ends the transaction.
    void end(bool ok, Clock::time_point now);
    /// Whatever comes next begins a transaction.
    void endTransaction() { m_current.reset(); }

    /// Bytes that are no valid reply, of a length from 1 to 14.
    QByteArray garbage();

private:
    struct Transaction
    {
        Subject subject;
        Clock::time_point last;
        std::optional<Fault> fault;
    };

    std::optional<Fault> take(const Subject& subject);

    std::mt19937 m_random;
    std::vector<Fault> m_armed;
    int m_met = 0; ///< Tries that a fault with `every` has met so far.
    std::optional<Transaction> m_current;
};

} // namespace sim
