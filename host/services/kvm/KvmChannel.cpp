// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/KvmChannel.h"

#include <QDebug>
#include <QSysInfo>

#include <algorithm>

namespace services {

namespace {

constexpr int LongestDialMs = 30'000;
/// Strangers at one time: a stranger costs a handshake.
constexpr int MostStrangers = 8;

} // namespace

KvmChannel::KvmChannel(const KvmChannelOptions& options, QObject* parent)
    : QTcpServer(parent), m_options(options)
{
    if (m_options.name.isEmpty())
        m_options.name = shownName(QSysInfo::machineHostName());
    m_pairingTimer.setSingleShot(true);
    connect(&m_pairingTimer, &QTimer::timeout, this, [this] {
        failPairing(m_pairing ? KvmFailure::NotConfirmed : KvmFailure::NobodyCame,
                    QStringLiteral("nobody has confirmed within two minutes"));
    });
    m_dialTimer.setSingleShot(true);
    connect(&m_dialTimer, &QTimer::timeout, this, &KvmChannel::dial);
    m_peer = KvmPeer::load(m_options.folder);
}

KvmChannel::~KvmChannel()
{
    // Links report nothing any more.
    blockSignals(true);
    setEnabled(false);
}

bool KvmChannel::setEnabled(bool enabled)
{
    if (enabled == isEnabled() && m_error.isEmpty())
        return true;
    if (enabled) {
        if (!m_identity)
            m_identity = KvmIdentity::load(m_options.folder);
        if (!m_identity) {
            m_error = QStringLiteral("no identity can be made in ") + m_options.folder;
            Q_EMIT changed();
            return false;
        }
        m_peer = KvmPeer::load(m_options.folder);
        if (!listen(m_options.address, m_options.port)) {
            m_error = errorString();
            qWarning().noquote() << "[LuKvm] cannot listen:" << m_error;
            Q_EMIT changed();
            return false;
        }
        m_error.clear();
        m_dialMs = 0;
        m_nextAddress = 0;
        dialLater();
        Q_EMIT changed();
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
    m_error.clear();
    m_failure = KvmFailure::None;
    Q_EMIT changed();
    return true;
}

bool KvmChannel::hasPrecedence() const
{
    return m_identity && m_identity->fingerprint() < m_peer.fingerprint;
}

void KvmChannel::savePeer()
{
    if (!m_peer.save(m_options.folder))
        qWarning() << "[LuKvm] the pairing lasts until the program ends: it cannot be written";
    Q_EMIT changed();
}

void KvmChannel::dialLater()
{
    if (!isEnabled() || !isPaired() || isPairing() || m_session || m_dialTimer.isActive())
        return;
    // Every known address has its turn before the pause grows.
    if (m_dialMs == 0)
        m_dialMs = m_options.firstDialMs;
    else if (m_nextAddress == 0)
        m_dialMs = std::min(2 * m_dialMs, LongestDialMs);
    // The one with precedence goes first, so that the two seldom call each other at once.
    m_dialTimer.start(hasPrecedence() ? m_dialMs : 2 * m_dialMs);
}

KvmLink* KvmChannel::call() const
{
    const auto found = std::find_if(m_strangers.begin(), m_strangers.end(), [this](const KvmLink* link) {
        return link->isDialer() && link != m_pairingLink;
    });
    return found == m_strangers.end() ? nullptr : *found;
}

void KvmChannel::dial()
{
    // The end of a call, and of a pairing, is followed by the next one.
    if (m_session || isPairing() || call())
        return;
    const qsizetype places = m_peer.addresses.size() + 1;
    if (m_nextAddress == 0 && m_hint.isNull())
        m_nextAddress = 1;
    if (m_nextAddress >= places) {
        m_nextAddress = 0;
        return;
    }
    const bool isHint = m_nextAddress == 0;
    m_calledAddress = isHint ? m_hint : m_peer.addresses[m_nextAddress - 1];
    m_calledPort = isHint ? m_hintPort : m_peer.port;
    m_nextAddress = (m_nextAddress + 1) % places;
    if (isLocalAddress(m_calledAddress))
        take(new KvmLink(*m_identity, m_calledAddress, m_calledPort, m_options.pulseMs, this));
    else
        dialLater();
}

void KvmChannel::tryAddress(const QHostAddress& address, quint16 port)
{
    if (!isEnabled() || !isPaired() || m_session || !isLocalAddress(address) || port == 0)
        return;
    m_hint = address;
    m_hintPort = port;
    if (KvmLink* const under = call()) {
        // Whoever shouts on the network can neither stop a call that has been answered nor add to the calls.
        if (under->isReady() || (m_calledAddress == address && m_calledPort == port))
            return;
        m_strangers.removeOne(under);
        under->close(QStringLiteral("called at another address"));
    }
    m_dialTimer.stop();
    m_dialMs = 0;
    m_nextAddress = 0;
    dial();
}

bool KvmChannel::setPeerAddress(const QHostAddress& address, quint16 port)
{
    if (!isPaired() || !isLocalAddress(address) || port == 0)
        return false;
    m_peer.remember(address);
    m_peer.port = port;
    savePeer();
    if (KvmLink* const session = std::exchange(m_session, nullptr)) {
        session->close(QStringLiteral("the address was changed"));
        Q_EMIT connectedChanged();
    }
    tryAddress(address, port);
    return true;
}

void KvmChannel::incomingConnection(qintptr descriptor)
{
    auto* const link = new KvmLink(*m_identity, descriptor, m_options.pulseMs, this);
    if (!isLocalAddress(link->peerAddress()) || m_strangers.size() >= MostStrangers) {
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
    if (fingerprint.isEmpty())
        link->close(QStringLiteral("no certificate"));
    else if (link == m_pairingLink)
        beginPairing(link);
    else if (isWaitingForPair() && !link->isDialer() && fingerprint != m_peer.fingerprint)
        addCandidate(link);
    else if (isPaired() && fingerprint == m_peer.fingerprint)
        greet(link);
    else
        link->close(QStringLiteral("not the paired computer"));
}

QJsonObject KvmChannel::introduction(const QString& type) const
{
    // Where this computer listens: the other one knows only where the call came from.
    QJsonObject message{{QStringLiteral("t"), type},
                        {QStringLiteral("port"), serverPort()},
                        {QStringLiteral("name"), m_options.name}};
    if (m_options.address != QHostAddress::Any)
        message[QStringLiteral("address")] = m_options.address.toString();
    return message;
}

QHostAddress KvmChannel::listeningAddress(const KvmLink* link, const QJsonObject& introduction)
{
    const QHostAddress told(introduction[u"address"].toString());
    return isLocalAddress(told) ? told : link->peerAddress();
}

// Each side has to say that it knows the other one. A computer that has forgotten this one ends the call
// instead.
void KvmChannel::greet(KvmLink* link)
{
    m_strangers.append(link);
    connect(link, &KvmLink::received, this,
            [this, link](const QJsonObject& message) { takeGreeting(link, message); });
    link->send(introduction(HelloWord));
}

void KvmChannel::takeGreeting(KvmLink* link, const QJsonObject& message)
{
    if (!m_strangers.contains(link))
        return;
    m_strangers.removeOne(link);
    disconnect(link, &KvmLink::received, this, nullptr);
    if (message[u"t"].toString() == HelloWord) {
        m_isForgottenThere = false;
        const bool moved = m_peer.remember(listeningAddress(link, message));
        takeHello(message);
        if (moved)
            savePeer();
        beginSession(link);
    } else if (isWaitingForPair()) {
        // It has forgotten this computer and wants to be paired anew.
        beginPairing(link);
        takePairingMessage(message);
    } else {
        link->close(QStringLiteral("neither known nor waited for"));
    }
}

void KvmChannel::takeHello(const QJsonObject& message)
{
    const int port = message[u"port"].toInt();
    const QString name = shownName(message[u"name"].toString());
    if (port <= 0 || port > 65535 || (port == m_peer.port && name == m_peer.name))
        return;
    m_peer.port = quint16(port);
    m_peer.name = name;
    savePeer();
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
    Q_EMIT changed();
}

void KvmChannel::onClosed(KvmLink* link, const QString& reason)
{
    link->deleteLater();
    m_candidates.removeOne(link);
    // It took this computer's certificate and ended the call without a word of its own.
    const bool greeted = m_strangers.removeOne(link) && link->isReady() && link->isDialer();
    if (greeted && isEnabled() && !m_session)
        m_isForgottenThere = true;
    if (link == m_pairingLink) {
        m_pairingLink = nullptr;
        const bool compared = m_pairing && !m_pairing->code().isEmpty();
        failPairing(!link->isReady()   ? KvmFailure::NotReached
                    : compared         ? KvmFailure::Refused
                    : link->isDialer() ? KvmFailure::NotWaiting
                                       : KvmFailure::Broken,
                    reason);
    }
    if (link == m_session) {
        m_session = nullptr;
        Q_EMIT connectedChanged();
    }
    dialLater();
    Q_EMIT changed();
}

void KvmChannel::forget()
{
    m_peer = {};
    m_hint.clear();
    m_isForgottenThere = false;
    m_dialTimer.stop();
    if (!KvmPeer::remove(m_options.folder))
        qWarning().noquote()
            << "[LuKvm] the pairing cannot be removed and comes back at the next start: delete"
            << KvmPeer::fileIn(m_options.folder);
    if (KvmLink* const session = std::exchange(m_session, nullptr)) {
        session->close(QStringLiteral("forgotten"));
        Q_EMIT connectedChanged();
    }
    Q_EMIT changed();
}

void KvmChannel::send(const QJsonObject& message)
{
    if (m_session)
        m_session->send(message);
}

} // namespace services
