// SPDX-License-Identifier: Apache-2.0
#include "LuWeather.h"

#include <LuShared/LuServerLocation.h>
#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrEnvironment.h>
#include <ZrCore/ZrNetworkCall.h>
#include <ZrCore/ZrS.h>

#include <QDebug>
#include <QJsonArray>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QSettings>
#include <QUrl>

#include <utility>

namespace {

constexpr int ForecastDays = 16;
constexpr qint64 DaySeconds = 86'400;
/// After a boundary of the table, so that the check falls clearly inside the new span.
constexpr qint64 TriggerDelaySeconds = 1;
constexpr qint64 MinuteMs = 60'000;
constexpr quint64 MaxRetryMinutes = 10;
/// A table that is over again right after it was made anew (a forecast of other days, say) is not asked for
/// again sooner.
constexpr qint64 StartOverPauseSeconds = 600;
/// A table that begins later than this is none of these days: the clock was set back, or the forecast is
/// wrong.
constexpr qint64 FarAheadSeconds = 2 * DaySeconds;
/// How soon a clock that was set back, or goes by another zone, is noticed.
constexpr qint64 ClockWatchMs = 5 * MinuteMs;

const QString ManualSunriseKey = QStringLiteral("weather/manualSunrise");
const QString ManualSunsetKey = QStringLiteral("weather/manualSunset");
const QString ModeKey = QStringLiteral("weather/circadianMode");
const QString StateKey = QStringLiteral("weather/circadianState");
const QString SunMapKey = QStringLiteral("weather/sunriseSunsetMap");
const QString SunLongitudeKey = QStringLiteral("weather/sunLon");
const QString SunLatitudeKey = QStringLiteral("weather/sunLat");

const QString SunriseName = QStringLiteral("sunrise");
const QString SunsetName = QStringLiteral("sunset");
const QString TimeFormat = QStringLiteral("hh:mm");
const QString CheckKey = QStringLiteral("checkTime");
const QString WatchKey = QStringLiteral("watchClock");

/// The request of a forecast: nothing of the base is changed.
class ForecastCall : public ZrNetworkCall
{
public:
    ForecastCall(const QUrl& url, QObject* parent) : ZrNetworkCall(url, QStringLiteral("GET"), parent) {}
};

/// The user's key of the service. It stands in requests only, never in the log or a panel.
const QString& serviceKey()
{
    static const QString key = QString::fromUtf8(ZrS::decryptData(
        ZrS::Base64Cipher, ZrEnvironment::var(QStringLiteral("openweather.key")).toString().toLatin1()));
    return key;
}

QDate today()
{
    return ZrClock::instance().now().date();
}

QDateTime storedTime(const QString& key, const QString& usual)
{
    const QDateTime fallback(today(), QTime::fromString(usual, TimeFormat));
    const QDateTime stored = QSettings().value(key, fallback).toDateTime();
    return stored.isValid() ? stored : fallback;
}

QVariantMap storedSunMap()
{
    return QSettings().value(SunMapKey).toMap();
}

} // namespace

LuWeather::SunTimes LuWeather::SunTimes::of(qint64 rise, qint64 set)
{
    return {QDateTime::fromSecsSinceEpoch(rise), QDateTime::fromSecsSinceEpoch(set)};
}

bool LuWeather::SunTimes::isDay() const
{
    const qint64 seconds = rise.secsTo(set);
    return rise.isValid() && set.isValid() && seconds >= 0 && seconds < DaySeconds;
}

LuWeather::LuWeather(QObject* parent, const QString& monitor)
    : QObject(parent), m_dispatch(QSharedPointer<ZrDispatch>::create(QStringLiteral("LuWeather"), monitor)),
      m_location(LuServerLocation::instance())
{
    connect(m_location, &LuServerLocation::locationStatusChanged, this, [this] {
        if (m_location->status() != LuServerLocation::Unknown)
            startCircadianFunction();
    });
    loadSettings();
    if (m_circadianState && m_circadianMode == Manual) {
        buildLevelTable(m_manualTimes, m_manualTimes);
        startCircadianFunction();
    } else if (m_location->status() != LuServerLocation::Unknown) {
        // A place that was found before this monitor came is not reported again.
        ZrDispatch::runInContextLater(this, 0, [this] { startCircadianFunction(); });
    }
}

LuWeather::~LuWeather()
{
    m_dispatch->close();
}

void LuWeather::loadSettings()
{
    m_manualTimes = {storedTime(ManualSunriseKey, QStringLiteral("06:00")),
                     storedTime(ManualSunsetKey, QStringLiteral("18:00"))};
    readManualNumbers();
    const QSettings settings;
    m_circadianMode = settings.value(ModeKey, int(Auto)).toInt() == Manual ? Manual : Auto;
    m_circadianState = settings.value(StateKey, false).toBool();
}

