// SPDX-License-Identifier: Apache-2.0
#include <ddc/Edid.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void parse(std::span<const std::uint8_t> bytes)
{
    const auto result = ddc::parseEdid(bytes);
    if (!result)
        return;
    const ddc::Edid& edid = result.value;
    require(bytes.size() >= ddc::EdidBlockSize);
    require(edid.manufacturer.empty() || edid.manufacturer.size() == 3);
    require(edid.name.size() <= 13 && edid.serialText.size() <= 13);
    require(edid.week >= 0 && edid.week <= 54);
    require(edid.identitySerial().empty() == (edid.serialText.empty() && edid.serialNumber == 0));
    require(edid.checksumOk == ddc::edidChecksumOk(bytes.first(ddc::EdidBlockSize)));
}

} // namespace

/// Parses what comes, and once more behind a header that is right.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::uint8_t> bytes(data, data + size);
    parse(bytes);
    constexpr std::array<std::uint8_t, 8> header = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};
    std::copy_n(header.begin(), std::min(header.size(), bytes.size()), bytes.begin());
    parse(bytes);
    return 0;
}
