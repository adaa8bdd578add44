// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Error.h"
#include "Ledger.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <vector>

namespace ddc {

/// How often one VCP code was written to one monitor: the ledger against wear.
struct CodeWrites
{
    std::uint8_t code = 0;
    std::uint32_t total = 0; ///< Acknowledged writes, those of earlier runs that were restored among them.
    std::uint32_t today = 0; ///< Of these, on Statistics::day.
};

/// What went over one monitor's bus, in this run and in those that were restored.
struct Statistics
{
    std::uint64_t transfers = 0;    ///< I2C messages, in both directions, with whatever outcome.
    std::uint64_t bytesWritten = 0; ///< In acknowledged messages.
    std::uint64_t bytesRead = 0;
    std::uint64_t gets = 0; ///< Calls, whatever they came to.
    std::uint64_t sets = 0;
    std::uint64_t saves = 0;
    std::uint64_t retries = 0; ///< Tries beyond the first of a call; those on a busy bus are not counted.
    std::uint64_t nullReplies = 0;
    std::uint64_t checksumErrors = 0;
    std::array<std::uint64_t, ErrorCount> errors{}; ///< Calls that ended so, by Error; that of None stays 0.

    std::chrono::milliseconds replyDelay{0}; ///< In force now, learnt or by the protocol.
    std::chrono::milliseconds afterSet{0};

    std::int64_t day = 0;           ///< The day that CodeWrites::today speaks of.
    std::vector<CodeWrites> writes; ///< By code, ascending; codes never written are left out.
    Ledger ledger;                  ///< The same by day.

    std::uint64_t errorsOf(Error error) const { return errors[std::size_t(error)]; }
};

} // namespace ddc
