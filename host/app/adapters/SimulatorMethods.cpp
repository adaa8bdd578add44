// SPDX-License-Identifier: Apache-2.0
#include "SimulatorMethods.h"

#include "SimulatedWorld.h"

#include <LuShared/LuMonitorModel.h>

#include <control/MonitorAccess.h>
#include <lushared/LuMonitorRegistry.h>
#include <simulator/Monitor.h>

#include <QGuiApplication>
#include <QJsonArray>
#include <QPointer>
#include <QQuickWindow>
#include <QScreen>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace control;

namespace {

constexpr int MaximumCode = 0xFF;
constexpr int MaximumValue = 0xFFFF;

/// What all of the methods need.
struct Simulator
{
    MonitorAccess* access;
    SimulatedWorld* world;

    SimulatedWorld& plugged() const
    {
        if (!world)
            throw RequestError(NotSimulated, u"the monitors are not simulated"_s);
        return *world;
    }

    /// Id of the monitor that a request names; one that is unplugged at the time is named by its id.
    QString id(const Request& request) const
    {
        const QString address = request.parameters.optionalText(u"monitor"_s).value_or(QString());
        if (!address.isEmpty() && plugged().ids().contains(address))
            return address;
        return access->monitor(address)->id();
    }

    sim::Monitor& device(const Request& request) const
    {
        SimulatedWorld& all = plugged();
        const QString name = id(request);
        sim::Monitor* const monitor = all.monitor(name);
        if (!monitor)
            throw RequestError(NotSimulated, u"the monitor \"%1\" is not simulated"_s.arg(name));
        return *monitor;
    }
};

int codeOf(const Request& request)
{
    return int(request.parameters.code(u"code"_s, 0, MaximumCode));
}

std::optional<int> windowOf(const Request& request)
{
    if (!request.parameters.contains(u"window"_s))
        return std::nullopt;
    return int(request.parameters.code(u"window"_s, 0, MaximumValue));
}

QString hex(int code)
{
    return u"0x%1"_s.arg(code, 2, 16, QLatin1Char('0'));
}

QJsonValue getValue(const Simulator& simulator, const Request& request)
{
    const sim::Monitor& monitor = simulator.device(request);
    const int code = codeOf(request);
    const std::optional<std::uint16_t> value = monitor.value(code, windowOf(request));
    if (!value)
        throw RequestError(NoSuchPath, u"%1 has no such value of code %2"_s.arg(monitor.id(), hex(code)));
    return QJsonObject{{u"value"_s, int(*value)}};
}

QJsonValue setValue(const Simulator& simulator, const Request& request)
{
    sim::Monitor& monitor = simulator.device(request);
    const int code = codeOf(request);
    const int value = int(request.parameters.code(u"value"_s, 0, MaximumValue));
    QString error;
    if (!monitor.setByMenu(code, value, windowOf(request), &error))
        throw RequestError(NoSuchPath, error);
    return QJsonObject();
}

QJsonValue traffic(const Simulator& simulator, const Request& request)
{
    const sim::Monitor& monitor = simulator.device(request);
    const auto since = quint64(request.parameters.optionalInteger(u"since"_s, 0).value_or(0));
    QJsonArray list;
    const QList<sim::TrafficEntry> entries = monitor.traffic(since);
    for (const sim::TrafficEntry& entry : entries) {
        QJsonObject row{
            {u"seq"_s, qint64(entry.seq)},    {u"ms"_s, entry.ms},
            {u"op"_s, sim::opName(entry.op)}, {u"code"_s, int(entry.code)},
            {u"value"_s, int(entry.value)},   {u"ok"_s, entry.ok},
        };
        if (entry.window)
            row.insert(u"window"_s, *entry.window);
        list.append(row);
    }
    return list;
}

sim::Fault readFault(const Request& request)
{
    const Parameters& parameters = request.parameters;
    sim::Fault fault;
    const QString kind = parameters.text(u"kind"_s);
    const auto known = sim::faultKindFromName(kind);
    if (!known)
        throw RequestError(
            InvalidParameters,
            u"\"%1\" is no fault: nack, null, checksum, garbage and timeout are"_s.arg(kind.left(100)));
    fault.kind = *known;
    if (parameters.contains(u"code"_s))
        fault.code = std::uint8_t(codeOf(request));
    if (const auto op = parameters.optionalText(u"op"_s)) {
        fault.op = sim::opFromName(*op);
        if (!fault.op)
            throw RequestError(InvalidParameters, u"parameter \"op\" must be \"get\" or \"set\""_s);
    }
    if (const auto count = parameters.optionalInteger(u"count"_s, 1, std::numeric_limits<int>::max()))
        fault.count = int(*count);
    if (parameters.contains(u"probability"_s))
        fault.probability = parameters.number(u"probability"_s, 0, 1);
    return fault;
}

QJsonValue armFault(const Simulator& simulator, const Request& request)
{
    sim::Monitor& monitor = simulator.device(request);
    if (request.parameters.contains(u"kind"_s))
        monitor.armFault(readFault(request));
    else
        monitor.clearFaults();
    return QJsonObject();
}

QJsonValue plug(const Simulator& simulator, const Request& request)
{
    SimulatedWorld& world = simulator.plugged();
    const QString name = request.parameters.text(u"monitor"_s);
    const QJsonObject vcp =
        request.parameters.contains(u"vcp"_s) ? request.parameters.object(u"vcp"_s) : QJsonObject();
    QString error;
    if (world.plug(name, vcp, &error).isEmpty())
        throw RequestError(InvalidParameters, error);
    return QJsonObject();
}

QJsonValue unplug(const Simulator& simulator, const Request& request, Dispatcher* dispatcher)
{
    SimulatedWorld& world = simulator.plugged();
    const QString id = simulator.id(request);
    if (!world.unplug(id))
        throw RequestError(world.monitor(id) ? NoSuchMonitor : NotSimulated,
                           u"no simulated monitor \"%1\" is plugged in"_s.arg(id));
    // It may have been the one that requests were waiting for.
    QMetaObject::invokeMethod(dispatcher, &Dispatcher::resume, Qt::QueuedConnection);
    return QJsonObject();
}

QJsonValue room(const Simulator& simulator, const Request& request)
{
    constexpr int MaximumLux = 1000;
    sim::Monitor& monitor = simulator.device(request);
    const auto lux = request.parameters.optionalInteger(u"ambientLight"_s, 0, MaximumLux);
    std::optional<bool> present;
    if (request.parameters.contains(u"presence"_s)) {
        const QJsonValue value = request.parameters.value(u"presence"_s);
        if (!value.isBool())
            throw RequestError(InvalidParameters, u"parameter \"presence\" must be true or false"_s);
        present = value.toBool();
    }
    if (lux)
        monitor.setAmbientLight(int(*lux));
    if (present)
        monitor.setPresence(*present);
    return QJsonObject{{u"light"_s, monitor.lightOutput()}, {u"rearLight"_s, monitor.rearLightOutput()}};
}

/// The overlay that darkens a monitor's screen; it names its monitor.
QQuickWindow* overlayOf(const QString& monitor)
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow* window : windows) {
        if (window->objectName() == "dimmingOverlay"_L1 && window->property("monitor").toString() == monitor)
            return qobject_cast<QQuickWindow*>(window);
    }
    return nullptr;
}

