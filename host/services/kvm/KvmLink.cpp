// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/KvmLink.h"

#include <QJsonDocument>
#include <QSslConfiguration>

namespace services {

namespace {

constexpr int LongestLine = 4096;
constexpr int HandshakeMs = 10'000;
/// So many pulses without an answer, and the other computer is gone: asleep, off, or out of the network.
constexpr int MostUnheard = 3;

} // namespace

KvmLink::KvmLink(const KvmIdentity& identity, const QHostAddress& address, quint16 port, int pulseMs,
                 QObject* parent)
    : QObject(parent), m_socket(new QSslSocket(this)), m_dialer(true), m_pulseMs(pulseMs)
{
    setUp(identity);
    m_socket->connectToHostEncrypted(address.toString(), port);
}

KvmLink::KvmLink(const KvmIdentity& identity, qintptr descriptor, int pulseMs, QObject* parent)
    : QObject(parent), m_socket(new QSslSocket(this)), m_dialer(false), m_pulseMs(pulseMs)
{
    setUp(identity);
    if (m_socket->setSocketDescriptor(descriptor))
        m_socket->startServerEncryption();
    else
        close(m_socket->errorString());
}

void KvmLink::setUp(const KvmIdentity& identity)
{
    QSslConfiguration configuration;
    configuration.setProtocol(QSsl::TlsV1_3OrLater);
    configuration.setLocalCertificate(identity.certificate);
    configuration.setPrivateKey(identity.key);
    // No authority vouches for a certificate: the owner compares it with the one it knows.
    configuration.setCaCertificates({});
    configuration.setPeerVerifyMode(QSslSocket::QueryPeer);
    m_socket->setSslConfiguration(configuration);
    m_socket->setReadBufferSize(4L * LongestLine);

    connect(m_socket, &QSslSocket::encrypted, this, [this] {
        if (m_closed)
            return;
        m_ready = true;
        m_peerAddress = m_socket->peerAddress();
        m_timer.start(m_pulseMs);
        Q_EMIT ready();
        read();
    });
    connect(m_socket, &QIODevice::readyRead, this, &KvmLink::read);
    connect(m_socket, &QAbstractSocket::errorOccurred, this, [this] { close(m_socket->errorString()); });
    connect(m_socket, &QAbstractSocket::disconnected, this,
            [this] { close(QStringLiteral("the other side ended")); });
    connect(&m_timer, &QTimer::timeout, this, &KvmLink::pulse);
    m_timer.start(HandshakeMs);
}

QByteArray KvmLink::peerFingerprint() const
{
    return KvmIdentity::fingerprintOf(m_socket->peerCertificate());
}

void KvmLink::pulse()
{
    if (!m_ready)
        return close(QStringLiteral("no handshake"));
    if (m_unheard == MostUnheard)
        return close(QStringLiteral("silence"));
    ++m_unheard;
    send({{QStringLiteral("t"), QStringLiteral("ping")}});
}

void KvmLink::send(const QJsonObject& message)
{
    if (m_ready && !m_closed)
        m_socket->write(QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n');
}

void KvmLink::read()
{
    if (!m_ready)
        return;
    while (!m_closed && m_socket->bytesAvailable() > 0) {
        m_line += m_socket->readLine(LongestLine + 1 - m_line.size());
        if (!m_line.endsWith('\n')) {
            if (m_line.size() >= LongestLine)
                close(QStringLiteral("a line too long"));
            continue;
        }
        const QJsonDocument document = QJsonDocument::fromJson(std::exchange(m_line, QByteArray()));
        if (!document.isObject())
            return close(QStringLiteral("no message"));
        m_unheard = 0;
        const QJsonObject message = document.object();
        const QString type = message[u"t"].toString();
        if (type == QLatin1String("ping"))
            send({{QStringLiteral("t"), QStringLiteral("pong")}});
        else if (type != QLatin1String("pong"))
            Q_EMIT received(message);
    }
}

void KvmLink::close(const QString& reason)
{
    if (m_closed)
        return;
    m_closed = true;
    m_timer.stop();
    // What was sent before still goes out; then the socket goes with the link.
    m_socket->disconnectFromHost();
    QMetaObject::invokeMethod(
        this, [this, reason] { Q_EMIT closed(reason); }, Qt::QueuedConnection);
}

} // namespace services
