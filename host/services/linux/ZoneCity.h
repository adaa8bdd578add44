// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace services {

/// A place on earth in degrees, north and east positive.
struct GeoPosition
{
    double latitude = 0;
    double longitude = 0;
    bool operator==(const GeoPosition&) const = default;
};

/// Position of the city that names a time zone ("Europe/Berlin"), from the tables of the time-zone database
/// in @p folder: zone1970.tab, then zone.tab, and tzdata.zi for a zone's other names. Nothing for zones
/// without a city, such as "Etc/UTC", and for unreadable tables. Any thread.
std::optional<GeoPosition> zoneCity(const QByteArray& zone,
                                    const QString& folder = QStringLiteral("/usr/share/zoneinfo"));

/// A city that names a time zone.
struct ZonePlace
{
    QString name;    ///< In English, such as "New York".
    QString country; ///< In English; empty if it is not known.
    GeoPosition position;
};

/// Every city of the tables, by name. Blocks for some milliseconds.
QList<ZonePlace> zonePlaces(const QString& folder = QStringLiteral("/usr/share/zoneinfo"));

/// "New York" of "America/New_York".
QString zoneCityName(const QByteArray& zone);

/// Reads an ISO 6709 position as the tables have it, such as "+5230+01322" or "-690022+0393524".
std::optional<GeoPosition> parsePosition(const QByteArray& text);

} // namespace services
