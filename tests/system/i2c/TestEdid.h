// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <numeric>
#include <string>
#include <vector>

/// What an EDID of a test says.
struct EdidText
{
    std::string manufacturer = "ABC";
    std::uint16_t product = 0x1234;
    std::uint32_t number = 0;
    std::string serial = {}; ///< Text; empty: no descriptor. Blanks make a blank one.
    std::string name = "Alpha 27Q";
    bool extension = false;
    bool badChecksum = false;
};

inline std::vector<std::uint8_t> makeEdid(const EdidText& text)
{
    std::vector<std::uint8_t> edid(128, 0);
    std::fill(edid.begin() + 1, edid.begin() + 7, std::uint8_t(0xFF));
    const auto letter = [&](std::size_t i) { return unsigned(text.manufacturer[i] - 'A' + 1); };
    const unsigned packed = letter(0) << 10 | letter(1) << 5 | letter(2);
    edid[8] = std::uint8_t(packed >> 8);
    edid[9] = std::uint8_t(packed);
    edid[10] = std::uint8_t(text.product);
    edid[11] = std::uint8_t(text.product >> 8);
    for (std::size_t i = 0; i < 4; ++i)
        edid[12 + i] = std::uint8_t(text.number >> (8 * i));
    edid[16] = 12;
    edid[17] = 33;
    edid[18] = 1;
    edid[19] = 4;
    edid[20] = 0xB5;
    const auto descriptor = [&](std::size_t at, std::uint8_t tag, const std::string& words) {
        edid[at + 3] = tag;
        for (std::size_t i = 0; i < 13; ++i)
            edid[at + 5 + i] = std::uint8_t(i < words.size() ? words[i] : i == words.size() ? '\n' : ' ');
    };
    edid[54] = 0x56;
    edid[55] = 0x5E;
    if (!text.name.empty())
        descriptor(72, 0xFC, text.name);
    else
        edid[75] = 0x10;
    if (!text.serial.empty())
        descriptor(90, 0xFF, text.serial);
    else
        edid[93] = 0x10;
    edid[111] = 0x10;
    edid[126] = text.extension ? 1 : 0;
    edid[127] = std::uint8_t(256 - std::accumulate(edid.begin(), edid.end() - 1, 0u) % 256);
    if (text.badChecksum)
        edid[127] = std::uint8_t(edid[127] + 7);
    if (text.extension) {
        edid.resize(256, 0);
        edid[128] = 0x02;
        edid[255] = 0xFE;
    }
    return edid;
}
