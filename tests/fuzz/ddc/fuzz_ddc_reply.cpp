// SPDX-License-Identifier: Apache-2.0
#include <ddc/Codec.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void parse(std::span<const std::uint8_t> bytes, std::uint16_t wanted)
{
    ddc::VcpReply reply;
    if (ddc::parseVcpReply(bytes, std::uint8_t(wanted), reply) == ddc::ParseResult::Ok) {
        require(bytes.size() >= ddc::VcpReplySize);
        require(reply.code == std::uint8_t(wanted));
    }
    ddc::Fragment fragment;
    if (ddc::parseFragment(bytes, wanted, fragment) == ddc::ParseResult::Ok) {
        require(fragment.offset == wanted);
        require(fragment.data.size() <= ddc::FragmentDataSize);
        require(fragment.data.empty() ||
                (fragment.data.data() >= bytes.data() &&
                 fragment.data.data() + fragment.data.size() < bytes.data() + bytes.size()));
    }
}

} // namespace

/// The first two bytes are what was asked for, the rest is what was read. It is parsed as it came and once
/// more with a checksum that fits, since a fuzzer seldom finds one by itself.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const auto wanted = std::uint16_t(data[0] << 8 | data[1]);
    std::vector<std::uint8_t> bytes(data + 2,
                                    data + size); // Of exactly this size, so that a read beyond it shows.
    parse(bytes, wanted);

    if (bytes.size() < 3)
        return 0;
    const std::size_t length = std::min<std::size_t>(bytes[1] & 0x7F, bytes.size() - 3);
    bytes[0] = bytes[0] % 4 == 0 ? 0x50 : bytes[0] % 4 == 1 ? 0x51 : 0x6E;
    bytes[1] = std::uint8_t(0x80 | length);
    std::uint8_t sum = 0x50;
    for (std::size_t i = 0; i < length + 2; ++i)
        sum ^= bytes[i];
    bytes[length + 2] = sum;
    std::span<const std::uint8_t> payload;
    const auto result = ddc::openFrame(bytes, payload);
    require(result == (length == 0 ? ddc::ParseResult::Null : ddc::ParseResult::Ok));
    require(payload.size() == length);
    parse(bytes, wanted);
    return 0;
}
