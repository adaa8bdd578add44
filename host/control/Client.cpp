// SPDX-License-Identifier: Apache-2.0
#include "Client.h"

#include <QMetaObject>
#include <QThread>

namespace control {

void Outlet::finish(const QJsonObject& answer)
{
    std::unique_lock lock(m_mutex);
    Client* const client = m_client;
    if (!client)
        return;
    if (client->thread() == QThread::currentThread()) {
        lock.unlock();
        client->finish(answer);
        return;
    }
    // Under the lock: the client's destructor waits for it, and takes the posted call with it.
    QMetaObject::invokeMethod(
        client, [client, answer] { client->finish(answer); }, Qt::QueuedConnection);
}

void Outlet::close()
{
    const std::lock_guard lock(m_mutex);
    m_client = nullptr;
}

Client::Client(QObject* parent) : QObject(parent), m_outlet(std::make_shared<Outlet>(this)) {}

Client::~Client()
{
    m_outlet->close();
}

} // namespace control
