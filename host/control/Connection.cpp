// SPDX-License-Identifier: Apache-2.0
#include "Connection.h"

#include "Dispatcher.h"

#include <QJsonDocument>
#include <QLocalSocket>
#include <QLoggingCategory>
#include <QPointer>

#include <sys/socket.h>

using namespace Qt::StringLiterals;

namespace control {

namespace {
constexpr qint64 ChunkBytes = 64 * 1024;
}

Connection::Connection(QLocalSocket* socket, Dispatcher* dispatcher, const Limits& limits, QObject* parent)
    : Client(parent), m_socket(socket), m_dispatcher(dispatcher), m_limits(limits)
{
    m_socket->setParent(this);
    // What is not read yet stays with the client, not in this process.
    m_socket->setReadBufferSize(4 * ChunkBytes);
    m_halfLine.setSingleShot(true);
    m_drain.setSingleShot(true);
    connect(m_socket, &QLocalSocket::readyRead, this, &Connection::read);
    connect(m_socket, &QLocalSocket::disconnected, this, &Connection::onDisconnected);
    connect(m_socket, &QLocalSocket::bytesWritten, this, &Connection::drain);
    connect(&m_halfLine, &QTimer::timeout, this, [this] {
        refuse(u"half a line, and then nothing for %1 s"_s.arg(m_limits.halfLineMs / 1000.0));
    });
    connect(&m_drain, &QTimer::timeout, m_socket, &QLocalSocket::abort);
    schedule(); // what arrived before the signals were connected
}

Connection::~Connection()
{
    m_socket->disconnect(this);
}

bool Connection::isFlushed() const
{
    return m_socket->bytesToWrite() == 0;
}

void Connection::schedule()
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_scheduled = false;
            read();
        },
        Qt::QueuedConnection);
}

void Connection::read()
{
    if (m_refused) {
        m_socket->skip(m_socket->bytesAvailable());
        return;
    }
    if (m_reading) // a method runs an event loop
        return;
    m_reading = true;
    int handled = 0;
    QByteArray line;
    const QPointer<Connection> self(this); // a method may end the server
    while (!m_refused && m_pending < m_limits.pendingRequests && handled < m_limits.linesPerTurn &&
           takeLine(&line)) {
        ++handled;
        ++m_pending;
        m_dispatcher->handleLine(this, line);
        if (!self)
            return;
    }
    m_reading = false;
    if (m_refused)
        return;
    if (handled == m_limits.linesPerTurn)
        schedule();
    else if (m_over && m_pending < m_limits.pendingRequests)
        deleteLater();
    watchHalfLine();
}

bool Connection::takeLine(QByteArray* line)
{
    for (;;) {
        const qsizetype newline = m_buffer.indexOf('\n', m_scanned);
        if ((newline < 0 ? m_buffer.size() : newline) >= m_limits.lineBytes) {
            refuse(u"a line of more than %1 bytes"_s.arg(m_limits.lineBytes));
            return false;
        }
        if (newline >= 0) {
            *line = m_buffer.left(newline);
            m_buffer.remove(0, newline + 1);
            m_scanned = 0;
            return true;
        }
        m_scanned = m_buffer.size();
        const QByteArray more = m_socket->read(ChunkBytes);
        if (more.isEmpty())
            return false;
        m_buffer.append(more);
    }
}

void Connection::watchHalfLine()
{
    const bool waits = !m_buffer.isEmpty() && m_scanned == m_buffer.size();
    if (waits && !m_over)
        m_halfLine.start(m_limits.halfLineMs);
    else
        m_halfLine.stop();
}

void Connection::notify(const QJsonObject& message)
{
    send(message);
}

void Connection::finish(const QJsonObject& answer)
{
    if (m_pending == m_limits.pendingRequests)
        schedule();
    --m_pending;
    if (!answer.isEmpty())
        send(answer);
}

void Connection::send(const QJsonObject& message)
{
    if (m_refused || m_socket->state() != QLocalSocket::ConnectedState)
        return;
    if (m_socket->bytesToWrite() >= m_limits.pendingBytes) {
        qWarning("[Control] A client lets its answers pile up: its connection ends.");
        m_refused = true;
        m_halfLine.stop();
        // Not at once: the caller may be in the middle of a signal of the socket.
        QMetaObject::invokeMethod(m_socket, &QLocalSocket::abort, Qt::QueuedConnection);
        return;
    }
    m_socket->write(QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n');
}

void Connection::refuse(const QString& reason)
{
    send(Reply::errorMessage(QJsonValue(), RequestError(InvalidRequest, reason)));
    m_refused = true;
    m_halfLine.stop();
    m_buffer.clear();
    m_drain.start(m_limits.drainMs);
    m_socket->skip(m_socket->bytesAvailable());
    m_socket->flush();
    drain();
}

/// A client that is still sending would lose its error if the socket closed over unread bytes: the answer's
/// direction ends at once, the other when the client has gone or its time is over.
void Connection::drain()
{
    if (m_drain.isActive() && m_socket->bytesToWrite() == 0)
        ::shutdown(int(m_socket->socketDescriptor()), SHUT_WR);
}

void Connection::onDisconnected()
{
    // The lines that had arrived are requests all the same.
    m_over = true;
    m_halfLine.stop();
    if (m_refused)
        deleteLater();
    else
        schedule();
}

} // namespace control
