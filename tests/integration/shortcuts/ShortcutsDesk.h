// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DeskProcess.h"

#include <QJsonArray>
#include <QJsonObject>

/// A running program whose keys a test presses.
class ShortcutsDesk : public DeskProcess
{
public:
    bool startWith(const QString& monitors, bool window = false)
    {
        QStringList options{QStringLiteral("--simulate"),   monitors,
                            QStringLiteral("--services"),   QStringLiteral("simulated"),
                            QStringLiteral("--ddc-timing"), QStringLiteral("fast")};
        if (!window)
            options.append(QStringLiteral("--headless"));
        return start(options) && idle();
    }

    ControlClient::Answer call(const QString& method, const QJsonObject& parameters = {})
    {
        return client().call(method, parameters);
    }
    bool idle() { return call(QStringLiteral("idle")).ok(); }
    bool set(const QString& path, const QJsonValue& value)
    {
        return client().set(path, value).ok() && idle();
    }
    QJsonValue get(const QString& path) { return client().get(path); }
    QJsonValue invoke(const QString& path, const QJsonArray& arguments)
    {
        return client().value(QStringLiteral("call"),
                              {{QStringLiteral("path"), path}, {QStringLiteral("args"), arguments}});
    }

    /// Presses a combination in whatever program has the focus: whether this one took it.
    bool press(const QString& modifiers, const QString& key, bool repeated = false)
    {
        const QJsonObject event{{QStringLiteral("modifiers"), modifiers},
                                {QStringLiteral("key"), key},
                                {QStringLiteral("repeated"), repeated}};
        const ControlClient::Answer answer = call(
            QStringLiteral("services.emit"),
            {{QStringLiteral("signal"), QStringLiteral("activeKeyEvent")}, {QStringLiteral("args"), event}});
        return answer.ok() && idle() && answer.result.toObject().value(QLatin1String("handled")).toBool();
    }

    /// The action of a number, as "actions" tells it; empty if the monitor lacks it.
    QJsonObject action(int name, const QString& monitor = {})
    {
        QJsonObject parameters;
        if (!monitor.isEmpty())
            parameters.insert(QStringLiteral("monitor"), monitor);
        const QJsonArray all = call(QStringLiteral("actions"), parameters).result.toArray();
        for (const QJsonValue& each : all) {
            if (each.toObject().value(QLatin1String("name")).toInt(-1) == name)
                return each.toObject();
        }
        return {};
    }
    QString keysOf(int name) { return action(name).value(QLatin1String("key")).toString(); }

    /// Words of the usage events of shortcuts since the last call: "use_hotkey extra_copy".
    QStringList used()
    {
        QStringList result;
        for (const QJsonValue& row :
             call(QStringLiteral("events"), {{QStringLiteral("since"), m_seen}}).result.toArray()) {
            const QJsonObject event = row.toObject();
            m_seen = event.value(QLatin1String("seq")).toInteger();
            if (event.value(QLatin1String("action")).toInt() == 17 &&
                event.value(QLatin1String("kind")).toString() == QLatin1String("custom"))
                result.append(event.value(QLatin1String("event")).toString() + QLatin1Char(' ') +
                              event.value(QLatin1String("parameters")).toArray().at(0).toString());
        }
        return result;
    }

    int held(int code)
    {
        return client().value(QStringLiteral("sim.get"), {{QStringLiteral("code"), code}}).toInt(-1);
    }
    QJsonObject applicationSettings()
    {
        return call(QStringLiteral("settings"))
            .result.toObject()
            .value(QLatin1String("application"))
            .toObject();
    }

private:
    qint64 m_seen = 0;
};
