// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

/// One counter for events, wire transactions and log lines, so that their common order shows.
class ZRCORE_EXPORT ZrSequence
{
public:
    ZrSequence() = delete;

    /// The next number, from 1 on, never the same twice in a process. Any thread.
    static quint64 next();
    /// The number given out last, 0 before the first.
    static quint64 last();
};
