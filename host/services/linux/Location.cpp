// SPDX-License-Identifier: Apache-2.0
#include "services/linux/Location.h"

#include <LuShared/LuServerLocation.h>
#include <lushared/LuSettings.h>

#include "services/linux/GeoClue.h"

#include <QDebug>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QTimeZone>
#include <QTimer>

#include <cmath>

namespace services {

namespace {

// Values of the setting "location/source".
const QString Service = QStringLiteral("service");
const QString Zone = QStringLiteral("zone");
const QString Place = QStringLiteral("place");
const QString Off = QStringLiteral("off");
const QStringList Sources = {Service, Zone, Place, Off};

double rounded(double degrees)
{
    return std::round(degrees * 100) / 100;
}

std::optional<double> settingAngle(const QString& key, double limit)
{
    bool ok = false;
    const double value = LuSettings::instance().value(key).toDouble(&ok);
    return ok && std::abs(value) <= limit ? std::optional(value) : std::nullopt;
}

class LinuxLocation : public QObject, public LocationService
{
    Q_OBJECT

public:
    explicit LinuxLocation(const LocationSources& sources);

    Location location() const override { return m_location; }
    void listenerAdded() override { reportLater(); }

private Q_SLOTS:
    void update();

private:
    void askService();
    void serviceIsOver();
    void dropService();
    QString source() const;
    Location find();
    void reportLater();

    LocationSources m_sources;
    Location m_location;
    std::optional<GeoPosition> m_servicePosition;
    std::unique_ptr<GeoClue> m_service;
    bool m_serviceOver = false;
    QTimer m_serviceWait;
    QTimer m_report;
    QFileSystemWatcher m_settingsWatcher;
};

LinuxLocation::LinuxLocation(const LocationSources& sources) : m_sources(sources)
{
    // One report tells everybody who began to listen in the same turn.
    m_report.setSingleShot(true);
    connect(&m_report, &QTimer::timeout, this, [this] {
        if (m_location.status != LuServerLocation::Unknown)
            Q_EMIT LuServerLocation::instance()->locationStatusChanged();
    });
    m_serviceWait.setSingleShot(true);
    connect(&m_serviceWait, &QTimer::timeout, this, [this] { serviceIsOver(); });

    // The file is replaced at each write: its folder stays.
    m_settingsWatcher.addPath(QFileInfo(LuSettings::instance().fileName()).absolutePath());
    connect(&m_settingsWatcher, &QFileSystemWatcher::directoryChanged, this, &LinuxLocation::update);
    m_sources.systemBus.connect(QStringLiteral("org.freedesktop.timedate1"),
                                QStringLiteral("/org/freedesktop/timedate1"),
                                QStringLiteral("org.freedesktop.DBus.Properties"),
                                QStringLiteral("PropertiesChanged"), this, SLOT(update()));
    update();
}

void LinuxLocation::askService()
{
    if (m_service || m_serviceOver)
        return;
    m_service = std::make_unique<GeoClue>(m_sources.systemBus);
    connect(m_service.get(), &GeoClue::positionFound, this, [this](double latitude, double longitude) {
        m_serviceWait.stop();
        m_servicePosition = GeoPosition{latitude, longitude};
        update();
    });
    connect(m_service.get(), &GeoClue::failed, this, [this](const QString& reason) {
        qInfo().noquote() << "[LuServerLocation] no location service:" << reason;
        m_servicePosition.reset();
        serviceIsOver();
    });
    m_serviceWait.start(m_sources.serviceWaitMs);
    m_service->start();
}

void LinuxLocation::serviceIsOver()
{
    m_serviceWait.stop();
    m_serviceOver = true;
    update();
}

QString LinuxLocation::source() const
{
    const LuSettings& settings = LuSettings::instance();
    const QString source = settings.value(QStringLiteral("location/source")).toString();
    if (Sources.contains(source))
        return source;
    // Settings that were written by hand name no source: what they hold tells it.
    if (settingAngle(QStringLiteral("location/latitude"), 90) &&
        settingAngle(QStringLiteral("location/longitude"), 180))
        return Place;
    return settings.value(QStringLiteral("location/service"), true).toBool() ? Service : Zone;
}

void LinuxLocation::dropService()
{
    m_service.reset();
    m_servicePosition.reset();
    m_serviceWait.stop();
    m_serviceOver = false;
}

LocationService::Location LinuxLocation::find()
{
    const auto known = [](double latitude, double longitude) {
        return Location{rounded(latitude), rounded(longitude), LuServerLocation::Known};
    };
    constexpr Location Failed{0, 0, LuServerLocation::Failed};
    const QString wanted = source();
    // Who says where they are, or that nobody is to know, is not looked for.
    if (wanted != Service)
        dropService();
    if (wanted == Off)
        return Failed;
    if (wanted == Place) {
        const auto latitude = settingAngle(QStringLiteral("location/latitude"), 90);
        const auto longitude = settingAngle(QStringLiteral("location/longitude"), 180);
        return latitude && longitude ? known(*latitude, *longitude) : Failed;
    }
    if (wanted == Service) {
        askService();
        if (m_servicePosition)
            return known(m_servicePosition->latitude, m_servicePosition->longitude);
        if (!m_serviceOver)
            return {};
    }
    const auto city = zoneCity(QTimeZone::systemTimeZoneId(), m_sources.zoneFolder);
    return city ? known(city->latitude, city->longitude) : Failed;
}

void LinuxLocation::update()
{
    const Location found = find();
    if (found.latitude == m_location.latitude && found.longitude == m_location.longitude &&
        found.status == m_location.status)
        return;
    m_location = found;
    reportLater();
}

void LinuxLocation::reportLater()
{
    m_report.start(0);
}

} // namespace

std::shared_ptr<LocationService> makeLinuxLocation(const LocationSources& sources)
{
    return std::make_shared<LinuxLocation>(sources);
}

} // namespace services

#include "Location.moc"
