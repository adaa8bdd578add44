// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ServerProcess.h"

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
            [this] { return QFile::exists(m_folder.filePath(QStringLiteral("bus"))); });
    }

    QString address() const
    {
        return QStringLiteral("unix:path=") + m_folder.filePath(QStringLiteral("bus"));
    }

    void stop() { m_daemon.stop(); }

private:
    QTemporaryDir m_folder;
    ServerProcess m_daemon;
};
