// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/KvmPairing.h"

#include "services/kvm/KvmIdentity.h"

#include <QRandomGenerator>

#include <array>

namespace services {

namespace {

constexpr int Version = 1;

QByteArray randomNonce()
{
    std::array<quint32, PairingNonceLength / 4> numbers;
    QRandomGenerator::system()->fillRange(numbers.data(), qsizetype(numbers.size()));
    return {reinterpret_cast<const char*>(numbers.data()), PairingNonceLength};
}

QJsonObject message(const QString& type, const QString& key = {}, const QByteArray& value = {})
{
    QJsonObject object{{QStringLiteral("t"), type}};
    if (!key.isEmpty())
        object[key] = QString::fromLatin1(value.toBase64());
    return object;
}

QByteArray bytes(const QJsonObject& object, QStringView key)
{
    return QByteArray::fromBase64(object[key].toString().toLatin1());
}

} // namespace

KvmPairing::KvmPairing(bool dialer, const QByteArray& ownFingerprint, const QByteArray& peerFingerprint)
    : m_dialer(dialer), m_own(ownFingerprint), m_peer(peerFingerprint), m_nonce(randomNonce())
{
    // Its own certificate, mirrored: nobody else has the key to it, but then there is nobody else.
    m_failed = m_peer.isEmpty() || m_peer == m_own;
}

QList<QJsonObject> KvmPairing::fail()
{
    m_failed = true;
    return {};
}

QList<QJsonObject> KvmPairing::start()
{
    if (!m_dialer || m_failed)
        return {};
    QJsonObject first =
        message(QStringLiteral("pair"), QStringLiteral("promise"), pairingPromise(m_own, m_peer, m_nonce));
    first[QStringLiteral("version")] = Version;
    return {first};
}

QList<QJsonObject> KvmPairing::take(const QJsonObject& received)
{
    const QString type = received[u"t"].toString();
    if (m_failed)
        return {};
    if (type == QLatin1String("confirmed")) {
        // Before the numbers are known there is nothing that could have been compared.
        if (m_code.isEmpty())
            return fail();
        m_confirmedThere = true;
        return {};
    }
    if (!m_code.isEmpty())
        return fail();
    if (!m_dialer && type == QLatin1String("pair") && m_promise.isEmpty()) {
        m_promise = bytes(received, u"promise");
        if (received[u"version"].toInt() != Version || m_promise.size() != 32)
            return fail();
        return {message(QStringLiteral("number"), QStringLiteral("number"), m_nonce)};
    }
    if (m_dialer && type == QLatin1String("number")) {
        m_peerNonce = bytes(received, u"number");
        if (m_peerNonce.size() != PairingNonceLength)
            return fail();
        makeCode();
        return {message(QStringLiteral("reveal"), QStringLiteral("number"), m_nonce)};
    }
    if (!m_dialer && type == QLatin1String("reveal") && !m_promise.isEmpty()) {
        m_peerNonce = bytes(received, u"number");
        if (m_peerNonce.size() != PairingNonceLength ||
            pairingPromise(m_peer, m_own, m_peerNonce) != m_promise)
            return fail();
        makeCode();
        return {};
    }
    return fail();
}

void KvmPairing::makeCode()
{
    m_code = pairingCode(dialerFingerprint(), accepterFingerprint(), m_dialer ? m_nonce : m_peerNonce,
                         m_dialer ? m_peerNonce : m_nonce);
}

QList<QJsonObject> KvmPairing::confirm()
{
    if (m_failed || m_code.isEmpty() || m_confirmedHere)
        return {};
    m_confirmedHere = true;
    return {message(QStringLiteral("confirmed"))};
}

} // namespace services
