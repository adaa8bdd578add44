// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QString>

namespace services {

/// The computer that this one is paired with: its certificate, and where it was met last.
struct KvmPeer
{
    /// So many addresses are kept, the latest first.
    static constexpr qsizetype MostAddresses = 4;

    QByteArray fingerprint; ///< SHA-256 of its certificate; empty without a pairing.
    QString name;           ///< As it calls itself; may be empty.
    QList<QHostAddress> addresses;
    quint16 port = 0; ///< Where it listens.

    bool isPaired() const { return !fingerprint.isEmpty(); }

    /// It was met at this address; true if that is news.
    bool remember(const QHostAddress& address);

    /// What a folder holds: a peer without a pairing, with a line in the log where there is a damaged one.
    static KvmPeer load(const QString& folder);
    bool save(const QString& folder) const;
    /// False if the file is still there.
    static bool remove(const QString& folder);
    static QString fileIn(const QString& folder);
};

/// An IPv4 address that comes as one of IPv6 ("::ffff:192.168.0.2") as what it is.
QHostAddress plainAddress(const QHostAddress& address);

/// Of a private network, link-local, or of this computer.
bool isLocalAddress(const QHostAddress& address);

/// What another computer calls itself, fit to be shown: one line of at most 64 characters.
QString shownName(const QString& name);

} // namespace services