QJsonValue overlay(const Simulator& simulator, const Request& request)
{
    (void)simulator.plugged();
    const QString monitor = simulator.id(request);
    const QQuickWindow* window = overlayOf(monitor);
    if (!window)
        throw RequestError(NoSuchPath, u"\"%1\" has no dimming overlay"_s.arg(monitor));
    // A colour holds 16 bits: the digits behind them are not the program's.
    constexpr double Digits = 10000;
    return QJsonObject{{u"visible"_s, window->isVisible()},
                       {u"alpha"_s, std::round(double(window->color().alphaF()) * Digits) / Digits},
                       {u"screen"_s, window->screen() ? window->screen()->name() : QString()},
                       {u"flags"_s, int(window->flags())}};
}

} // namespace

void addSimulatorMethods(Server* server, MonitorAccess* access, SimulatedWorld* world)
{
    Dispatcher& dispatcher = server->dispatcher();
    const Simulator simulator{access, world};
    const QString monitor = u"monitor"_s;
    const QString code = u"code"_s;
    dispatcher.addMethod(u"sim.get"_s, {monitor, code, u"window"_s},
                         [simulator](const Request& request) { return getValue(simulator, request); });
    dispatcher.addMethod(u"sim.set"_s, {monitor, code, u"value"_s, u"window"_s},
                         [simulator](const Request& request) { return setValue(simulator, request); });
    dispatcher.addMethod(u"sim.traffic"_s, {monitor, u"since"_s},
                         [simulator](const Request& request) { return traffic(simulator, request); });
    dispatcher.addMethod(u"sim.fault"_s, {monitor, code, u"op"_s, u"kind"_s, u"count"_s, u"probability"_s},
                         [simulator](const Request& request) { return armFault(simulator, request); });
    dispatcher.addMethod(u"sim.plug"_s, {monitor, u"vcp"_s},
                         [simulator](const Request& request) { return plug(simulator, request); });
    dispatcher.addMethod(u"sim.unplug"_s, {monitor}, [simulator, &dispatcher](const Request& request) {
        return unplug(simulator, request, &dispatcher);
    });
    dispatcher.addMethod(u"sim.overlay"_s, {monitor},
                         [simulator](const Request& request) { return overlay(simulator, request); });
    dispatcher.addMethod(u"sim.room"_s, {monitor, u"ambientLight"_s, u"presence"_s},
                         [simulator](const Request& request) { return room(simulator, request); });
    dispatcher.addMethod(u"sim.reset"_s, {monitor}, [simulator](const Request& request) {
        simulator.device(request).reset();
        return QJsonValue(QJsonObject());
    });
}
