// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QObject>
#include <QPointF>

/// The operating system's events in one place. Every signal is raised on the GUI thread.
class LUSHARED_EXPORT LuPlatformNotifications : public QObject
{
    Q_OBJECT

public:
    static LuPlatformNotifications* instance();

Q_SIGNALS:
    /// Another application came to the foreground.
    void activeAppChanged(unsigned long pid);

    /// The window of an application is being moved with the pointer, or was let go; position in desktop
    /// coordinates.
    void activeAppDragged(unsigned long pid, QPointF position);
    void activeAppReleased(unsigned long pid, QPointF position);

    /// Rotation, size, scaling or place of a screen changed, or a screen came or went.
    void screenGeometryChanged();

    /// The system's brightness of a built-in panel changed.
    void systemBrightnessChanged();

    /// The list of applications is complete: LuPlatformProgram::appListReady holds from now on.
    void appListInitialized();

    /// Applications were installed, changed or removed after that: names, places and icons may be others.
    void appListChanged();

    /// A key was pressed, or repeats itself while held down, whichever application has the focus.
    void activeKeyEvent(Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated);

private:
    LuPlatformNotifications() = default;
};
