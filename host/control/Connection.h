// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Client.h"

#include <QByteArray>
#include <QTimer>

class QLocalSocket;

namespace control {

class Dispatcher;

/// What a client may ask of the server's memory and patience.
struct Limits
{
    qint64 lineBytes = 1024 * 1024;        ///< Longest line, its newline included.
    qint64 pendingBytes = 8 * 1024 * 1024; ///< Unread answers from which on the connection ends.
    int pendingRequests = 1024;            ///< Unanswered requests from which on no more are read.
    int linesPerTurn = 64;                 ///< Lines handled before other clients have their turn.
    int halfLineMs = 60'000;               ///< Silence after half a line that ends the connection.
    int drainMs = 2'000; ///< How long a refused client's bytes are still taken, so that it gets to
                         ///< read its error.
};

/// One connected client: cuts its bytes into lines and sends what it is to get. GUI thread; deletes itself at
/// the end.
class Connection final : public Client
{
    Q_OBJECT

public:
    Connection(QLocalSocket* socket, Dispatcher* dispatcher, const Limits& limits, QObject* parent);
    ~Connection() override;

    void notify(const QJsonObject& message) override;
    void finish(const QJsonObject& answer) override;

    /// Everything was sent.
    bool isFlushed() const;

private:
    void schedule();
    void read();
    bool takeLine(QByteArray* line);
    void watchHalfLine();
    void send(const QJsonObject& message);
    void refuse(const QString& reason);
    void drain();
    void onDisconnected();

    QLocalSocket* const m_socket;
    Dispatcher* const m_dispatcher;
    const Limits m_limits;
    QByteArray m_buffer;
    qsizetype m_scanned = 0; ///< Bytes of m_buffer that hold no newline.
    int m_pending = 0;
    bool m_scheduled = false;
    bool m_reading = false;
    bool m_refused = false;
    bool m_over = false;
    QTimer m_halfLine;
    QTimer m_drain;
};

} // namespace control
