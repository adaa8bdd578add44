// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ServerProcess.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QJsonDocument>
#include <QJsonObject>

/// A service of python-dbusmock on the bus that DBUS_SYSTEM_BUS_ADDRESS names.
class MockService
{
public:
    /// Starts it from a template file of the test's mocks. Empty on success, else what went wrong.
    QString start(const QString& templateFile, const QString& busName, const QJsonObject& parameters = {})
    {
        const QString json = QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact));
        // The distribution's own, which has the distribution's packages.
        return m_process.start(
            QStringLiteral("/usr/bin/python3"),
            {QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--system"),
             QStringLiteral("--template"), templateFile, QStringLiteral("--parameters"), json},
            [&] { return bool(QDBusConnection::systemBus().interface()->isServiceRegistered(busName)); });
    }
    void stop() { m_process.stop(); }
    bool pause(bool on) { return m_process.pause(on); }
    QString output() { return m_process.output(); }

private:
    ServerProcess m_process;
};
