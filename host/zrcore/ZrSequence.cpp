// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrSequence.h"

#include <atomic>

namespace {
std::atomic<quint64> g_last = 0;
}

quint64 ZrSequence::next()
{
    return ++g_last;
}

quint64 ZrSequence::last()
{
    return g_last;
}
