// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QObject>

#include <memory>
#include <mutex>

namespace control {

class Client;

/// The way to a client that may be gone: taken along by answers that are given later, on any thread.
class Outlet
{
public:
    explicit Outlet(Client* client) : m_client(client) {}

    /// Tells the client that one of its requests has ended. @p answer is empty for a request that wants none.
    void finish(const QJsonObject& answer);
    void close();

private:
    std::mutex m_mutex;
    Client* m_client;
};

/// One who sends requests. What belongs to it (its watches) is its child. GUI thread.
class Client : public QObject
{
    Q_OBJECT

public:
    explicit Client(QObject* parent = nullptr);
    ~Client() override;

    std::shared_ptr<Outlet> outlet() const { return m_outlet; }

    /// Sends a message without an answer's id.
    virtual void notify(const QJsonObject& message) = 0;
    /// Called once for each request of this client that ended; see Outlet::finish().
    virtual void finish(const QJsonObject& answer) = 0;

private:
    std::shared_ptr<Outlet> m_outlet;
};

} // namespace control
