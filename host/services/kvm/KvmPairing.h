// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>

namespace services {

/// The talk by which two computers that have never met come to show the same code.
///
/// The dialer promises a number, the accepter tells one, the dialer tells the promised one; then both know
/// the code and both people say whether it is the same. Pure logic: messages in, messages out; GUI thread.
class KvmPairing
{
public:
    KvmPairing(bool dialer, const QByteArray& ownFingerprint, const QByteArray& peerFingerprint);

    /// What to send first.
    QList<QJsonObject> start();

    /// A message of the other side; what to send in answer. After a wrong one hasFailed() holds.
    QList<QJsonObject> take(const QJsonObject& message);

    /// The person has found the codes equal; what to send.
    QList<QJsonObject> confirm();

    /// Six digits; empty while the numbers are not both known.
    QString code() const { return m_code; }
    bool isConfirmedHere() const { return m_confirmedHere; }
    bool hasFailed() const { return m_failed; }
    /// Both people have confirmed.
    bool isDone() const { return !m_failed && m_confirmedHere && m_confirmedThere; }

private:
    QList<QJsonObject> fail();
    void makeCode();
    const QByteArray& dialerFingerprint() const { return m_dialer ? m_own : m_peer; }
    const QByteArray& accepterFingerprint() const { return m_dialer ? m_peer : m_own; }

    const bool m_dialer;
    const QByteArray m_own;
    const QByteArray m_peer;
    const QByteArray m_nonce;
    QByteArray m_peerNonce;
    QByteArray m_promise;
    QString m_code;
    bool m_confirmedHere = false;
    bool m_confirmedThere = false;
    bool m_failed = false;
};

} // namespace services
