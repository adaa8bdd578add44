// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/kvm/KvmIdentity.h"
#include "services/kvm/KvmLink.h"
#include "services/kvm/KvmPairing.h"
#include "services/kvm/KvmPeer.h"

#include <QHostAddress>
#include <QJsonObject>
#include <QTcpServer>
#include <QTimer>

#include <memory>
#include <optional>

namespace services {

/// Where a channel keeps its identity and listens.
struct KvmChannelOptions
{
    QString folder;
    QHostAddress address = QHostAddress::Any;
    static constexpr quint16 UsualPort = 47823;
    quint16 port = UsualPort;
    int firstDialMs = 1000; ///< Pause before the first call; it doubles up to half a minute.
    int pulseMs = KvmLink::UsualPulseMs;
    QString name; ///< What this computer calls itself; empty: the name that the system has.
};

/// Why a pairing came to nothing.
enum class KvmFailure {
    None,
    NobodyCame,   ///< Nobody has called within the time.
    NotConfirmed, ///< The codes were shown, and not confirmed within the time.
    NotReached,   ///< Nothing answers at the address, or it is no Lumen Desk.
    NotWaiting,   ///< A Lumen Desk answers that waits for no other computer.
    Refused,      ///< The other person did not find the codes equal, or gave up.
    Broken,       ///< The other side does not keep to the rules.
};

/// The connection to the one other computer that this one is paired with, over the local network.
///
/// Off until setEnabled(); then it listens, and dials the paired computer, whichever comes first. A computer
/// that is not the paired one is dropped when the handshake has shown its certificate, except for the one
/// that a pairing is under way with. Only addresses of local networks are answered and dialed. GUI thread
/// only.
class KvmChannel : public QTcpServer
{
    Q_OBJECT

public:
    explicit KvmChannel(const KvmChannelOptions& options, QObject* parent = nullptr);
    ~KvmChannel() override;

    /// False with the reason in errorText() if it cannot listen.
    bool setEnabled(bool enabled);
    bool isEnabled() const { return isListening(); }
    QString errorText() const { return m_error; }
    QString name() const { return m_options.name; }
    /// SHA-256 of this computer's certificate; empty while the channel has never been on.
    QByteArray fingerprint() const { return m_identity ? m_identity->fingerprint() : QByteArray(); }

    bool isPaired() const { return m_peer.isPaired(); }
    const KvmPeer& peer() const { return m_peer; }
    /// The paired computer has proved itself and answers.
    bool isConnected() const { return m_session != nullptr; }
    /// The paired computer was reached last time, and knows this one no more.
    bool isForgottenThere() const { return m_isForgottenThere; }

    /// The paired computer may be at another place now, as the network says: it is called there at once, and
    /// later on in turn with the addresses where it was met. Nothing while it is connected.
    void tryAddress(const QHostAddress& address, quint16 port);
    /// The same, as the person says: the address is kept. False if it is not of a local network.
    bool setPeerAddress(const QHostAddress& address, quint16 port);
    /// Whether this computer's word holds where both speak at once: true on exactly one of the two.
    bool hasPrecedence() const;

    /// For two minutes one unknown computer may come to be compared: the one at @p address, which is dialed,
    /// or with a null address the first one that dials. False if the channel is off, or the address is not of
    /// a local network. Meanwhile it does not call the computer that it is paired with.
    bool startPairing(const QHostAddress& address, quint16 port);
    /// The person has found the codes equal.
    void confirmPairing();
    void cancelPairing();
    bool isPairing() const { return m_pairingTimer.isActive(); }
    QString pairingCode() const { return m_pairing ? m_pairing->code() : QString(); }
    /// It was this computer that called.
    bool isCalling() const { return isPairing() && m_pairingLink && m_pairingLink->isDialer(); }
    /// The person here has confirmed; the other one may not have.
    bool isConfirmedHere() const { return m_pairing && m_pairing->isConfirmedHere(); }
    /// What the computer that is being paired with calls itself.
    QString pairingName() const { return m_pairingName; }
    /// Of the last pairing; none while one is under way.
    KvmFailure failure() const { return m_failure; }

    /// The paired computer is one no more.
    void forget();

    /// To the paired computer; nothing without it.
    void send(const QJsonObject& message);

Q_SIGNALS:
    void connectedChanged();
    /// Something that is shown has changed: on and off, pairing, peer and its addresses.
    void changed();
    void received(const QJsonObject& message);
    void codeKnown(const QString& code);
    void paired();
    void pairingFailed(const QString& reason);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    /// First word to the paired computer.
    static inline const QString HelloWord = QStringLiteral("hello");

    void savePeer();
    void dial();
    /// The call of the paired computer that nobody has judged yet, or null. There is never more than one.
    KvmLink* call() const;
    void greet(KvmLink* link);
    void takeGreeting(KvmLink* link, const QJsonObject& message);
    bool isWaitingForPair() const { return isPairing() && !m_pairingLink; }
    void addCandidate(KvmLink* link);
    void takeCandidate(KvmLink* link, const QJsonObject& message);
    void closeCandidates();
    void takeHello(const QJsonObject& message);
    QJsonObject introduction(const QString& type) const;
    /// Where the other side can be called: a computer that listens on one address says so, another one is
    /// where its call came from.
    static QHostAddress listeningAddress(const KvmLink* link, const QJsonObject& introduction);
    void dialLater();
    void take(KvmLink* link);
    void judge(KvmLink* link);
    void beginSession(KvmLink* link);
    void beginPairing(KvmLink* link);
    void takePairingMessage(const QJsonObject& message);
    void sendPairing(const QList<QJsonObject>& messages);
    void checkPairing();
    void failPairing(KvmFailure failure, const QString& reason);
    void onClosed(KvmLink* link, const QString& reason);

    KvmChannelOptions m_options;
    QString m_error;
    std::optional<KvmIdentity> m_identity;
    KvmPeer m_peer;
    QList<KvmLink*> m_strangers; ///< Links that nobody has judged yet.
    /// Unknown computers that have called while this one waits for one to be paired with, and have said
    /// nothing yet: a call alone is no try to pair.
    QList<KvmLink*> m_candidates;
    KvmLink* m_session = nullptr;
    KvmLink* m_pairingLink = nullptr;
    std::unique_ptr<KvmPairing> m_pairing;
    quint16 m_pairingPort = 0; ///< Of the computer that is being paired with, where it listens.
    QString m_pairingName;
    QHostAddress m_pairingAddress;
    KvmFailure m_failure = KvmFailure::None;
    bool m_isForgottenThere = false;
    QHostAddress m_hint; ///< Where the network says that the paired computer is.
    quint16 m_hintPort = 0;
    QHostAddress m_calledAddress; ///< Of the last call.
    quint16 m_calledPort = 0;
    qsizetype m_nextAddress = 0; ///< To be called next: 0 is the hint.
    QTimer m_pairingTimer;
    QTimer m_dialTimer;
    int m_dialMs = 0;
};

} // namespace services
