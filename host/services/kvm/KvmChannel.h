// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/kvm/KvmIdentity.h"
#include "services/kvm/KvmLink.h"
#include "services/kvm/KvmPairing.h"

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
    quint16 port = 47823;
    int firstDialMs = 1000; ///< Pause before the first call; it doubles up to half a minute.
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

    bool isPaired() const { return !m_peer.fingerprint.isEmpty(); }
    /// The paired computer has proved itself and answers.
    bool isConnected() const { return m_session != nullptr; }
    /// Whether this computer's word holds where both speak at once: true on exactly one of the two.
    bool hasPrecedence() const;

    /// For two minutes one unknown computer may come to be compared: the one at @p address, which is dialed,
    /// or with a null address the first one that dials. False if the channel is off, or the address is not of
    /// a local network.
    bool startPairing(const QHostAddress& address, quint16 port);
    /// The person has found the codes equal.
    void confirmPairing();
    void cancelPairing();
    bool isPairing() const { return m_pairingTimer.isActive(); }
    QString pairingCode() const { return m_pairing ? m_pairing->code() : QString(); }

    /// The paired computer is one no more.
    void forget();

    /// To the paired computer; nothing without it.
    void send(const QJsonObject& message);

Q_SIGNALS:
    void connectedChanged();
    void received(const QJsonObject& message);
    void codeKnown(const QString& code);
    void paired();
    void pairingFailed(const QString& reason);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    struct Peer
    {
        QByteArray fingerprint;
        QHostAddress address;
        quint16 port = 0;
    };

    void loadPeer();
    bool savePeer();
    void dial();
    void dialLater();
    void take(KvmLink* link);
    void judge(KvmLink* link);
    void beginSession(KvmLink* link);
    void beginPairing(KvmLink* link);
    void takePairingMessage(const QJsonObject& message);
    void sendPairing(const QList<QJsonObject>& messages);
    void checkPairing();
    void failPairing(const QString& reason);
    void onClosed(KvmLink* link, const QString& reason);

    KvmChannelOptions m_options;
    QString m_error;
    std::optional<KvmIdentity> m_identity;
    Peer m_peer;
    QList<KvmLink*> m_strangers; ///< Links that nobody has judged yet.
    KvmLink* m_session = nullptr;
    KvmLink* m_pairingLink = nullptr;
    std::unique_ptr<KvmPairing> m_pairing;
    quint16 m_pairingPort = 0; ///< Of the computer that is being paired with, where it listens.
    QTimer m_pairingTimer;
    QTimer m_dialTimer;
    int m_dialMs = 0;
};

} // namespace services