void LuWeather::setManualSunRiseHour(int hour)
{
    if (std::exchange(m_manualSunRiseHour, hour) != hour)
        Q_EMIT manualSunRiseHourChanged();
}

void LuWeather::setManualSunRiseMinute(int minute)
{
    if (std::exchange(m_manualSunRiseMinute, minute) != minute)
        Q_EMIT manualSunRiseMinuteChanged();
}

void LuWeather::setManualSunSetHour(int hour)
{
    if (std::exchange(m_manualSunSetHour, hour) != hour)
        Q_EMIT manualSunSetHourChanged();
}

void LuWeather::setManualSunSetMinute(int minute)
{
    if (std::exchange(m_manualSunSetMinute, minute) != minute)
        Q_EMIT manualSunSetMinuteChanged();
}

void LuWeather::setCircadianState(bool state)
{
    if (!m_circadianState.set(state))
        return;
    QSettings().setValue(StateKey, state);
    startCircadianFunction();
    Q_EMIT circadianStateChanged();
}

void LuWeather::setCircadianMode(Circadian mode)
{
    if (m_circadianMode == mode)
        return;
    m_circadianMode = mode;
    QSettings().setValue(ModeKey, int(mode));
    startCircadianFunction();
    if (mode == Manual && m_autoTimes.rise.isValid()) {
        setManualTimes(m_autoTimes);
        // The check on its way may have seen the table of the older manual times.
        if (m_circadianState)
            dispatchCheckTime();
    }
    Q_EMIT circadianModeChanged();
}

void LuWeather::setStatus(InformationStatus status)
{
    if (std::exchange(m_status, status) != status)
        Q_EMIT statusChanged();
}

void LuWeather::startCircadianFunction()
{
    if (!m_circadianState) {
        // The check that waits was posted for this object and stays: it finds the state off and ends.
        if (m_dispatch->has(nullptr, CheckKey))
            m_dispatch->remove(nullptr, CheckKey, false);
        return;
    }
    if (m_circadianMode == Auto) {
        requestSunTimes();
        return;
    }
    const QTime rise(m_manualSunRiseHour, m_manualSunRiseMinute);
    const QTime set(m_manualSunSetHour, m_manualSunSetMinute);
    if (!rise.isValid() || !set.isValid()) {
        qWarning() << "[LuWeather] manual times are no times of a day:" << m_manualSunRiseHour
                   << m_manualSunRiseMinute << m_manualSunSetHour << m_manualSunSetMinute;
        return;
    }
    const SunTimes times{QDateTime(today(), rise), QDateTime(today(), set)};
    setManualTimes(times);
    if (m_levelTable->isEmpty())
        buildLevelTable(times, times);
    qInfo() << "[LuWeather] manual set sunrise:" << times.rise << " and sunset: " << times.set;
    dispatchCheckTime();
}

void LuWeather::requestSunTimes()
{
    if (loadSunInformation() || !m_circadianState)
        return;
    setStatus(Process);
    if (m_location->status() != LuServerLocation::Known) {
        setStatus(NoInternet);
        return;
    }
    m_latitude = m_location->latitude();
    m_longitude = m_location->longitude();
    updateWeatherInfo();
}

bool LuWeather::loadSunInformation()
{
    QVariantMap days = storedSunMap();
    {
        const QSettings settings;
        m_longitude = settings.value(SunLongitudeKey, 0.0).toDouble();
        m_latitude = settings.value(SunLatitudeKey, 0.0).toDouble();
    }
    // Exactly the same place: any other has other times.
    if (m_location->longitude() != m_longitude || m_location->latitude() != m_latitude || days.isEmpty())
        return false;

    const QDate yesterday = today().addDays(-1);
    days.removeIf([&](auto day) { return QDate::fromString(day.key(), Qt::ISODate) < yesterday; });
    QSettings().setValue(SunMapKey, days);

    const auto entryOf = [&](QDate day) { return days.constFind(day.toString(Qt::ISODate)); };
    const auto entry = entryOf(today());
    if (entry == days.cend())
        return false;
    const std::optional<SunTimes> times = readSunEntry(entry->toMap());
    if (!times) {
        qInfo() << "[LuWeather] load data is EternalCycle";
        setStatus(EternalCycle);
        return true;
    }
    if (!times->isDay())
        return false;
    const auto entryBefore = entryOf(yesterday);
    const SunTimes before =
        (entryBefore == days.cend() ? std::nullopt : readSunEntry(entryBefore->toMap())).value_or(*times);
    setSunTimes(*times, before);
    qInfo() << "[LuWeather] load sunrise:" << times->rise << " and sunset: " << times->set
            << "yesterday sunrise: " << before.rise << "and sunset: " << before.set;
    dispatchCheckTime();
    setStatus(Success);
    return true;
}

