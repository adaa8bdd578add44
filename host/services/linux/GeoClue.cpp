// SPDX-License-Identifier: Apache-2.0
#include "services/linux/GeoClue.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <cmath>

namespace services {

namespace {

const QString Service = QStringLiteral("org.freedesktop.GeoClue2");
const QString ManagerPath = QStringLiteral("/org/freedesktop/GeoClue2/Manager");
const QString ManagerInterface = QStringLiteral("org.freedesktop.GeoClue2.Manager");
const QString ClientInterface = QStringLiteral("org.freedesktop.GeoClue2.Client");
const QString LocationInterface = QStringLiteral("org.freedesktop.GeoClue2.Location");
const QString PropertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

constexpr uint CityAccuracy = 4;
constexpr uint MoveMetres = 20'000;

QDBusMessage propertyMessage(const QString& path, const QString& name, const QVariant& value)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(Service, path, PropertiesInterface, QStringLiteral("Set"));
    message << ClientInterface << name << QVariant::fromValue(QDBusVariant(value));
    return message;
}

} // namespace

GeoClue::GeoClue(const QDBusConnection& bus, QObject* parent) : QObject(parent), m_bus(bus) {}

GeoClue::~GeoClue()
{
    if (!m_client.isEmpty() && !m_failed)
        m_bus.send(
            QDBusMessage::createMethodCall(Service, m_client, ClientInterface, QStringLiteral("Stop")));
}

void GeoClue::start()
{
    if (!m_bus.isConnected())
        return fail(QStringLiteral("no system bus"));
    m_watcher = new QDBusServiceWatcher(Service, m_bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(m_watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { fail(QStringLiteral("the service ended")); });
    call(QDBusMessage::createMethodCall(Service, ManagerPath, ManagerInterface, QStringLiteral("GetClient")),
         [this](const QDBusMessage& reply) {
             setUp(reply.arguments().value(0).value<QDBusObjectPath>().path());
         });
}

void GeoClue::call(const QDBusMessage& message, Next next)
{
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, next = std::move(next), watcher] {
        watcher->deleteLater();
        if (m_failed)
            return;
        const QDBusMessage reply = watcher->reply();
        if (reply.type() == QDBusMessage::ErrorMessage)
            fail(reply.errorName() + QStringLiteral(": ") + reply.errorMessage());
        else if (next)
            next(reply);
    });
}

void GeoClue::setUp(const QString& clientPath)
{
    if (clientPath.isEmpty())
        return fail(QStringLiteral("no client given"));
    m_client = clientPath;
    m_bus.connect(Service, m_client, ClientInterface, QStringLiteral("LocationUpdated"), this,
                  SLOT(onLocationUpdated(QDBusObjectPath, QDBusObjectPath)));
    call(propertyMessage(m_client, QStringLiteral("DesktopId"), QStringLiteral("lumen-desk")), {});
    call(propertyMessage(m_client, QStringLiteral("RequestedAccuracyLevel"), CityAccuracy), {});
    call(propertyMessage(m_client, QStringLiteral("DistanceThreshold"), MoveMetres), {});
    call(QDBusMessage::createMethodCall(Service, m_client, ClientInterface, QStringLiteral("Start")), {});
}

void GeoClue::onLocationUpdated(const QDBusObjectPath&, const QDBusObjectPath& current)
{
    read(current.path());
}

void GeoClue::read(const QString& locationPath)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(Service, locationPath, PropertiesInterface, QStringLiteral("GetAll"));
    message << LocationInterface;
    call(message, [this](const QDBusMessage& reply) {
        const QDBusPendingReply<QVariantMap> properties(reply);
        const QVariantMap values = properties.isValid() ? properties.value() : QVariantMap();
        bool hasLatitude = false;
        bool hasLongitude = false;
        const double latitude = values.value(QStringLiteral("Latitude")).toDouble(&hasLatitude);
        const double longitude = values.value(QStringLiteral("Longitude")).toDouble(&hasLongitude);
        if (!hasLatitude || !hasLongitude || !(std::abs(latitude) <= 90) || !(std::abs(longitude) <= 180))
            return fail(QStringLiteral("a position that is none"));
        Q_EMIT positionFound(latitude, longitude);
    });
}

void GeoClue::fail(const QString& reason)
{
    if (m_failed)
        return;
    m_failed = true;
    Q_EMIT failed(reason);
}

} // namespace services
