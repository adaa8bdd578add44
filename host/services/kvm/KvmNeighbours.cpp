// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/KvmNeighbours.h"

#include "services/kvm/KvmPeer.h"

#include <QCryptographicHash>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDebug>

#include <algorithm>

namespace services {

namespace {

const QString Avahi = QStringLiteral("org.freedesktop.Avahi");
const QString ServerInterface = QStringLiteral("org.freedesktop.Avahi.Server");
const QString GroupInterface = QStringLiteral("org.freedesktop.Avahi.EntryGroup");
const QString BrowserInterface = QStringLiteral("org.freedesktop.Avahi.ServiceBrowser");
const QString ServiceType = QStringLiteral("_lumen-desk-kvm._tcp");

const QString CollisionError = QStringLiteral("org.freedesktop.Avahi.CollisionError");

constexpr int AnyInterface = -1;
constexpr int AnyProtocol = -1;
constexpr int Collision = 3; ///< State of an entry group: another one has the name.
/// So many computers are kept; a network that shouts more names is not listened to.
constexpr qsizetype MostNeighbours = 64;

QDBusMessage serverCall(const QString& method)
{
    return QDBusMessage::createMethodCall(Avahi, QStringLiteral("/"), ServerInterface, method);
}

QString keyOf(int interface, int protocol, const QString& name, const QString& domain)
{
    return QStringLiteral("%1/%2/%3/%4").arg(interface).arg(protocol).arg(name, domain);
}

/// "key=value" among the texts of a service.
QString textOf(const QList<QByteArray>& texts, const QByteArray& key)
{
    for (const QByteArray& text : texts) {
        if (text.startsWith(key + '='))
            return QString::fromUtf8(text.mid(key.size() + 1));
    }
    return {};
}

} // namespace

KvmNeighbours::KvmNeighbours(const QDBusConnection& systemBus, QObject* parent)
    : QObject(parent), m_bus(systemBus)
{
    qDBusRegisterMetaType<QList<QByteArray>>();
}

KvmNeighbours::~KvmNeighbours()
{
    blockSignals(true);
    stop();
}

QString KvmNeighbours::idOf(const QByteArray& fingerprint)
{
    if (fingerprint.isEmpty())
        return {};
    const QByteArray hash =
        QCryptographicHash::hash("lumen-desk-kvm" + fingerprint, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.first(16).toHex());
}

void KvmNeighbours::start(const QString& name, quint16 port, const QByteArray& fingerprint)
{
    const QString id = idOf(fingerprint);
    if (m_isOn && name == m_name && port == m_port && id == m_id)
        return;
    stop();
    if (!m_bus.isConnected())
        return;
    m_isOn = true;
    m_name = name;
    m_port = port;
    m_id = id;
    // Before the browser is there: its first finds come at once, on a path that nobody knows yet.
    m_bus.connect(Avahi, QString(), BrowserInterface, QStringLiteral("ItemNew"), this,
                  SLOT(onItemNew(int, int, QString, QString, QString, uint, QDBusMessage)));
    m_bus.connect(Avahi, QString(), BrowserInterface, QStringLiteral("ItemRemove"), this,
                  SLOT(onItemRemove(int, int, QString, QString, QString, uint, QDBusMessage)));
    m_bus.connect(Avahi, QString(), GroupInterface, QStringLiteral("StateChanged"), this,
                  SLOT(onGroupState(int, QString, QDBusMessage)));
    m_watcher = new QDBusServiceWatcher(Avahi, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) {
                avahiIsGone();
                if (!owner.isEmpty())
                    avahiIsHere();
            });
    // Asked by name, so that the question starts nothing.
    QDBusMessage owned = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    owned << Avahi;
    call(owned, [this](const QDBusMessage& reply) {
        if (reply.arguments().value(0).toBool() && !m_isAvailable)
            avahiIsHere();
    });
}

void KvmNeighbours::stop()
{
    if (!m_isOn)
        return;
    m_isOn = false;
    withdraw();
    if (!m_browser.isEmpty())
        m_bus.send(
            QDBusMessage::createMethodCall(Avahi, m_browser, BrowserInterface, QStringLiteral("Free")));
    m_bus.disconnect(Avahi, QString(), BrowserInterface, QStringLiteral("ItemNew"), this,
                     SLOT(onItemNew(int, int, QString, QString, QString, uint, QDBusMessage)));
    m_bus.disconnect(Avahi, QString(), BrowserInterface, QStringLiteral("ItemRemove"), this,
                     SLOT(onItemRemove(int, int, QString, QString, QString, uint, QDBusMessage)));
    m_bus.disconnect(Avahi, QString(), GroupInterface, QStringLiteral("StateChanged"), this,
                     SLOT(onGroupState(int, QString, QDBusMessage)));
    delete m_watcher;
    m_watcher = nullptr;
    avahiIsGone();
}

void KvmNeighbours::call(const QDBusMessage& message, Next next, bool takesErrors)
{
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, next = std::move(next), takesErrors, watcher, round = m_round, method = message.member()] {
                watcher->deleteLater();
                const QDBusMessage reply = watcher->reply();
                if (round != m_round || !m_isOn)
                    return;
                if (reply.type() == QDBusMessage::ErrorMessage && !takesErrors) {
                    qInfo().noquote()
                        << "[LuKvm] the network's list of services refuses" << method << reply.errorMessage();
                    return;
                }
                next(reply);
            });
}

void KvmNeighbours::avahiIsHere()
{
    m_isAvailable = true;
    publish(m_name);
    browse();
    Q_EMIT changed();
}

