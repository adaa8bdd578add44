// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <ddc/Bus.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuModelHost.h>
#include <lushared/LuMonitorRegistry.h>
#include <panelcore/MonitorLink.h>

#include <QElapsedTimer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <initializer_list>
#include <thread>

namespace {

/// A simulated monitor for the registry, which makes the model itself.
struct Plug
{
    explicit Plug(const QString& model, const QString& serial)
        : monitor(std::make_unique<sim::Monitor>(sim::Identity{model, serial}))
    {
    }

    QSharedPointer<MonitorInfo> info(std::unique_ptr<ddc::Bus> bus = nullptr)
    {
        MonitorDescription description;
        description.id = monitor->model() + QLatin1Char('@') + monitor->serial();
        description.modelName = monitor->model();
        description.serialNumber = monitor->serial();
        description.builtIn = monitor->isBuiltIn();
        if (!bus && !monitor->isBuiltIn())
            bus = monitor->makeBus();
        return MonitorLink::create(description, std::move(bus), MonitorLink::Waits::None);
    }

    quint64 lastSeen() const
    {
        const auto traffic = monitor->traffic();
        return traffic.isEmpty() ? 0 : traffic.last().seq;
    }
    /// Writes that reached the monitor after @p since.
    int sets(quint64 since) const
    {
        const auto traffic = monitor->traffic(since);
        return int(std::count_if(traffic.begin(), traffic.end(),
                                 [](const sim::TrafficEntry& entry) { return entry.op == sim::Op::Set; }));
    }

    std::unique_ptr<sim::Monitor> monitor;
};

/// A run of the program in which these monitors are met and read.
void meet(std::initializer_list<Plug*> plugs)
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    for (Plug* plug : plugs)
        registry.addMonitor(plug->info());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(waitForRest());
    QVERIFY(registry.shutDown());
    LuHostOptions::instance().launching = true; // the next start
}

/// A transfer that hangs until the test lets it end in nothing.
struct Hang
{
    QSemaphore begun;
    QSemaphore end;
};

class HeldBus : public ddc::Bus
{
public:
    explicit HeldBus(std::shared_ptr<Hang> hang) : m_hang(std::move(hang)) {}

    ddc::BusStatus write(std::uint8_t, std::span<const std::uint8_t>) override
    {
        m_hang->begun.release();
        m_hang->end.acquire();
        return ddc::BusStatus::Gone;
    }
    ddc::BusStatus read(std::uint8_t, std::span<std::uint8_t>) override { return ddc::BusStatus::Gone; }
    std::string name() const override { return "held"; }

private:
    const std::shared_ptr<Hang> m_hang;
};

} // namespace

class TestRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void modelAppearsWhenItsModeIsKnown();
    void orderIsThatOfAppearance();
    void firstSupportedMonitorIsCurrent();
    void choiceOfTheUserStays();
    void findsByIdAndByUnambiguousName();
    void sameIdTwiceIsRefused();
    void removedMonitorGivesWayToAnother();
    void monitorThatHangsDoesNotDelayAnother();
    void monitorRemovedWhileItIsAskedLeavesNothing();
    void monitorPluggedAnewWhileItIsAskedComesOnce();
    void onlyTheLaunchRestores();
    void whatComesAfterTheSearchIsOnlyRead();
    void whatTheSearchFindsLateIsRestoredToo();
    void aMonitorThatIsSlowAtTheLaunchIsStillRestored();
    void widgetsOfThePackageAreKnown();
    void shutDownReportsAndEmpties();
};

void TestRegistry::init()
{
    LuHostOptions::instance() = LuHostOptions();
    TestBed::instance();
}

