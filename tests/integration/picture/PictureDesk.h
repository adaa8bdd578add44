// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DeskProcess.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

/// A running program whose picture controls a test drives and watches from outside.
class PictureDesk : public DeskProcess
{
public:
    using DeskProcess::start;

    /// Without a window, without waits on the wire.
    bool startWith(const QString& monitors, const QStringList& more = {})
    {
        return run({QStringLiteral("--headless"), QStringLiteral("--simulate"), monitors}, more);
    }
    /// With the window, off-screen.
    bool startWindow(const QString& monitors, const QStringList& more = {})
    {
        return run({QStringLiteral("--simulate"), monitors, QStringLiteral("--services"),
                    QStringLiteral("simulated")},
                   more);
    }

    QJsonValue get(const QString& path, const QString& monitor = {})
    {
        return client().value(QStringLiteral("get"), with({{QStringLiteral("path"), path}}, monitor));
    }
    /// Writes a property and waits until all that follows has run.
    bool set(const QString& path, const QJsonValue& value, const QString& monitor = {})
    {
        return client()
                   .call(QStringLiteral("set"),
                         with({{QStringLiteral("path"), path}, {QStringLiteral("value"), value}}, monitor))
                   .ok() &&
               idle();
    }
    bool sync(const QString& module = QStringLiteral("LuBrightness"), const QString& monitor = {})
    {
        return client()
                   .call(QStringLiteral("sync"), with({{QStringLiteral("module"), module}}, monitor))
                   .ok() &&
               idle();
    }
    bool apply() { return client().call(QStringLiteral("apply")).ok() && idle(); }

    /// Everything is at rest, on all monitors.
    bool idle()
    {
        const QJsonArray monitors = client().call(QStringLiteral("monitors")).result.toArray();
        bool ok = true;
        // What one monitor did may have moved another one.
        for (int round = 0; round < 2; ++round) {
            for (const QJsonValue& each : monitors)
                ok = client()
                         .call(QStringLiteral("idle"),
                               {{QStringLiteral("monitor"), each.toObject().value(QLatin1String("id"))}})
                         .ok() &&
                     ok;
        }
        return ok;
    }

    bool menu(int code, int value, const QString& monitor = {})
    {
        return client()
            .call(QStringLiteral("sim.set"),
                  with({{QStringLiteral("code"), code}, {QStringLiteral("value"), value}}, monitor))
            .ok();
    }
    int held(int code, const QString& monitor = {})
    {
        return client()
            .value(QStringLiteral("sim.get"), with({{QStringLiteral("code"), code}}, monitor))
            .toInt(-1);
    }

    /// What went over the wire since the last call with that monitor, as "12=40"; gets without their value.
    QStringList writes(const QString& monitor = {}) { return traffic(QStringLiteral("set"), monitor); }
    QStringList reads(const QString& monitor = {}) { return traffic(QStringLiteral("get"), monitor); }
    /// Drops what writes(), reads(), events() and logs() would tell.
    void forget(const QString& monitor = {})
    {
        traffic(QString(), monitor);
        events();
        logs();
    }

    /// Usage events since the last call, as "35 custom  1 [40]", "24 on 0 []".
    QStringList events()
    {
        QStringList result;
        const QJsonArray rows = client().call(QStringLiteral("events")).result.toArray();
        for (const QJsonValue& row : rows) {
            const QJsonObject event = row.toObject();
            const qint64 seq = event.value(QLatin1String("seq")).toInteger();
            if (seq <= m_eventsSeen)
                continue;
            m_eventsSeen = seq;
            QStringList parameters;
            for (const QJsonValue& each : event.value(QLatin1String("parameters")).toArray())
                parameters.append(each.toString());
            const bool onOff = event.value(QLatin1String("kind")).toString() == QLatin1String("onOff");
            const QString what =
                onOff ? (event.value(QLatin1String("on")).toBool() ? QStringLiteral("on")
                                                                   : QStringLiteral("off"))
                      : QLatin1Char('"') + event.value(QLatin1String("event")).toString() + QLatin1Char('"');
            result.append(QStringLiteral("%1 %2 %3 [%4]")
                              .arg(event.value(QLatin1String("action")).toInt())
                              .arg(what)
                              .arg(event.value(QLatin1String("source")).toInt())
                              .arg(parameters.join(QLatin1Char(','))));
        }
        return result;
    }

    /// Log lines of the picture's classes since the last call.
    QStringList logs()
    {
        QStringList result;
        const QJsonArray rows = client().call(QStringLiteral("log")).result.toArray();
        for (const QJsonValue& row : rows) {
            const QJsonObject line = row.toObject();
            const qint64 seq = line.value(QLatin1String("seq")).toInteger();
            if (seq <= m_logSeen)
                continue;
            m_logSeen = seq;
            const QString text = line.value(QLatin1String("text")).toString();
            if (text.startsWith(QLatin1String("[LuBrightness")) ||
                text.startsWith(QLatin1String("[LuColorWeakness")) ||
                text.startsWith(QLatin1String("[LuSoftwareDimming")))
                result.append(text);
        }
        return result;
    }

    /// A persisted key of a monitor, "LuBrightness/User/displayContrast"; undefined if it is not stored.
    QJsonValue setting(const QString& key, const QString& monitor = {})
    {
        return client()
            .call(QStringLiteral("settings"), with({}, monitor))
            .result.toObject()
            .value(QLatin1String("monitor"))
            .toObject()
            .value(key);
    }

    QJsonObject overlay(const QString& monitor = {})
    {
        return client().call(QStringLiteral("sim.overlay"), with({}, monitor)).result.toObject();
    }

    bool mode(const QString& name) { return set(QStringLiteral("colorMode"), name); }

    /// Writes a file into the folder of this object and returns its path.
    QString write(const QString& name, const QByteArray& content)
    {
        QFile file(filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write(content);
        return file.fileName();
    }

private:
    bool run(QStringList options, const QStringList& more)
    {
        options << QStringLiteral("--ddc-timing") << QStringLiteral("fast") << more;
        m_eventsSeen = 0;
        m_logSeen = 0;
        m_wireSeen.clear();
        return start(options) && idle();
    }

    static QJsonObject with(QJsonObject parameters, const QString& monitor)
    {
        if (!monitor.isEmpty())
            parameters.insert(QStringLiteral("monitor"), monitor);
        return parameters;
    }

    QStringList traffic(const QString& op, const QString& monitor)
    {
        QStringList result;
        const QJsonArray rows =
            client().call(QStringLiteral("sim.traffic"), with({}, monitor)).result.toArray();
        qint64& seen = m_wireSeen[monitor];
        for (const QJsonValue& row : rows) {
            const QJsonObject entry = row.toObject();
            const qint64 seq = entry.value(QLatin1String("seq")).toInteger();
            if (seq <= seen || entry.value(QLatin1String("op")).toString() != op)
                continue;
            const QString code = QString::number(entry.value(QLatin1String("code")).toInt(), 16);
            result.append(op == QLatin1String("set") ? QStringLiteral("%1=%2").arg(code).arg(
                                                           entry.value(QLatin1String("value")).toInt())
                                                     : code);
        }
        if (!rows.isEmpty())
            seen = rows.last().toObject().value(QLatin1String("seq")).toInteger();
        return result;
    }

    qint64 m_eventsSeen = 0;
    qint64 m_logSeen = 0;
    QHash<QString, qint64> m_wireSeen;
};
