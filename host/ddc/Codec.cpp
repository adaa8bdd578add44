// SPDX-License-Identifier: Apache-2.0
#include "Codec.h"

#include <algorithm>

namespace ddc {

namespace {

constexpr std::uint8_t HostSource = 0x51;
constexpr std::uint8_t MonitorWriteAddress =
    0x6E; ///< 0x37 shifted: what the checksum of a request starts with.
constexpr std::uint8_t VirtualHostAddress = 0x50; ///< What the checksum of a reply starts with.
constexpr std::uint8_t LengthFlag = 0x80;

constexpr std::uint8_t ReplySources[] = {
    0x6E, // by the standard
    0x50, // seen in the field
    0x51, // seen in the field
};

enum Opcode : std::uint8_t {
    GetVcp = 0x01,
    GetVcpReply = 0x02,
    SetVcp = 0x03,
    SaveSettings = 0x0C,
    CapabilitiesReply = 0xE3,
    CapabilitiesRequest = 0xF3,
};

enum VcpResult : std::uint8_t {
    Supported = 0x00,
    NotSupported = 0x01,
};

std::uint8_t checksum(std::uint8_t start, std::span<const std::uint8_t> bytes)
{
    for (const std::uint8_t byte : bytes)
        start ^= byte;
    return start;
}

template <typename... Bytes>
std::array<std::uint8_t, sizeof...(Bytes) + 3> request(Bytes... payload)
{
    std::array<std::uint8_t, sizeof...(Bytes) + 3> frame{
        HostSource, std::uint8_t(LengthFlag | sizeof...(Bytes)), std::uint8_t(payload)...};
    frame.back() = checksum(MonitorWriteAddress, std::span(frame).first(frame.size() - 1));
    return frame;
}

std::uint16_t word(std::span<const std::uint8_t> bytes, std::size_t at)
{
    return std::uint16_t(bytes[at] << 8 | bytes[at + 1]);
}

} // namespace

std::array<std::uint8_t, 5> getVcpRequest(std::uint8_t code)
{
    return request(GetVcp, code);
}

std::array<std::uint8_t, 7> setVcpRequest(std::uint8_t code, std::uint16_t value)
{
    return request(SetVcp, code, value >> 8, value & 0xFF);
}

std::array<std::uint8_t, 4> saveSettingsRequest()
{
    return request(SaveSettings);
}

std::array<std::uint8_t, 6> capabilitiesRequest(std::uint16_t offset)
{
    return request(CapabilitiesRequest, offset >> 8, offset & 0xFF);
}

ParseResult openFrame(std::span<const std::uint8_t> bytes, std::span<const std::uint8_t>& payload)
{
    if (bytes.size() < 3)
        return ParseResult::Truncated;
    if (std::find(std::begin(ReplySources), std::end(ReplySources), bytes[0]) == std::end(ReplySources))
        return ParseResult::Malformed;
    if (!(bytes[1] & LengthFlag))
        return ParseResult::Malformed;
    const std::size_t length = bytes[1] & ~LengthFlag;
    if (length + 3 > bytes.size())
        return ParseResult::Truncated;
    if (checksum(VirtualHostAddress, bytes.first(length + 2)) != bytes[length + 2])
        return ParseResult::BadChecksum;
    if (length == 0)
        return ParseResult::Null;
    payload = bytes.subspan(2, length);
    return ParseResult::Ok;
}

ParseResult parseVcpReply(std::span<const std::uint8_t> bytes, std::uint8_t code, VcpReply& reply)
{
    std::span<const std::uint8_t> payload;
    if (const ParseResult result = openFrame(bytes, payload); result != ParseResult::Ok)
        return result;
    if (payload.size() != 8 || payload[0] != GetVcpReply)
        return ParseResult::Malformed;
    if (payload[2] != code)
        return ParseResult::Mismatch;
    if (payload[1] == NotSupported)
        return ParseResult::Unsupported;
    if (payload[1] != Supported)
        return ParseResult::Malformed;
    reply = {payload[2], payload[3] == 1, word(payload, 4), word(payload, 6)};
    return ParseResult::Ok;
}

ParseResult parseFragment(std::span<const std::uint8_t> bytes, std::uint16_t offset, Fragment& fragment)
{
    std::span<const std::uint8_t> payload;
    if (const ParseResult result = openFrame(bytes, payload); result != ParseResult::Ok)
        return result;
    if (payload.size() < 3 || payload.size() > 3 + FragmentDataSize || payload[0] != CapabilitiesReply)
        return ParseResult::Malformed;
    if (word(payload, 1) != offset)
        return ParseResult::Mismatch;
    fragment = {offset, payload.subspan(3)};
    return ParseResult::Ok;
}

} // namespace ddc
