// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/linux/ZoneCity.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>

#include <functional>

class QDBusServiceWatcher;

namespace services {

/// A client of the system's location service GeoClue, asking for the person's city and no closer.
///
/// start() asks; afterwards positionFound() comes for each position and failed() once if the service is
/// absent, refuses, or vanishes. GUI thread only.
class GeoClue : public QObject
{
    Q_OBJECT

public:
    explicit GeoClue(const QDBusConnection& bus, QObject* parent = nullptr);
    /// Tells the service that nobody asks any more.
    ~GeoClue() override;

    void start();

Q_SIGNALS:
    void positionFound(double latitude, double longitude);
    void failed(const QString& reason);

private Q_SLOTS:
    void onLocationUpdated(const QDBusObjectPath& previous, const QDBusObjectPath& current);

private:
    using Next = std::function<void(const QDBusMessage& reply)>;
    void call(const QDBusMessage& message, Next next);
    void setUp(const QString& clientPath);
    void read(const QString& locationPath);
    void fail(const QString& reason);

    QDBusConnection m_bus;
    QString m_client;
    QDBusServiceWatcher* m_watcher = nullptr;
    bool m_failed = false;
};

} // namespace services
