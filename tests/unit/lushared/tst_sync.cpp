// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrDispatch.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuModelHost.h>

#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <thread>

Q_DECLARE_METATYPE(sim::FaultKind)

namespace {

constexpr const char* Contrast = "LuAiContrast";

/// A module whose step adds a sub-task to the list that it stands in.
class NestingModule : public LuModelModuleInterface
{
public:
    using LuModelModuleInterface::LuModelModuleInterface;

    void readSchema(const QByteArray&) override {}
    LuSyncTasks* syncPeriodically() override
    {
        auto* tasks = new LuSyncTasks(QStringLiteral("NestingModule"));
        tasks->addTask([this, tasks] {
            QStringList seen{QStringLiteral("step")};
            tasks->addSubTask([&seen] { seen.append(QStringLiteral("sub")); });
            seen.append(QStringLiteral("after"));
            order = seen;
        });
        return tasks;
    }

    ZrShared<QStringList> order;
};

} // namespace

/// When a monitor is read back, and when it is left alone.
class TestSync : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nobodyLooksNothingIsRead();
    void visibleFeatureIsReadEachPeriod();
    void becomingVisibleReadsAtOnce();
    void colorModeIsReadWithItsOwnSwitch();
    void stepsStandBehindWhatWaits();
    void subTaskHasRunWhenItReturns();
    void subTasksOfAModulesStepRunInPlace();
    void listHandsItsStepsOver();
    void requestsToReadAtOnceAreOne();
    void firstRoundGivesASilentMonitorUp();
    void whatWasNotReadIsNotRestoredLater_data() { faults(); }
    void whatWasNotReadIsNotRestoredLater();
    void aMonitorThatTellsNoColorModeIsReadAndNotRestored_data() { faults(); }
    void aMonitorThatTellsNoColorModeIsReadAndNotRestored();
    void aMonitorThatIsSwitchedOnLaterIsReadWithoutAWindow_data();
    void aMonitorThatIsSwitchedOnLaterIsReadWithoutAWindow();
    void silentMonitorIsAskedMoreAndMoreRarely();
    void userActionTriesASilentMonitorAgain();
    void answeringMonitorIsReadAtTheUsualPaceAgain();

private:
    static void faults();
    int readsWithin(SimulatedBed& bed, qint64 ms);
};

void TestSync::init()
{
    TestBed::instance();
    ZrClock::instance().set(QDateTime(QDate(2026, 3, 2), QTime(10, 0)));
    ZrClock::instance().setBackgroundMoves(true);
}

void TestSync::cleanup()
{
    ZrClock::instance().setBackgroundMoves(false);
    ZrClock::instance().release();
    LuHostOptions::instance() = LuHostOptions();
}

int TestSync::readsWithin(SimulatedBed& bed, qint64 ms)
{
    bed.forget();
    ZrClock::instance().advance(ms);
    return int(bed.wire().filter(QStringLiteral("get 0xF3")).size());
}

void TestSync::nobodyLooksNothingIsRead()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    ZrClock::instance().advance(60000);
    QCOMPARE(bed.wire(), QStringList());
}

void TestSync::visibleFeatureIsReadEachPeriod()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Contrast, "syncEnable", true);
    const int reads = readsWithin(bed, 20000);
    QVERIFY2(reads >= 9 && reads <= 12, qPrintable(QString::number(reads)));
    bed.set(Contrast, "syncEnable", false);
    readsWithin(bed, 5000);
    QCOMPARE(readsWithin(bed, 20000), 0);
}

void TestSync::becomingVisibleReadsAtOnce()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(readsWithin(bed, 30000), 0);
    bed.set(Contrast, "syncEnable", true);
    ZrClock::instance().advance(1);
    QCOMPARE(bed.wire(), QStringList{QStringLiteral("get 0xF3 0")});
}

void TestSync::colorModeIsReadWithItsOwnSwitch()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    model.setSyncCurrentColorMode(true);
    bed.monitor().setByMenu(0xDC, 0x32);
    QSignalSpy spy(&model, &LuMonitorModel::colorModeChanged);
    ZrClock::instance().advance(2100);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(model.colorMode()->displayName(), QStringLiteral("Cinema"));
}

