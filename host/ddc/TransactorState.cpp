// SPDX-License-Identifier: Apache-2.0
// The part of the transactor that other threads look at: counters, ledger, waits, settings.
#include "Transactor.h"

#include <algorithm>

namespace ddc {

namespace {

template <typename List>
auto place(List& list, std::uint8_t code)
{
    return std::lower_bound(list.begin(), list.end(), code,
                            [](const auto& entry, std::uint8_t wanted) { return entry.code < wanted; });
}

std::int64_t utcDay()
{
    const auto now = std::chrono::system_clock::now();
    return std::chrono::floor<std::chrono::days>(now).time_since_epoch().count();
}

} // namespace

Statistics Transactor::statistics() const
{
    const std::int64_t day = today();
    const std::lock_guard lock(m_mutex);
    Statistics copy = m_counters;
    copy.day = day;
    copy.ledger.trim(day);
    copy.writes.reserve(copy.ledger.totals().size());
    for (const auto& [code, total] : copy.ledger.totals())
        copy.writes.push_back({code, total, copy.ledger.on(day, code)});
    return copy;
}

void Transactor::restore(const Statistics& kept)
{
    const std::lock_guard lock(m_mutex);
    const Ms replyDelay = m_counters.replyDelay;
    const Ms afterSet = m_counters.afterSet;
    m_counters = kept;
    m_counters.writes.clear();
    m_counters.replyDelay = replyDelay;
    m_counters.afterSet = afterSet;
}

void Transactor::noteNotSent(Error reason)
{
    finish(reason);
}

void Transactor::countParse(ParseResult result)
{
    const std::lock_guard lock(m_mutex);
    m_counters.nullReplies += result == ParseResult::Null;
    m_counters.checksumErrors += result == ParseResult::BadChecksum;
}

void Transactor::countWrite(std::uint8_t code)
{
    const std::int64_t day = today();
    const std::lock_guard lock(m_mutex);
    m_counters.ledger.book(code, day);
}

/// Books the end of a call.
Error Transactor::finish(Error error, std::uint64_t Statistics::*kind)
{
    const std::lock_guard lock(m_mutex);
    if (kind)
        ++(m_counters.*kind);
    if (error != Error::None)
        ++m_counters.errors[std::size_t(error)];
    return error;
}

std::int64_t Transactor::today() const
{
    std::function<std::int64_t()> dayOf;
    {
        const std::lock_guard lock(m_mutex);
        dayOf = m_dayOf;
    }
    return dayOf ? dayOf() : utcDay();
}

void Transactor::setDayOf(std::function<std::int64_t()> dayOf)
{
    const std::lock_guard lock(m_mutex);
    m_dayOf = std::move(dayOf);
}

void Transactor::setObserver(std::shared_ptr<Observer> observer)
{
    const std::lock_guard lock(m_mutex);
    m_observer = std::move(observer);
}

void Transactor::setWriteDelays(const std::map<std::uint8_t, Ms>& delays)
{
    std::vector<WriteDelay> list;
    list.reserve(delays.size());
    for (const auto& [code, delay] : delays)
        list.push_back({code, std::max(delay, Ms(0))});
    const std::lock_guard lock(m_mutex);
    m_delays = std::move(list);
}

/// How long a write of @p code holds the bus back; @p usual tells that no delay table has its say in it.
Transactor::Ms Transactor::delayAfter(std::uint8_t code, bool& usual) const
{
    const std::lock_guard lock(m_mutex);
    const auto it = place(m_delays, code);
    usual = it == m_delays.end() || it->code != code;
    return usual ? m_counters.afterSet : it->delay;
}

LearntWaits Transactor::waitsInForce() const
{
    const std::lock_guard lock(m_mutex);
    return {m_counters.replyDelay, m_counters.afterSet};
}

/// Keeps what a call has taught: the reply wait that it came to (never a shorter one), and whether the usual
/// wait after a set has proved too short.
void Transactor::keepWaits(Ms replyDelay, bool longerAfterSet)
{
    if (!m_timing.waits)
        return;
    const std::lock_guard lock(m_mutex);
    m_counters.replyDelay = std::max(m_counters.replyDelay, replyDelay);
    if (longerAfterSet)
        m_counters.afterSet = longerWait(m_counters.afterSet);
}

LearntWaits Transactor::learnt() const
{
    const std::lock_guard lock(m_mutex);
    LearntWaits waits;
    if (m_counters.replyDelay > m_timing.replyDelay)
        waits.replyDelay = m_counters.replyDelay;
    if (m_counters.afterSet > m_timing.afterSet)
        waits.afterSet = m_counters.afterSet;
    return waits;
}

void Transactor::setLearnt(const LearntWaits& waits)
{
    if (!m_timing.waits)
        return;
    const auto raise = [](Ms& inForce, Ms kept) {
        inForce = std::max(inForce, std::min(kept, LongestLearntWait));
    };
    const std::lock_guard lock(m_mutex);
    raise(m_counters.replyDelay, waits.replyDelay);
    raise(m_counters.afterSet, waits.afterSet);
}

} // namespace ddc
