// SPDX-License-Identifier: Apache-2.0
#include "SecondComputer.h"

#include <lushared/LuSettings.h>
#include <services/kvm/NativeKvm.h>

#include <QHostInfo>
#include <QNetworkInterface>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr quint16 UsualPort = services::KvmChannelOptions::UsualPort;

QString written(const QHostAddress& address, quint16 port)
{
    if (port == UsualPort)
        return address.toString();
    const bool six = address.protocol() == QAbstractSocket::IPv6Protocol;
    return (six ? u"[%1]:%2"_s : u"%1:%2"_s).arg(address.toString()).arg(port);
}

/// Where the other computer reaches this one: IPv4 first, since it is what people type.
QStringList ownAddresses(const services::KvmChannel& channel)
{
    if (!channel.isEnabled())
        return {};
    QStringList four;
    QStringList six;
    const QHostAddress bound = services::plainAddress(channel.serverAddress());
    const bool everywhere = bound == QHostAddress::Any || bound == QHostAddress::AnyIPv4;
    const QList<QHostAddress> all = everywhere ? QNetworkInterface::allAddresses() : QList{bound};
    for (const QHostAddress& address : all) {
        if (everywhere && (address.isLoopback() || !services::isLocalAddress(address)))
            continue;
        const bool isFour = address.protocol() == QAbstractSocket::IPv4Protocol;
        // One that needs the name of this computer's interface says nothing to another computer.
        if (isFour || !address.isLinkLocal())
            (isFour ? four : six).append(written(address, channel.serverPort()));
    }
    return four.isEmpty() ? six : four;
}

LuComputersState::Failure failureOf(services::KvmFailure failure)
{
    using From = services::KvmFailure;
    using To = LuComputersState::Failure;
    switch (failure) {
    case From::NobodyCame:
        return To::NobodyCame;
    case From::NotConfirmed:
        return To::NotConfirmed;
    case From::NotReached:
        return To::NotReached;
    case From::NotWaiting:
        return To::NotWaiting;
    case From::Refused:
        return To::Refused;
    case From::Broken:
        return To::Broken;
    case From::None:
        break;
    }
    return To::None;
}

} // namespace

TypedAddress TypedAddress::read(const QString& text, quint16 usualPort)
{
    const QString trimmed = text.trimmed();
    // "[fd00::7]:47824", "192.168.1.7:47824", "laptop.local"; an IPv6 address without brackets has no port.
    static const QRegularExpression bracketed(u"^\\[([^\\]]+)\\](?::(\\d{1,5}))?$"_s);
    static const QRegularExpression plain(u"^([^:\\[\\]]+)(?::(\\d{1,5}))?$"_s);
    static const QRegularExpression name(
        u"^(?=.{1,253}$)[A-Za-z0-9]([A-Za-z0-9-]{0,61}[A-Za-z0-9])?(\\.[A-Za-z0-9]([A-Za-z0-9-]{0,61}[A-Za-z0-9])?)*\\.?$"_s);
    static const QRegularExpression digits(u"^[0-9.]+$"_s);
    TypedAddress typed{{}, usualPort};
    QRegularExpressionMatch match = bracketed.match(trimmed);
    if (!match.hasMatch())
        match = plain.match(trimmed);
    const QString host = match.hasMatch() ? match.captured(1) : trimmed;
    if (!match.captured(2).isEmpty()) {
        const int port = match.captured(2).toInt();
        if (port < 1 || port > 65535)
            return {};
        typed.port = quint16(port);
    }
    // Qt takes "7" and "1.2" for addresses, which nobody means.
    const QHostAddress address(host);
    const bool isAddress =
        !address.isNull() && (address.protocol() == QAbstractSocket::IPv6Protocol || host.count(u'.') == 3);
    const bool isName = !digits.match(host).hasMatch() && name.match(host).hasMatch();
    if (isAddress || isName)
        typed.host = host;
    return typed;
}

SecondComputer::SecondComputer(const std::shared_ptr<services::NativeKvm>& kvm, QObject* parent)
    : LuComputersBackend(parent), m_kvm(kvm)
{
    connect(kvm.get(), &services::NativeKvm::networkChanged, this, &LuComputersBackend::changed);
}

