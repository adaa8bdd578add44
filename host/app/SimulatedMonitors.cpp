// SPDX-License-Identifier: Apache-2.0
#include "SimulatedMonitors.h"

#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrSequence.h>
#include <ddc/Edid.h>
#include <lushared/LuMonitorRegistry.h>
#include <panelcore/MonitorLink.h>
#include <simulator/Monitor.h>

#include <QDebug>
#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QUrl>

#include <algorithm>

namespace {

/// Values are written this long after a change at the latest, in ms; always at the end.
constexpr int PersistPeriodMs = 2000;

/// Zero of the wire log's milliseconds: the start of the program.
const sim::Clock::time_point epoch = sim::Clock::now();

MonitorDescription describe(const sim::Monitor& monitor, const QString& id)
{
    const QByteArray bytes = monitor.edid();
    const ddc::Result<ddc::Edid> edid =
        ddc::parseEdid({reinterpret_cast<const std::uint8_t*>(bytes.constData()), size_t(bytes.size())});
    MonitorDescription description;
    description.id = id;
    description.modelName = QString::fromStdString(edid.value.name);
    description.serialNumber = QString::fromStdString(edid.value.identitySerial());
    description.builtIn = monitor.isBuiltIn();
    description.simulated = true;
    return description;
}

} // namespace

SimulatedMonitors::SimulatedMonitors(LuMonitorRegistry& registry, bool fastTiming,
                                     const QString& dataDirectory)
    : m_registry(registry), m_fastTiming(fastTiming),
      m_dataDirectory(dataDirectory + QStringLiteral("/simulator"))
{
    if (!QDir().mkpath(m_dataDirectory))
        qWarning().noquote() << "[SimulatedMonitors] cannot make" << m_dataDirectory
                             << "- simulated monitors forget their values";
    m_persistTimer.setInterval(PersistPeriodMs);
    connect(&m_persistTimer, &QTimer::timeout, this, &SimulatedMonitors::persist);
    m_persistTimer.start();
}

SimulatedMonitors::~SimulatedMonitors()
{
    persist();
}

QString SimulatedMonitors::make(const QString& list)
{
    const QStringList names = list.split(QLatin1Char(','));
    for (const QString& name : names) {
        QString error;
        if (!makeDevice(name.trimmed(), &error))
            return QStringLiteral("simulated monitor '%1': %2").arg(name.trimmed(), error);
    }
    return {};
}

SimulatedMonitors::Device* SimulatedMonitors::makeDevice(const QString& text, QString* error)
{
    std::optional<sim::Identity> identity = sim::Identity::parse(text, error);
    if (!identity)
        return nullptr;
    // A model that is named several times without a serial number is several monitors, each with its own.
    if (!text.contains(QLatin1Char('@'))) {
        for (int instance = 2; device(identity->id()); ++instance) {
            const QString serial = sim::Identity::defaultSerial(identity->model, instance);
            if (serial == identity->serial)
                break;
            identity->serial = serial;
        }
    }
    sim::Options options;
    options.strictTiming = !m_fastTiming;
    options.epoch = epoch;
    options.sequence = ZrSequence::next;
    options.roomClock = [] {
        return sim::Clock::time_point(std::chrono::milliseconds(ZrClock::instance().monotonicMs()));
    };
    auto made = std::make_unique<Device>();
    // Twins: equal in everything that they tell of themselves.
    const QString first = identity->model + QLatin1Char('@') + identity->serial;
    made->id = first;
    for (int twin = 2; device(made->id); ++twin)
        made->id = QStringLiteral("%1#%2").arg(first).arg(twin);
    made->monitor = std::make_unique<sim::Monitor>(*identity, options);
    QString problem;
    const QString file = QString::fromLatin1(QUrl::toPercentEncoding(made->id)) + QStringLiteral(".json");
    if (!made->monitor->setStore(m_dataDirectory + QLatin1Char('/') + file, &problem))
        qWarning().noquote() << "[SimulatedMonitors]" << problem;
    m_devices.push_back(std::move(made));
    return m_devices.back().get();
}

void SimulatedMonitors::plugAll()
{
    for (const auto& each : m_devices) {
        if (!each->connected)
            connectDevice(*each);
    }
}

QString SimulatedMonitors::screenFor(const Device& device) const
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto position = std::find_if(m_devices.begin(), m_devices.end(),
                                       [&device](const auto& each) { return each.get() == &device; });
    const auto index = std::distance(m_devices.begin(), position);
    return screens.isEmpty() ? QString() : screens.at(index % screens.size())->name();
}

