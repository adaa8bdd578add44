// SPDX-License-Identifier: Apache-2.0
#include "KvmMethods.h"

#include <control/Server.h>
#include <lushared/LuSettings.h>
#include <lushared/services/ServiceRegistry.h>
#include <services/kvm/NativeKvm.h>

using namespace Qt::StringLiterals;
using namespace control;

namespace {

constexpr int UsualPort = 47823;

services::NativeKvm& kvm()
{
    auto* const native = dynamic_cast<services::NativeKvm*>(services::Registry::current().kvm.get());
    if (!native)
        throw RequestError(NoSuchPath, u"this session cannot share keyboard and mouse over the network"_s);
    return *native;
}

services::KvmChannel& enabledChannel()
{
    services::KvmChannel& channel = kvm().channel();
    if (!channel.isEnabled())
        throw RequestError(NotWritable, u"the channel is off: \"kvm.network\" switches it on"_s);
    return channel;
}

QJsonValue status(const Request&)
{
    services::NativeKvm& native = kvm();
    const services::KvmChannel& channel = native.channel();
    return QJsonObject{{u"network"_s, channel.isEnabled()},       {u"port"_s, channel.serverPort()},
                       {u"paired"_s, channel.isPaired()},         {u"connected"_s, channel.isConnected()},
                       {u"pairing"_s, channel.isPairing()},       {u"code"_s, channel.pairingCode()},
                       {u"pointerHere"_s, native.isPointerHere()}};
}

QJsonValue switchNetwork(const Request& request)
{
    services::NativeKvm& native = kvm();
    const QJsonValue value = request.parameters.value(u"on"_s);
    if (!value.isBool())
        throw RequestError(InvalidParameters, u"parameter \"on\" must be true or false"_s);
    const bool on = value.toBool();
    LuSettings::instance().setValue(u"kvm/network"_s, on);
    native.applySetting();
    if (native.channel().isEnabled() != on)
        throw RequestError(NotWritable, native.channel().errorText());
    return QJsonObject();
}

QJsonValue pair(const Request& request)
{
    services::KvmChannel& channel = enabledChannel();
    const QString text = request.parameters.optionalText(u"address"_s).value_or(QString());
    const QHostAddress address(text);
    if (!text.isEmpty() && address.isNull())
        throw RequestError(InvalidParameters,
                           u"parameter \"address\" must be the other computer's IP address, not \"%1\""_s.arg(
                               text.left(100)));
    const auto port = request.parameters.optionalInteger(u"port"_s, 1, 65535).value_or(UsualPort);
    if (!channel.startPairing(address, quint16(port)))
        throw RequestError(InvalidParameters, u"%1 is no address of a local network"_s.arg(text.left(100)));
    return QJsonObject();
}

} // namespace

void addKvmMethods(Server* server)
{
    Dispatcher& dispatcher = server->dispatcher();
    dispatcher.addMethod(u"kvm.status"_s, {}, status);
    dispatcher.addMethod(u"kvm.network"_s, {u"on"_s}, switchNetwork);
    dispatcher.addMethod(u"kvm.pair"_s, {u"address"_s, u"port"_s}, pair);
    dispatcher.addMethod(u"kvm.confirm"_s, {}, [](const Request&) {
        services::KvmChannel& channel = enabledChannel();
        if (channel.pairingCode().isEmpty())
            throw RequestError(NotWritable, u"there is no code to be confirmed yet"_s);
        channel.confirmPairing();
        return QJsonValue(QJsonObject());
    });
    dispatcher.addMethod(u"kvm.cancel"_s, {}, [](const Request&) {
        kvm().channel().cancelPairing();
        return QJsonValue(QJsonObject());
    });
    dispatcher.addMethod(u"kvm.forget"_s, {}, [](const Request&) {
        kvm().channel().forget();
        return QJsonValue(QJsonObject());
    });
}
