// SPDX-License-Identifier: Apache-2.0
#include "services/simulated/Signals.h"

#include <LuShared/LuKvm.h>
#include <LuShared/LuMediaDevices.h>
#include <LuShared/LuPlatformNotifications.h>
#include <LuShared/LuPlatformProgram.h>
#include <LuShared/LuServerLocation.h>

#include "services/simulated/Backends.h"
#include "services/simulated/KeyNames.h"

#include <QJsonArray>
#include <QPointF>
#include <QStringList>

namespace services {

namespace {

using Arguments = QJsonObject;

struct SignalRow
{
    QLatin1String name;
    const char* parameters; // separated by commas, a "?" behind those that an object may leave out
    QJsonObject (*raise)(const Arguments& arguments, World& world, Error& error);
};

void wrongArgument(Error& error, const QString& name, const QString& expected)
{
    error = {Error::WrongType, QStringLiteral("argument \"%1\": expected %2").arg(name, expected)};
}

std::optional<unsigned long> processId(const Arguments& arguments, Error& error)
{
    const auto pid = wholeNumber(arguments[u"pid"], 0, qint64(1) << 53);
    if (!pid) {
        wrongArgument(error, QStringLiteral("pid"), QStringLiteral("a whole number of at least 0"));
        return std::nullopt;
    }
    return static_cast<unsigned long>(*pid);
}

QJsonObject raiseKey(const Arguments& arguments, World& world, Error& error)
{
    const QJsonValue modifierText = arguments[u"modifiers"];
    const QJsonValue keyText = arguments[u"key"];
    const QJsonValue repeated = arguments[u"repeated"];
    std::optional<Qt::KeyboardModifiers> modifiers = Qt::KeyboardModifiers();
    if (!modifierText.isUndefined())
        modifiers = modifierText.isString() ? modifiersFromText(modifierText.toString()) : std::nullopt;
    const std::optional<Qt::Key> key = keyText.isString() ? keyFromText(keyText.toString()) : std::nullopt;
    if (!modifiers)
        wrongArgument(error, QStringLiteral("modifiers"),
                      QStringLiteral("names joined with \"+\", such as \"Ctrl+Alt\""));
    else if (!key)
        wrongArgument(error, QStringLiteral("key"), QStringLiteral("a key's name, such as \"C\" or \"F5\""));
    else if (!repeated.isUndefined() && !repeated.isBool())
        wrongArgument(error, QStringLiteral("repeated"), QStringLiteral("true or false"));
    if (error)
        return {};

    const DesktopEvents::KeyHandler handler = world.keyHandler;
    const bool handled = handler && handler(*modifiers, *key, repeated.toBool());
    Q_EMIT LuPlatformNotifications::instance()->activeKeyEvent(*modifiers, *key, repeated.toBool());
    return {{QStringLiteral("handled"), handled}};
}

QJsonObject raiseActive(const Arguments& arguments, World& world, Error& error)
{
    if (const auto pid = processId(arguments, error)) {
        world.setValue(path::activePid, arguments[u"pid"]);
        raise(Signal::ActiveApp, world);
    }
    return {};
}

template <auto signal>
QJsonObject raiseDrag(const Arguments& arguments, World&, Error& error)
{
    const auto pid = processId(arguments, error);
    for (const QString& name : {QStringLiteral("x"), QStringLiteral("y")}) {
        if (!error && !arguments[name].isDouble())
            wrongArgument(error, name, QStringLiteral("a number"));
    }
    if (!error) {
        Q_EMIT(LuPlatformNotifications::instance()->*signal)
        (*pid, QPointF(arguments[u"x"].toDouble(), arguments[u"y"].toDouble()));
    }
    return {};
}

template <Signal signal>
QJsonObject raisePlain(const Arguments&, World& world, Error&)
{
    raise(signal, world);
    return {};
}

QJsonObject raiseAppList(const Arguments&, World& world, Error&)
{
    world.setValue(path::applicationsReady, true);
    raise(Signal::AppList, world);
    return {};
}

const SignalRow signalRows[] = {
    // clang-format off
    {QLatin1String("activeKeyEvent"),          "modifiers?,key,repeated?", raiseKey},
    {QLatin1String("activeAppChanged"),        "pid",     raiseActive},
    {QLatin1String("activeAppDragged"),        "pid,x,y", raiseDrag<&LuPlatformNotifications::activeAppDragged>},
    {QLatin1String("activeAppReleased"),       "pid,x,y", raiseDrag<&LuPlatformNotifications::activeAppReleased>},
    {QLatin1String("screenGeometryChanged"),   "",        raisePlain<Signal::ScreenGeometry>},
    {QLatin1String("systemBrightnessChanged"), "",        raisePlain<Signal::SystemBrightness>},
    {QLatin1String("kvmChanged"),              "",        raisePlain<Signal::KvmChanged>},
    {QLatin1String("deviceLocationChanged"),   "",        raisePlain<Signal::KvmLocation>},
    {QLatin1String("audioOutputsChanged"),     "",        raisePlain<Signal::AudioOutputs>},
    {QLatin1String("systemVolumeChanged"),     "",        raisePlain<Signal::SystemVolume>},
    {QLatin1String("locationStatusChanged"),   "",        raisePlain<Signal::Location>},
    {QLatin1String("appListInitialized"),      "",        raiseAppList},
    // clang-format on
};

// Arguments by name, from an object or a list; nothing, with the error, if their number or a name is wrong.
std::optional<Arguments> named(const SignalRow& row, const QJsonValue& given, Error& error)
{
    const auto invalid = [&](const QString& message) -> std::optional<Arguments> {
        error = {Error::InvalidParameters, QStringLiteral("%1: %2").arg(row.name, message)};
        return std::nullopt;
    };
    const QStringList parameters = QString::fromLatin1(row.parameters).split(u',', Qt::SkipEmptyParts);
    if (given.isArray()) {
        const QJsonArray list = given.toArray();
        if (list.size() != parameters.size())
            return invalid(
                QStringLiteral("%1 arguments expected, %2 given").arg(parameters.size()).arg(list.size()));
        Arguments arguments;
        for (int index = 0; index < parameters.size(); ++index)
            arguments[parameters[index].section(u'?', 0, 0)] = list[index];
        return arguments;
    }
    if (!given.isObject() && !given.isUndefined() && !given.isNull())
        return invalid(QStringLiteral("arguments are an object or a list"));
    const Arguments arguments = given.toObject();
    for (auto it = arguments.begin(); it != arguments.end(); ++it) {
        if (!parameters.contains(it.key()) && !parameters.contains(it.key() + u'?'))
            return invalid(QStringLiteral("unknown argument \"%1\"").arg(it.key()));
    }
    for (const QString& parameter : parameters) {
        if (!parameter.endsWith(u'?') && !arguments.contains(parameter))
            return invalid(QStringLiteral("argument \"%1\" is missing").arg(parameter));
    }
    return arguments;
}

} // namespace

void raise(Signal signal, World& world)
{
    LuPlatformNotifications* const notifications = LuPlatformNotifications::instance();
    switch (signal) {
    case Signal::None:
        break;
    case Signal::ScreenGeometry:
        Q_EMIT notifications->screenGeometryChanged();
        break;
    case Signal::SystemBrightness:
        Q_EMIT notifications->systemBrightnessChanged();
        break;
    case Signal::AppList: {
        const bool ready = world.value(path::applicationsReady).toBool();
        LuPlatformProgram::instance()->appListReady = ready;
        if (ready)
            Q_EMIT notifications->appListInitialized();
        break;
    }
    case Signal::ActiveApp:
        Q_EMIT notifications->activeAppChanged(
            static_cast<unsigned long>(world.value(path::activePid).toDouble()));
        break;
    case Signal::AudioOutputs:
        Q_EMIT LuMediaDevices::instance()->audioOutputsChanged();
        break;
    case Signal::SystemVolume:
        Q_EMIT LuMediaDevices::instance()->systemVolumeChanged();
        break;
    case Signal::Location:
        Q_EMIT LuServerLocation::instance()->locationStatusChanged();
        break;
    case Signal::KvmChanged:
        Q_EMIT LuKvm::instance()->kvmChanged();
        break;
    case Signal::KvmLocation:
        Q_EMIT LuKvm::instance()->deviceLocationChanged();
        break;
    case Signal::Copy:
        copySelection(world);
        break;
    }
}

QJsonObject raiseByName(const QString& name, const QJsonValue& arguments, World& world, Error& error)
{
    for (const SignalRow& row : signalRows) {
        if (name != row.name)
            continue;
        const auto values = named(row, arguments, error);
        return values ? row.raise(*values, world, error) : QJsonObject();
    }
    error = {Error::NoSuchPath, QStringLiteral("no signal \"%1\"").arg(name)};
    return {};
}

} // namespace services
