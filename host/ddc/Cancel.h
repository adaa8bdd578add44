// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Error.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace ddc {

class CancelSource;

/// A call's view of the switch that ends it. Tokens of before a revival stay ended, so that no call of an
/// unplugged monitor wakes up on its successor.
class CancelToken
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    /// Error::None while the call may go on, else why it must end.
    Error error() const;

    /// Sleeps until @p time. Returns false at once when the token ends before that.
    bool waitUntil(TimePoint time) const;

private:
    friend class CancelSource;
    CancelToken(const CancelSource& source, std::uint64_t epoch) : m_source(&source), m_epoch(epoch) {}

    const CancelSource* m_source;
    std::uint64_t m_epoch;
};

/// The switch that ends everything in progress with one monitor and everything later, until it is revived.
/// All functions may be called on any thread.
class CancelSource
{
public:
    CancelToken token() const;

    /// Ends all tokens with @p reason (Cancelled or Gone). The first reason stays.
    void end(Error reason);

    /// Ends the tokens of the same life as @p token; does nothing when that life is over.
    void end(const CancelToken& token, Error reason);

    /// Lets new tokens live; old ones stay ended.
    void revive();

private:
    friend class CancelToken;
    static constexpr std::uint64_t ReasonMask = 0xFF;
    static constexpr std::uint64_t EpochStep = 0x100;

    std::atomic<std::uint64_t> m_state{0}; ///< Epoch above the low eight bits, which hold the reason.
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_wake;
};

} // namespace ddc
