// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QtGlobal>

namespace zr {

inline constexpr qint64 NsPerMs = 1'000'000;
/// The longest wait that is kept, about 95 years: sums of two of them still fit.
inline constexpr qint64 LongestMs = 3'000'000'000'000;

/// The clock at one moment, all parts taken together.
struct ClockReading
{
    qint64 monotonicNs = 0;
    qint64 wallMs = 0; ///< Since the epoch, UTC.
    qint64 wallToMonotonicNs =
        0; ///< Stopped only: add to a wall time in ns for the monotonic time it falls on.
    bool stopped = false;
    bool backgroundMoves = false;
};

ClockReading readClock();

/// Where the wall time of a running clock comes from, in ms since the epoch; null for the system's. For
/// tests.
using WallSource = qint64 (*)();
ZRCORE_EXPORT void setWallSource(WallSource source);

inline qint64 clampedNs(qint64 ms)
{
    return (ms < 0 ? 0 : ms > LongestMs ? LongestMs : ms) * NsPerMs;
}

} // namespace zr
