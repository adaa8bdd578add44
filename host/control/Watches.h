// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Client.h"
#include "PathResolver.h"

#include <QHash>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>

namespace control {

/// Turns emissions of one signal into calls on the GUI thread, whatever signal it is.
///
/// An emission on another thread is posted and does not wait. Each emission gives one call.
class SignalRelay : public QObject
{
public:
    explicit SignalRelay(QObject* parent) : QObject(parent) {}

    /// False if an argument is of a type that cannot cross threads.
    bool attach(QObject* sender, const QMetaMethod& signal);
    /// No more calls, also not for what is posted already.
    void stop() { m_stopped = true; }
    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

protected:
    virtual void emitted(void** arguments) = 0;

private:
    bool m_stopped = false;
};

/// What one client watches: properties and signals of the monitors. Belongs to the client. GUI thread.
class Watches : public QObject
{
    Q_OBJECT

public:
    explicit Watches(Client* client) : QObject(client), m_client(client) {}

    /// The watches of a client, made on the first call.
    static Watches* of(Client* client);

    /// Watches all paths, or none if one of them is not there. What is watched already stays one watch.
    void add(const QString& monitor, const PathResolver& resolver, const QStringList& paths);
    /// What is not watched is no error.
    void remove(const QString& monitor, const QStringList& paths);
    /// The monitor goes.
    void removeMonitor(const QString& monitor);

private:
    using Key = QPair<QString, QString>;
    std::unique_ptr<SignalRelay> makeRelay(const QString& monitor, const PathResolver& resolver,
                                           const QString& path);

    Client* const m_client;
    QHash<Key, SignalRelay*> m_relays;
};

} // namespace control
