// SPDX-License-Identifier: Apache-2.0
#include "services/linux/DesktopLook.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QDebug>
#include <QStringList>

namespace services {

namespace {

const QString Portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString Appearance = QStringLiteral("org.freedesktop.appearance");
const QString Gnome = QStringLiteral("org.gnome.desktop.interface");

// Values of "color-scheme".
constexpr uint PrefersDark = 1;
constexpr uint PrefersLight = 2;

} // namespace

DesktopLook::DesktopLook(const QDBusConnection& bus, QObject* parent) : QObject(parent), m_bus(bus) {}

void DesktopLook::start()
{
    if (!m_bus.isConnected())
        return;
    if (!m_bus.connect(Portal, Path, Interface, QStringLiteral("SettingChanged"), this,
                       SLOT(onSettingChanged(QDBusMessage))))
        qWarning() << "[DesktopLook] changes are not told:" << m_bus.lastError().message();
    QDBusMessage message = QDBusMessage::createMethodCall(Portal, Path, Interface, QStringLiteral("ReadAll"));
    message << QStringList{Appearance, Gnome};
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusMessage reply = watcher->reply();
        const QVariant all = reply.arguments().value(0);
        // A desktop without the portal has no wishes.
        if (reply.type() != QDBusMessage::ReplyMessage || all.userType() != qMetaTypeId<QDBusArgument>())
            return;
        const auto spaces = qdbus_cast<QMap<QString, QVariantMap>>(all.value<QDBusArgument>());
        for (auto space = spaces.cbegin(); space != spaces.cend(); ++space) {
            for (auto value = space->cbegin(); value != space->cend(); ++value)
                take(space.key(), value.key(), value.value());
        }
    });
}

void DesktopLook::onSettingChanged(const QDBusMessage& message)
{
    const QVariantList values = message.arguments();
    take(values.value(0).toString(), values.value(1).toString(),
         values.value(2).value<QDBusVariant>().variant());
}

void DesktopLook::take(const QString& space, const QString& key, const QVariant& value)
{
    if (space == Appearance && key == QLatin1String("color-scheme")) {
        const uint wish = value.toUInt();
        Q_EMIT colorSchemeWished(wish == PrefersDark    ? QStringLiteral("dark")
                                 : wish == PrefersLight ? QStringLiteral("light")
                                                        : QString());
    } else if (space == Appearance && key == QLatin1String("contrast")) {
        Q_EMIT contrastWished(value.toUInt() == 1);
    } else if (space == Gnome && key == QLatin1String("enable-animations")) {
        Q_EMIT motionWished(!value.toBool());
    }
}

} // namespace services