LuComputersState SecondComputer::state() const
{
    const auto kvm = m_kvm.lock();
    if (!kvm)
        return {};
    const services::KvmChannel& channel = kvm->channel();
    LuComputersState state;
    state.on = channel.isEnabled();
    state.trouble = state.on ? QString() : channel.errorText();
    state.name = channel.name();
    state.addresses = ownAddresses(channel);
    state.code = channel.pairingCode();
    state.otherName = channel.pairingName();
    using Phase = LuComputersState::Phase;
    if (m_lookup >= 0)
        state.phase = Phase::Calling;
    else if (!channel.isPairing())
        state.phase = Phase::Idle;
    else if (channel.isConfirmedHere())
        state.phase = Phase::Confirmed;
    else if (!state.code.isEmpty())
        state.phase = Phase::Comparing;
    else
        state.phase = channel.isCalling() ? Phase::Calling : Phase::Waiting;
    state.failure = m_isNameUnknown ? LuComputersState::Failure::UnknownName : failureOf(channel.failure());
    state.paired = channel.isPaired();
    state.connected = channel.isConnected();
    state.forgottenThere = channel.isForgottenThere();
    state.peerName = channel.peer().name;
    if (!channel.peer().addresses.isEmpty())
        state.peerAddress = written(channel.peer().addresses.first(), channel.peer().port);
    state.findsOthers = kvm->neighbours().isAvailable();
    const QString peer = services::KvmNeighbours::idOf(channel.peer().fingerprint);
    const QList<services::KvmNeighbour> neighbours = kvm->neighbours().list();
    for (const services::KvmNeighbour& each : neighbours) {
        if (each.id != peer || channel.isForgottenThere())
            state.nearby.append({each.name, written(each.address, each.port)});
    }
    return state;
}

void SecondComputer::setOn(bool on)
{
    const auto kvm = m_kvm.lock();
    if (!kvm)
        return;
    m_lookup = -1;
    m_isNameUnknown = false;
    LuSettings::instance().setValue(u"kvm/network"_s, on);
    kvm->applySetting();
    // What could not be switched on is not tried at each start.
    if (on && !kvm->channel().isEnabled())
        LuSettings::instance().setValue(u"kvm/network"_s, false);
}

void SecondComputer::waitForOther()
{
    m_isNameUnknown = false;
    if (const auto kvm = m_kvm.lock())
        kvm->channel().startPairing({}, 0);
}

LuComputersBackend::Answer SecondComputer::find(const QString& text,
                                                std::function<void(const QHostAddress&, quint16)> found)
{
    const TypedAddress typed = TypedAddress::read(text, UsualPort);
    if (typed.host.isEmpty())
        return Answer::NoAddress;
    m_isNameUnknown = false;
    const QHostAddress address(typed.host);
    if (!address.isNull()) {
        if (!services::isLocalAddress(address))
            return Answer::NotLocal;
        found(address, typed.port);
        return Answer::Taken;
    }
    m_lookup = QHostInfo::lookupHost(
        typed.host, this, [this, port = typed.port, found = std::move(found)](const QHostInfo& info) {
            if (info.lookupId() != m_lookup)
                return;
            m_lookup = -1;
            QList<QHostAddress> local = info.addresses();
            local.removeIf([](const QHostAddress& each) { return !services::isLocalAddress(each); });
            // Every computer has IPv4 at home.
            std::stable_partition(local.begin(), local.end(), [](const QHostAddress& each) {
                return each.protocol() == QAbstractSocket::IPv4Protocol;
            });
            m_isNameUnknown = local.isEmpty();
            if (!local.isEmpty())
                found(local.first(), port);
            Q_EMIT changed();
        });
    return Answer::Taken;
}

LuComputersBackend::Answer SecondComputer::pairWith(const QString& text)
{
    return find(text, [this](const QHostAddress& address, quint16 port) {
        if (const auto kvm = m_kvm.lock())
            kvm->channel().startPairing(address, port);
    });
}

void SecondComputer::confirm()
{
    if (const auto kvm = m_kvm.lock())
        kvm->channel().confirmPairing();
}

void SecondComputer::cancel()
{
    m_lookup = -1;
    m_isNameUnknown = false;
    if (const auto kvm = m_kvm.lock())
        kvm->channel().cancelPairing();
}

void SecondComputer::forget()
{
    if (const auto kvm = m_kvm.lock())
        kvm->channel().forget();
}

LuComputersBackend::Answer SecondComputer::movePeer(const QString& text)
{
    return find(text, [this](const QHostAddress& address, quint16 port) {
        if (const auto kvm = m_kvm.lock())
            kvm->channel().setPeerAddress(address, port);
    });
}
