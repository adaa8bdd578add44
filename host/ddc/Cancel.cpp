// SPDX-License-Identifier: Apache-2.0
#include "Cancel.h"

namespace ddc {

Error CancelToken::error() const
{
    const std::uint64_t state = m_source->m_state.load(std::memory_order_acquire);
    if ((state & ~CancelSource::ReasonMask) != m_epoch)
        return Error::Cancelled;
    return Error(state & CancelSource::ReasonMask);
}

bool CancelToken::waitUntil(TimePoint time) const
{
    std::unique_lock lock(m_source->m_mutex);
    return !m_source->m_wake.wait_until(lock, time, [this] { return error() != Error::None; });
}

CancelToken CancelSource::token() const
{
    return {*this, m_state.load(std::memory_order_acquire) & ~ReasonMask};
}

void CancelSource::end(Error reason)
{
    end(token(), reason);
}

void CancelSource::end(const CancelToken& token, Error reason)
{
    {
        const std::lock_guard lock(m_mutex);
        const std::uint64_t state = m_state.load(std::memory_order_relaxed);
        if (state != token.m_epoch)
            return; // Revived since, or ended already.
        m_state.store(state | std::uint64_t(reason), std::memory_order_release);
    }
    m_wake.notify_all();
}

void CancelSource::revive()
{
    {
        const std::lock_guard lock(m_mutex);
        const std::uint64_t state = m_state.load(std::memory_order_relaxed);
        if ((state & ReasonMask) == 0)
            return;
        m_state.store((state & ~ReasonMask) + EpochStep, std::memory_order_release);
    }
    m_wake.notify_all();
}

} // namespace ddc