std::optional<LuWeather::SunTimes> LuWeather::readSunEntry(const QVariantMap& entry)
{
    const qint64 rise = entry.value(SunriseName).toLongLong();
    const qint64 set = entry.value(SunsetName).toLongLong();
    if (rise == 0 || set == 0)
        return std::nullopt;
    return SunTimes::of(rise, set);
}

void LuWeather::updateWeatherInfo()
{
    const QUrl url(ZrEnvironment::var(QStringLiteral("openweather.api")).toString());
    m_call = std::make_unique<ForecastCall>(url, this);
    m_call->setOption(QStringLiteral("lat"), m_latitude);
    m_call->setOption(QStringLiteral("lon"), m_longitude);
    m_call->setOption(QStringLiteral("cnt"), QString::number(ForecastDays));
    m_call->setOption(QStringLiteral("mode"), QStringLiteral("json"));
    m_call->setOption(QStringLiteral("APPID"), serviceKey());
    m_call->execute([this](int error, const QString& text, const QJsonObject& reply) {
        handleReply(error, text, reply);
    });
}

void LuWeather::handleReply(int error, const QString& text, const QJsonObject& reply)
{
    if (error != 0) {
        qWarning() << "[LuWeather] get error code: " << error << ", error:" << text;
        setStatus(NoInternet);
        return;
    }
    switch (const int code = ZrS::optInt(reply.value(QStringLiteral("cod")), DefaultError)) {
    case NoError:
        takeForecast(reply);
        break;
    case MinuteLimit:
        setStatus(APILimit);
        retryLater();
        break;
    default:
        qWarning() << "[LuWeather] get error code: " << code << " message: " << reply;
        setStatus(NoInternet);
        break;
    }
}

void LuWeather::takeForecast(const QJsonObject& reply)
{
    qint64 rise = 0;
    qint64 set = 0;
    if (!recordSunInformation(reply, rise, set)) {
        setStatus(NoInternet);
        return;
    }
    if (rise == 0 && set == 0) {
        setStatus(EternalCycle);
        return;
    }
    const SunTimes times = SunTimes::of(rise, set);
    // As in retryLater(): the days are kept, the user's own times stay.
    if (m_circadianMode == Auto)
        setSunTimes(times, times);
    qInfo() << "[LuWeather] OpenWeather set sunrise:" << times.rise << " and sunset: " << times.set;
    dispatchCheckTime();
    setStatus(Success);
}

bool LuWeather::recordSunInformation(const QJsonObject& reply, qint64& rise, qint64& set)
{
    const QJsonArray list = reply.value(QStringLiteral("list")).toArray();
    if (list.isEmpty()) {
        qInfo() << "[LuWeather][recordSunInformation] can't find list data";
        return false;
    }
    const QJsonObject first = list.first().toObject();
    if (first.value(SunriseName).isNull() || first.value(SunsetName).isNull()) {
        qInfo() << "[LuWeather][recordSunInformation] can't find sunrise or sunset data";
        return false;
    }
    rise = first.value(SunriseName).toInteger();
    set = first.value(SunsetName).toInteger();
    if ((rise != 0 || set != 0) && !SunTimes::of(rise, set).isDay()) {
        qInfo() << "[LuWeather][recordSunInformation] sunrise and sunset are no day:" << rise << set;
        return false;
    }

    QVariantMap days;
    for (const QJsonValue& value : list) {
        const QJsonObject day = value.toObject();
        const QJsonValue sunrise = day.value(SunriseName);
        const QDate date = QDateTime::fromSecsSinceEpoch(sunrise.toInteger()).date();
        days.insert(date.toString(Qt::ISODate), QVariantMap{
                                                    {SunriseName, sunrise.toVariant()},
                                                    {SunsetName, day.value(SunsetName).toVariant()},
                                                });
    }
    QSettings settings;
    settings.setValue(SunMapKey, days);
    settings.setValue(SunLongitudeKey, m_longitude);
    settings.setValue(SunLatitudeKey, m_latitude);
    return true;
}

void LuWeather::retryLater()
{
    const quint64 draw = QRandomGenerator64::global()->generate() & 0xFFFFFFFF;
    const qint64 minutes = qint64((draw * MaxRetryMinutes) >> 32) + 1;
    ZrDispatch::main()->postUniqueLater(this, QStringLiteral("delay"), minutes * MinuteMs, [this] {
        // Meanwhile the user may have chosen times of their own: sun times would replace them.
        if (m_circadianMode == Auto)
            requestSunTimes();
    });
}

