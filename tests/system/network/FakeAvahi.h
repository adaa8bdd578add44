// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QHash>
#include <QList>
#include <QObject>

#include <memory>

/// One service of a network, as Avahi hands it on.
struct FakeService
{
    QString name;
    QString address;
    quint16 port = 0;
    QList<QByteArray> texts;
};

class FakeAvahi;

/// An entry group of the fake: what one program publishes.
class FakeGroup : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Avahi.EntryGroup")

public:
    FakeGroup(FakeAvahi* avahi, QString ownPath) : path(std::move(ownPath)), m_avahi(avahi) {}

    const QString path;
    FakeService service;
    bool isPublished = false;

public Q_SLOTS:
    void AddService(int interface, int protocol, uint flags, const QString& name, const QString& type,
                    const QString& domain, const QString& host, ushort port, const QList<QByteArray>& texts);
    void Commit();
    void Free();

private:
    FakeAvahi* m_avahi;
};

/// Avahi's part of the network on a private bus: what its D-Bus interface promises, and no network. Finds are
/// told before the browser's path is, as the real one does.
class FakeAvahi : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Avahi.Server")

public:
    explicit FakeAvahi(const QDBusConnection& bus) : m_bus(bus) {}
    ~FakeAvahi() override { leave(); }

    bool appear()
    {
        return m_bus.registerObject(QStringLiteral("/"), this, QDBusConnection::ExportAllSlots) &&
               m_bus.registerService(QStringLiteral("org.freedesktop.Avahi"));
    }
    void leave()
    {
        m_bus.unregisterService(QStringLiteral("org.freedesktop.Avahi"));
        m_bus.unregisterObject(QStringLiteral("/"));
        for (const auto& group : m_groups)
            m_bus.unregisterObject(group->path);
        m_groups.clear();
        m_browsers.clear();
        foreign.clear();
    }

    /// Where the computers of this network are, by the names that they publish.
    QHash<QString, QString> addresses;
    /// Names are refused at once, as where another program of the same computer has them.
    bool isOneComputer = false;
    bool isNameTakenHere(const QString& name) const { return isOneComputer && names().contains(name); }
    /// Services of other computers.
    QList<FakeService> foreign;

    QStringList names() const
    {
        QStringList all;
        for (const auto& group : m_groups) {
            if (group->isPublished)
                all.append(group->service.name);
        }
        return all;
    }
    void commit(FakeGroup& group)
    {
        if (names().contains(group.service.name)) {
            QDBusMessage state =
                QDBusMessage::createSignal(group.path, GroupInterface, QStringLiteral("StateChanged"));
            state << 3 << QString();
            m_bus.send(state);
            return;
        }
        group.isPublished = true;
        tell(QStringLiteral("ItemNew"), group.service.name);
    }
    void free(FakeGroup& group)
    {
        if (std::exchange(group.isPublished, false))
            tell(QStringLiteral("ItemRemove"), group.service.name);
    }
    void tell(const QString& signal, const QString& name)
    {
        for (const QString& browser : std::as_const(m_browsers))
            tell(browser, signal, name);
    }

public Q_SLOTS:
    QDBusObjectPath EntryGroupNew()
    {
        const QString path = QStringLiteral("/group%1").arg(++m_count);
        m_groups.push_back(std::make_unique<FakeGroup>(this, path));
        m_bus.registerObject(path, m_groups.back().get(), QDBusConnection::ExportAllSlots);
        return QDBusObjectPath(path);
    }
    QDBusObjectPath ServiceBrowserNew(int, int, const QString&, const QString&, uint)
    {
        const QString path = QStringLiteral("/browser%1").arg(++m_count);
        m_browsers.append(path);
        QStringList all = names();
        for (const FakeService& each : std::as_const(foreign))
            all.append(each.name);
        for (const QString& name : std::as_const(all))
            tell(path, QStringLiteral("ItemNew"), name);
        return QDBusObjectPath(path);
    }
    QString GetAlternativeServiceName(const QString& name) { return name + QStringLiteral(" #2"); }
    int ResolveService(int interface, int protocol, const QString& name, const QString& type,
                       const QString& domain, int, uint, int& foundProtocol, QString& foundName,
                       QString& foundType, QString& foundDomain, QString& host, int& addressProtocol,
                       QString& address, ushort& port, QList<QByteArray>& texts, uint& flags)
    {
        QList<FakeService> all = foreign;
        for (const auto& group : m_groups) {
            FakeService service = group->service;
            service.address = addresses.value(service.name, QStringLiteral("127.0.0.1"));
            if (group->isPublished)
                all.append(service);
        }
        for (const FakeService& each : std::as_const(all)) {
            if (each.name != name)
                continue;
            foundProtocol = addressProtocol = protocol;
            foundName = name;
            foundType = type;
            foundDomain = domain;
            host = QStringLiteral("host.local");
            address = each.address;
            port = each.port;
            texts = each.texts;
            flags = 0;
            return interface;
        }
        sendErrorReply(QStringLiteral("org.freedesktop.Avahi.TimeoutError"),
                       QStringLiteral("no such service"));
        return 0;
    }

private:
    static inline const QString GroupInterface = QStringLiteral("org.freedesktop.Avahi.EntryGroup");

    void tell(const QString& browser, const QString& signal, const QString& name)
    {
        QDBusMessage message = QDBusMessage::createSignal(
            browser, QStringLiteral("org.freedesktop.Avahi.ServiceBrowser"), signal);
        message << 2 << 0 << name << QStringLiteral("_lumen-desk-kvm._tcp") << QStringLiteral("local") << 0u;
        m_bus.send(message);
    }

    QDBusConnection m_bus;
    std::vector<std::unique_ptr<FakeGroup>> m_groups;
    QStringList m_browsers;
    int m_count = 0;
};

inline void FakeGroup::AddService(int, int, uint, const QString& name, const QString&, const QString&,
                                  const QString&, ushort port, const QList<QByteArray>& texts)
{
    if (m_avahi->isNameTakenHere(name)) {
        sendErrorReply(QStringLiteral("org.freedesktop.Avahi.CollisionError"), QStringLiteral("taken"));
        return;
    }
    service = {name, QString(), port, texts};
}

inline void FakeGroup::Commit()
{
    m_avahi->commit(*this);
}

inline void FakeGroup::Free()
{
    m_avahi->free(*this);
}
