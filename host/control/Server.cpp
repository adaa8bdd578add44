// SPDX-License-Identifier: Apache-2.0
#include "Server.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLoggingCategory>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace control {

Server::Server(QObject* parent) : QObject(parent) {}

Server::~Server()
{
    close();
}

Server::Result Server::listen(const QString& path)
{
    close();
    const SocketClaim claim = claimSocket(path);
    m_error = claim.error;
    if (claim.otherRuns)
        return Result::OtherRuns;
    if (claim.descriptor < 0)
        return Result::Failed;
    m_server = std::make_unique<QLocalServer>();
    m_server->setMaxPendingConnections(MaximumClients);
    if (!m_server->listen(qintptr(claim.descriptor))) {
        m_error = u"the control socket cannot be served: %1"_s.arg(m_server->errorString());
        ::close(claim.descriptor);
        m_server.reset();
        return Result::Failed;
    }
    connect(m_server.get(), &QLocalServer::newConnection, this, &Server::takeClients);
    return Result::Listening;
}

QString Server::path() const
{
    return m_server ? m_server->fullServerName() : QString();
}

int Server::clientCount() const
{
    return int(findChildren<Connection*>(Qt::FindDirectChildrenOnly).size());
}

void Server::takeClients()
{
    while (QLocalSocket* socket = m_server->nextPendingConnection()) {
        if (clientCount() >= MaximumClients) {
            qWarning("[Control] Too many clients: a connection is refused.");
            socket->abort();
            socket->deleteLater();
            continue;
        }
        new Connection(socket, &m_dispatcher, m_limits, this);
    }
}

void Server::close(int flushMs)
{
    if (!m_server)
        return;
    m_server->close();
    QElapsedTimer elapsed;
    elapsed.start();
    const QList<Connection*> connections = findChildren<Connection*>(Qt::FindDirectChildrenOnly);
    for (Connection* connection : connections) {
        QLocalSocket* const socket =
            connection->findChild<QLocalSocket*>(QString(), Qt::FindDirectChildrenOnly);
        while (!connection->isFlushed() && elapsed.elapsed() < flushMs &&
               socket->waitForBytesWritten(int(flushMs - elapsed.elapsed()))) {
        }
        delete connection;
    }
    m_server.reset();
}

} // namespace control
