// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ServerProcess.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>

/// KWin with two outputs and without a screen, on the bus of DBUS_SESSION_BUS_ADDRESS.
class KWinServer
{
public:
    /// Starts it; @p folder is its runtime folder, XDG_RUNTIME_DIR. Empty on success, else what went wrong.
    QString start(const QString& folder)
    {
        // A copy has not the file's capability, which a container may refuse to start.
        const QString program = folder + QStringLiteral("/kwin_wayland");
        if (!QFile::exists(program) && !QFile::copy(QStringLiteral("/usr/bin/kwin_wayland"), program))
            return QStringLiteral("/usr/bin/kwin_wayland cannot be copied");
        m_process.environment = QProcessEnvironment::systemEnvironment();
        m_process.environment.insert(QStringLiteral("KWIN_COMPOSE"), QStringLiteral("Q"));
        // Tests press keys and move the pointer.
        m_process.environment.insert(QStringLiteral("KWIN_WAYLAND_NO_PERMISSION_CHECKS"),
                                     QStringLiteral("1"));
        m_process.environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        const QString socket = folder + u'/' + display();
        return m_process.start(
            program,
            {QStringLiteral("--virtual"), QStringLiteral("--output-count"), QStringLiteral("2"),
             QStringLiteral("--socket"), display()},
            [socket] { return QFile::exists(socket) && takesScripts(); }, 120'000);
    }

    /// WAYLAND_DISPLAY of its clients.
    static QString display() { return QStringLiteral("test-wayland"); }

    /// What it has written so far.
    QString output() { return m_process.output(); }

    void stop() { m_process.stop(); }

private:
    /// The last that KWin offers on the bus as it starts.
    static bool takesScripts()
    {
        QDBusMessage message = QDBusMessage::createMethodCall(
            QStringLiteral("org.kde.KWin"), QStringLiteral("/Scripting"),
            QStringLiteral("org.kde.kwin.Scripting"), QStringLiteral("isScriptLoaded"));
        message << QStringLiteral("none");
        return QDBusConnection::sessionBus().call(message).type() == QDBusMessage::ReplyMessage;
    }

    ServerProcess m_process;
};
