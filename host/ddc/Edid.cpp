// SPDX-License-Identifier: Apache-2.0
#include "Edid.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace ddc {

namespace {

constexpr std::array<std::uint8_t, 8> Header = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};

// Fields of the base block (VESA E-EDID 1.4, chapter 3).
constexpr std::size_t ManufacturerAt = 8;
constexpr std::size_t ProductAt = 10;
constexpr std::size_t SerialAt = 12;
constexpr std::size_t WeekAt = 16;
constexpr std::size_t YearAt = 17;
constexpr std::size_t ExtensionsAt = 126;
constexpr std::size_t DescriptorsAt[] = {54, 72, 90, 108};
constexpr std::size_t DescriptorTagAt = 3;
constexpr std::size_t DescriptorTextAt = 5;
constexpr std::size_t DescriptorTextSize = 13;

constexpr std::uint8_t TextSerialTag = 0xFF;
constexpr std::uint8_t NameTag = 0xFC;
constexpr std::uint8_t ModelYearWeek = 0xFF;
constexpr int LastWeek = 54;
constexpr int FirstYear = 1990;

std::string letters(std::span<const std::uint8_t> edid)
{
    const unsigned packed = unsigned(edid[ManufacturerAt] << 8 | edid[ManufacturerAt + 1]);
    std::string name;
    for (const int shift : {10, 5, 0}) {
        const unsigned letter = packed >> shift & 0x1F;
        if (letter < 1 || letter > 26)
            return {};
        name += char('A' + letter - 1);
    }
    return name;
}

std::string descriptorText(std::span<const std::uint8_t> bytes)
{
    std::string line;
    for (const std::uint8_t byte : bytes) {
        if (byte == '\n')
            break;
        if (byte >= 0x20 && byte <= 0x7E)
            line += char(byte);
    }
    const auto first = line.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return line.substr(first, line.find_last_not_of(' ') - first + 1);
}

void readDescriptor(std::span<const std::uint8_t> descriptor, Edid& edid)
{
    // A pixel clock other than 0 makes it a detailed timing, whose bytes mean something else.
    if (descriptor[0] != 0 || descriptor[1] != 0)
        return;
    const std::uint8_t tag = descriptor[DescriptorTagAt];
    if (tag != TextSerialTag && tag != NameTag)
        return;
    std::string& field = tag == NameTag ? edid.name : edid.serialText;
    if (field.empty())
        field = descriptorText(descriptor.subspan(DescriptorTextAt, DescriptorTextSize));
}

} // namespace

std::string Edid::identitySerial() const
{
    if (!serialText.empty())
        return serialText;
    return serialNumber != 0 ? std::to_string(serialNumber) : std::string();
}

bool edidChecksumOk(std::span<const std::uint8_t> block)
{
    return block.size() == EdidBlockSize && std::accumulate(block.begin(), block.end(), 0u) % 256 == 0;
}

Result<Edid> parseEdid(std::span<const std::uint8_t> bytes)
{
    if (bytes.size() < EdidBlockSize || !std::equal(Header.begin(), Header.end(), bytes.begin()))
        return Error::Malformed;
    Edid edid;
    edid.manufacturer = letters(bytes);
    edid.product = std::uint16_t(bytes[ProductAt] | bytes[ProductAt + 1] << 8);
    for (std::size_t i = 0; i < 4; ++i)
        edid.serialNumber |= std::uint32_t(bytes[SerialAt + i]) << (8 * i);
    edid.isModelYear = bytes[WeekAt] == ModelYearWeek;
    edid.week = bytes[WeekAt] <= LastWeek ? bytes[WeekAt] : 0;
    edid.year = FirstYear + bytes[YearAt];
    for (const std::size_t at : DescriptorsAt)
        readDescriptor(bytes.subspan(at, 18), edid);
    edid.extensions = bytes[ExtensionsAt];
    edid.checksumOk = edidChecksumOk(bytes.first(EdidBlockSize));
    return edid;
}

} // namespace ddc
