// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDate>
#include <QDateTime>
#include <QTimeZone>

namespace services {

/// Sunrise of a day and the sunset that follows it, in UTC and to the second; both invalid where the sun does
/// not cross the horizon.
struct SunDay
{
    QDateTime rise;
    QDateTime set;
    bool isPolar() const { return !rise.isValid(); }
};

/// The sunrise that falls on a date of a time zone, with NOAA's solar equations: the sun's upper edge on a
/// level horizon at sea level, mean refraction. Degrees, north and east positive; latitude -90 to 90,
/// longitude -180 to 180. Good to a minute up to 72 degrees of latitude and within years 1900 to 2100.
///
/// A day of the zone on which the sun is up or down throughout is polar. Any thread.
SunDay sunDay(const QDate& date, const QTimeZone& zone, double latitude, double longitude);

} // namespace services