void TestRegistry::modelAppearsWhenItsModeIsKnown()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    QSignalSpy settled(&registry, &LuMonitorRegistry::settled);
    QSignalSpy added(&registry, &LuMonitorRegistry::monitorAdded);
    Plug plug(QStringLiteral("TK30Z"), QStringLiteral("R1"));
    registry.addMonitor(plug.info());
    QVERIFY(registry.isBusy());
    QVERIFY(registry.monitors().isEmpty());
    QTRY_COMPARE(settled.count(), 1);
    QVERIFY(!registry.isBusy());
    QCOMPARE(added.count(), 1);
    QVERIFY(registry.monitors().first()->colorMode());
    QVERIFY(waitForRest());
    registry.shutDown();
}

void TestRegistry::orderIsThatOfAppearance()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug first(QStringLiteral("TK20"), QStringLiteral("R2"));
    Plug second(QStringLiteral("TK30Z"), QStringLiteral("R2"));
    sim::Fault slow;
    slow.kind = sim::FaultKind::Timeout;
    slow.blocks = std::chrono::milliseconds(50);
    slow.count = 1;
    first.monitor->armFault(slow);
    registry.addMonitor(first.info());
    registry.addMonitor(second.info());
    QTRY_VERIFY(!registry.isBusy());
    QCOMPARE(registry.monitors().at(0)->modelName(), QStringLiteral("TK20"));
    QCOMPARE(registry.monitors().at(1)->modelName(), QStringLiteral("TK30Z"));
    QVERIFY(waitForRest());
    registry.shutDown();
}

void TestRegistry::firstSupportedMonitorIsCurrent()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug panel(QStringLiteral("builtin"), QString());
    Plug foreign(QStringLiteral("Other"), QStringLiteral("R3"));
    Plug supported(QStringLiteral("TK10"), QStringLiteral("R3"));
    registry.addMonitor(panel.info());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(registry.current()->isModelBuiltIn());
    registry.addMonitor(foreign.info());
    QTRY_VERIFY(!registry.isBusy());
    QCOMPARE(registry.current()->modelName(), QStringLiteral("Other"));
    registry.addMonitor(supported.info());
    QTRY_VERIFY(!registry.isBusy());
    QCOMPARE(registry.current()->modelName(), QStringLiteral("TK10"));
    QVERIFY(registry.current()->isCurrentModel());
    QVERIFY(waitForRest());
    registry.shutDown();
}

void TestRegistry::choiceOfTheUserStays()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug foreign(QStringLiteral("Other"), QStringLiteral("R4"));
    Plug supported(QStringLiteral("TK10"), QStringLiteral("R4"));
    registry.addMonitor(foreign.info());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(registry.select(QStringLiteral("Other@R4")));
    QVERIFY(!registry.select(QStringLiteral("Nobody")));
    QSignalSpy changed(&registry, &LuMonitorRegistry::currentChanged);
    registry.addMonitor(supported.info());
    QTRY_VERIFY(!registry.isBusy());
    QCOMPARE(registry.current()->modelName(), QStringLiteral("Other"));
    QCOMPARE(changed.count(), 0);
    QVERIFY(registry.select(QStringLiteral("TK10")));
    QCOMPARE(changed.count(), 1);
    QVERIFY(waitForRest());
    registry.shutDown();
}

void TestRegistry::findsByIdAndByUnambiguousName()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    QVERIFY(!registry.find(QString()));
    Plug one(QStringLiteral("TK10"), QStringLiteral("R5"));
    Plug two(QStringLiteral("TK10"), QStringLiteral("R6"));
    registry.addMonitor(one.info());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(registry.find(QStringLiteral("TK10")));
    registry.addMonitor(two.info());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(!registry.find(QStringLiteral("TK10")));
    QCOMPARE(registry.find(QStringLiteral("TK10@R6"))->serialNumber(), QStringLiteral("R6"));
    QCOMPARE(registry.find(QString()), registry.current());
    QVERIFY(waitForRest());
    registry.shutDown();
}

