// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DeskProcess.h"

#include <QFile>
#include <QRegularExpression>

/// A running program with what its monitor and its users have seen since the last look.
class InputsDesk
{
public:
    bool start(const QStringList& options)
    {
        const bool started = m_process.start(options);
        m_wireSeen = m_eventsSeen = m_logSeen = 0;
        return started && idle();
    }
    bool start(const QString& model)
    {
        QStringList options = DeskProcess::usualOptions();
        options[2] = model;
        return start(options);
    }
    int stop() { return m_process.stop(); }
    DeskProcess& process() { return m_process; }
    ControlClient& client() { return m_process.client(); }
    QString errors() { return m_process.errors(); }

    bool idle() { return client().call(QStringLiteral("idle")).ok(); }
    bool sync(const QString& module)
    {
        // What was read may have moved something else.
        return client().call(QStringLiteral("sync"), {{QStringLiteral("module"), module}}).ok() && idle();
    }
    bool apply() { return client().call(QStringLiteral("apply")).ok() && idle(); }
    QJsonValue get(const QString& path) { return client().get(path); }
    bool set(const QString& path, const QJsonValue& value)
    {
        return client().set(path, value).ok() && idle();
    }
    bool call(const QString& path, const QJsonArray& arguments = {})
    {
        return client()
                   .call(QStringLiteral("call"),
                         {{QStringLiteral("path"), path}, {QStringLiteral("args"), arguments}})
                   .ok() &&
               idle();
    }
    /// A change at the monitor's own menu.
    bool menu(int code, int value, int window = 0)
    {
        QJsonObject parameters{{QStringLiteral("code"), code}, {QStringLiteral("value"), value}};
        if (window)
            parameters.insert(QStringLiteral("window"), window);
        return client().call(QStringLiteral("sim.set"), parameters).ok();
    }
    int held(int code)
    {
        return client().value(QStringLiteral("sim.get"), {{QStringLiteral("code"), code}}).toInt(-1);
    }
    QJsonValue setting(const QString& key)
    {
        const QJsonObject all = client().call(QStringLiteral("settings")).result.toObject();
        return all.value(QLatin1String("monitor")).toObject().value(key);
    }
    bool storeSetting(const QString& key, const QJsonValue& value)
    {
        return client()
            .call(QStringLiteral("settings.set"), {{QStringLiteral("monitor"), monitor()},
                                                   {QStringLiteral("key"), key},
                                                   {QStringLiteral("value"), value}})
            .ok();
    }
    QString monitor()
    {
        const QJsonArray all = client().call(QStringLiteral("monitors")).result.toArray();
        return all.first().toObject().value(QLatin1String("id")).toString();
    }

    /// "get 0x7D 2", "set 0xA5 512", with " failed" behind what failed.
    QStringList wire()
    {
        QStringList result;
        for (const QJsonObject& entry : news(QStringLiteral("sim.traffic"), m_wireSeen)) {
            QString text = QStringLiteral("%1 0x%2 %3")
                               .arg(entry.value(QLatin1String("op")).toString(),
                                    QString::number(entry.value(QLatin1String("code")).toInt(), 16).toUpper())
                               .arg(entry.value(QLatin1String("value")).toInt());
            if (!entry.value(QLatin1String("ok")).toBool())
                text += QLatin1String(" failed");
            result.append(text);
        }
        return result;
    }
    /// "LuPipPbp 8 on 0 [pip,S,TL]".
    QStringList events()
    {
        QStringList result;
        for (const QJsonObject& entry : news(QStringLiteral("events"), m_eventsSeen)) {
            QStringList parameters;
            const QJsonArray list = entry.value(QLatin1String("parameters")).toArray();
            for (const QJsonValue& each : list)
                parameters.append(each.toString());
            const bool onOff = entry.value(QLatin1String("kind")).toString() == QLatin1String("onOff");
            result.append(QStringLiteral("%1 %2 %3 %4 [%5]")
                              .arg(entry.value(QLatin1String("module")).toString())
                              .arg(entry.value(QLatin1String("action")).toInt())
                              .arg(!onOff ? entry.value(QLatin1String("event")).toString()
                                   : entry.value(QLatin1String("on")).toBool() ? QStringLiteral("on")
                                                                               : QStringLiteral("off"))
                              .arg(entry.value(QLatin1String("source")).toInt())
                              .arg(parameters.join(QLatin1Char(','))));
        }
        return result;
    }
    QStringList log()
    {
        QStringList result;
        for (const QJsonObject& entry : news(QStringLiteral("log"), m_logSeen))
            result.append(entry.value(QLatin1String("text")).toString());
        return result;
    }
    void forget()
    {
        wire();
        events();
        log();
    }

private:
    QList<QJsonObject> news(const QString& method, qint64& seen)
    {
        QList<QJsonObject> result;
        const QJsonArray list = client().call(method, {{QStringLiteral("since"), seen}}).result.toArray();
        for (const QJsonValue& entry : list) {
            result.append(entry.toObject());
            seen = qMax(seen, entry.toObject().value(QLatin1String("seq")).toInteger());
        }
        return result;
    }

    DeskProcess m_process;
    qint64 m_wireSeen = 0;
    qint64 m_eventsSeen = 0;
    qint64 m_logSeen = 0;
};
