// SPDX-License-Identifier: Apache-2.0
#include "PlaceSettings.h"

#include <LuShared/LuServerLocation.h>
#include <lushared/LuSettings.h>
#include <qml/LuPlace.h>
#include <services/linux/ZoneCity.h>

#include <QTimeZone>

namespace {

QList<LuPlace::City> cities()
{
    QList<LuPlace::City> all;
    const QList<services::ZonePlace> places = services::zonePlaces();
    for (const services::ZonePlace& place : places)
        all.append({place.name, place.country, {place.position.latitude, place.position.longitude}});
    return all;
}

QString zoneCity()
{
    const QByteArray zone = QTimeZone::systemTimeZoneId();
    return services::zoneCity(zone) ? services::zoneCityName(zone) : QString();
}

std::optional<LuPlace::Position> present()
{
    const LuServerLocation* location = LuServerLocation::instance();
    if (location->status() != LuServerLocation::Known)
        return std::nullopt;
    return LuPlace::Position{location->latitude(), location->longitude()};
}

} // namespace

void connectPlaceSettings()
{
    LuSettings& settings = LuSettings::instance();
    LuPlace* place = LuPlace::instance();
    place->setStore(
        [&settings](const QString& key) { return settings.value(key); },
        [&settings](const QString& key, const QVariant& value) { settings.setValue(key, value); });
    place->setPresent(present);
    place->setCities(cities, zoneCity);
    QObject::connect(LuServerLocation::instance(), &LuServerLocation::locationStatusChanged, place,
                     &LuPlace::refresh);
}
