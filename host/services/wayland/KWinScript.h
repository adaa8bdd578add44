// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>
#include <QString>

namespace services::wayland {

/// Object of the bus that a script calls.
struct ScriptListener
{
    QString address;
    QString path;
    QString interface;
};

/// Script for KWin 5 and 6 that tells which application comes to the foreground ("activated") and which
/// window is being dragged and let go ("dragged", "released"), in text: "PID", "PID X Y WINDOW".
QString watchScript(const ScriptListener& listener);

/// Script that moves and sizes a window of a process, in desktop coordinates; a maximised one is restored
/// first.
/// @p window is as watchScript() tells it; where it is not the process's, it is the window with the focus or
/// else the one that is in front of the others. At its end it tells its own @p name ("ended").
QString placeScript(const ScriptListener& listener, const QString& name, unsigned long pid,
                    const QString& window, const QRectF& geometry);

} // namespace services::wayland
