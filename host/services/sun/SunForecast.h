// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QJsonObject>

namespace services {

/// Answer of the local forecast address: the reply form of OpenWeather's daily forecast with the sun's times
/// and nothing else.
///
/// Options: "lat" and "lon" in degrees and "cnt", 1 to 16 days (default 7), as numbers or text. The reply is
/// {"cod": "200", "message": 0, "cnt", "city": {"coord", "timezone"}, "list": [{"dt", "sunrise", "sunset"}]}
/// from the date of @p now on, one entry a day of its time zone, in seconds since the epoch; 0 in both on a
/// polar day or night. Options that are no such values give {"cod": "400", "message"}. Any thread.
QJsonObject sunForecast(const QJsonObject& options, const QDateTime& now);

/// From now on "lumen-sun://local/forecast" is answered by sunForecast() with the program's clock. Called
/// once by the application.
void answerSunForecasts();

} // namespace services
