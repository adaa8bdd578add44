// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Client.h"
#include "Parameters.h"
#include "Reply.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

namespace control {

/// One call of a method.
struct Request
{
    QPointer<Client> client; ///< Null once it has gone.
    Parameters parameters;
    Reply reply;
};

/// Reads requests and calls the method that each one names. GUI thread.
class Dispatcher : public QObject
{
    Q_OBJECT

public:
    /// Answers at once with its result, or throws RequestError.
    using Method = std::function<QJsonValue(const Request&)>;
    /// Answers now or later through the request's reply, or throws RequestError.
    using AsyncMethod = std::function<void(const Request&)>;
    enum class When {
        Settled, ///< Waits while the program is busy; see setBusy().
        Always,
    };

    explicit Dispatcher(QObject* parent = nullptr);

    /// @param parameters names that the method takes; a request with another one fails.
    void addMethod(const QString& name, const QStringList& parameters, Method method,
                   When when = When::Settled);
    void addAsyncMethod(const QString& name, const QStringList& parameters, AsyncMethod method,
                        When when = When::Settled);
    QStringList methods() const;

    /// While @p busy says so, requests wait in their order. Whoever gives it calls resume() as it ends.
    void setBusy(std::function<bool()> busy);
    void resume();

    /// Takes one line, without its newline. Every request ends in exactly one Client::finish().
    void handleLine(Client* client, const QByteArray& line);

private:
    struct Entry
    {
        QStringList parameters;
        AsyncMethod method;
        When when = When::Settled;
    };
    struct Held
    {
        QString name;
        Request request;
    };

    void dispatch(Client* client, const QJsonObject& object);
    void run(const Entry& entry, const Request& request);
    bool isBusy() const { return m_busy && m_busy(); }

    QHash<QString, Entry> m_methods;
    std::function<bool()> m_busy;
    QList<Held> m_held;
    bool m_resuming = false;
};

} // namespace control
