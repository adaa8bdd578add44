// SPDX-License-Identifier: Apache-2.0
#include "Server.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLoggingCategory>
#include <QSocketNotifier>

#include <cerrno>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

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
    m_listener = claim.descriptor;
    m_path = QFileInfo(path).absoluteFilePath();
    m_notifier = std::make_unique<QSocketNotifier>(m_listener, QSocketNotifier::Read, this);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &Server::takeClients);
    return Result::Listening;
}

int Server::clientCount() const
{
    return int(findChildren<Connection*>(Qt::FindDirectChildrenOnly).size());
}

// Not QLocalServer: it closes itself for good when a client that it was told of is not there any more, such
// as one that a nested event loop has taken meanwhile.
void Server::takeClients()
{
    for (;;) {
        const int descriptor = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (descriptor >= 0)
            takeClient(descriptor);
        else if (errno != EINTR && errno != ECONNABORTED)
            return; // all taken; without free descriptors the others wait for the next turn
    }
}

void Server::takeClient(int descriptor)
{
    if (clientCount() >= MaximumClients) {
        qWarning("[Control] Too many clients: a connection is refused.");
        ::close(descriptor);
        return;
    }
    auto* const socket = new QLocalSocket;
    if (!socket->setSocketDescriptor(descriptor)) {
        ::close(descriptor);
        delete socket;
        return;
    }
    new Connection(socket, &m_dispatcher, m_limits, this);
}

void Server::close(int flushMs)
{
    if (m_listener < 0)
        return;
    m_notifier.reset();
    // In this order: the file of another process that starts now is not removed.
    QFile::remove(std::exchange(m_path, {}));
    ::close(std::exchange(m_listener, -1));
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
}

} // namespace control
