// SPDX-License-Identifier: Apache-2.0
#include "FairLock.h"

namespace ddc {

Error FairLock::acquire(const CancelToken& token, std::optional<CancelToken::TimePoint> deadline)
{
    std::unique_lock lock(m_mutex);
    if (const Error error = token.error(); error != Error::None)
        return error;
    if (!m_held) {
        m_held = true;
        return Error::None;
    }

    Waiter self;
    (m_last ? m_last->next : m_first) = &self;
    m_last = &self;
    const auto over = [&] { return self.granted || token.error() != Error::None; };
    if (deadline)
        self.wake.wait_until(lock, *deadline, over);
    else
        self.wake.wait(lock, over);

    if (self.granted)
        return Error::None;
    remove(self);
    const Error error = token.error();
    return error != Error::None ? error : Error::Busy;
}

void FairLock::release()
{
    const std::lock_guard lock(m_mutex);
    Waiter* const next = m_first;
    if (!next) {
        m_held = false;
        return;
    }
    remove(*next);
    next->granted = true;
    next->wake.notify_one(); // Under the mutex: the waiter's stack frame lives until it has it.
}

void FairLock::wakeAll()
{
    const std::lock_guard lock(m_mutex);
    for (Waiter* waiter = m_first; waiter; waiter = waiter->next)
        waiter->wake.notify_one();
}

int FairLock::waiting() const
{
    const std::lock_guard lock(m_mutex);
    int count = 0;
    for (const Waiter* waiter = m_first; waiter; waiter = waiter->next)
        ++count;
    return count;
}

void FairLock::remove(Waiter& waiter)
{
    Waiter* before = nullptr;
    for (Waiter* each = m_first; each != &waiter; each = each->next)
        before = each;
    (before ? before->next : m_first) = waiter.next;
    if (m_last == &waiter)
        m_last = before;
}

} // namespace ddc
