// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Error.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// Frames of DDC/CI 1.1 as they stand in I2C messages to and from address 0x37, without the address byte. All
/// functions are pure, may be called on any thread and look only at the bytes that they are given.
namespace ddc {

/// Reads of these lengths hold the longest reply of their kind.
inline constexpr std::size_t VcpReplySize = 11;
inline constexpr std::size_t FragmentReplySize = 38;

/// The most characters that one fragment of the capabilities string carries.
inline constexpr std::size_t FragmentDataSize = 32;

/// A get VCP reply (opcode 0x02) as the monitor sent it.
struct VcpReply
{
    std::uint8_t code = 0;
    bool momentary = false; ///< Type byte 1: the value falls back by itself; else it is a set parameter.
    std::uint16_t maximum = 0;
    std::uint16_t current = 0;
};

/// One fragment of the capabilities string (opcode 0xE3). The data points into the bytes that were parsed.
struct Fragment
{
    std::uint16_t offset = 0;
    std::span<const std::uint8_t> data;
};

/// Requests, ready for Bus::write(), checksum included.
std::array<std::uint8_t, 5> getVcpRequest(std::uint8_t code);
std::array<std::uint8_t, 7> setVcpRequest(std::uint8_t code, std::uint16_t value);
std::array<std::uint8_t, 4> saveSettingsRequest();
std::array<std::uint8_t, 6> capabilitiesRequest(std::uint16_t offset);

/// Takes a reply to getVcpRequest(@p code) to pieces. @p bytes may be longer than the frame, as a read has a
/// fixed length. The reply is written for ParseResult::Ok only.
ParseResult parseVcpReply(std::span<const std::uint8_t> bytes, std::uint8_t code, VcpReply& reply);

/// Takes a reply to capabilitiesRequest(@p offset) to pieces; an empty fragment marks the string's end. The
/// fragment is written for ParseResult::Ok only.
ParseResult parseFragment(std::span<const std::uint8_t> bytes, std::uint16_t offset, Fragment& fragment);

/// Checks the envelope of a frame from the monitor: source address, length, checksum. On ParseResult::Ok @p
/// payload is the part behind the length byte and before the checksum, opcode first, at least one byte long.
///
/// The source is 0x6E by the standard; 0x50 and 0x51 occur in the field and are taken where the checksum
/// covers them.
ParseResult openFrame(std::span<const std::uint8_t> bytes, std::span<const std::uint8_t>& payload);

} // namespace ddc
