// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Bus.h"

#include <cstddef>
#include <utility>

namespace ddc {

/// What a call to a monitor came to, from whatever layer the trouble arose.
enum class Error {
    None,        ///< It worked.
    NoReply,     ///< The monitor did not acknowledge, or the adapter gave up waiting for it.
    NullReply,   ///< The monitor answered "nothing to say" to every try; some mean "unsupported" by it.
    BadChecksum, ///< The last reply was damaged.
    Unsupported, ///< The monitor says that it does not have this code.
    Malformed,   ///< The last reply was not what the protocol allows, or answered something else.
    Busy,        ///< The bus belonged to somebody else for too long.
    NoAccess,    ///< The user may not use the bus.
    Gone,        ///< The bus or the monitor was unplugged.
    Cancelled,   ///< The call was given up by the program.
    Refused,     ///< Not sent: the program by itself wrote this code too often (Breaker).
    Asleep,      ///< Not sent: the display sleeps and is not to be woken.
};

inline constexpr std::size_t ErrorCount = std::size_t(Error::Asleep) + 1;

/// Result of taking a reply frame to pieces.
enum class ParseResult {
    Ok,          ///< A valid reply to the request.
    Null,        ///< A valid null message.
    BadChecksum, ///< A frame whose checksum does not fit.
    Unsupported, ///< A valid reply that says that the code is not supported.
    Truncated,   ///< The frame says that it is longer than what was read.
    Malformed,   ///< No frame, or a frame of another kind.
    Mismatch,    ///< A valid reply to another request (other code, other offset).
};

/// An English phrase for logs and messages, such as "no reply". Never null; any thread.
const char* text(Error error);

/// The one place where the outcome of a transfer becomes an error.
Error errorOf(BusStatus status);

/// The one place where the outcome of parsing becomes an error.
Error errorOf(ParseResult result);

/// A value or the error that stands in its place. The value is meaningful for Error::None only.
template <typename T>
struct Result
{
    Error error = Error::None;
    T value{};

    Result(Error e) : error(e) {}
    Result(T v) : value(std::move(v)) {}
    Result(Error e, T v) : error(e), value(std::move(v)) {}

    explicit operator bool() const { return error == Error::None; }
};

} // namespace ddc
