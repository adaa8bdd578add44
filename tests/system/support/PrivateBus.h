// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ServerProcess.h"

#include <QDBusConnection>
#include <QFile>
#include <QTemporaryDir>

/// A message bus of a test's own, with nobody on it.
class PrivateBus
{
public:
    /// Starts it. Empty on success, else what went wrong.
    QString start()
    {
        QFile configuration(m_folder.filePath(QStringLiteral("bus.conf")));
        if (!configuration.open(QIODevice::WriteOnly))
            return configuration.errorString();
        configuration.write(
            "<busconfig><type>session</type><listen>" + address().toUtf8() +
            "</listen><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
            "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n");
        configuration.close();
        return m_daemon.start(
            QStringLiteral("dbus-daemon"),
            {QStringLiteral("--nofork"), QStringLiteral("--config-file"), configuration.fileName()},
            [this] { return answers(); });
    }

    QString address() const
    {
        return QStringLiteral("unix:path=") + m_folder.filePath(QStringLiteral("bus"));
    }

    void stop() { m_daemon.stop(); }

private:
    /// Its socket is there before it listens.
    bool answers() const
    {
        const QString probe = QStringLiteral("lumen-desk-probe");
        const bool connected = QDBusConnection::connectToBus(address(), probe).isConnected();
        QDBusConnection::disconnectFromBus(probe);
        return connected;
    }

    QTemporaryDir m_folder;
    ServerProcess m_daemon;
};
