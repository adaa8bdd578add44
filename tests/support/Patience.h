// SPDX-License-Identifier: Apache-2.0
// Waiting macros of Qt Test with room for a machine that does other things at the same time: a condition that
// holds ends the wait at once, so that a long limit costs a failing test only.
#pragma once

#include <QTest>

/// Milliseconds that a test waits for what other processes and threads do.
inline constexpr int PatienceMs = 30'000;

#undef QTRY_VERIFY
#undef QTRY_VERIFY2
#undef QTRY_COMPARE
#define QTRY_VERIFY(expression) QTRY_VERIFY_WITH_TIMEOUT(expression, PatienceMs)
#define QTRY_VERIFY2(expression, message) QTRY_VERIFY2_WITH_TIMEOUT(expression, message, PatienceMs)
#define QTRY_COMPARE(expression, expected) QTRY_COMPARE_WITH_TIMEOUT(expression, expected, PatienceMs)