void LuWeather::setSunTimes(const SunTimes& times, const SunTimes& yesterday)
{
    if (times.rise == times.set || m_autoTimes == times)
        return;
    m_autoTimes = times;
    m_autoSunRise = times.rise.toString(TimeFormat);
    m_autoSunSet = times.set.toString(TimeFormat);
    buildLevelTable(times, yesterday);
    setManualTimes(times);
    Q_EMIT autoSunRiseChanged();
    Q_EMIT autoSunSetChanged();
}

void LuWeather::setManualTimes(const SunTimes& times)
{
    if (times.rise == times.set || m_manualTimes == times)
        return;
    m_manualTimes = times;
    readManualNumbers();
    {
        QSettings settings;
        settings.setValue(ManualSunriseKey, times.rise);
        settings.setValue(ManualSunsetKey, times.set);
    }
    buildLevelTable(times, times);
    Q_EMIT manualSunRiseHourChanged();
    Q_EMIT manualSunRiseMinuteChanged();
    Q_EMIT manualSunSetHourChanged();
    Q_EMIT manualSunSetMinuteChanged();
}

void LuWeather::readManualNumbers()
{
    m_manualSunRiseHour = m_manualTimes.rise.time().hour();
    m_manualSunRiseMinute = m_manualTimes.rise.time().minute();
    m_manualSunSetHour = m_manualTimes.set.time().hour();
    m_manualSunSetMinute = m_manualTimes.set.time().minute();
}

void LuWeather::buildLevelTable(const SunTimes& times, const SunTimes& yesterday)
{
    if (times.rise == times.set || m_tableTimes == times)
        return;
    m_tableTimes = times;
    m_levelTable = LuCircadianTable::build(times.rise, times.set, yesterday.rise, yesterday.set);
}

void LuWeather::dispatchCheckTime()
{
    m_dispatch->postUnique(this, CheckKey, [this] { checkTime(); });
}

void LuWeather::checkTime()
{
    const QList<LuCircadianTable::Row> table = m_levelTable;
    if (table.isEmpty() || !m_circadianState)
        return;
    qInfo() << "[LuWeather] calaulate current Low Blue Light value and next trigger time";
    const QDateTime now = ZrClock::instance().now();
    watchClock(now);
    const LuCircadianTable::Moment moment = LuCircadianTable::at(table, now);
    const bool isFarAhead =
        moment.kind == LuCircadianTable::Moment::Before && now.secsTo(moment.next) > FarAheadSeconds;
    if (moment.kind == LuCircadianTable::Moment::Over || isFarAhead) {
        startOver();
        return;
    }
    const QDateTime trigger = moment.next.addSecs(TriggerDelaySeconds);
    m_dispatch->postUniqueAtTime(this, CheckKey, trigger, [this] { checkTime(); });
    if (moment.kind == LuCircadianTable::Moment::Before) {
        qInfo() << "[LuWeather] not found current time level next trigger time at " << trigger;
        return;
    }
    qInfo() << "[LuWeather] change current Low Blue Light value to " << moment.level
            << "next trigger time at " << trigger;
    m_lowBlueLightLevel = moment.level;
    Q_EMIT lowBlueLightLevelChanged();
}

// The next check waits for a time of the wall clock: once that is set back, or goes by another zone, it lies
// hours or days off.
void LuWeather::watchClock(const QDateTime& now)
{
    m_clockSeen = {now.toMSecsSinceEpoch(), now.offsetFromUtc()};
    m_dispatch->postUniqueBackgroundLater(this, WatchKey, ClockWatchMs, [this] {
        const QDateTime present = ZrClock::instance().now();
        const bool isMoved =
            present.toMSecsSinceEpoch() < m_clockSeen.ms || present.offsetFromUtc() != m_clockSeen.offset;
        if (isMoved)
            checkTime();
        else if (m_circadianState)
            watchClock(present);
    });
}

void LuWeather::startOver()
{
    const QDateTime now = ZrClock::instance().now();
    if (m_startedOver.isValid() && m_startedOver <= now &&
        m_startedOver.secsTo(now) < StartOverPauseSeconds) {
        m_dispatch->postUniqueAtTime(this, CheckKey, m_startedOver.addSecs(StartOverPauseSeconds),
                                     [this] { checkTime(); });
        return;
    }
    m_startedOver = now;
    ZrDispatch::runInContextLater(this, 0, [this] { startCircadianFunction(); });
}
