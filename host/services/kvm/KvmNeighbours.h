// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QObject>

#include <functional>

class QDBusServiceWatcher;

namespace services {

/// A computer of the local network whose channel is on.
struct KvmNeighbour
{
    QString id; ///< KvmNeighbours::idOf() its certificate's fingerprint.
    QString name;
    QHostAddress address;
    quint16 port = 0;
    bool operator==(const KvmNeighbour&) const = default;
};

/// Makes this computer's channel known on the local network, and finds those of others, through Avahi where
/// it runs (DNS-SD over D-Bus). Avahi is not started for it. What it finds is a hint for whom to call: who
/// answers there proves itself by its certificate. GUI thread only.
class KvmNeighbours : public QObject
{
    Q_OBJECT

public:
    explicit KvmNeighbours(const QDBusConnection& systemBus, QObject* parent = nullptr);
    ~KvmNeighbours() override;

    /// Publishes this computer and looks for others. Again with other values where it is under way.
    void start(const QString& name, quint16 port, const QByteArray& fingerprint);
    /// Withdraws this computer, and forgets the others.
    void stop();

    /// Avahi answers.
    bool isAvailable() const { return m_isAvailable; }
    /// The others, by name; never this computer.
    QList<KvmNeighbour> list() const;

    /// What a computer is recognised by on the network: of its certificate's fingerprint, but not the
    /// fingerprint.
    static QString idOf(const QByteArray& fingerprint);

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onItemNew(int interface, int protocol, const QString& name, const QString& type,
                   const QString& domain, uint flags, const QDBusMessage& message);
    void onItemRemove(int interface, int protocol, const QString& name, const QString& type,
                      const QString& domain, uint flags, const QDBusMessage& message);
    void onGroupState(int state, const QString& error, const QDBusMessage& message);

private:
    using Next = std::function<void(const QDBusMessage& reply)>;

    /// @param next takes the answer, an error only where @p takesErrors; other errors go to the log.
    void call(const QDBusMessage& message, Next next, bool takesErrors = false);
    void avahiIsHere();
    void avahiIsGone();
    void publish(const QString& name);
    void publishOtherName();
    void withdraw();
    void browse();
    void resolved(const QString& key, const QDBusMessage& reply);

    QDBusConnection m_bus;
    QDBusServiceWatcher* m_watcher = nullptr;
    bool m_isOn = false;
    bool m_isAvailable = false;
    int m_round = 0; ///< Answers to an earlier round count no more.
    QString m_name;
    QString m_publishedName; ///< With a number where another service of the network has the name.
    quint16 m_port = 0;
    QString m_id;
    QString m_group;
    QString m_browser;
    QHash<QString, KvmNeighbour> m_found; ///< By interface, protocol, name and domain.
};

} // namespace services
