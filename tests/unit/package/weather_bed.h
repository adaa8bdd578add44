// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SimulatedBed.h"

#include <LuShared/LuServerLocation.h>
#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrEnvironment.h>
#include <ZrCore/ZrNetworkCall.h>
#include <lushared/LuSettings.h>

#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>
#include <QUrlQuery>

#include <optional>

using namespace Qt::StringLiterals;

/// What the tests of the circadian schedule stand on: the service, the place, a monitor with its filter.
namespace weather_bed {

constexpr const char* Module = "LuLowBlueLight";
constexpr qint64 SecondMs = 1000;
constexpr qint64 MinuteMs = 60 * SecondMs;
constexpr qint64 HourMs = 60 * MinuteMs;
constexpr qint64 DayMs = 24 * HourMs;
constexpr int Requesting = 0;
constexpr int Success = 1;
constexpr int NoInternet = 2;
constexpr int EternalCycle = 3;
constexpr int ApiLimit = 4;
constexpr int Auto = 0;
constexpr int Manual = 1;

inline services::SimulatedServices& desktop()
{
    return TestBed::instance().services();
}

inline ZrClock& programClock()
{
    return ZrClock::instance();
}

inline QDateTime at(const char* text)
{
    return QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate);
}

inline void setPlace(double latitude, double longitude, int status = LuServerLocation::Known)
{
    services::Error error;
    QVERIFY(desktop().set(
        u"location"_s,
        QJsonObject{{u"latitude"_s, latitude}, {u"longitude"_s, longitude}, {u"status"_s, status}}, &error));
}

inline QJsonObject dayEntry(const QDateTime& rise, const QDateTime& set)
{
    return {{u"sunrise"_s, rise.toSecsSinceEpoch()}, {u"sunset"_s, set.toSecsSinceEpoch()}};
}

/// Sixteen days from today on, each from @p rise to @p set.
inline QJsonObject forecast(const char* rise = "06:00", const char* set = "18:00", int days = 16)
{
    QJsonArray list;
    for (int i = 0; i < days; ++i) {
        const QDate day = programClock().now().date().addDays(i);
        list.append(dayEntry(QDateTime(day, QTime::fromString(QString::fromLatin1(rise), u"hh:mm"_s)),
                             QDateTime(day, QTime::fromString(QString::fromLatin1(set), u"hh:mm"_s))));
    }
    return {{u"cod"_s, u"200"_s}, {u"list"_s, list}};
}

/// The service inside the process: answers with @p reply and counts.
struct Service
{
    explicit Service(ZrNetworkCall::LocalResponder reply)
    {
        ZrNetworkCall::setLocalResponder(u"lumen-sun"_s,
                                         [this, reply](const QUrl& url, const QJsonObject& options) {
                                             ++requests;
                                             last = options;
                                             return reply(url, options);
                                         });
    }
    explicit Service(const QJsonObject& reply)
        : Service([reply](const QUrl&, const QJsonObject&) { return reply; })
    {
    }
    ~Service() { ZrNetworkCall::setLocalResponder(u"lumen-sun"_s, {}); }

    int requests = 0;
    QJsonObject last;
};

/// A web server that gives each request the next of its answers and keeps the requests.
class WebServer : public QTcpServer
{
public:
    WebServer()
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("cannot listen");
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                m_request += socket->readAll();
                if (!m_request.contains("\r\n\r\n"))
                    return;
                requests.append(std::exchange(m_request, {}));
                socket->write(answers.size() > 1 ? answers.takeFirst() : answers.first());
                socket->disconnectFromHost();
            });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
    }

    static QByteArray answer(const QByteArray& status, const QByteArray& body, const QByteArray& headers = {})
    {
        return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
               "\r\nConnection: close\r\n" + headers + "\r\n" + body;
    }
    static QByteArray answer(const QJsonObject& body)
    {
        return answer("200 OK", QJsonDocument(body).toJson());
    }

    QList<QByteArray> answers;
    QList<QByteArray> requests;

private:
    QByteArray m_request;
};

/// Lays an environment over the built-in one and takes it off again.
struct Environment
{
    explicit Environment(const QJsonObject& values)
    {
        QFile file(folder.filePath(u"environment.json"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(values).toJson()) < 0)
            qFatal("cannot write the environment");
        file.close();
        if (!ZrEnvironment::addLayer(file.fileName()))
            qFatal("the environment is not taken");
    }
    ~Environment() { ZrEnvironment::clear(); }

    QTemporaryDir folder;
};

/// A monitor whose filter can be asked about its schedule.
struct Bed : SimulatedBed
{
    using SimulatedBed::SimulatedBed;

    /// Launched, with the first round behind it.
    void begin()
    {
        launch();
        QVERIFY(idle());
    }
    QObject* weather() { return get(Module, "weather").value<QObject*>(); }
    QVariant weather(const char* property) { return weather()->property(property); }
    int status() { return weather("status").toInt(); }
    void setMode(int mode) { weather()->setProperty("circadianMode", mode); }
    void restart() { QMetaObject::invokeMethod(weather(), "startCircadianFunction"); }
    int level() { return get(Module, "level").toInt(); }
    std::optional<QDateTime> due()
    {
        // The queue is the service's own: what it logs tells when it wakes.
        const QStringList lines = log().filter(u"next trigger time at"_s);
        static const QRegularExpression time(u"QDateTime\\(([0-9-]+ [0-9:.]+)"_s);
        const auto match = lines.isEmpty() ? QRegularExpressionMatch() : time.match(lines.last());
        if (!match.hasMatch())
            return {};
        return QDateTime::fromString(match.captured(1), u"yyyy-MM-dd hh:mm:ss.zzz"_s);
    }
    void turnOn(int mode)
    {
        setMode(mode);
        set(Module, "circadianState", true);
    }
};

inline void forgetWeather()
{
    const QStringList keys = LuSettings::instance().allKeys();
    for (const QString& key : keys) {
        if (key.startsWith(u"weather/"_s))
            LuSettings::instance().remove(key);
    }
}

inline QVariant stored(const char* key)
{
    return LuSettings::instance().value(u"weather/"_s + QLatin1String(key));
}

} // namespace weather_bed
