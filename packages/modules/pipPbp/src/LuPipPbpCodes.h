// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// What LuPipPbp says to the monitor and to the settings.
namespace LuPipPbpCodes {

constexpr int Layout = 0x7D;
constexpr int WindowSource = 0x7E;
constexpr int Swap = 0x7F;
constexpr int SizeAndPosition = 0x80;
constexpr int WindowSelection = 0xA5;
constexpr int AudioSource = 0xF5;

constexpr int Off = 0;
constexpr int PositionShift = 8;
constexpr int ByteMask = 0xFF;

/// Windows beside the main one in a layout of four.
constexpr int Pbp4Windows = 3;

inline const QString StateKey = QStringLiteral("state");
inline const QString ModeKey = QStringLiteral("mode");
inline const QString PipSizeKey = QStringLiteral("pipSize");
inline const QString PipPositionKey = QStringLiteral("pipPosition");
inline const QString Pbp4SourceListKey = QStringLiteral("pbp4SourceList");
inline const QString PbpAudioSourceKey = QStringLiteral("pbpAudioSource");

} // namespace LuPipPbpCodes