void SimulatedMonitors::connectDevice(Device& device)
{
    device.connected = true;
    device.monitor->plug();
    MonitorDescription description = describe(*device.monitor, device.id);
    description.screenName = screenFor(device);
    description.nativeHandle = description.screenName;
    const auto info =
        MonitorLink::create(description, device.monitor->isBuiltIn() ? nullptr : device.monitor->makeBus(),
                            m_fastTiming ? MonitorLink::Waits::None : MonitorLink::Waits::Real);
    MonitorLink::of(*info).setCallObserver([monitor = device.monitor.get()] { monitor->endTransaction(); });
    m_registry.addMonitor(info);
}

SimulatedMonitors::Device* SimulatedMonitors::device(const QString& id)
{
    const auto found =
        std::find_if(m_devices.begin(), m_devices.end(), [&id](const auto& each) { return each->id == id; });
    return found == m_devices.end() ? nullptr : found->get();
}

void SimulatedMonitors::persist()
{
    for (const auto& each : m_devices) {
        QString error;
        if (!each->monitor->persist(&error))
            qWarning().noquote() << "[SimulatedMonitors]" << error;
    }
}

sim::Monitor* SimulatedMonitors::monitor(const QString& id) const
{
    Device* found = const_cast<SimulatedMonitors*>(this)->device(id);
    return found ? found->monitor.get() : nullptr;
}

QStringList SimulatedMonitors::ids() const
{
    QStringList result;
    for (const auto& each : m_devices)
        result.append(each->id);
    return result;
}

QString SimulatedMonitors::plug(const QString& name, const QJsonObject& vcp, QString* error)
{
    // A monitor that was here before comes back as the same one.
    Device* known = device(name);
    if (!known) {
        const std::optional<sim::Identity> identity = sim::Identity::parse(name, error);
        if (!identity)
            return {};
        known = device(identity->model + QLatin1Char('@') + identity->serial);
        if (known && known->connected && !name.contains(QLatin1Char('@')))
            known = nullptr; // one more of a model that was named without a serial number
        if (!known)
            known = makeDevice(name, error);
    }
    if (!known)
        return {};
    if (known->connected) {
        *error = QStringLiteral("monitor '%1' is plugged in already").arg(known->id);
        return {};
    }
    if (!vcp.isEmpty() && !known->monitor->setByMenu(vcp, error))
        return {};
    connectDevice(*known);
    return known->id;
}

bool SimulatedMonitors::unplug(const QString& id)
{
    Device* known = device(id);
    if (!known || !known->connected)
        return false;
    known->connected = false;
    known->monitor->unplug();
    return m_registry.removeMonitor(id);
}

QString SimulatedMonitors::applyState(const QJsonObject& vcp, const QJsonArray& faults)
{
    for (auto it = vcp.begin(); it != vcp.end(); ++it) {
        QString error;
        sim::Monitor* target = addressed(it.key());
        if (!target)
            return QStringLiteral("\"vcp\": no simulated monitor '%1'").arg(it.key());
        if (!target->setByMenu(it.value().toObject(), &error))
            return QStringLiteral("\"vcp\" of '%1': %2").arg(it.key(), error);
    }
    for (const QJsonValue& value : faults) {
        const QJsonObject row = value.toObject();
        sim::Monitor* target = addressed(row.value(QLatin1String("monitor")).toString());
        const auto kind = sim::faultKindFromName(row.value(QLatin1String("kind")).toString());
        if (!target || !kind)
            return QStringLiteral("\"faults\": a fault needs a simulated monitor and a kind");
        sim::Fault fault;
        fault.kind = *kind;
        const QJsonValue code = row.value(QLatin1String("code"));
        if (!code.isUndefined())
            fault.code = std::uint8_t(code.isString() ? code.toString().toInt(nullptr, 0) : code.toInt());
        fault.op = sim::opFromName(row.value(QLatin1String("op")).toString());
        if (row.contains(QLatin1String("count")))
            fault.count = row.value(QLatin1String("count")).toInt();
        if (row.contains(QLatin1String("probability")))
            fault.probability = row.value(QLatin1String("probability")).toDouble();
        target->armFault(fault);
    }
    return {};
}

sim::Monitor* SimulatedMonitors::addressed(const QString& address) const
{
    if (address.isEmpty() && m_devices.size() == 1)
        return m_devices.front()->monitor.get();
    sim::Monitor* byName = nullptr;
    for (const auto& each : m_devices) {
        if (each->id == address)
            return each->monitor.get();
        if (each->monitor->model() == address)
            byName = byName ? nullptr : each->monitor.get();
    }
    return byName;
}
