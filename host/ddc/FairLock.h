// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Cancel.h"

#include <condition_variable>
#include <mutex>
#include <optional>

namespace ddc {

/// A lock that is handed on in the order in which it was asked for and that a waiter can leave, by time or by
/// cancellation. All functions may be called on any thread.
class FairLock
{
public:
    /// Waits for the lock. Error::None: held, release() must follow; Error::Busy: @p deadline passed; else
    /// the error of the token, which ends the wait once wakeAll() was called. Only a deadline costs real
    /// time.
    Error acquire(const CancelToken& token, std::optional<CancelToken::TimePoint> deadline = {});

    /// Hands the lock to the waiter that has waited longest.
    void release();

    /// Lets all waiters look at their tokens.
    void wakeAll();

    /// How many calls are waiting at the moment.
    int waiting() const;

private:
    struct Waiter
    {
        std::condition_variable wake;
        bool granted = false;
        Waiter* next = nullptr;
    };

    void remove(Waiter& waiter);

    mutable std::mutex m_mutex;
    Waiter* m_first = nullptr;
    Waiter* m_last = nullptr;
    bool m_held = false;
};

} // namespace ddc
