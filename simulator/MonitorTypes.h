// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

#include "ddc/Bus.h"

namespace sim {

using Clock = std::chrono::steady_clock;

/// The two kinds of VCP transaction.
enum class Op {
    Get,
    Set,
};

/// What a simulated transaction can suffer.
enum class FaultKind {
    Nack,     ///< The frame is not acknowledged and lost.
    Null,     ///< The reply is a null message.
    Checksum, ///< The reply's last byte is wrong.
    Garbage,  ///< The reply is random bytes.
    Timeout,  ///< The bus hangs, then reports a timeout.
};

/// A disturbance to arm on a monitor. Null, Checksum and Garbage spoil a reply; as a set has none, they meet
/// sets only where #op asks for them, and then the frame is acknowledged but never understood.
struct Fault
{
    FaultKind kind = FaultKind::Nack;
    std::optional<std::uint8_t> code; ///< Only this VCP code; absent: all.
    std::optional<Op> op;             ///< Only this direction; absent: both.
    std::optional<int> count; ///< So many transactions, each with all its tries; absent: until cleared.
    std::optional<double> probability;      ///< 0 to 1, drawn for each try anew; absent: every try.
    std::optional<int> every;               ///< Only each so-manieth of the tries that it meets.
    std::chrono::milliseconds blocks{1000}; ///< How long a Timeout holds the bus.
};

/// One try of a VCP transaction as it went over the wire.
struct TrafficEntry
{
    quint64 seq = 0; ///< From Options::sequence, taken when the try was over; rises in the list.
    double ms = 0;   ///< Time of the first byte since Options::epoch.
    Op op = Op::Get;
    std::uint8_t code = 0;
    std::uint16_t value =
        0; ///< A set's value, or the value that the reply of a get carried (0 if it carried none).
    bool ok =
        false; ///< A get: the reply carried the value. A set: the frame was acknowledged and understood.
    std::optional<int> window; ///< Of a multiplexed code: the window or band that was selected.
};

/// One I2C transfer, byte by byte, of the optional raw log.
struct RawTransfer
{
    double ms = 0;
    std::uint8_t address = 0;
    bool read = false;
    QByteArray bytes; ///< Empty for a read that failed.
    ddc::BusStatus status = ddc::BusStatus::Ok;
};

/// How often a host broke the protocol's waits (counted with strict timing only).
struct Violations
{
    quint64 earlyReplies = 0; ///< A reply was read before the monitor had it.
    quint64 earlyFrames = 0;  ///< A frame or a read came while the monitor was busy with a set.
    QString last;             ///< The last one in words, empty if there was none.

    quint64 total() const { return earlyReplies + earlyFrames; }
};

/// What a monitor is made with. Functions are called with the monitor's lock held and must not call it back.
struct Options
{
    bool strictTiming = false; ///< Enforce the waits of DDC/CI; otherwise replies are ready at once.
    std::function<Clock::time_point()> clock;     ///< Empty: Clock::now.
    std::function<Clock::time_point()> roomClock; ///< Of light and presence; empty: the same as clock.
    Clock::time_point epoch{};                    ///< Zero of the logs' milliseconds.
    std::function<quint64()> sequence;            ///< Numbers of the wire log, rising; empty: 1, 2, 3 ...
    quint32 seed = 1;                             ///< Of the generator for probabilities and garbage.
};

/// "nack", "null", "checksum", "garbage", "timeout"; nothing for any other text.
std::optional<FaultKind> faultKindFromName(const QString& name);

/// "get" or "set"; nothing for any other text.
std::optional<Op> opFromName(const QString& name);

/// The opposite way, "get" or "set".
QString opName(Op op);

} // namespace sim