void KvmNeighbours::avahiIsGone()
{
    ++m_round;
    m_group.clear();
    m_browser.clear();
    m_found.clear();
    m_isAvailable = false;
    Q_EMIT changed();
}

void KvmNeighbours::publish(const QString& name)
{
    m_publishedName = name;
    call(serverCall(QStringLiteral("EntryGroupNew")), [this](const QDBusMessage& reply) {
        m_group = reply.arguments().value(0).value<QDBusObjectPath>().path();
        QDBusMessage add =
            QDBusMessage::createMethodCall(Avahi, m_group, GroupInterface, QStringLiteral("AddService"));
        const QList<QByteArray> texts{"v=1", "id=" + m_id.toLatin1(), "name=" + m_name.toUtf8().left(200)};
        add << AnyInterface << AnyProtocol << 0u << m_publishedName << ServiceType << QString() << QString()
            << QVariant::fromValue(ushort(m_port)) << QVariant::fromValue(texts);
        call(
            add,
            [this](const QDBusMessage& added) {
                // Of another person's Lumen Desk on this computer.
                if (added.errorName() == CollisionError)
                    return publishOtherName();
                if (added.type() == QDBusMessage::ErrorMessage) {
                    qInfo().noquote() << "[LuKvm] this computer is not in the network's list of services:"
                                      << added.errorMessage();
                    return;
                }
                call(QDBusMessage::createMethodCall(Avahi, m_group, GroupInterface, QStringLiteral("Commit")),
                     [](const QDBusMessage&) {});
            },
            true);
    });
}

void KvmNeighbours::onGroupState(int state, const QString&, const QDBusMessage& message)
{
    if (message.path() == m_group && state == Collision)
        publishOtherName();
}

void KvmNeighbours::publishOtherName()
{
    withdraw();
    QDBusMessage ask = serverCall(QStringLiteral("GetAlternativeServiceName"));
    ask << m_publishedName;
    call(ask, [this](const QDBusMessage& reply) { publish(reply.arguments().value(0).toString()); });
}

void KvmNeighbours::withdraw()
{
    if (!m_group.isEmpty())
        m_bus.send(QDBusMessage::createMethodCall(Avahi, m_group, GroupInterface, QStringLiteral("Free")));
    m_group.clear();
}

void KvmNeighbours::browse()
{
    QDBusMessage make = serverCall(QStringLiteral("ServiceBrowserNew"));
    make << AnyInterface << AnyProtocol << ServiceType << QString() << 0u;
    call(make, [this](const QDBusMessage& reply) {
        m_browser = reply.arguments().value(0).value<QDBusObjectPath>().path();
    });
}

// Whose browser has found it does not matter: it is what this one looks for.
void KvmNeighbours::onItemNew(int interface, int protocol, const QString& name, const QString& type,
                              const QString& domain, uint, const QDBusMessage&)
{
    if (!m_isOn || type != ServiceType)
        return;
    QDBusMessage resolve = serverCall(QStringLiteral("ResolveService"));
    resolve << interface << protocol << name << type << domain << protocol << 0u;
    call(resolve, [this, key = keyOf(interface, protocol, name, domain)](const QDBusMessage& reply) {
        resolved(key, reply);
    });
}

void KvmNeighbours::onItemRemove(int interface, int protocol, const QString& name, const QString& type,
                                 const QString& domain, uint, const QDBusMessage&)
{
    if (type == ServiceType && m_found.remove(keyOf(interface, protocol, name, domain)) > 0)
        Q_EMIT changed();
}

void KvmNeighbours::resolved(const QString& key, const QDBusMessage& reply)
{
    // interface, protocol, name, type, domain, host, protocol of the address, address, port, texts, flags
    const QVariantList values = reply.arguments();
    if (values.size() < 10)
        return;
    const auto texts = qdbus_cast<QList<QByteArray>>(values[9]);
    KvmNeighbour neighbour;
    neighbour.id = textOf(texts, "id");
    neighbour.name = shownName(textOf(texts, "name"));
    neighbour.address = QHostAddress(values[7].toString());
    if (neighbour.address.isLinkLocal() && neighbour.address.protocol() == QAbstractSocket::IPv6Protocol)
        neighbour.address.setScopeId(QString::number(values[0].toInt()));
    neighbour.port = values[8].value<ushort>();
    if (neighbour.name.isEmpty())
        neighbour.name = shownName(values[2].toString());
    if (neighbour.id.isEmpty() || neighbour.id == m_id || neighbour.port == 0 ||
        !isLocalAddress(neighbour.address) || (m_found.size() >= MostNeighbours && !m_found.contains(key)))
        return;
    m_found.insert(key, neighbour);
    Q_EMIT changed();
}

QList<KvmNeighbour> KvmNeighbours::list() const
{
    // A computer is met on each network and in each kind of address: the plainest one is shown.
    QHash<QString, KvmNeighbour> byId;
    for (const KvmNeighbour& each : m_found) {
        const auto rank = [](const KvmNeighbour& of) {
            return std::pair(of.address.protocol() != QAbstractSocket::IPv4Protocol, of.address.toString());
        };
        const auto known = byId.constFind(each.id);
        if (known == byId.constEnd() || rank(each) < rank(*known))
            byId.insert(each.id, each);
    }
    QList<KvmNeighbour> all = byId.values();
    std::sort(all.begin(), all.end(), [](const KvmNeighbour& a, const KvmNeighbour& b) {
        return std::pair(a.name.toLower(), a.id) < std::pair(b.name.toLower(), b.id);
    });
    return all;
}

} // namespace services
