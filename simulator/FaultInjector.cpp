// SPDX-License-Identifier: Apache-2.0
#include "FaultInjector.h"

#include <algorithm>

namespace sim {

namespace {

bool spoilsReply(FaultKind kind)
{
    return kind == FaultKind::Null || kind == FaultKind::Checksum || kind == FaultKind::Garbage;
}

bool meets(const Fault& fault, const FaultInjector::Subject& subject)
{
    if (fault.code && *fault.code != subject.code)
        return false;
    if (fault.op && *fault.op != subject.op)
        return false;
    return subject.op == Op::Get || fault.op || !spoilsReply(fault.kind);
}

} // namespace

void FaultInjector::arm(const Fault& fault)
{
    if (!fault.count || *fault.count > 0)
        m_armed.push_back(fault);
}

void FaultInjector::clear()
{
    m_armed.clear();
    m_met = 0;
    if (m_current)
        m_current->fault.reset();
}

std::optional<Fault> FaultInjector::take(const Subject& subject)
{
    const auto found = std::find_if(m_armed.begin(), m_armed.end(),
                                    [&](const Fault& fault) { return meets(fault, subject); });
    if (found == m_armed.end())
        return std::nullopt;
    const Fault fault = *found;
    if (found->count && --*found->count == 0)
        m_armed.erase(found);
    return fault;
}

std::optional<Fault> FaultInjector::begin(const Subject& subject, Clock::time_point now)
{
    const bool repeats =
        m_current && m_current->subject == subject && now - m_current->last < LongestRetryPause;
    if (!repeats)
        m_current = Transaction{subject, now, take(subject)};
    m_current->last = now;
    const auto& fault = m_current->fault;
    if (!fault || (fault->probability && m_random() / 4294967296.0 >= *fault->probability))
        return std::nullopt;
    if (fault->every && ++m_met % *fault->every != 0)
        return std::nullopt;
    return fault;
}

void FaultInjector::end(bool ok, Clock::time_point now)
{
    if (!m_current)
        return;
    m_current->last = now;
    if (ok)
        m_current.reset();
}

QByteArray FaultInjector::garbage()
{
    QByteArray bytes(static_cast<qsizetype>(1 + m_random() % 14), Qt::Uninitialized);
    for (char& byte : bytes)
        byte = static_cast<char>(m_random() & 0xFF);
    // A reply begins with 0x6E; without it the bytes can never pass for one.
    if (bytes[0] == 0x6E)
        bytes[0] = 0x6F;
    return bytes;
}

} // namespace sim