void TestSync::stepsStandBehindWhatWaits()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    // The queue is held, so that everything waits side by side.
    std::atomic<bool> go{false};
    model.dispatch()->post(nullptr, [&go] {
        while (!go)
            std::this_thread::yield();
    });
    LuModelHost::sync(&model, bed.module(Contrast), [] {});
    bed.set(Contrast, "state", true);
    go = true;
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), (QStringList{QStringLiteral("set 0xF3 1"), QStringLiteral("get 0xF3 1")}));
}

void TestSync::subTaskHasRunWhenItReturns()
{
    QStringList order;
    LuSyncTasks tasks(QStringLiteral("LuX"));
    tasks.addTask([&] {
        int found = 0;
        order.append(QStringLiteral("step"));
        tasks.addSubTask([&] {
            found = 1;
            order.append(QStringLiteral("first"));
        });
        tasks.addSubTask([&] {
            found += 10;
            order.append(QStringLiteral("second"));
        });
        order.append(QString::number(found));
    });
    for (const auto& step : tasks.takeTasks())
        step();
    QCOMPARE(order, (QStringList{QStringLiteral("step"), QStringLiteral("first"), QStringLiteral("second"),
                                 QStringLiteral("11")}));
}

void TestSync::subTasksOfAModulesStepRunInPlace()
{
    SimulatedBed bed;
    auto* module = new NestingModule(&bed.launch());
    QVERIFY(bed.idle());
    LuModelHost::sync(&bed.model(), module, [] {});
    QVERIFY(bed.idle());
    QCOMPARE(module->order.get(),
             (QStringList{QStringLiteral("step"), QStringLiteral("sub"), QStringLiteral("after")}));
}

void TestSync::listHandsItsStepsOver()
{
    LuSyncTasks tasks(QStringLiteral("LuX"));
    QCOMPARE(tasks.name(), QStringLiteral("LuX"));
    tasks.addTask([] {});
    tasks.addTask([] {});
    QCOMPARE(tasks.count(), 2);
    QCOMPARE(tasks.takeTasks().size(), size_t(2));
    QCOMPARE(tasks.count(), 0);
}

void TestSync::requestsToReadAtOnceAreOne()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    std::atomic<bool> go{false};
    model.dispatch()->post(nullptr, [&go] {
        while (!go)
            std::this_thread::yield();
    });
    for (int i = 0; i < 10; ++i)
        bed.module(Contrast)->forceSyncHardwareState(false);
    go = true;
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{QStringLiteral("get 0xF3 0")});
}

void TestSync::firstRoundGivesASilentMonitorUp()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.hotplug();
    QVERIFY(bed.idle());
    QSet<QString> answered;
    for (const QString& line : bed.wire())
        answered.insert(line.section(QLatin1Char(' '), 0, 1));
    sim::Fault fault;
    bed.monitor().armFault(fault);
    bed.hotplug();
    QVERIFY(bed.idle());
    QSet<QString> asked;
    for (const QString& line : bed.wire())
        asked.insert(line.section(QLatin1Char(' '), 0, 1));
    // The colour mode and two more: then it is clear that nobody answers.
    QVERIFY2(answered.size() > 3 && asked.size() <= 3,
             qPrintable(QStringList(asked.values()).join(QLatin1Char(','))));
}

void TestSync::faults()
{
    QTest::addColumn<sim::FaultKind>("kind");
    QTest::newRow("NACK") << sim::FaultKind::Nack;
    QTest::newRow("null replies") << sim::FaultKind::Null;
    QTest::newRow("damaged replies") << sim::FaultKind::Checksum;
    QTest::newRow("garbage") << sim::FaultKind::Garbage;
}

void TestSync::whatWasNotReadIsNotRestoredLater()
{
    QFETCH(sim::FaultKind, kind);
    SimulatedBed bed;
    sim::Fault fault;
    fault.kind = kind;
    bed.monitor().armFault(fault);
    bed.launch();
    QVERIFY(bed.idle());
    bed.destroy();
    bed.monitor().clearFaults();
    bed.storeSetting(QStringLiteral("LuAiContrast/state"), true);
    bed.forget();
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("set ")), QStringList());
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot 6 off 5 ")).size(), 1);
    // Now it has been read.
    bed.storeSetting(QStringLiteral("LuAiContrast/state"), true);
    bed.relaunch();
    QVERIFY(bed.idle());
    QVERIFY(bed.wire().contains(QStringLiteral("set 0xF3 1")));
}

