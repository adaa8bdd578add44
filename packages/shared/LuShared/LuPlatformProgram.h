// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QObject>
#include <QRectF>
#include <QString>
#include <QUrl>

#include <atomic>

/// The applications of the desktop: who they are, starting them, and placing their windows. All operations
/// may be called from any thread.
class LUSHARED_EXPORT LuPlatformProgram : public QObject
{
    Q_OBJECT

public:
    static LuPlatformProgram* instance();

    /// Identity of an application that stays the same from run to run; empty if the process or file is none.
    QString appId(unsigned long pid) const;
    QString appId(const QUrl& url) const;

    /// Name to show of an application; empty if it is not known.
    QString appDisplayName(const QString& appId) const;

    /// Location of an application's program; empty if it is not known.
    QUrl appUrl(const QString& appId) const;

    /// Starts a program by its path; false if it did not start.
    bool openApplication(const QString& path);

    /// Moves and sizes the main window of a process, in desktop coordinates. Without such a window nothing
    /// happens.
    void setApplicationGeometry(unsigned long pid, const QRectF& geometry);

    /// Whether the list of applications is complete; LuPlatformNotifications::appListInitialized() tells when
    /// it becomes so. It holds from the start where the session keeps no such list, since none will come.
    /// Written by the service alone.
    std::atomic<bool> appListReady;

private:
    LuPlatformProgram();
};
