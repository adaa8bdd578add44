// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/KvmPeer.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <algorithm>

namespace services {

namespace {

constexpr qsizetype LongestName = 64;

} // namespace

QString KvmPeer::fileIn(const QString& folder)
{
    return folder + QStringLiteral("/peer.json");
}

bool KvmPeer::remember(const QHostAddress& met)
{
    const QHostAddress address = plainAddress(met);
    if (address.isNull() || (!addresses.isEmpty() && addresses.first() == address))
        return false;
    addresses.removeAll(address);
    addresses.prepend(address);
    addresses = addresses.first(std::min(addresses.size(), MostAddresses));
    return true;
}

KvmPeer KvmPeer::load(const QString& folder)
{
    QFile file(fileIn(folder));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject object = QJsonDocument::fromJson(file.read(64 * 1024)).object();
    KvmPeer peer;
    peer.fingerprint = QByteArray::fromHex(object[u"fingerprint"].toString().toLatin1());
    if (peer.fingerprint.size() != 32) {
        qWarning().noquote() << "[LuKvm] no paired computer can be read from" << file.fileName();
        return {};
    }
    peer.name = shownName(object[u"name"].toString());
    peer.port = quint16(object[u"port"].toInt());
    const QJsonArray known = object[u"addresses"].toArray();
    for (qsizetype i = known.size() - 1; i >= 0; --i)
        peer.remember(QHostAddress(known[i].toString()));
    return peer;
}

bool KvmPeer::save(const QString& folder) const
{
    QJsonArray known;
    for (const QHostAddress& address : addresses)
        known.append(address.toString());
    const QJsonObject object{{QStringLiteral("fingerprint"), QString::fromLatin1(fingerprint.toHex())},
                             {QStringLiteral("name"), name},
                             {QStringLiteral("addresses"), known},
                             {QStringLiteral("port"), port}};
    QSaveFile file(fileIn(folder));
    return file.open(QIODevice::WriteOnly) &&
           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
           file.write(QJsonDocument(object).toJson()) > 0 && file.commit();
}

bool KvmPeer::remove(const QString& folder)
{
    QFile file(fileIn(folder));
    return !file.exists() || file.remove();
}

QHostAddress plainAddress(const QHostAddress& address)
{
    if (address.protocol() != QAbstractSocket::IPv6Protocol)
        return address;
    bool mapped = false;
    const QHostAddress four(address.toIPv4Address(&mapped));
    return mapped ? four : address;
}

bool isLocalAddress(const QHostAddress& address)
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
    const QHostAddress plain = plainAddress(address);
    return std::any_of(networks.begin(), networks.end(), [&](const auto& network) {
        return plain.protocol() == network.first.protocol() && plain.isInSubnet(network);
    });
}

QString shownName(const QString& name)
{
    QString shown;
    for (const QChar c : name.first(std::min(name.size(), 4 * LongestName))) {
        // Neither lines nor marks that turn the writing round.
        if (c.isPrint() && c.category() != QChar::Other_Format)
            shown.append(c);
    }
    return shown.simplified().first(std::min(shown.simplified().size(), LongestName));
}

} // namespace services
