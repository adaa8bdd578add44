// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantList>

#include <functional>
#include <optional>

/// Where the position for sunrise and sunset comes from, and which one it is.
///
/// The singleton `LuPlace` of the QML module LumenDesk. It keeps the settings "location/source",
/// "location/latitude", "location/longitude" and "location/name". GUI thread.
class LuPlace : public QObject
{
    Q_OBJECT
    /// "service" (of the system), "zone" (the time zone's city), "place" (a chosen one) or "off".
    Q_PROPERTY(QString source READ source WRITE setSource NOTIFY changed)
    /// The chosen place, as text to be edited; empty without one.
    Q_PROPERTY(QString latitude READ latitude NOTIFY changed)
    Q_PROPERTY(QString longitude READ longitude NOTIFY changed)
    /// Of a chosen city; empty for bare numbers.
    Q_PROPERTY(QString placeName READ placeName NOTIFY changed)
    /// The position in use in words, rounded to hundredths of a degree; empty while none is known.
    Q_PROPERTY(QString present READ present NOTIFY changed)
    /// Of the time zone, such as "Berlin"; empty for a zone without one.
    Q_PROPERTY(QString zoneCity READ zoneCity NOTIFY changed)

public:
    using Read = std::function<QVariant(const QString& key)>;
    using Write = std::function<void(const QString& key, const QVariant& value)>;
    struct Position
    {
        double latitude = 0;  ///< Degrees, north positive.
        double longitude = 0; ///< Degrees, east positive.
    };
    struct City
    {
        QString name;
        QString country;
        Position position;
    };

    /// The one object; lives as long as the application.
    static LuPlace* instance();
    ~LuPlace() override;

    void setStore(Read read, Write write);
    /// @param present tells the position in use, if there is one.
    void setPresent(std::function<std::optional<Position>()> present);
    /// @param cities is asked once, at the first search. @param zoneCity names that of the time zone.
    void setCities(std::function<QList<City>()> cities, std::function<QString()> zoneCity);

    QString source() const;
    /// Another word is refused with a warning.
    void setSource(const QString& source);
    QString latitude() const;
    QString longitude() const;
    QString placeName() const;
    QString present() const;
    QString zoneCity() const;

    /// Chooses a place by its degrees as a person writes them, and makes it the source. False, and nothing is
    /// changed, if they are none.
    Q_INVOKABLE bool choose(const QString& latitude, const QString& longitude, const QString& name = {});
    /// Cities whose name or country begins like the text, {"name", "country", "latitude", "longitude"}, six
    /// at most. Nothing is asked of anybody for it.
    Q_INVOKABLE QVariantList search(const QString& text);

    /// The position in use has changed.
    void refresh() { Q_EMIT changed(); }

Q_SIGNALS:
    void changed();

private:
    explicit LuPlace(QObject* parent);
    QVariant stored(const QString& key) const;
    std::optional<double> storedAngle(const QString& key, double limit) const;

    Read m_read;
    Write m_write;
    std::function<std::optional<Position>()> m_present;
    std::function<QList<City>()> m_cities;
    std::function<QString()> m_zoneCity;
    std::optional<QList<City>> m_known;
};
