// SPDX-License-Identifier: Apache-2.0
#include "services/sun/SunTimes.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace services {

namespace {

constexpr double Radian = std::numbers::pi / 180;
constexpr double SecondsPerDegree = 240; // The sun's hour angle grows by 15 degrees an hour.

/// 90 degrees, 34' of refraction and 16' of the sun's radius.
constexpr double HorizonZenith = 90.833;

double sinDegrees(double angle)
{
    return std::sin(angle * Radian);
}

double cosDegrees(double angle)
{
    return std::cos(angle * Radian);
}

/// The sun at one moment.
struct Sun
{
    double declination;    ///< Degrees.
    double equationOfTime; ///< Seconds by which the true sun is ahead of the mean one.
};

// The names follow NOAA's published calculation details; the series are those of J. Meeus, "Astronomical
// Algorithms", in their short form.
Sun sunAt(double epochSeconds)
{
    const double century = (epochSeconds / 86400 + 2440587.5 - 2451545) / 36525;
    const double meanLongitude = 280.46646 + century * (36000.76983 + century * 0.0003032);
    const double meanAnomaly = 357.52911 + century * (35999.05029 - 0.0001537 * century);
    const double eccentricity = 0.016708634 - century * (0.000042037 + 0.0000001267 * century);
    const double centre = sinDegrees(meanAnomaly) * (1.914602 - century * (0.004817 + 0.000014 * century)) +
                          sinDegrees(2 * meanAnomaly) * (0.019993 - 0.000101 * century) +
                          sinDegrees(3 * meanAnomaly) * 0.000289;
    const double node = 125.04 - 1934.136 * century;
    const double apparentLongitude = meanLongitude + centre - 0.00569 - 0.00478 * sinDegrees(node);
    const double meanObliquity =
        23 + (26 + (21.448 - century * (46.815 + century * (0.00059 - century * 0.001813))) / 60) / 60;
    const double obliquity = meanObliquity + 0.00256 * cosDegrees(node);

    const double y = std::pow(std::tan(obliquity / 2 * Radian), 2);
    const double equation = y * sinDegrees(2 * meanLongitude) - 2 * eccentricity * sinDegrees(meanAnomaly) +
                            4 * eccentricity * y * sinDegrees(meanAnomaly) * cosDegrees(2 * meanLongitude) -
                            0.5 * y * y * sinDegrees(4 * meanLongitude) -
                            1.25 * eccentricity * eccentricity * sinDegrees(2 * meanAnomaly);
    return {std::asin(sinDegrees(obliquity) * sinDegrees(apparentLongitude)) / Radian,
            equation / Radian * SecondsPerDegree};
}

/// Cosine of the hour angle at which the sun stands on the horizon; outside of -1 to 1 where it never does.
double horizonCosine(double latitude, double declination)
{
    return cosDegrees(HorizonZenith) / (cosDegrees(latitude) * cosDegrees(declination)) -
           std::tan(latitude * Radian) * std::tan(declination * Radian);
}

/// One passage of the sun through the south: its moment, and rise and set around it unless it is polar. In
/// seconds since the epoch.
struct Passage
{
    double transit = 0;
    std::optional<double> rise;
    std::optional<double> set;
};

Passage passage(const QDate& date, double latitude, double longitude)
{
    const double meanNoon =
        double(date.startOfDay(QTimeZone::utc()).toSecsSinceEpoch()) + 43200 - longitude * SecondsPerDegree;
    const auto moment = [&](double hourAngleSign) {
        // The sun moves on while the earth turns; each step takes the sun of the moment found before.
        double time = meanNoon;
        for (int step = 0; step < 5; ++step) {
            const Sun sun = sunAt(time);
            const double cosine = std::clamp(horizonCosine(latitude, sun.declination), -1.0, 1.0);
            const double angle = hourAngleSign * std::acos(cosine) / Radian;
            time = meanNoon - sun.equationOfTime + angle * SecondsPerDegree;
        }
        return time;
    };
    Passage result;
    result.transit = moment(0);
    if (std::abs(horizonCosine(latitude, sunAt(result.transit).declination)) <= 1) {
        result.rise = moment(-1);
        result.set = moment(1);
    }
    return result;
}

QDateTime utc(double epochSeconds)
{
    return QDateTime::fromSecsSinceEpoch(std::llround(epochSeconds)).toUTC();
}

} // namespace

SunDay sunDay(const QDate& date, const QTimeZone& zone, double latitude, double longitude)
{
    const auto dateOf = [&](double epochSeconds) { return utc(epochSeconds).toTimeZone(zone).date(); };
    // The zone may be that of another part of the world, so that its day begins with yesterday's sun there.
    std::optional<Passage> own;
    for (const int offset : {0, -1, 1}) {
        const Passage candidate = passage(date.addDays(offset), latitude, longitude);
        if (candidate.rise && dateOf(*candidate.rise) == date)
            return {utc(*candidate.rise), utc(*candidate.set)};
        if (!own && dateOf(candidate.transit) == date)
            own = candidate;
    }
    // Near the bounds of the polar day the sun may rise just before midnight: the day of its noon has it.
    if (own && own->rise)
        return {utc(*own->rise), utc(*own->set)};
    return {};
}

} // namespace services