void TestSync::aMonitorThatTellsNoColorModeIsReadAndNotRestored()
{
    QFETCH(sim::FaultKind, kind);
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.storeSetting(QStringLiteral("LuAiContrast/state"), true);
    sim::Fault fault;
    fault.kind = kind;
    bed.monitor().armFault(fault);
    bed.forget();
    LuMonitorModel& model = bed.relaunch();
    QVERIFY(bed.idle());
    QVERIFY(!model.colorMode());
    QCOMPARE(bed.wire().filter(QStringLiteral("set ")), QStringList());
    // It has woken up: everything is read, also with the window hidden.
    bed.monitor().clearFaults();
    ZrClock::instance().advance(1000);
    QVERIFY(bed.idle());
    QVERIFY(model.colorMode());
    const QStringList wire = bed.wire();
    QVERIFY(wire.contains(QStringLiteral("get 0xF3 0")));
    QVERIFY(!wire.filter(QStringLiteral("get 0x60")).isEmpty());
    QCOMPARE(wire.filter(QStringLiteral("set ")), QStringList());
    QCOMPARE(bed.get(Contrast, "state"), QVariant(false));
}

void TestSync::aMonitorThatIsSwitchedOnLaterIsReadWithoutAWindow_data()
{
    QTest::addColumn<bool>("byPerson");
    QTest::newRow("noticed at the outputs") << false;
    QTest::newRow("somebody uses it") << true;
}

void TestSync::aMonitorThatIsSwitchedOnLaterIsReadWithoutAWindow()
{
    QFETCH(bool, byPerson);
    SimulatedBed bed;
    bed.monitor().armFault(sim::Fault());
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    ZrClock::instance().advance(60000);
    bed.forget();
    ZrClock::instance().advance(600000);
    QCOMPARE(bed.wire(), QStringList());
    bed.monitor().clearFaults();
    if (byPerson)
        bed.set(Contrast, "state", true);
    else
        LuModelHost::noteDisturbance(&model);
    ZrClock::instance().advance(1000);
    QVERIFY(bed.idle());
    QVERIFY(model.colorMode());
    QVERIFY(!bed.wire().filter(QStringLiteral("get 0x60")).isEmpty());
}

void TestSync::silentMonitorIsAskedMoreAndMoreRarely()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    model.setSyncCurrentColorMode(true);
    sim::Fault fault;
    bed.monitor().armFault(fault);
    ZrClock::instance().advance(20000);
    bed.forget();
    ZrClock::instance().advance(600000);
    // At most one question a minute by now, with its tries.
    const int tries = int(bed.wire().filter(QStringLiteral("get 0xDC")).size());
    QVERIFY2(tries > 0 && tries <= 4 * 14, qPrintable(QString::number(tries)));
    bed.monitor().clearFaults();
}

void TestSync::userActionTriesASilentMonitorAgain()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    model.setSyncCurrentColorMode(true);
    sim::Fault fault;
    bed.monitor().armFault(fault);
    ZrClock::instance().advance(300000);
    bed.monitor().clearFaults();
    bed.forget();
    bed.set(Contrast, "state", true);
    ZrClock::instance().advance(10);
    QVERIFY(!bed.wire().filter(QStringLiteral("get 0xDC")).isEmpty());
}

void TestSync::answeringMonitorIsReadAtTheUsualPaceAgain()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    model.setSyncCurrentColorMode(true);
    sim::Fault fault;
    bed.monitor().armFault(fault);
    ZrClock::instance().advance(300000);
    bed.monitor().clearFaults();
    ZrClock::instance().advance(61000);
    bed.forget();
    ZrClock::instance().advance(20000);
    const int reads = int(bed.wire().filter(QStringLiteral("get 0xDC")).size());
    QVERIFY2(reads >= 9 && reads <= 12, qPrintable(QString::number(reads)));
}

QTEST_MAIN(TestSync)
#include "tst_sync.moc"
