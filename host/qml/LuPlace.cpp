// SPDX-License-Identifier: Apache-2.0
#include "LuPlace.h"

#include <QCoreApplication>
#include <QDebug>
#include <QLocale>
#include <QPointer>
#include <QStringList>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString SourceKey = u"location/source"_s;
const QString LatitudeKey = u"location/latitude"_s;
const QString LongitudeKey = u"location/longitude"_s;
const QString NameKey = u"location/name"_s;
/// Of earlier settings: false forbids the location service.
const QString ServiceKey = u"location/service"_s;

const QStringList Sources = {u"service"_s, u"zone"_s, u"place"_s, u"off"_s};

constexpr double Pole = 90;
constexpr double DateLine = 180;
constexpr int MostResults = 6;

/// Degrees as people write them: with a point or a comma, with or without a sign for degrees.
std::optional<double> readAngle(const QString& text, double limit)
{
    QString number = text.trimmed();
    number.remove(u'°').replace(u',', u'.').replace(u'\u2212', u'-');
    bool ok = false;
    const double value = QLocale::c().toDouble(number.trimmed(), &ok);
    return ok && std::abs(value) <= limit ? std::optional(value) : std::nullopt;
}

QString written(std::optional<double> angle)
{
    return angle ? QLocale::c().toString(*angle, 'f', QLocale::FloatingPointShortest) : QString();
}

/// Letters alone, without marks: "Zürich" is found as "zurich".
QString plain(const QString& text)
{
    QString letters;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD)) {
        if (!c.isMark())
            letters.append(c.toCaseFolded());
    }
    return letters.trimmed();
}

/// Whether a word of a name begins so.
bool beginsLike(const QString& name, const QString& text)
{
    const QString folded = plain(name);
    return folded.startsWith(text) || folded.contains(u' ' + text);
}

} // namespace

LuPlace::LuPlace(QObject* parent) : QObject(parent) {}

LuPlace::~LuPlace() = default;

LuPlace* LuPlace::instance()
{
    static QPointer<LuPlace> place;
    if (!place)
        place = new LuPlace(QCoreApplication::instance());
    return place;
}

void LuPlace::setStore(Read read, Write write)
{
    m_read = std::move(read);
    m_write = std::move(write);
    Q_EMIT changed();
}

void LuPlace::setPresent(std::function<std::optional<Position>()> present)
{
    m_present = std::move(present);
    Q_EMIT changed();
}

void LuPlace::setCities(std::function<QList<City>()> cities, std::function<QString()> zoneCity)
{
    m_cities = std::move(cities);
    m_zoneCity = std::move(zoneCity);
    m_known.reset();
    Q_EMIT changed();
}

QVariant LuPlace::stored(const QString& key) const
{
    return m_read ? m_read(key) : QVariant();
}

std::optional<double> LuPlace::storedAngle(const QString& key, double limit) const
{
    return readAngle(stored(key).toString(), limit);
}

QString LuPlace::source() const
{
    const QString source = stored(SourceKey).toString();
    if (Sources.contains(source))
        return source;
    // Settings of old, or written by hand, name no source.
    if (storedAngle(LatitudeKey, Pole) && storedAngle(LongitudeKey, DateLine))
        return u"place"_s;
    const QVariant service = stored(ServiceKey);
    return service.isValid() && !service.toBool() ? u"zone"_s : u"service"_s;
}

void LuPlace::setSource(const QString& wanted)
{
    if (!Sources.contains(wanted)) {
        qWarning() << "[LuPlace] no such source:" << wanted;
        return;
    }
    if (wanted == stored(SourceKey).toString() || !m_write)
        return;
    m_write(SourceKey, wanted);
    Q_EMIT changed();
}

QString LuPlace::latitude() const
{
    return written(storedAngle(LatitudeKey, Pole));
}

QString LuPlace::longitude() const
{
    return written(storedAngle(LongitudeKey, DateLine));
}

QString LuPlace::placeName() const
{
    return stored(NameKey).toString();
}

QString LuPlace::present() const
{
    const std::optional<Position> position = m_present ? m_present() : std::nullopt;
    if (!position)
        return {};
    const QLocale locale;
    const QString north = locale.toString(std::abs(position->latitude), 'f', 2);
    const QString east = locale.toString(std::abs(position->longitude), 'f', 2);
    return (position->latitude < 0 ? tr("%1° S") : tr("%1° N")).arg(north) + u", "_s +
           (position->longitude < 0 ? tr("%1° W") : tr("%1° E")).arg(east);
}

QString LuPlace::zoneCity() const
{
    return m_zoneCity ? m_zoneCity() : QString();
}

bool LuPlace::choose(const QString& latitude, const QString& longitude, const QString& name)
{
    const auto north = readAngle(latitude, Pole);
    const auto east = readAngle(longitude, DateLine);
    if (!north || !east || !m_write)
        return false;
    m_write(LatitudeKey, *north);
    m_write(LongitudeKey, *east);
    m_write(NameKey, name);
    m_write(SourceKey, u"place"_s);
    Q_EMIT changed();
    return true;
}

QVariantList LuPlace::search(const QString& text)
{
    const QString wanted = plain(text);
    if (wanted.isEmpty())
        return {};
    if (!m_known)
        m_known = m_cities ? m_cities() : QList<City>();
    QList<City> hits;
    for (const City& city : std::as_const(*m_known)) {
        if (beginsLike(city.name, wanted))
            hits.append(city);
    }
    // Whoever types a country's name sees its cities.
    for (const City& city : std::as_const(*m_known)) {
        if (beginsLike(city.country, wanted) && !beginsLike(city.name, wanted))
            hits.append(city);
    }
    QVariantList found;
    for (const City& city : std::as_const(hits)) {
        if (found.size() == MostResults)
            break;
        found.append(QVariantMap{{u"name"_s, city.name},
                                 {u"country"_s, city.country},
                                 {u"latitude"_s, written(city.position.latitude)},
                                 {u"longitude"_s, written(city.position.longitude)}});
    }
    return found;
}
