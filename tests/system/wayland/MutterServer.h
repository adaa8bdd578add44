// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "KWinServer.h"
#include "ServerProcess.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QFile>

/// Mutter with two outputs, 1920 by 1080 and 1280 by 1024, and without a screen, on the bus of
/// DBUS_SESSION_BUS_ADDRESS. Its clients find it under the name of KWinServer's.
class MutterServer : public ServerProcess
{
public:
    /// Starts it; @p socket is where its clients connect. Empty on success, else what went wrong.
    QString startOn(const QString& socket)
    {
        environment = QProcessEnvironment::systemEnvironment();
        return start(
            QStringLiteral("mutter"),
            {QStringLiteral("--headless"), QStringLiteral("--wayland"), QStringLiteral("--no-x11"),
             QStringLiteral("--wayland-display"), KWinServer::display(), QStringLiteral("--virtual-monitor"),
             QStringLiteral("1920x1080"), QStringLiteral("--virtual-monitor"), QStringLiteral("1280x1024")},
            [socket] {
                return QFile::exists(socket) &&
                       QDBusConnection::sessionBus().interface()->isServiceRegistered(
                           QStringLiteral("org.gnome.Mutter.DisplayConfig"));
            },
            120'000);
    }
};
