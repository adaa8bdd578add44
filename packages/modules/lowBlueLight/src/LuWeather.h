// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LuCircadianTable.h"

#include <ZrCore/ZrShared.h>

#include <QDateTime>
#include <QObject>
#include <QSharedPointer>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

class LuServerLocation;
class QJsonObject;
class ZrDispatch;
class ZrNetworkCall;

/// Turns sunrise and sunset, from a forecast or the user's own, into the filter level of the moment.
///
/// Everything but the check of the table runs on the GUI thread; the check is a job of a queue of the
/// service's own, which wakes it one second after each row of the table begins. The forecast of sixteen days
/// is kept, so that a request is made only for a day or a place that is not known.
class LuWeather : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(QString autoSunRise READ autoSunRise NOTIFY autoSunRiseChanged)
    Q_PROPERTY(QString autoSunSet READ autoSunSet NOTIFY autoSunSetChanged)
    Q_PROPERTY(int manualSunRiseHour READ manualSunRiseHour WRITE setManualSunRiseHour NOTIFY
                   manualSunRiseHourChanged)
    Q_PROPERTY(int manualSunRiseMinute READ manualSunRiseMinute WRITE setManualSunRiseMinute NOTIFY
                   manualSunRiseMinuteChanged)
    Q_PROPERTY(
        int manualSunSetHour READ manualSunSetHour WRITE setManualSunSetHour NOTIFY manualSunSetHourChanged)
    Q_PROPERTY(int manualSunSetMinute READ manualSunSetMinute WRITE setManualSunSetMinute NOTIFY
                   manualSunSetMinuteChanged)
    Q_PROPERTY(InformationStatus status READ status NOTIFY statusChanged)
    Q_PROPERTY(bool circadianState READ circadianState WRITE setCircadianState NOTIFY circadianStateChanged)
    Q_PROPERTY(Circadian circadianMode READ circadianMode WRITE setCircadianMode NOTIFY circadianModeChanged)

public:
    /// Where the sun times of the day come from, or why there are none.
    enum InformationStatus {
        Process = 0,      ///< A request is on its way.
        Success = 1,      ///< The sun times are known.
        NoInternet = 2,   ///< No usable reply, or no position.
        EternalCycle = 3, ///< Polar day or night: the sun does not rise or set.
        APILimit = 4,     ///< The service asked to come back later; the request is repeated by itself.
    };
    Q_ENUM(InformationStatus)

    enum Circadian {
        Auto = 0,   ///< The sun of the place.
        Manual = 1, ///< The user's own times.
    };
    Q_ENUM(Circadian)

    /// Result codes of the service, in "cod" of its reply (openweathermap.org, FAQ).
    enum APIError {
        DefaultError = -1,
        NoError = 200,
        Unauthorized = 401,
        WrongCity = 404,
        MinuteLimit = 429,
        OutOfSubscriptionLevel = 400000,
    };
    Q_ENUM(APIError)

    /// @p monitor is the id of the monitor that the queue belongs to; empty: to none.
    explicit LuWeather(QObject* parent = nullptr, const QString& monitor = {});
    ~LuWeather() override;

    /// Local times of the place as "hh:mm", empty while they are not known.
    QString autoSunRise() const { return m_autoSunRise; }
    QString autoSunSet() const { return m_autoSunSet; }

    /// The user's own times. The setters only keep the number; startCircadianFunction() makes it count.
    int manualSunRiseHour() const { return m_manualSunRiseHour; }
    int manualSunRiseMinute() const { return m_manualSunRiseMinute; }
    int manualSunSetHour() const { return m_manualSunSetHour; }
    int manualSunSetMinute() const { return m_manualSunSetMinute; }
    void setManualSunRiseHour(int hour);
    void setManualSunRiseMinute(int minute);
    void setManualSunSetHour(int hour);
    void setManualSunSetMinute(int minute);

    InformationStatus status() const { return m_status; }

    /// The schedule runs. Off, the monitor stays at the last level.
    bool circadianState() const { return m_circadianState; }
    void setCircadianState(bool state);

    Circadian circadianMode() const { return m_circadianMode; }
    void setCircadianMode(Circadian mode);

    /// The level of the moment, 0 to 5; -1 while none was found. Any thread.
    int lowBlueLightLevel() const { return m_lowBlueLightLevel; }

    /// Finds the sun times of today for the present mode, requesting them if they are not known, and lets the
    /// table be checked. GUI thread.
    Q_INVOKABLE void startCircadianFunction();

Q_SIGNALS:
    void autoSunRiseChanged();
    void autoSunSetChanged();
    void manualSunRiseHourChanged();
    void manualSunRiseMinuteChanged();
    void manualSunSetHourChanged();
    void manualSunSetMinuteChanged();
    /// Also emitted for a level that is the same as before, at each row and each check. On the queue.
    void lowBlueLightLevelChanged();
    void statusChanged();
    void circadianStateChanged();
    void circadianModeChanged();

private:
    /// A day's pair of times.
    struct SunTimes
    {
        QDateTime rise;
        QDateTime set;

        /// Both in seconds since the epoch.
        static SunTimes of(qint64 rise, qint64 set);
        /// The sunset comes after the sunrise, within a day. What a service says need not be so.
        bool isDay() const;

        friend bool operator==(const SunTimes&, const SunTimes&) = default;
    };

    /// What the wall clock showed; a QDateTime of local time would follow a change of the zone.
    struct ClockSeen
    {
        qint64 ms = 0; ///< Since the epoch.
        int offset = 0;
    };

    void loadSettings();
    void requestSunTimes();
    bool loadSunInformation();
    static std::optional<SunTimes> readSunEntry(const QVariantMap& entry);
    void updateWeatherInfo();
    void handleReply(int error, const QString& text, const QJsonObject& reply);
    void takeForecast(const QJsonObject& reply);
    bool recordSunInformation(const QJsonObject& reply, qint64& rise, qint64& set);
    void retryLater();
    void setSunTimes(const SunTimes& times, const SunTimes& yesterday);
    void setManualTimes(const SunTimes& times);
    void readManualNumbers();
    void buildLevelTable(const SunTimes& times, const SunTimes& yesterday);
    void dispatchCheckTime();
    void checkTime();
    void watchClock(const QDateTime& now);
    void startOver();
    void setStatus(InformationStatus status);

    QSharedPointer<ZrDispatch> m_dispatch;
    LuServerLocation* const m_location;
    std::unique_ptr<ZrNetworkCall> m_call;

    double m_latitude = 0;
    double m_longitude = 0;
    SunTimes m_autoTimes;
    SunTimes m_manualTimes;
    SunTimes m_tableTimes;
    QString m_autoSunRise;
    QString m_autoSunSet;
    int m_manualSunRiseHour = 0;
    int m_manualSunRiseMinute = 0;
    int m_manualSunSetHour = 0;
    int m_manualSunSetMinute = 0;
    InformationStatus m_status = NoInternet;
    Circadian m_circadianMode = Auto;

    // The check of the table sees these on the queue.
    ZrShared<QList<LuCircadianTable::Row>> m_levelTable;
    ZrShared<bool> m_circadianState{false};
    ZrShared<int> m_lowBlueLightLevel{-1};
    // Queue only.
    QDateTime m_startedOver;
    ClockSeen m_clockSeen;
};
