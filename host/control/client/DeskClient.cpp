// SPDX-License-Identifier: Apache-2.0
#include "DeskClient.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QSocketNotifier>

using namespace Qt::StringLiterals;

bool DeskClient::connectTo(const QString& path, int timeoutMs)
{
    m_socket.connectToServer(path);
    return m_socket.waitForConnected(timeoutMs == 0 ? -1 : timeoutMs);
}

bool DeskClient::takeMessage(QJsonObject* message)
{
    m_buffer += m_socket.readAll();
    const qsizetype newline = m_buffer.indexOf('\n');
    if (newline < 0)
        return false;
    *message = QJsonDocument::fromJson(m_buffer.left(newline)).object();
    m_buffer.remove(0, newline + 1);
    return true;
}

DeskClient::Outcome DeskClient::request(const QString& method, const QJsonObject& parameters, int timeoutMs,
                                        QJsonObject* answer)
{
    const QJsonObject request{
        {u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, 1}, {u"method"_s, method}, {u"params"_s, parameters}};
    m_socket.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
    QElapsedTimer elapsed;
    elapsed.start();
    for (;;) {
        while (takeMessage(answer)) {
            if (!answer->contains("method"_L1))
                return Outcome::Answered;
            m_early.append(*answer);
        }
        const qint64 left = timeoutMs == 0 ? -1 : timeoutMs - elapsed.elapsed();
        if (timeoutMs != 0 && left <= 0)
            return Outcome::TimedOut;
        if (!m_socket.waitForReadyRead(int(left)) && m_socket.bytesAvailable() == 0 &&
            m_socket.state() != QLocalSocket::ConnectedState)
            return Outcome::Lost;
    }
}

bool DeskClient::listen(int interrupted, const std::function<void(const QJsonObject&)>& notified)
{
    QEventLoop loop;
    bool wasInterrupted = false;
    QSocketNotifier notifier(interrupted, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &loop, [&] {
        wasInterrupted = true;
        loop.quit();
    });
    const auto take = [&] {
        QJsonObject message;
        while (takeMessage(&message))
            notified(message);
    };
    QObject::connect(&m_socket, &QLocalSocket::readyRead, &loop, take);
    QObject::connect(&m_socket, &QLocalSocket::disconnected, &loop, &QEventLoop::quit);
    for (const QJsonObject& message : std::as_const(m_early))
        notified(message);
    take();
    if (m_socket.state() == QLocalSocket::ConnectedState)
        loop.exec();
    take();
    return wasInterrupted;
}
