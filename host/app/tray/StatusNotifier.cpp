// SPDX-License-Identifier: Apache-2.0
#include "StatusNotifier.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QFile>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

const QString WatcherService = u"org.kde.StatusNotifierWatcher"_s;
const QString WatcherPath = u"/StatusNotifierWatcher"_s;
const QString ItemPath = u"/StatusNotifierItem"_s;
const QString MenuPath = u"/MenuBar"_s;
// A connection of its own: the names that it takes go with it.
const QString ConnectionName = u"lumen-desk-tray"_s;

} // namespace

StatusNotifier::StatusNotifier(QObject* parent) : QObject(parent), m_menu(this), m_bus(ConnectionName)
{
    registerTrayTypes();
    new TrayMenuAdaptor(&m_menu);
    new StatusNotifierAdaptor(this);
}

StatusNotifier::~StatusNotifier()
{
    m_watcher.reset();
    QDBusConnection::disconnectFromBus(ConnectionName);
}

// Without an address libdbus starts a bus of its own where it can, which is slow and serves nobody.
bool StatusNotifier::hasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus"_L1);
}

bool StatusNotifier::start()
{
    if (!hasSessionBus())
        return false;
    m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, ConnectionName);
    if (!m_bus.isConnected())
        return false;
    m_service = u"org.kde.StatusNotifierItem-%1-1"_s.arg(QCoreApplication::applicationPid());
    if (!m_bus.registerObject(ItemPath, this, QDBusConnection::ExportAdaptors) ||
        !m_bus.registerObject(MenuPath, &m_menu, QDBusConnection::ExportAdaptors) ||
        !m_bus.registerService(m_service))
        return false;
    m_watcher = std::make_unique<QDBusServiceWatcher>(WatcherService, m_bus,
                                                      QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_watcher.get(), &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifier::announce);
    connect(m_watcher.get(), &QDBusServiceWatcher::serviceUnregistered, this, [this] { setVisible(false); });
    announce();
    return true;
}

void StatusNotifier::announce()
{
    QDBusMessage message = QDBusMessage::createMethodCall(WatcherService, WatcherPath, WatcherService,
                                                          u"RegisterStatusNotifierItem"_s);
    message << m_service;
    // A bus would start the service of that name, which belongs to another desktop.
    message.setAutoStartService(false);
    auto* call = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        setVisible(!call->isError());
        call->deleteLater();
    });
}

void StatusNotifier::setVisible(bool visible)
{
    if (visible == m_visible)
        return;
    m_visible = visible;
    Q_EMIT visibleChanged();
}

void StatusNotifier::setIcon(const QIcon& icon)
{
    m_images = trayImages(icon);
    Q_EMIT iconChanged();
}

void StatusNotifier::setToolTip(const QString& title, const QString& text)
{
    if (m_toolTip.title == title && m_toolTip.text == text)
        return;
    m_toolTip = {{}, {}, title, text};
    Q_EMIT toolTipChanged();
}

StatusNotifierAdaptor::StatusNotifierAdaptor(StatusNotifier* notifier)
    : QDBusAbstractAdaptor(notifier), m_notifier(notifier)
{
    connect(notifier, &StatusNotifier::iconChanged, this, &StatusNotifierAdaptor::NewIcon);
    connect(notifier, &StatusNotifier::toolTipChanged, this, &StatusNotifierAdaptor::NewToolTip);
}

QString StatusNotifierAdaptor::category() const
{
    return u"Hardware"_s;
}

QString StatusNotifierAdaptor::id() const
{
    return u"lumen-desk"_s;
}

QString StatusNotifierAdaptor::title() const
{
    return QGuiApplication::applicationDisplayName();
}

QString StatusNotifierAdaptor::status() const
{
    return u"Active"_s;
}

QDBusObjectPath StatusNotifierAdaptor::menu() const
{
    return QDBusObjectPath(MenuPath);
}

void StatusNotifierAdaptor::Activate(int, int)
{
    Q_EMIT m_notifier->activated();
}

void StatusNotifierAdaptor::SecondaryActivate(int, int)
{
    Q_EMIT m_notifier->activated();
}

// Desktops that leave the menu to the program would ask for it here; this one is shown by the desktop.
void StatusNotifierAdaptor::ContextMenu(int, int) {}

void StatusNotifierAdaptor::Scroll(int delta, const QString& orientation)
{
    if (orientation.compare("vertical"_L1, Qt::CaseInsensitive) == 0)
        Q_EMIT m_notifier->scrolled(delta);
}
