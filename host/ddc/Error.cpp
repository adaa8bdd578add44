// SPDX-License-Identifier: Apache-2.0
#include "Error.h"

namespace ddc {

const char* text(Error error)
{
    switch (error) {
    case Error::None:
        return "no error";
    case Error::NoReply:
        return "no reply";
    case Error::NullReply:
        return "null reply";
    case Error::BadChecksum:
        return "bad checksum";
    case Error::Unsupported:
        return "unsupported code";
    case Error::Malformed:
        return "malformed reply";
    case Error::Busy:
        return "bus busy";
    case Error::NoAccess:
        return "no access to the bus";
    case Error::Gone:
        return "monitor gone";
    case Error::Cancelled:
        return "cancelled";
    case Error::Refused:
        return "refused after too many writes";
    case Error::Asleep:
        return "display asleep";
    }
    return "unknown error";
}

Error errorOf(BusStatus status)
{
    switch (status) {
    case BusStatus::Ok:
        return Error::None;
    case BusStatus::Nack:
        return Error::NoReply;
    case BusStatus::Busy:
        return Error::Busy;
    case BusStatus::Timeout:
        return Error::NoReply;
    case BusStatus::NoAccess:
        return Error::NoAccess;
    case BusStatus::Gone:
        return Error::Gone;
    }
    return Error::NoReply;
}

Error errorOf(ParseResult result)
{
    switch (result) {
    case ParseResult::Ok:
        return Error::None;
    case ParseResult::Null:
        return Error::NullReply;
    case ParseResult::BadChecksum:
        return Error::BadChecksum;
    case ParseResult::Unsupported:
        return Error::Unsupported;
    case ParseResult::Truncated:
        return Error::Malformed;
    case ParseResult::Malformed:
        return Error::Malformed;
    case ParseResult::Mismatch:
        return Error::Malformed;
    }
    return Error::Malformed;
}

} // namespace ddc
