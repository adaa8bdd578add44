// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ddc/Transactor.h>

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <numeric>
#include <thread>
#include <vector>

using Bytes = std::vector<std::uint8_t>;
using Ms = std::chrono::milliseconds;

/// A wire clock that moves only when told to, or by itself to the end of every sleep.
class FakeClock : public ddc::WireClock
{
public:
    TimePoint now() const override
    {
        const std::lock_guard lock(m_mutex);
        return m_now;
    }

    bool sleepUntil(TimePoint time, const ddc::CancelToken& cancel) override
    {
        {
            const std::lock_guard lock(m_mutex);
            if (!m_standStill) {
                m_now = std::max(m_now, time);
                return cancel.error() == ddc::Error::None;
            }
            ++m_asleep;
        }
        const bool whole = cancel.waitUntil(std::chrono::steady_clock::now() + std::chrono::hours(1));
        const std::lock_guard lock(m_mutex);
        --m_asleep;
        return whole;
    }

    void advance(Ms time)
    {
        const std::lock_guard lock(m_mutex);
        m_now += time;
    }

    /// Sleeps then last until they are cancelled.
    void standStill(bool on)
    {
        const std::lock_guard lock(m_mutex);
        m_standStill = on;
    }

    int asleep() const
    {
        const std::lock_guard lock(m_mutex);
        return m_asleep;
    }

private:
    mutable std::mutex m_mutex;
    TimePoint m_now{std::chrono::hours(1)};
    bool m_standStill = false;
    int m_asleep = 0;
};

/// What the test lays on the wire and what it finds there afterwards.
struct Wire
{
    struct Entry
    {
        bool isWrite;
        std::uint8_t address;
        Bytes bytes;
        Ms at; ///< Since the wire was made.
    };
    struct Reply
    {
        ddc::BusStatus status;
        Bytes bytes;
    };

    explicit Wire(std::shared_ptr<FakeClock> c) : clock(std::move(c)), start(clock->now()) {}

    std::shared_ptr<FakeClock> clock;
    ddc::WireClock::TimePoint start;

    std::deque<ddc::BusStatus> writeResults; ///< Used up first; then Ok.
    std::deque<Reply> replies;               ///< Used up first; then `answer`.
    std::function<Reply(const Bytes& request)> answer;
    std::function<void()> onWrite; ///< Called at the start of every write.

    std::vector<Entry> log; ///< To be read when no call is in progress.
    Bytes request;          ///< The message written last.

    std::vector<Ms> times(bool writes) const
    {
        std::vector<Ms> list;
        for (const Entry& entry : log) {
            if (entry.isWrite == writes)
                list.push_back(entry.at);
        }
        return list;
    }
};

class FakeBus : public ddc::Bus
{
public:
    explicit FakeBus(std::shared_ptr<Wire> wire) : m_wire(std::move(wire)) {}

    ddc::BusStatus write(std::uint8_t address, std::span<const std::uint8_t> bytes) override
    {
        if (m_wire->onWrite)
            m_wire->onWrite();
        m_wire->request.assign(bytes.begin(), bytes.end());
        note(true, address, m_wire->request);
        if (m_wire->writeResults.empty())
            return ddc::BusStatus::Ok;
        const auto status = m_wire->writeResults.front();
        m_wire->writeResults.pop_front();
        return status;
    }

    ddc::BusStatus read(std::uint8_t address, std::span<std::uint8_t> bytes) override
    {
        Wire::Reply reply{ddc::BusStatus::Nack, {}};
        if (!m_wire->replies.empty()) {
            reply = m_wire->replies.front();
            m_wire->replies.pop_front();
        } else if (m_wire->answer) {
            reply = m_wire->answer(m_wire->request);
        }
        note(false, address, reply.bytes);
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = i < reply.bytes.size() ? reply.bytes[i] : 0xFF;
        return reply.status;
    }

    std::string name() const override { return "fake"; }

private:
    void note(bool isWrite, std::uint8_t address, const Bytes& bytes)
    {
        const auto at = std::chrono::duration_cast<Ms>(m_wire->clock->now() - m_wire->start);
        m_wire->log.push_back({isWrite, address, bytes, at});
    }

    std::shared_ptr<Wire> m_wire;
};

/// A transactor on a fake bus and a fake clock.
struct Bench
{
    explicit Bench(ddc::Timing timing = ddc::Timing::real())
        : clock(std::make_shared<FakeClock>()), wire(std::make_shared<Wire>(clock)),
          monitor(std::make_unique<FakeBus>(wire), timing, clock)
    {
    }

    std::shared_ptr<FakeClock> clock;
    std::shared_ptr<Wire> wire;
    ddc::Transactor monitor;
};

/// A frame of the monitor with the checksum behind it, reckoned apart from the code under test.
inline Bytes sealed(Bytes frame)
{
    frame.push_back(std::accumulate(frame.begin(), frame.end(), std::uint8_t(0x50), std::bit_xor<>()));
    return frame;
}

inline Bytes vcpFrame(std::uint8_t code, std::uint16_t current, std::uint16_t maximum)
{
    return sealed({0x6E, 0x88, 0x02, 0x00, code, 0x00, std::uint8_t(maximum >> 8), std::uint8_t(maximum),
                   std::uint8_t(current >> 8), std::uint8_t(current)});
}

inline Wire::Reply good(Bytes bytes)
{
    return {ddc::BusStatus::Ok, std::move(bytes)};
}

inline Wire::Reply nullMessage()
{
    return good({0x6E, 0x80, 0xBE});
}

inline Wire::Reply badChecksum()
{
    return good({0x6E, 0x88, 0x02, 0x00, 0x10, 0x00, 0x00, 0x64, 0x00, 0x32, 0xF3});
}

inline Wire::Reply unsupported()
{
    return good({0x6E, 0x88, 0x02, 0x01, 0x10, 0x00, 0x00, 0x00, 0x00, 0x00, 0xA5});
}

/// 0x10 is 50 of 100.
inline Wire::Reply fifty()
{
    return good({0x6E, 0x88, 0x02, 0x00, 0x10, 0x00, 0x00, 0x64, 0x00, 0x32, 0xF2});
}