void TestRegistry::sameIdTwiceIsRefused()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug plug(QStringLiteral("TK10"), QStringLiteral("R7"));
    registry.addMonitor(plug.info());
    registry.addMonitor(plug.info());
    QTRY_VERIFY(!registry.isBusy());
    QCOMPARE(registry.monitors().size(), 1);
    QVERIFY(waitForRest());
    registry.shutDown();
}

void TestRegistry::removedMonitorGivesWayToAnother()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug one(QStringLiteral("TK10"), QStringLiteral("R8"));
    Plug two(QStringLiteral("TK20"), QStringLiteral("R8"));
    registry.addMonitor(one.info());
    registry.addMonitor(two.info());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(registry.select(QStringLiteral("TK10@R8")));
    QSignalSpy removed(&registry, &LuMonitorRegistry::monitorAboutToBeRemoved);
    one.monitor->unplug();
    QVERIFY(registry.removeMonitor(QStringLiteral("TK10@R8")));
    QVERIFY(!registry.removeMonitor(QStringLiteral("TK10@R8")));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(registry.current()->modelName(), QStringLiteral("TK20"));
    QVERIFY(registry.removeMonitor(QStringLiteral("TK20@R8")));
    QVERIFY(!registry.current());
}

void TestRegistry::monitorThatHangsDoesNotDelayAnother()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug hanging(QStringLiteral("TK10"), QStringLiteral("R9"));
    Plug sound(QStringLiteral("TK20"), QStringLiteral("R9"));
    sim::Fault fault;
    fault.kind = sim::FaultKind::Timeout;
    fault.blocks = std::chrono::seconds(60);
    hanging.monitor->armFault(fault);
    registry.addMonitor(hanging.info());
    registry.addMonitor(sound.info());
    QTRY_COMPARE(registry.monitors().size(), 1);
    LuMonitorModel* model = registry.monitors().first();
    QCOMPARE(model->modelName(), QStringLiteral("TK20"));
    LuModelModuleInterface* contrast = model->moduleByClassName(QStringLiteral("LuAiContrast"));
    QVERIFY(contrast->setProperty("state", true));
    QTRY_COMPARE(int(sound.monitor->value(0xF3).value()), 1);
    hanging.monitor->unplug();
    QVERIFY(registry.removeMonitor(QStringLiteral("TK10@R9")));
    QVERIFY(waitForRest());
    registry.shutDown();
}

void TestRegistry::monitorRemovedWhileItIsAskedLeavesNothing()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug plug(QStringLiteral("TK10"), QStringLiteral("R10"));
    sim::Fault fault;
    fault.kind = sim::FaultKind::Timeout;
    fault.blocks = std::chrono::seconds(60);
    plug.monitor->armFault(fault);
    registry.addMonitor(plug.info());
    plug.monitor->unplug();
    QElapsedTimer timer;
    timer.start();
    QVERIFY(registry.removeMonitor(QStringLiteral("TK10@R10")));
    QVERIFY2(timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(waitForRest());
    QVERIFY(registry.monitors().isEmpty());
    QVERIFY(!registry.isBusy());
}

void TestRegistry::monitorPluggedAnewWhileItIsAskedComesOnce()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    QSignalSpy added(&registry, &LuMonitorRegistry::monitorAdded);
    Plug plug(QStringLiteral("TK10"), QStringLiteral("R14"));
    const auto hang = std::make_shared<Hang>();
    QSharedPointer<MonitorInfo> info = plug.info(std::make_unique<HeldBus>(hang));
    const QWeakPointer<MonitorInfo> gone = info;
    registry.addMonitor(info);
    info.reset();
    hang->begun.acquire();
    QVERIFY(registry.removeMonitor(QStringLiteral("TK10@R14")));
    // What the first handle still tells comes when the second one is being asked.
    registry.addMonitor(plug.info());
    while (plug.monitor->traffic().isEmpty())
        std::this_thread::yield();
    hang->end.release();
    QTRY_VERIFY(gone.isNull());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(waitForRest());
    QCOMPARE(added.count(), 1);
    QCOMPARE(registry.monitors().size(), 1);
    QVERIFY(registry.current()->colorMode());
    registry.shutDown();
}

