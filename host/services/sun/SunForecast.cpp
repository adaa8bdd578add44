// SPDX-License-Identifier: Apache-2.0
#include "services/sun/SunForecast.h"

#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrNetworkCall.h>

#include "services/sun/SunTimes.h"

#include <QJsonArray>
#include <QUrl>

#include <cmath>
#include <optional>

namespace services {

namespace {

constexpr int DefaultDays = 7;
constexpr int MostDays = 16;

QJsonObject refusal(const QString& code, const QString& message)
{
    return {{QStringLiteral("cod"), code}, {QStringLiteral("message"), message}};
}

// Options come as JSON, or as text where a caller has written them as a query does.
std::optional<double> number(const QJsonValue& value)
{
    if (value.isDouble())
        return value.toDouble();
    bool ok = false;
    const double result = value.toString().toDouble(&ok);
    return ok && std::isfinite(result) ? std::optional(result) : std::nullopt;
}

std::optional<double> angle(const QJsonValue& value, double limit)
{
    const std::optional<double> degrees = number(value);
    return degrees && std::abs(*degrees) <= limit ? degrees : std::nullopt;
}

double epoch(const QDateTime& time)
{
    return time.isValid() ? double(time.toSecsSinceEpoch()) : 0;
}

} // namespace

QJsonObject sunForecast(const QJsonObject& options, const QDateTime& now)
{
    const std::optional<double> latitude = angle(options[u"lat"], 90);
    if (!latitude)
        return refusal(QStringLiteral("400"), QStringLiteral("wrong latitude"));
    const std::optional<double> longitude = angle(options[u"lon"], 180);
    if (!longitude)
        return refusal(QStringLiteral("400"), QStringLiteral("wrong longitude"));
    const QJsonValue count = options[u"cnt"];
    const std::optional<double> days = count.isUndefined() ? double(DefaultDays) : number(count);
    if (!days || *days < 1 || *days > MostDays || *days != std::floor(*days))
        return refusal(QStringLiteral("400"), QStringLiteral("cnt from 1 to %1").arg(MostDays));

    const QTimeZone zone = now.timeZone();
    QJsonArray list;
    for (int day = 0; day < int(*days); ++day) {
        const QDate date = now.date().addDays(day);
        const SunDay sun = sunDay(date, zone, *latitude, *longitude);
        list.append(QJsonObject{{QStringLiteral("dt"), epoch(QDateTime(date, QTime(12, 0), zone))},
                                {QStringLiteral("sunrise"), epoch(sun.rise)},
                                {QStringLiteral("sunset"), epoch(sun.set)}});
    }
    const QJsonObject coordinates{{QStringLiteral("lat"), *latitude}, {QStringLiteral("lon"), *longitude}};
    return {{QStringLiteral("cod"), QStringLiteral("200")},
            {QStringLiteral("message"), 0},
            {QStringLiteral("cnt"), list.size()},
            {QStringLiteral("city"), QJsonObject{{QStringLiteral("coord"), coordinates},
                                                 {QStringLiteral("timezone"), now.offsetFromUtc()}}},
            {QStringLiteral("list"), list}};
}

void answerSunForecasts()
{
    ZrNetworkCall::setLocalResponder(
        QStringLiteral("lumen-sun"), [](const QUrl& url, const QJsonObject& options) {
            if (url.host() != QLatin1String("local") || url.path() != QLatin1String("/forecast"))
                return refusal(QStringLiteral("404"), QStringLiteral("no such address"));
            return sunForecast(options, ZrClock::instance().now());
        });
}

} // namespace services
