// SPDX-License-Identifier: Apache-2.0
#include "services/linux/ZoneCity.h"

#include <QFile>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace services {

namespace {

// The tables have some 20 kB, the file with the links 110 kB.
constexpr qint64 LargestTable = 4 * 1024 * 1024;

/// Degrees of "+DDMM", "+DDMMSS", "+DDDMM" or "+DDDMMSS".
std::optional<double> parseAngle(const QByteArray& text, int degreeDigits, double limit)
{
    const auto digits = text.size() - 1;
    if (digits != degreeDigits + 2 && digits != degreeDigits + 4)
        return std::nullopt;
    for (int i = 1; i < text.size(); ++i) {
        if (text[i] < '0' || text[i] > '9')
            return std::nullopt;
    }
    const int minutes = text.mid(1 + degreeDigits, 2).toInt();
    const int seconds = text.mid(3 + degreeDigits, 2).toInt(); // of an empty text: 0
    if (minutes > 59 || seconds > 59)
        return std::nullopt;
    const double angle = text.mid(1, degreeDigits).toInt() + minutes / 60.0 + seconds / 3600.0;
    if (angle > limit)
        return std::nullopt;
    return text[0] == '-' ? -angle : angle;
}

template <class Use>
void forEachLine(const QString& name, Use use)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly) || file.size() > LargestTable)
        return;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (!line.isEmpty() && !line.startsWith('#') && use(line))
            return;
    }
}

std::optional<GeoPosition> inTable(const QByteArray& zone, const QString& name)
{
    std::optional<GeoPosition> position;
    forEachLine(name, [&](const QByteArray& line) {
        const QList<QByteArray> columns = line.split('\t');
        if (columns.size() < 3 || columns[2] != zone)
            return false;
        position = parsePosition(columns[1]);
        return true;
    });
    return position;
}

/// The zone's name in the tables, where it is another name of it: a line "L Europe/Berlin
/// Arctic/Longyearbyen".
QByteArray linkTarget(const QByteArray& zone, const QString& name)
{
    QByteArray target;
    forEachLine(name, [&](const QByteArray& line) {
        const QList<QByteArray> columns = line.split(' ');
        if (columns.size() != 3 || columns[0] != "L" || columns[2] != zone)
            return false;
        target = columns[1];
        return true;
    });
    return target;
}

} // namespace

std::optional<GeoPosition> parsePosition(const QByteArray& text)
{
    const auto isSign = [](char c) { return c == '+' || c == '-'; };
    if (text.isEmpty() || !isSign(text[0]))
        return std::nullopt;
    qsizetype second = 1;
    while (second < text.size() && !isSign(text[second]))
        ++second;
    if (second == text.size())
        return std::nullopt;
    const auto latitude = parseAngle(text.left(second), 2, 90);
    const auto longitude = parseAngle(text.mid(second), 3, 180);
    if (!latitude || !longitude)
        return std::nullopt;
    return GeoPosition{*latitude, *longitude};
}

std::optional<GeoPosition> zoneCity(const QByteArray& zone, const QString& folder)
{
    const auto find = [&](const QByteArray& name) {
        const auto position = inTable(name, folder + QStringLiteral("/zone1970.tab"));
        // zone1970.tab leaves out cities whose clocks have agreed with another one's since 1970.
        return position ? position : inTable(name, folder + QStringLiteral("/zone.tab"));
    };
    if (zone.isEmpty())
        return std::nullopt;
    if (const auto position = find(zone))
        return position;
    const QByteArray target = linkTarget(zone, folder + QStringLiteral("/tzdata.zi"));
    return target.isEmpty() ? std::nullopt : find(target);
}

QString zoneCityName(const QByteArray& zone)
{
    return QString::fromLatin1(zone.mid(zone.lastIndexOf('/') + 1)).replace(u'_', u' ');
}

QList<ZonePlace> zonePlaces(const QString& folder)
{
    QList<ZonePlace> places;
    QSet<QByteArray> met;
    for (const QString& table : {QStringLiteral("/zone.tab"), QStringLiteral("/zone1970.tab")}) {
        forEachLine(folder + table, [&](const QByteArray& line) {
            const QList<QByteArray> columns = line.split('\t');
            const auto position = columns.size() < 3 ? std::nullopt : parsePosition(columns[1]);
            if (!position || met.contains(columns[2]))
                return false;
            met.insert(columns[2]);
            // Of a zone of several countries the first one is that of the city.
            const auto territory = QLocale::codeToTerritory(QString::fromLatin1(columns[0].left(2)));
            places.append(
                {zoneCityName(columns[2]),
                 territory == QLocale::AnyTerritory ? QString() : QLocale::territoryToString(territory),
                 *position});
            return false;
        });
    }
    std::sort(places.begin(), places.end(),
              [](const ZonePlace& a, const ZonePlace& b) { return a.name < b.name; });
    return places;
}

} // namespace services
