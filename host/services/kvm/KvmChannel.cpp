// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/KvmChannel.h"

#include <QDebug>
#include <QDir>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>

namespace services {

namespace {

constexpr int PairingMs = 120'000;
constexpr int LongestDialMs = 30'000;
/// Strangers at one time: a stranger costs a handshake.
constexpr int MostStrangers = 8;

bool isLocal(const QHostAddress& address)
{
    static const QList<QPair<QHostAddress, int>> networks = {
        QHostAddress::parseSubnet(QStringLiteral("127.0.0.0/8")),
        QHostAddress::parseSubnet(QStringLiteral("10.0.0.0/8")),
        QHostAddress::parseSubnet(QStringLiteral("172.16.0.0/12")),
        QHostAddress::parseSubnet(QStringLiteral("192.168.0.0/16")),
        QHostAddress::parseSubnet(QStringLiteral("169.254.0.0/16")),
        QHostAddress::parseSubnet(QStringLiteral("::1/128")),
        QHostAddress::parseSubnet(QStringLiteral("fc00::/7")),
        QHostAddress::parseSubnet(QStringLiteral("fe80::/10")),
    };
    bool mapped = false;
    const QHostAddress four(address.toIPv4Address(&mapped)); // "::ffff:192.168.0.2" too
    const QHostAddress plain = mapped ? four : address;
    return std::any_of(networks.begin(), networks.end(), [&](const auto& network) {
        return plain.protocol() == network.first.protocol() && plain.isInSubnet(network);
    });
}

} // namespace

KvmChannel::KvmChannel(const KvmChannelOptions& options, QObject* parent)
    : QTcpServer(parent), m_options(options)
{
    m_pairingTimer.setSingleShot(true);
    connect(&m_pairingTimer, &QTimer::timeout, this,
            [this] { failPairing(QStringLiteral("nobody has confirmed within two minutes")); });
    m_dialTimer.setSingleShot(true);
    connect(&m_dialTimer, &QTimer::timeout, this, &KvmChannel::dial);
}

KvmChannel::~KvmChannel()
{
    // Links report nothing any more.
    blockSignals(true);
    setEnabled(false);
}

bool KvmChannel::setEnabled(bool enabled)
{
    if (enabled == isEnabled())
        return true;
    if (enabled) {
        if (!m_identity)
            m_identity = KvmIdentity::load(m_options.folder);
        if (!m_identity) {
            m_error = QStringLiteral("no identity can be made in ") + m_options.folder;
            return false;
        }
        loadPeer();
        if (!listen(m_options.address, m_options.port)) {
            m_error = errorString();
            qWarning().noquote() << "[LuKvm] cannot listen:" << m_error;
            return false;
        }
        m_dialMs = 0;
        dialLater();
        return true;
    }
    QTcpServer::close();
    m_dialTimer.stop();
    cancelPairing();
    const QList<KvmLink*> strangers = m_strangers;
    for (KvmLink* link : strangers)
        link->close(QStringLiteral("switched off"));
    if (KvmLink* const session = std::exchange(m_session, nullptr)) {
        session->close(QStringLiteral("switched off"));
        Q_EMIT connectedChanged();
    }
    return true;
}

bool KvmChannel::hasPrecedence() const
{
    return m_identity && m_identity->fingerprint() < m_peer.fingerprint;
}

void KvmChannel::loadPeer()
{
    m_peer = {};
    QFile file(m_options.folder + QStringLiteral("/peer.json"));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject peer = QJsonDocument::fromJson(file.read(64 * 1024)).object();
    const QByteArray fingerprint = QByteArray::fromHex(peer[u"fingerprint"].toString().toLatin1());
    if (fingerprint.size() != 32) {
        qWarning().noquote() << "[LuKvm] no paired computer can be read from" << file.fileName();
        return;
    }
    m_peer = {fingerprint, QHostAddress(peer[u"address"].toString()), quint16(peer[u"port"].toInt())};
}

bool KvmChannel::savePeer()
{
    const QJsonObject peer{{QStringLiteral("fingerprint"), QString::fromLatin1(m_peer.fingerprint.toHex())},
                           {QStringLiteral("address"), m_peer.address.toString()},
                           {QStringLiteral("port"), m_peer.port}};
    QSaveFile file(m_options.folder + QStringLiteral("/peer.json"));
    return file.open(QIODevice::WriteOnly) &&
           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
           file.write(QJsonDocument(peer).toJson()) > 0 && file.commit();
}

void KvmChannel::dialLater()
{
    if (!isEnabled() || !isPaired() || m_session || m_dialTimer.isActive())
        return;
    m_dialMs = m_dialMs == 0 ? m_options.firstDialMs : std::min(2 * m_dialMs, LongestDialMs);
    // The one with precedence goes first, so that the two seldom call each other at once.
    m_dialTimer.start(hasPrecedence() ? m_dialMs : 2 * m_dialMs);
}

void KvmChannel::dial()
{
    if (m_session || m_peer.address.isNull() || !isLocal(m_peer.address))
        return;
    take(new KvmLink(*m_identity, m_peer.address, m_peer.port, this));
}

void KvmChannel::incomingConnection(qintptr descriptor)
{
    auto* const link = new KvmLink(*m_identity, descriptor, this);
    if (!isLocal(link->peerAddress()) || m_strangers.size() >= MostStrangers) {
        connect(link, &KvmLink::closed, link, &QObject::deleteLater);
        link->close(QStringLiteral("refused"));
        return;
    }
    take(link);
}

void KvmChannel::take(KvmLink* link)
{
    m_strangers.append(link);
    connect(link, &KvmLink::ready, this, [this, link] { judge(link); });
    connect(link, &KvmLink::closed, this, [this, link](const QString& reason) { onClosed(link, reason); });
}

// The handshake has shown who it is.
void KvmChannel::judge(KvmLink* link)
{
    m_strangers.removeOne(link);
    const QByteArray fingerprint = link->peerFingerprint();
    if (link == m_pairingLink || (isPairing() && !m_pairingLink && fingerprint != m_peer.fingerprint))
        beginPairing(link);
    else if (isPaired() && fingerprint == m_peer.fingerprint)
        beginSession(link);
    else
        link->close(QStringLiteral("not the paired computer"));
}

void KvmChannel::beginSession(KvmLink* link)
{
    if (m_session) {
        // Both have called. Both keep the call of the one with precedence, or the newer one of one side.
        const bool better = link->isDialer() == hasPrecedence();
        if (!better && link->isDialer() != m_session->isDialer())
            return link->close(QStringLiteral("connected already"));
        KvmLink* const before = std::exchange(m_session, nullptr);
        before->close(QStringLiteral("replaced"));
    }
    m_session = link;
    m_dialMs = 0;
    m_dialTimer.stop();
    connect(link, &KvmLink::received, this, [this, link](const QJsonObject& message) {
        if (link == m_session)
            Q_EMIT received(message);
    });
    Q_EMIT connectedChanged();
}

void KvmChannel::onClosed(KvmLink* link, const QString& reason)
{
    link->deleteLater();
    m_strangers.removeOne(link);
    if (link == m_pairingLink) {
        m_pairingLink = nullptr;
        failPairing(reason);
    }
    if (link == m_session) {
        m_session = nullptr;
        Q_EMIT connectedChanged();
    }
    dialLater();
}

bool KvmChannel::startPairing(const QHostAddress& address, quint16 port)
{
    if (!isEnabled() || (!address.isNull() && !isLocal(address)))
        return false;
    cancelPairing();
    m_pairingTimer.start(PairingMs);
    if (!address.isNull()) {
        m_pairingPort = port;
        m_pairingLink = new KvmLink(*m_identity, address, port, this);
        take(m_pairingLink);
    }
    return true;
}

void KvmChannel::beginPairing(KvmLink* link)
{
    m_pairingLink = link;
    m_pairing =
        std::make_unique<KvmPairing>(link->isDialer(), m_identity->fingerprint(), link->peerFingerprint());
    connect(link, &KvmLink::received, this, [this, link](const QJsonObject& message) {
        if (link == m_pairingLink)
            takePairingMessage(message);
    });
    // Where this computer listens: the other one knows only the port of the call.
    link->send({{QStringLiteral("t"), QStringLiteral("port")}, {QStringLiteral("port"), serverPort()}});
    sendPairing(m_pairing->start());
}

void KvmChannel::takePairingMessage(const QJsonObject& message)
{
    if (message[u"t"].toString() == QLatin1String("port")) {
        m_pairingPort = quint16(message[u"port"].toInt());
        return;
    }
    const bool hadCode = !m_pairing->code().isEmpty();
    sendPairing(m_pairing->take(message));
    if (!hadCode && !m_pairing->code().isEmpty())
        Q_EMIT codeKnown(m_pairing->code());
    checkPairing();
}

void KvmChannel::sendPairing(const QList<QJsonObject>& messages)
{
    for (const QJsonObject& message : messages)
        m_pairingLink->send(message);
}

void KvmChannel::confirmPairing()
{
    if (!m_pairing)
        return;
    sendPairing(m_pairing->confirm());
    checkPairing();
}

void KvmChannel::checkPairing()
{
    if (m_pairing->hasFailed())
        return failPairing(QStringLiteral("the other computer does not keep to the rules"));
    if (!m_pairing->isDone())
        return;
    KvmLink* const link = std::exchange(m_pairingLink, nullptr);
    m_pairing.reset();
    m_pairingTimer.stop();
    if (KvmLink* const before = std::exchange(m_session, nullptr))
        before->close(QStringLiteral("another computer is paired"));
    m_peer = {link->peerFingerprint(), link->peerAddress(), m_pairingPort};
    if (!savePeer())
        qWarning() << "[LuKvm] the pairing lasts until the program ends: it cannot be written";
    disconnect(link, &KvmLink::received, this, nullptr);
    Q_EMIT paired();
    beginSession(link);
}

void KvmChannel::failPairing(const QString& reason)
{
    if (!isPairing())
        return;
    // One try a start: who guesses gets no second one.
    cancelPairing();
    Q_EMIT pairingFailed(reason);
}

void KvmChannel::cancelPairing()
{
    m_pairingTimer.stop();
    m_pairing.reset();
    if (KvmLink* const link = std::exchange(m_pairingLink, nullptr))
        link->close(QStringLiteral("no pairing"));
}

void KvmChannel::forget()
{
    m_peer = {};
    m_dialTimer.stop();
    QFile::remove(m_options.folder + QStringLiteral("/peer.json"));
    if (KvmLink* const session = std::exchange(m_session, nullptr)) {
        session->close(QStringLiteral("forgotten"));
        Q_EMIT connectedChanged();
    }
}

void KvmChannel::send(const QJsonObject& message)
{
    if (m_session)
        m_session->send(message);
}

} // namespace services
