// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Connection.h"
#include "Dispatcher.h"
#include "SocketFile.h"

#include <QObject>
#include <QString>

#include <memory>

class QSocketNotifier;

namespace control {

/// The control socket: takes clients in and lets the dispatcher answer them. GUI thread.
class Server : public QObject
{
    Q_OBJECT

public:
    enum class Result {
        Listening,
        OtherRuns, ///< Another process serves the path; see raiseOther().
        Failed,    ///< The message is in errorString().
    };

    static constexpr int MaximumClients = 512;

    explicit Server(QObject* parent = nullptr);
    ~Server() override;

    /// Serves the path until close() or the end. See claimSocket() for what is refused.
    Result listen(const QString& path);
    QString errorString() const { return m_error; }
    QString path() const { return m_path; }
    /// Sends what is still to be sent, for at most @p flushMs, ends all connections and removes the socket
    /// file.
    void close(int flushMs = 500);
    int clientCount() const;

    /// For clients that connect from now on.
    void setLimits(const Limits& limits) { m_limits = limits; }

    Dispatcher& dispatcher() { return m_dispatcher; }

    /// Short for the dispatcher's functions of these names.
    void addMethod(const QString& name, const QStringList& parameters, Dispatcher::Method method)
    {
        m_dispatcher.addMethod(name, parameters, std::move(method));
    }
    void addAsyncMethod(const QString& name, const QStringList& parameters, Dispatcher::AsyncMethod method)
    {
        m_dispatcher.addAsyncMethod(name, parameters, std::move(method));
    }

private:
    void takeClients();
    void takeClient(int descriptor);

    Dispatcher m_dispatcher;
    Limits m_limits;
    int m_listener = -1; ///< The listening socket.
    std::unique_ptr<QSocketNotifier> m_notifier;
    QString m_path;
    QString m_error;
};

} // namespace control
