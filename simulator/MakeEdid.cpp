// SPDX-License-Identifier: Apache-2.0
#include "MakeEdid.h"

#include <algorithm>
#include <array>

namespace sim {

namespace {

using Block = std::array<unsigned char, 128>;
using Descriptor = std::array<unsigned char, 18>;

constexpr qsizetype TextLength = 13;
constexpr std::size_t FirstDescriptor = 54;

// sRGB primaries and white point, as the ten-bit fractions of bytes 25 to 34.
constexpr unsigned char Chromaticity[] = {0xEE, 0x91, 0xA3, 0x54, 0x4C, 0x99, 0x26, 0x0F, 0x50, 0x54};

unsigned char low(int value)
{
    return static_cast<unsigned char>(value & 0xFF);
}

unsigned char high(int value)
{
    return static_cast<unsigned char>((value >> 8) & 0xFF);
}

Descriptor textDescriptor(unsigned char tag, const QString& text)
{
    Descriptor d{};
    d[3] = tag;
    const QByteArray bytes = text.toLatin1().left(TextLength);
    for (qsizetype i = 0; i < TextLength; ++i)
        d[5 + static_cast<std::size_t>(i)] =
            i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : (i == bytes.size() ? 0x0A : 0x20);
    return d;
}

/// The panel's own timing with reduced blanking (CVT-RB figures: 160 pixels across, about 460 us down).
Descriptor timingDescriptor(const Panel& panel)
{
    constexpr int HorizontalBlank = 160;
    constexpr int FrontPorch = 48;
    constexpr int SyncWidth = 32;
    constexpr int HighestClock = 0xFFFF; // in units of 10 kHz
    int refresh = panel.refresh;
    int verticalBlank = 0;
    int clock = 0;
    // A rate beyond what the descriptor can hold is left to the display's other modes.
    for (;; refresh = std::max(24, refresh / 2)) {
        const double line = (1.0 / refresh - 460e-6) / panel.height;
        verticalBlank = std::max(14, static_cast<int>(460e-6 / line) + 1);
        clock = static_cast<int>(double(panel.width + HorizontalBlank) * (panel.height + verticalBlank) *
                                 refresh / 1e4);
        if (clock <= HighestClock || refresh <= 24)
            break;
    }
    clock = std::min(clock, HighestClock);
    Descriptor d{};
    d[0] = low(clock);
    d[1] = high(clock);
    d[2] = low(panel.width);
    d[3] = low(HorizontalBlank);
    d[4] = static_cast<unsigned char>((panel.width >> 8) << 4 | HorizontalBlank >> 8);
    d[5] = low(panel.height);
    d[6] = low(verticalBlank);
    d[7] = static_cast<unsigned char>((panel.height >> 8) << 4 | verticalBlank >> 8);
    d[8] = FrontPorch;
    d[9] = SyncWidth;
    d[10] = 0x3A; // vertical front porch 3, sync width 10
    d[12] = low(panel.widthMm);
    d[13] = low(panel.heightMm);
    d[14] = static_cast<unsigned char>((panel.widthMm >> 8) << 4 | panel.heightMm >> 8);
    d[17] = 0x1A; // digital separate sync, horizontal positive
    return d;
}

Descriptor rangeDescriptor(const Panel& panel)
{
    Descriptor d{};
    d[3] = 0xFD;
    d[5] = 24;
    d[6] = static_cast<unsigned char>(panel.refresh);
    d[7] = 30;
    d[8] = 250;
    d[9] = 66; // 660 MHz
    d[10] = 0x01;
    d[11] = 0x0A;
    std::fill(d.begin() + 12, d.end(), 0x20);
    return d;
}

void put(Block& block, int index, const Descriptor& descriptor)
{
    std::copy(descriptor.begin(), descriptor.end(),
              block.begin() + static_cast<std::ptrdiff_t>(FirstDescriptor) + index * 18);
}

} // namespace

quint32 numericSerial(const QString& serial)
{
    if (serial.isEmpty())
        return 0;
    quint32 hash = 2166136261u;
    for (const char c : serial.toLatin1())
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
    return hash ? hash : 1;
}

QByteArray makeEdid(const ModelDescription& model, const QString& serial)
{
    Block e{};
    std::fill(e.begin() + 1, e.begin() + 7, 0xFF);
    // "LMD", five bits a letter.
    e[8] = 0x31;
    e[9] = 0xA4;
    e[10] = low(model.productCode);
    e[11] = high(model.productCode);
    const quint32 number = numericSerial(serial);
    for (std::size_t i = 0; i < 4; ++i)
        e[12 + i] = static_cast<unsigned char>(number >> (8 * i));
    e[16] = 10;
    e[17] = 2024 - 1990;
    e[18] = 1;
    e[19] = 4;
    e[20] = 0xB5; // digital, 10 bits a colour, DisplayPort
    e[21] = static_cast<unsigned char>(std::min(255, (model.panel.widthMm + 5) / 10));
    e[22] = static_cast<unsigned char>(std::min(255, (model.panel.heightMm + 5) / 10));
    e[23] = 120;
    e[24] = 0x06; // sRGB, preferred timing is native
    std::copy(std::begin(Chromaticity), std::end(Chromaticity), e.begin() + 25);
    std::fill(e.begin() + 38, e.begin() + 54, 0x01);
    put(e, 0, timingDescriptor(model.panel));
    put(e, 1, textDescriptor(0xFC, model.name));
    Descriptor unused{};
    unused[3] = 0x10;
    put(e, 2, serial.isEmpty() ? unused : textDescriptor(0xFF, serial));
    put(e, 3,
        model.builtIn ? textDescriptor(0xFE, QStringLiteral("Notebook LCD")) : rangeDescriptor(model.panel));
    unsigned sum = 0;
    for (std::size_t i = 0; i < 127; ++i)
        sum += e[i];
    e[127] = static_cast<unsigned char>(0x100 - (sum & 0xFF));
    return QByteArray(reinterpret_cast<const char*>(e.data()), static_cast<qsizetype>(e.size()));
}

} // namespace sim
