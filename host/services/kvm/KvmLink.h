// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/kvm/KvmIdentity.h"

#include <QHostAddress>
#include <QJsonObject>
#include <QObject>
#include <QSslSocket>
#include <QTimer>

namespace services {

/// One TLS connection to another Lumen Desk: JSON objects of at most 4 KiB, one a line.
///
/// Both sides show a certificate; whose it is, the owner of the link judges in ready(). Nothing is delivered
/// before. A link that breaks a rule of the form closes. GUI thread only.
class KvmLink : public QObject
{
    Q_OBJECT

public:
    /// Between two lines of a link that has nothing to say.
    static constexpr int UsualPulseMs = 10'000;

    /// Dials.
    KvmLink(const KvmIdentity& identity, const QHostAddress& address, quint16 port, int pulseMs,
            QObject* parent);
    /// Answers a call.
    KvmLink(const KvmIdentity& identity, qintptr descriptor, int pulseMs, QObject* parent);

    bool isDialer() const { return m_dialer; }
    /// The handshake was made.
    bool isReady() const { return m_ready; }
    QByteArray peerFingerprint() const;
    QHostAddress peerAddress() const
    {
        return m_peerAddress.isNull() ? m_socket->peerAddress() : m_peerAddress;
    }

    void send(const QJsonObject& message);

    /// Ends the connection and tells closed(), later, where it has not been told.
    void close(const QString& reason);

Q_SIGNALS:
    void ready();
    void received(const QJsonObject& message);
    void closed(const QString& reason);

private:
    void setUp(const KvmIdentity& identity);
    void read();
    void pulse();

    QSslSocket* m_socket;
    const bool m_dialer;
    const int m_pulseMs;
    QHostAddress m_peerAddress; ///< Still known when the connection is gone.
    bool m_ready = false;
    bool m_closed = false;
    int m_unheard = 0; ///< Pulses since the other side was heard.
    QByteArray m_line;
    QTimer m_timer;
};

} // namespace services
