// SPDX-License-Identifier: Apache-2.0
#include "LuDimmingTable.h"

#include <algorithm>
#include <array>

namespace {

constexpr int LastRow = 100;
constexpr int FirstHardwareRow = 31;
constexpr double AlphaTolerance = 1.0 / 65535;

// Brightness 0 to 30; the hardware is at 0.
constexpr std::array<double, FirstHardwareRow> Opacities{
    0.85, 0.85, 0.85, 0.85, 0.85, 0.85, 0.80, 0.75, 0.75, 0.70, // 0
    0.70, 0.65, 0.60, 0.55, 0.55, 0.50, 0.50, 0.45, 0.40, 0.35, // 10
    0.35, 0.30, 0.30, 0.25, 0.20, 0.15, 0.10, 0.10, 0.05, 0.05, // 20
    0.00,                                                       // 30
};

// Brightness 31 to 100; there is no overlay.
constexpr std::array<int, LastRow + 1 - FirstHardwareRow> HardwareValues{
    1,  3,  4,  6,  7,  9,  10, 11, 13, 14,  // 31
    16, 17, 19, 20, 21, 23, 24, 26, 27, 29,  // 41
    30, 31, 33, 34, 36, 37, 39, 40, 41, 43,  // 51
    44, 46, 47, 49, 50, 51, 53, 54, 56, 57,  // 61
    59, 60, 61, 63, 64, 66, 67, 69, 70, 71,  // 71
    73, 74, 76, 77, 79, 80, 81, 83, 84, 86,  // 81
    87, 89, 90, 91, 93, 94, 96, 97, 99, 100, // 91
};

constexpr int rowOf(int brightness)
{
    return std::clamp(brightness, 0, LastRow);
}

} // namespace

double LuDimmingTable::opacity(int brightness)
{
    const int row = rowOf(brightness);
    return row < FirstHardwareRow ? Opacities[std::size_t(row)] : 0;
}

int LuDimmingTable::hardwareValue(int brightness)
{
    const int row = rowOf(brightness);
    return row < FirstHardwareRow ? 0 : HardwareValues[std::size_t(row - FirstHardwareRow)];
}

int LuDimmingTable::fromHardware(double opacity, int hardware)
{
    for (int row = LastRow; row > 0; --row) {
        if (hardwareValue(row) <= hardware &&
            (hardware >= 1 || LuDimmingTable::opacity(row) >= opacity - AlphaTolerance))
            return row;
    }
    return 0;
}
