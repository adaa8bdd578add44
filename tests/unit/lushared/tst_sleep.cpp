// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrDispatch.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuModelHost.h>
#include <lushared/LuMonitorRegistry.h>
#include <panelcore/MonitorLink.h>

#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Contrast = "LuAiContrast";

} // namespace

/// A display that sleeps is left alone.
class TestSleep : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void asleepNothingIsAsked();
    void wakingReadsEverythingAndAppliesNothing();
    void roundsGoOnAfterWaking();
    void aRoundUnderWayStops();
    void aPersonsWriteGoesOutOnce();
    void theProgramsWriteDoesNot();
    void askingToReadEndsWithoutATransfer();
    void sayingItTwiceReadsOnce();
    void aDisturbanceEndsThePauseOfASilentMonitor();
    void aDisturbanceWakesNobody();
    void theRegistryPassesItOn();

private:
    static QStringList gets(const QStringList& wire) { return wire.filter(u"get "_s); }
    static QStringList sets(const QStringList& wire) { return wire.filter(u"set "_s); }
};

void TestSleep::init()
{
    TestBed::instance();
    ZrClock::instance().set(QDateTime(QDate(2026, 3, 2), QTime(10, 0)));
    ZrClock::instance().setBackgroundMoves(true);
}

void TestSleep::cleanup()
{
    ZrClock::instance().setBackgroundMoves(false);
    ZrClock::instance().release();
    LuHostOptions::instance() = LuHostOptions();
}

void TestSleep::asleepNothingIsAsked()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.set(Contrast, "syncEnable", true);
    model.setSyncCurrentColorMode(true);
    ZrClock::instance().advance(5000);
    QVERIFY(!bed.wire().isEmpty());
    LuModelHost::setAsleep(&model, true);
    QVERIFY(bed.idle());
    bed.forget();
    ZrClock::instance().advance(3'600'000);
    // Nor does a panel that opens wake it.
    bed.set(Contrast, "syncEnable", false);
    bed.set(Contrast, "syncEnable", true);
    ZrClock::instance().advance(60'000);
    QCOMPARE(bed.wire(), QStringList());
}

void TestSleep::wakingReadsEverythingAndAppliesNothing()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(bed.sync());
    QStringList everything = bed.wire();
    LuModelHost::setAsleep(&model, true);
    bed.monitor().setByMenu(0xF3, 1);
    QVERIFY(bed.idle());
    bed.forget();
    LuModelHost::setAsleep(&model, false);
    QVERIFY(bed.idle());
    const QStringList wire = bed.wire();
    QCOMPARE(gets(wire).size(), gets(everything).size());
    QCOMPARE(sets(wire), sets(everything)); // selections that a read needs
    QCOMPARE(bed.get(Contrast, "state").toBool(), true);
}

void TestSleep::roundsGoOnAfterWaking()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.set(Contrast, "syncEnable", true);
    LuModelHost::setAsleep(&model, true);
    ZrClock::instance().advance(60'000);
    LuModelHost::setAsleep(&model, false);
    QVERIFY(bed.idle());
    bed.forget();
    ZrClock::instance().advance(20'000);
    const qsizetype reads = bed.wire().filter(u"get 0xF3"_s).size();
    QVERIFY2(reads >= 9 && reads <= 12, qPrintable(QString::number(reads)));
}

void TestSleep::aRoundUnderWayStops()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    // All steps wait behind this job; the display falls asleep meanwhile.
    model.dispatch()->post(nullptr, [&model] { MonitorLink::of(*model.info()).setAsleep(true); });
    QVERIFY(bed.sync());
    QCOMPARE(bed.wire(), QStringList());
}

void TestSleep::aPersonsWriteGoesOutOnce()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    LuModelHost::setAsleep(&model, true);
    bed.forget();
    bed.set(Contrast, "state", true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xF3 1"_s});
    sim::Fault fault;
    bed.monitor().armFault(fault);
    bed.set(Contrast, "state", false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xF3 0 failed"_s});
    bed.monitor().clearFaults();
}

void TestSleep::theProgramsWriteDoesNot()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    LuModelHost::setAsleep(&model, true);
    bed.forget();
    QCOMPARE(LuModelHost::trigger(bed.module(Contrast), {{u"state"_s, true}}), QString());
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(LuModelHost::statistics(&model)["errors"_L1]["display asleep"_L1].toInt(), 1);
    QVERIFY(LuModelHost::statistics(&model)["asleep"_L1].toBool());
}

void TestSleep::askingToReadEndsWithoutATransfer()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    LuModelHost::setAsleep(&model, true);
    bed.forget();
    QVERIFY(bed.sync());
    bed.module(Contrast)->forceSyncHardwareState(false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestSleep::sayingItTwiceReadsOnce()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    LuModelHost::setAsleep(&model, false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestSleep::aDisturbanceEndsThePauseOfASilentMonitor()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    model.setSyncCurrentColorMode(true);
    bed.monitor().armFault(sim::Fault());
    ZrClock::instance().advance(300'000);
    bed.monitor().clearFaults();
    bed.forget();
    LuModelHost::noteDisturbance(&model);
    ZrClock::instance().advance(10);
    QCOMPARE(gets(bed.wire()).filter(u"0xDC"_s).size(), 1);
}

void TestSleep::aDisturbanceWakesNobody()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    model.setSyncCurrentColorMode(true);
    bed.monitor().armFault(sim::Fault());
    ZrClock::instance().advance(300'000);
    bed.monitor().clearFaults();
    LuModelHost::setAsleep(&model, true);
    QVERIFY(bed.idle());
    bed.forget();
    LuModelHost::noteDisturbance(&model);
    ZrClock::instance().advance(300'000);
    QCOMPARE(bed.wire(), QStringList());
}

void TestSleep::theRegistryPassesItOn()
{
    SimulatedBed bed;
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    const QSharedPointer<MonitorInfo> info = bed.makeInfo();
    registry.addMonitor(info);
    // Said before there is a model.
    registry.setAsleep(info->id(), true);
    QTRY_COMPARE(registry.monitors().size(), 1);
    QVERIFY(waitForRest());
    QVERIFY(MonitorLink::of(*info).isAsleep());
    bed.forget();
    registry.setAsleep(info->id(), false);
    QVERIFY(waitForRest());
    QVERIFY(!gets(bed.wire()).isEmpty());
    registry.setAsleep(u"Nobody@X"_s, true);
    registry.shutDown();
}

QTEST_MAIN(TestSleep)
#include "tst_sleep.moc"
