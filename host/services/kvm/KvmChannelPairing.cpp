// SPDX-License-Identifier: Apache-2.0
// The channel's part that makes two computers a pair.
#include "services/kvm/KvmChannel.h"

#include <QDebug>

namespace services {

namespace {

constexpr int PairingMs = 120'000;
/// Of more computers that call and say nothing the one that has been silent longest goes.
constexpr qsizetype MostCandidates = 4;

} // namespace

bool KvmChannel::startPairing(const QHostAddress& address, quint16 port)
{
    if (!isEnabled() || (!address.isNull() && !isLocalAddress(address)))
        return false;
    cancelPairing();
    m_failure = KvmFailure::None;
    m_pairingName.clear();
    m_pairingAddress.clear();
    m_pairingTimer.start(PairingMs);
    // The computer that is called may be the paired one, which would take that call for the pairing.
    m_dialTimer.stop();
    if (KvmLink* const under = call()) {
        m_strangers.removeOne(under);
        under->close(QStringLiteral("a pairing begins"));
    }
    if (!address.isNull()) {
        m_pairingPort = port;
        m_pairingLink = new KvmLink(*m_identity, address, port, m_options.pulseMs, this);
        take(m_pairingLink);
    }
    Q_EMIT changed();
    return true;
}

void KvmChannel::addCandidate(KvmLink* link)
{
    if (m_candidates.size() >= MostCandidates)
        m_candidates.takeFirst()->close(QStringLiteral("too many"));
    m_candidates.append(link);
    connect(link, &KvmLink::received, this,
            [this, link](const QJsonObject& message) { takeCandidate(link, message); });
}

void KvmChannel::takeCandidate(KvmLink* link, const QJsonObject& message)
{
    if (!m_candidates.removeOne(link))
        return;
    disconnect(link, &KvmLink::received, this, nullptr);
    // Who greets takes this computer for the one that it is paired with.
    if (!isWaitingForPair() || message[u"t"].toString() == HelloWord)
        return link->close(QStringLiteral("not the paired computer"));
    beginPairing(link);
    takePairingMessage(message);
}

void KvmChannel::closeCandidates()
{
    const QList<KvmLink*> candidates = std::exchange(m_candidates, {});
    for (KvmLink* const link : candidates)
        link->close(QStringLiteral("no pairing"));
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
    link->send(introduction(QStringLiteral("port")));
    sendPairing(m_pairing->start());
    Q_EMIT changed();
}

void KvmChannel::takePairingMessage(const QJsonObject& message)
{
    const QString type = message[u"t"].toString();
    // The other one takes this call for one of the computer that it knows, until it hears better.
    if (type == HelloWord)
        return;
    if (type == QLatin1String("port")) {
        const int port = message[u"port"].toInt();
        if (port <= 0 || port > 65535)
            return failPairing(KvmFailure::Broken, QStringLiteral("the other computer listens nowhere"));
        m_pairingPort = quint16(port);
        m_pairingName = shownName(message[u"name"].toString());
        m_pairingAddress = listeningAddress(m_pairingLink, message);
        Q_EMIT changed();
        return;
    }
    const bool hadCode = !m_pairing->code().isEmpty();
    sendPairing(m_pairing->take(message));
    if (!hadCode && !m_pairing->code().isEmpty())
        Q_EMIT codeKnown(m_pairing->code());
    // Whoever was told the code may have ended it.
    if (m_pairing)
        checkPairing();
    Q_EMIT changed();
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
    Q_EMIT changed();
}

void KvmChannel::checkPairing()
{
    if (m_pairing->hasFailed())
        return failPairing(KvmFailure::Broken,
                           QStringLiteral("the other computer does not keep to the rules"));
    if (!m_pairing->isDone())
        return;
    KvmLink* const link = std::exchange(m_pairingLink, nullptr);
    m_pairing.reset();
    m_pairingTimer.stop();
    closeCandidates();
    if (KvmLink* const before = std::exchange(m_session, nullptr))
        before->close(QStringLiteral("another computer is paired"));
    m_peer = {link->peerFingerprint(), m_pairingName, {}, m_pairingPort};
    m_peer.remember(m_pairingAddress.isNull() ? link->peerAddress() : m_pairingAddress);
    m_isForgottenThere = false;
    savePeer();
    disconnect(link, &KvmLink::received, this, nullptr);
    Q_EMIT paired();
    beginSession(link);
}

void KvmChannel::failPairing(KvmFailure failure, const QString& reason)
{
    if (!isPairing())
        return;
    // One try a start: who guesses gets no second one.
    cancelPairing();
    m_failure = failure;
    Q_EMIT pairingFailed(reason);
    Q_EMIT changed();
}

void KvmChannel::cancelPairing()
{
    m_pairingTimer.stop();
    m_pairing.reset();
    if (KvmLink* const link = std::exchange(m_pairingLink, nullptr))
        link->close(QStringLiteral("no pairing"));
    closeCandidates();
    m_failure = KvmFailure::None;
    dialLater();
    Q_EMIT changed();
}

} // namespace services