void TestRegistry::onlyTheLaunchRestores()
{
    Plug plug(QStringLiteral("TK30Z"), QStringLiteral("R11"));
    for (int run = 0; run < 2; ++run) {
        LuHostOptions::instance().launching = true;
        LuMonitorRegistry registry;
        registry.addPackage(TestBed::instance().package());
        const quint64 seen = plug.lastSeen();
        registry.addMonitor(plug.info());
        QTRY_VERIFY(!registry.isBusy());
        QVERIFY(waitForRest());
        QCOMPARE(plug.sets(seen) > 0, run == 1);
        QVERIFY(registry.removeMonitor(QStringLiteral("TK30Z@R11")));
        const quint64 unplugged = plug.lastSeen();
        registry.addMonitor(plug.info());
        QTRY_VERIFY(!registry.isBusy());
        QVERIFY(waitForRest());
        QCOMPARE(plug.sets(unplugged), 0);
        registry.shutDown();
    }
}

void TestRegistry::whatComesAfterTheSearchIsOnlyRead()
{
    Plug plug(QStringLiteral("TK30Z"), QStringLiteral("R14"));
    meet({&plug});
    const quint64 seen = plug.lastSeen();
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    // At the start there was none: it was asleep, or not plugged in.
    registry.setSearching(true);
    registry.setSearching(false);
    registry.addMonitor(plug.info());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(waitForRest());
    QVERIFY(plug.lastSeen() > seen);
    QCOMPARE(plug.sets(seen), 0);
    registry.shutDown();
}

void TestRegistry::whatTheSearchFindsLateIsRestoredToo()
{
    Plug early(QStringLiteral("TK30Z"), QStringLiteral("R15"));
    Plug late(QStringLiteral("TK30Z"), QStringLiteral("R16"));
    meet({&early, &late});
    const quint64 seen = late.lastSeen();
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    registry.setSearching(true);
    registry.addMonitor(early.info());
    QTRY_VERIFY(!registry.isBusy());
    registry.addMonitor(late.info());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(waitForRest());
    QVERIFY(late.sets(seen) > 0);
    registry.shutDown();
}

void TestRegistry::aMonitorThatIsSlowAtTheLaunchIsStillRestored()
{
    Plug plug(QStringLiteral("TK30Z"), QStringLiteral("R17"));
    meet({&plug});
    const quint64 seen = plug.lastSeen();
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    registry.setSearching(true);
    registry.addMonitor(plug.info());
    registry.setSearching(false); // before its model is made
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(waitForRest());
    QVERIFY(plug.sets(seen) > 0);
    registry.shutDown();
}

void TestRegistry::widgetsOfThePackageAreKnown()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug plug(QStringLiteral("TK30Z"), QStringLiteral("R12"));
    registry.addMonitor(plug.info());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(registry.current()->inWidgets(QStringLiteral("LuVolumeWidget")));
    QVERIFY(!registry.current()->inWidgets(QStringLiteral("LuDualViewWidget")));
    QCOMPARE(registry.packageFor(registry.current()), TestBed::instance().package());
    QVERIFY(waitForRest());
    registry.shutDown();
}

void TestRegistry::shutDownReportsAndEmpties()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug plug(QStringLiteral("TK30Z"), QStringLiteral("R13"));
    registry.addMonitor(plug.info());
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(waitForRest());
    // What was asked for last still reaches the monitor.
    registry.current()->moduleByClassName(QStringLiteral("LuAiContrast"))->setProperty("state", true);
    registry.shutDown();
    QCOMPARE(int(plug.monitor->value(0xF3).value()), 1);
    QVERIFY(registry.monitors().isEmpty());
    QVERIFY(!registry.current());
}

QTEST_MAIN(TestRegistry)
#include "tst_registry.moc"
