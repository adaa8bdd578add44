// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <LuShared/LuUtils.h>
#include <ZrCore/ZrAsker.h>
#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrIdle.h>
#include <ZrCore/ZrSequence.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuLog.h>
#include <lushared/LuModelHost.h>
#include <lushared/LuSettings.h>
#include <panelcore/MonitorLink.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QPluginLoader>
#include <QUrl>

namespace {

constexpr qint64 LimitMs = 30000;

QString eventText(const LuEvent& event)
{
    return QStringLiteral("%1 %2 %3 %4 [%5]")
        .arg(event.module)
        .arg(event.action)
        .arg(event.onOff ? (event.on ? QStringLiteral("on") : QStringLiteral("off")) : event.event)
        .arg(event.source)
        .arg(event.parameters.join(QLatin1Char(',')));
}

QString wireText(const sim::TrafficEntry& entry)
{
    QString text =
        QStringLiteral("%1 0x%2").arg(sim::opName(entry.op), QString::number(entry.code, 16).toUpper());
    if (entry.ok || entry.op == sim::Op::Set)
        text += QLatin1Char(' ') + QString::number(entry.value);
    return entry.ok ? text : text + QStringLiteral(" failed");
}

} // namespace

bool waitForRest()
{
    return ZrIdle::wait(LimitMs);
}

TestBed& TestBed::instance()
{
    static auto* bed = new TestBed;
    return *bed;
}

QString TestBed::packageFile()
{
    return QStringLiteral(LUMEN_PACKAGE_FILE);
}

TestBed::TestBed() : m_services(new services::SimulatedServices)
{
    LuLog::install();
    QCoreApplication::setOrganizationName(QStringLiteral("lumen-desk"));
    LuSettings::instance().open(m_directory.path() + QStringLiteral("/config"));
    LuEventLog::instance().open(m_directory.path() + QStringLiteral("/data"));
    m_services->install();
    auto* loader = new QPluginLoader(packageFile(), QCoreApplication::instance());
    m_package = qobject_cast<LuPackagesInterface*>(loader->instance());
    if (!m_package)
        qFatal("%s", qPrintable(loader->errorString()));
}

TestBed::~TestBed() = default;

SimulatedBed::SimulatedBed(const QString& name, Timing timing) : m_timing(timing)
{
    static int count = 0;
    TestBed::instance();
    const QString full =
        name.contains(QLatin1Char('@')) ? name : QStringLiteral("%1@T%2").arg(name).arg(++count);
    sim::Options options;
    options.strictTiming = timing == Timing::Real;
    options.sequence = ZrSequence::next;
    options.roomClock = [] {
        return sim::Clock::time_point(std::chrono::milliseconds(ZrClock::instance().monotonicMs()));
    };
    options.epoch = sim::Clock::now();
    m_epochMs = std::chrono::duration<double, std::milli>(options.epoch.time_since_epoch()).count();
    QString error;
    const std::optional<sim::Identity> identity = sim::Identity::parse(full, &error);
    if (!identity)
        qFatal("%s", qPrintable(error));
    m_monitor = std::make_unique<sim::Monitor>(*identity, options);
    forget();
}

SimulatedBed::~SimulatedBed()
{
    destroy();
}

void SimulatedBed::destroy()
{
    delete m_model;
    m_model = nullptr;
}

QSharedPointer<MonitorInfo> SimulatedBed::makeInfo()
{
    MonitorDescription description;
    description.id = m_monitor->model() + QLatin1Char('@') + m_monitor->serial();
    description.modelName = m_monitor->model();
    description.serialNumber = m_monitor->serial();
    description.builtIn = m_monitor->isBuiltIn();
    description.simulated = true;
    const auto info =
        MonitorLink::create(description, m_monitor->isBuiltIn() ? nullptr : m_monitor->makeBus(),
                            m_timing == Timing::Fast ? MonitorLink::Waits::None : MonitorLink::Waits::Real);
    MonitorLink::of(*info).setCallObserver([monitor = m_monitor.get()] { monitor->endTransaction(); });
    MonitorLink::of(*info).probeColorMode();
    return info;
}

LuMonitorModel& SimulatedBed::construct(bool launching)
{
    destroy();
    LuHostOptions::instance().launching = launching;
    m_model = TestBed::instance().package()->modelConstructor()(nullptr, makeInfo());
    LuModelHost::launch(m_model);
    return *m_model;
}

LuMonitorModel& SimulatedBed::launch()
{
    return construct(true);
}

LuMonitorModel& SimulatedBed::hotplug()
{
    return construct(false);
}

LuModelModuleInterface* SimulatedBed::module(const char* className)
{
    LuModelModuleInterface* found = m_model->moduleByClassName(QString::fromLatin1(className));
    if (!found)
        qFatal("no module %s", className);
    return found;
}

QVariant SimulatedBed::get(const char* className, const char* property)
{
    return module(className)->property(property);
}

bool SimulatedBed::set(const char* className, const char* property, const QVariant& value)
{
    ZrAsker::noteInput(); // as a person does
    return module(className)->setProperty(property, value);
}

bool SimulatedBed::idle()
{
    return waitForRest();
}

bool SimulatedBed::sync(const char* className)
{
    bool done = false;
    LuModelHost::sync(m_model, className ? module(className) : nullptr, [&done] { done = true; });
    return waitForRest() && done;
}

bool SimulatedBed::apply()
{
    bool done = false;
    LuModelHost::apply(m_model, [&done] { done = true; });
    return waitForRest() && done;
}

QStringList SimulatedBed::wire()
{
    QStringList result;
    const QList<sim::TrafficEntry> entries = m_monitor->traffic(m_wireSeen);
    for (const sim::TrafficEntry& entry : entries) {
        result.append(wireText(entry));
        m_wireSeen = entry.seq;
    }
    return result;
}

QStringList SimulatedBed::events()
{
    QStringList result;
    const QString id = m_monitor->model() + QLatin1Char('@') + m_monitor->serial();
    const QList<LuEvent> events = LuEventLog::instance().events(m_eventsSeen);
    for (const LuEvent& event : events) {
        if (event.monitor == id)
            result.append(eventText(event));
        m_eventsSeen = event.seq;
    }
    return result;
}

QStringList SimulatedBed::log()
{
    QStringList result;
    const QList<LuLogLine> lines = LuLog::lines(m_logSeen);
    for (const LuLogLine& line : lines) {
        result.append(line.text);
        m_logSeen = line.seq;
    }
    return result;
}

void SimulatedBed::forget()
{
    wire();
    events();
    log();
}

QString SimulatedBed::section() const
{
    const auto encoded = [](const QString& text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    return encoded(m_monitor->model()) + QLatin1Char('_') + encoded(m_monitor->serial()) + QLatin1Char('/');
}

QVariant SimulatedBed::setting(const QString& key) const
{
    return LuSettings::instance().value(section() + key);
}

void SimulatedBed::storeSetting(const QString& key, const QVariant& value)
{
    LuSettings::instance().setValue(section() + key, value);
}
