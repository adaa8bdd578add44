// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVariantMap>

namespace services {

/// How the person wants programs to look, as the desktop's settings portal tells: dark or light, with more
/// contrast, without motion.
///
/// start() asks without waiting; a signal comes for each wish that the desktop knows, then and whenever it
/// changes. Without the portal none comes. GUI thread only.
class DesktopLook : public QObject
{
    Q_OBJECT

public:
    explicit DesktopLook(const QDBusConnection& bus, QObject* parent = nullptr);

    void start();

Q_SIGNALS:
    /// "dark", "light", or empty where the person has no wish.
    void colorSchemeWished(const QString& scheme);
    void contrastWished(bool more);
    void motionWished(bool reduced);

private Q_SLOTS:
    void onSettingChanged(const QDBusMessage& message);

private:
    void take(const QString& space, const QString& key, const QVariant& value);

    QDBusConnection m_bus;
};

} // namespace services
