// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QSslCertificate>
#include <QSslKey>
#include <QString>

#include <optional>

namespace services {

/// This computer towards its paired one: a key of its own and a certificate that it signed itself.
struct KvmIdentity
{
    QSslCertificate certificate;
    QSslKey key;

    QByteArray fingerprint() const { return fingerprintOf(certificate); }

    /// SHA-256 of a certificate; empty for none.
    static QByteArray fingerprintOf(const QSslCertificate& certificate);

    /// The identity kept in a folder, made at the first time; the key's file is the user's alone. A damaged
    /// one is made anew, which ends a pairing. Nothing with a line in the log if the folder cannot be
    /// written.
    static std::optional<KvmIdentity> load(const QString& folder);
};

/// The six digits that both people compare: of both certificates and of a number from each side, the first of
/// which was promised before the second was known, so that nobody in between can look for numbers that make
/// both codes equal.
QString pairingCode(const QByteArray& dialerFingerprint, const QByteArray& accepterFingerprint,
                    const QByteArray& dialerNonce, const QByteArray& accepterNonce);

/// The promise of the dialer's number.
QByteArray pairingPromise(const QByteArray& dialerFingerprint, const QByteArray& accepterFingerprint,
                          const QByteArray& dialerNonce);

/// Length of the numbers, in bytes.
constexpr int PairingNonceLength = 32;

} // namespace services
