// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QLocalSocket>
#include <QString>

#include <functional>

/// Speaks the control protocol to a running program, one request at a time. Blocks.
class DeskClient
{
public:
    enum class Outcome {
        Answered,
        TimedOut,
        Lost, ///< The connection ended.
    };

    /// False if no program serves the path; see errorString().
    bool connectTo(const QString& path, int timeoutMs);
    QString errorString() const { return m_socket.errorString(); }

    /// @param answer the whole message: with "result" or "error".
    /// @param timeoutMs 0 waits without limit.
    Outcome request(const QString& method, const QJsonObject& parameters, int timeoutMs, QJsonObject* answer);

    /// Hands over every notification until the connection ends or @p interrupted, a file descriptor, can be
    /// read.
    /// @return true if it was interrupted.
    bool listen(int interrupted, const std::function<void(const QJsonObject&)>& notified);

private:
    bool takeMessage(QJsonObject* message);

    QLocalSocket m_socket;
    QByteArray m_buffer;
    QList<QJsonObject> m_early; ///< Notifications that came before the answer to a request.
};
