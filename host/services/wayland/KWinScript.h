// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace services::wayland {

/// Script for KWin 5 and 6 that tells a bus address which application comes to the foreground and which is
/// being dragged, in text: "PID", "PID X Y".
QString watchScript(const QString& busAddress, const QString& objectPath, const QString& interface);

/// Script that moves and sizes the window of a process that is in front of its others, in desktop
/// coordinates; a maximised one is restored first.
QString placeScript(unsigned long pid, const QString& x, const QString& y, const QString& width,
                    const QString& height);

} // namespace services::wayland
