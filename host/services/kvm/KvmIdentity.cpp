// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/KvmIdentity.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <memory>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509.h>

namespace services {

namespace {

constexpr long ValidSeconds = 20L * 365 * 24 * 3600;

struct Free
{
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
    void operator()(X509* certificate) const { X509_free(certificate); }
    void operator()(BIO* bio) const { BIO_free(bio); }
};

template <class Write>
QByteArray toPem(Write write)
{
    const std::unique_ptr<BIO, Free> memory(BIO_new(BIO_s_mem()));
    if (!memory || write(memory.get()) != 1)
        return {};
    char* data = nullptr;
    const long length = BIO_get_mem_data(memory.get(), &data);
    return {data, length};
}

/// Key and certificate in one file's form; empty on failure.
QByteArray makeIdentity()
{
    const std::unique_ptr<EVP_PKEY, Free> key(EVP_EC_gen("P-256"));
    const std::unique_ptr<X509, Free> certificate(X509_new());
    unsigned char serial[8] = {};
    if (!key || !certificate || RAND_bytes(serial, sizeof serial) != 1)
        return {};
    // A positive number without leading zeros, which no reader of certificates would take.
    serial[0] = (serial[0] & 0x3f) | 0x40;
    X509_set_version(certificate.get(), X509_VERSION_3);
    ASN1_STRING_set(X509_get_serialNumber(certificate.get()), serial, sizeof serial);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -24L * 3600);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), ValidSeconds);
    X509_set_pubkey(certificate.get(), key.get());
    X509_NAME* const name = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char*>("Lumen Desk"),
                               -1, -1, 0);
    X509_set_issuer_name(certificate.get(), name);
    if (X509_sign(certificate.get(), key.get(), EVP_sha256()) == 0)
        return {};
    const QByteArray keyText = toPem([&](BIO* bio) {
        return PEM_write_bio_PrivateKey(bio, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
    });
    const QByteArray certificateText =
        toPem([&](BIO* bio) { return PEM_write_bio_X509(bio, certificate.get()); });
    return keyText.isEmpty() || certificateText.isEmpty() ? QByteArray() : keyText + certificateText;
}

std::optional<KvmIdentity> parse(const QByteArray& text)
{
    KvmIdentity identity{QSslCertificate(text, QSsl::Pem), QSslKey(text, QSsl::Ec, QSsl::Pem)};
    if (identity.certificate.isNull() || identity.key.isNull())
        return std::nullopt;
    return identity;
}

QByteArray hash(std::initializer_list<QByteArray> parts)
{
    QCryptographicHash digest(QCryptographicHash::Sha256);
    for (const QByteArray& part : parts) {
        // With its length, so that no two lists of parts read alike.
        digest.addData(QByteArray::number(part.size()) + ':');
        digest.addData(part);
    }
    return digest.result();
}

} // namespace

QByteArray KvmIdentity::fingerprintOf(const QSslCertificate& certificate)
{
    return certificate.isNull() ? QByteArray() : certificate.digest(QCryptographicHash::Sha256);
}

std::optional<KvmIdentity> KvmIdentity::load(const QString& folder)
{
    const QString name = folder + QStringLiteral("/identity.pem");
    QFile file(name);
    if (file.exists()) {
        // What cannot be read may be in order: the pairing hangs on it.
        if (!file.open(QIODevice::ReadOnly)) {
            qWarning().noquote() << "[LuKvm] cannot read" << name << file.errorString();
            return std::nullopt;
        }
        if (const auto identity = parse(file.read(64 * 1024)))
            return identity;
        qWarning().noquote() << "[LuKvm] a damaged identity is replaced; pair the computers again:" << name;
        file.close();
    }
    const QByteArray text = makeIdentity();
    QSaveFile made(name);
    if (text.isEmpty() || !QDir().mkpath(folder) || !made.open(QIODevice::WriteOnly) ||
        !made.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) ||
        made.write(text) != text.size() || !made.commit()) {
        qWarning().noquote() << "[LuKvm] no identity can be made in" << folder;
        return std::nullopt;
    }
    const auto identity = parse(text);
    if (!identity)
        qWarning() << "[LuKvm] the TLS library does not take the identity that was made";
    return identity;
}

QString pairingCode(const QByteArray& dialerFingerprint, const QByteArray& accepterFingerprint,
                    const QByteArray& dialerNonce, const QByteArray& accepterNonce)
{
    const QByteArray digest =
        hash({"lumen-desk pairing code", dialerFingerprint, accepterFingerprint, dialerNonce, accepterNonce});
    quint64 number = 0;
    for (int i = 0; i < 8; ++i)
        number = number << 8 | quint8(digest[i]);
    return QStringLiteral("%1").arg(number % 1'000'000, 6, 10, QLatin1Char('0'));
}

QByteArray pairingPromise(const QByteArray& dialerFingerprint, const QByteArray& accepterFingerprint,
                          const QByteArray& dialerNonce)
{
    return hash({"lumen-desk pairing promise", dialerFingerprint, accepterFingerprint, dialerNonce});
}

} // namespace services
