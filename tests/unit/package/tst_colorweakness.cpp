// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <LuShared/LuUtils.h>
#include <ZrCore/ZrDispatch.h>
#include <lushared/LuModelHost.h>

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

constexpr const char* Module = "LuColorWeakness";
constexpr int WeaknessCode = 0xFD;
constexpr int Red = 3;
constexpr int Green = 4;

} // namespace

class TestColorWeakness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void schemaDecidesWhoHasTheFilter_data();
    void schemaDecidesWhoHasTheFilter();
    void withoutTheFeatureNothingHappens();
    void filterThenStrengthWriteThePairOfTheMoment();
    void slidersLastValueWins();
    void presentValueWritesNothing();
    void numberThatFitsNoByteIsRefused_data();
    void numberThatFitsNoByteIsRefused();
    void failedWriteKeepsTheMember();
    void readBackSplitsTheBytes_data();
    void readBackSplitsTheBytes();
    void readBackReportsWhatChanged_data();
    void readBackReportsWhatChanged();
    void failedReadChangesNothing();
    void readBackDoesNotAskTheColourMode();
    void firstConnectionReportsAFilter();
    void firstConnectionWithoutAFilterReportsNothing();
    void launchRestores();
    void pageVisitGivesItsEvents_data();
    void pageVisitGivesItsEvents();
    void exitReportsAnActiveFilterAsOff();
};

void TestColorWeakness::schemaDecidesWhoHasTheFilter_data()
{
    QTest::addColumn<bool>("enabled");
    for (const char* name : {"TK10", "TK20", "TK30", "TK30X", "TK30Z", "TK40", "TK40X"})
        QTest::newRow(name) << true;
    QTest::newRow("Other") << false;
    QTest::newRow("builtin") << false;
}

void TestColorWeakness::schemaDecidesWhoHasTheFilter()
{
    QFETCH(bool, enabled);
    SimulatedBed bed(QString::fromLatin1(QTest::currentDataTag()));
    bed.launch();
    QCOMPARE(bed.get(Module, "colorWeaknessEnable").toBool(), enabled);
    const std::unique_ptr<LuSyncTasks> tasks(bed.module(Module)->syncPeriodically());
    QCOMPARE(tasks != nullptr, enabled);
    QVERIFY(bed.idle());
}

void TestColorWeakness::withoutTheFeatureNothingHappens()
{
    SimulatedBed bed(QStringLiteral("Other"));
    bed.launch();
    QVERIFY(bed.idle());
    bed.storeSetting(QStringLiteral("LuColorWeakness/mode"), Red);
    bed.relaunch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.set(Module, "mode", Green);
    bed.set(Module, "weakness", 3);
    QVERIFY(bed.apply());
    QCOMPARE(bed.get(Module, "mode").toInt(), 0);
    QCOMPARE(bed.get(Module, "weakness").toInt(), 0);
    // The brightness of such a monitor is the computer's to restore.
    QCOMPARE(bed.wire().filter(QStringLiteral("0xFD")), QStringList());
    QCOMPARE(bed.events().filter(QStringLiteral("LuColorWeakness")), QStringList());
    QVERIFY(!bed.setting(QStringLiteral("LuColorWeakness/weakness")).isValid());
}

void TestColorWeakness::filterThenStrengthWriteThePairOfTheMoment()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "weakness", 5);
    QVERIFY(bed.idle());
    bed.forget();
    QSignalSpy mode(bed.module(Module), SIGNAL(modeChanged()));
    QSignalSpy weakness(bed.module(Module), SIGNAL(weaknessChanged()));
    bed.set(Module, "mode", Red);
    bed.set(Module, "weakness", 3);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), (QStringList{QStringLiteral("set 0xFD 1283"), QStringLiteral("set 0xFD 771")}));
    QCOMPARE(bed.events(), QStringList());
    QCOMPARE(mode.count(), 1);
    QCOMPARE(weakness.count(), 1);
    QCOMPARE(bed.setting(QStringLiteral("LuColorWeakness/mode")).toInt(), Red);
    QCOMPARE(bed.setting(QStringLiteral("LuColorWeakness/weakness")).toInt(), 3);
    const QStringList log = bed.log();
    QVERIFY(!log.filter(QStringLiteral("[LuColorWeakness] set mode: ")).isEmpty());
    QVERIFY(!log.filter(QStringLiteral("[LuColorWeakness] set weakness:  3")).isEmpty());
}

void TestColorWeakness::slidersLastValueWins()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    QSemaphore started;
    QSemaphore gate;
    model.dispatch()->post(nullptr, [&] {
        started.release();
        gate.acquire();
    });
    started.acquire();
    for (int weakness = 1; weakness <= 7; ++weakness)
        bed.set(Module, "weakness", weakness);
    gate.release();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{QStringLiteral("set 0xFD 1792")});
    QCOMPARE(bed.get(Module, "weakness").toInt(), 7);
}

void TestColorWeakness::presentValueWritesNothing()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.set(Module, "mode", 0);
    bed.set(Module, "weakness", 0);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QVERIFY(!bed.setting(QStringLiteral("LuColorWeakness/mode")).isValid());
}

void TestColorWeakness::numberThatFitsNoByteIsRefused_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("value");
    QTest::newRow("strength 256") << QByteArray("weakness") << 256;
    QTest::newRow("strength -1") << QByteArray("weakness") << -1;
}

void TestColorWeakness::numberThatFitsNoByteIsRefused()
{
    QFETCH(QByteArray, property);
    QFETCH(int, value);
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.set(Module, property.constData(), value);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.get(Module, property.constData()).toInt(), 0);
    QVERIFY(!bed.log().filter(QStringLiteral("%1 is not in 0 to 255").arg(value)).isEmpty());
}

void TestColorWeakness::failedWriteKeepsTheMember()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    sim::Fault fault;
    fault.kind = sim::FaultKind::Nack;
    fault.code = WeaknessCode;
    bed.monitor().armFault(fault);
    bed.set(Module, "mode", Green);
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "mode").toInt(), Green);
    QCOMPARE(bed.setting(QStringLiteral("LuColorWeakness/mode")).toInt(), Green);
    bed.monitor().clearFaults();
    // The next round tells what the monitor holds.
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "mode").toInt(), 0);
    QCOMPARE(bed.setting(QStringLiteral("LuColorWeakness/mode")).toInt(), 0);
}

void TestColorWeakness::readBackSplitsTheBytes_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("weakness");
    QTest::newRow("green") << 0x0504 << Green << 5;
    QTest::newRow("red") << 0x0A03 << Red << 10;
    QTest::newRow("strength without a filter") << 0x0700 << 0 << 7;
    QTest::newRow("unknown filter") << 0x0207 << 7 << 2;
    QTest::newRow("all bits") << 0xFFFF << 255 << 255;
}

void TestColorWeakness::readBackSplitsTheBytes()
{
    QFETCH(int, value);
    QFETCH(int, mode);
    QFETCH(int, weakness);
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QVERIFY(bed.monitor().setByMenu(WeaknessCode, value));
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList{QStringLiteral("get 0xFD %1").arg(value)});
    QCOMPARE(bed.get(Module, "mode").toInt(), mode);
    QCOMPARE(bed.get(Module, "weakness").toInt(), weakness);
    QCOMPARE(bed.setting(QStringLiteral("LuColorWeakness/weakness")).toInt(), weakness);
    const QStringList log = bed.log();
    QVERIFY(log.contains(QStringLiteral("[LuColorWeakness] sync: \"TK30Z\"")));
    QVERIFY(log.contains(QStringLiteral("[LuColorWeakness] sync weakness changed: %1").arg(weakness)));
    QCOMPARE(log.filter(QStringLiteral("[LuColorWeakness] sync mode changed:")).size(), mode == 0 ? 0 : 1);
}

void TestColorWeakness::readBackReportsWhatChanged_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("on") << 0 << 0x0304 << QStringList{QStringLiteral("LuColorWeakness 25 on 1 [g3]")};
    QTest::newRow("off") << 0x0304 << 0x0300 << QStringList{QStringLiteral("LuColorWeakness 25 off 1 []")};
    QTest::newRow("filter without strength")
        << 0 << 0x0003 << QStringList{QStringLiteral("LuColorWeakness 25 on 1 [r0]")};
    QTest::newRow("other filter") << 0x0304 << 0x0303
                                  << QStringList{
                                         QStringLiteral("LuColorWeakness 25 on_update_setting 1 [r3]")};
    QTest::newRow("other strength") << 0x0304 << 0x0904
                                    << QStringList{
                                           QStringLiteral("LuColorWeakness 25 on_update_setting 1 [g9]")};
    QTest::newRow("strength while off")
        << 0 << 0x0100 << QStringList{QStringLiteral("LuColorWeakness 25 on_update_setting 1 [g1]")};
    QTest::newRow("nothing") << 0x0304 << 0x0304 << QStringList();
    QTest::newRow("unknown filter is on")
        << 0 << 0x0207 << QStringList{QStringLiteral("LuColorWeakness 25 on 1 [g2]")};
}

void TestColorWeakness::readBackReportsWhatChanged()
{
    QFETCH(int, before);
    QFETCH(int, after);
    QFETCH(QStringList, events);
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QVERIFY(bed.monitor().setByMenu(WeaknessCode, before));
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.monitor().setByMenu(WeaknessCode, after));
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.events(), events);
}

void TestColorWeakness::failedReadChangesNothing()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QVERIFY(bed.monitor().setByMenu(WeaknessCode, 0x0504));
    sim::Fault fault;
    fault.kind = sim::FaultKind::Nack;
    fault.code = WeaknessCode;
    bed.monitor().armFault(fault);
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "mode").toInt(), 0);
    QCOMPARE(bed.events(), QStringList());
}

void TestColorWeakness::readBackDoesNotAskTheColourMode()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    model.setColorMode(model.getColorModeByName(QStringLiteral("sRGB")));
    QVERIFY(bed.idle());
    // The forced read-back comes by itself.
    QVERIFY(bed.wire().contains(QStringLiteral("get 0xFD 0")));
}

void TestColorWeakness::firstConnectionReportsAFilter()
{
    SimulatedBed bed;
    QVERIFY(bed.monitor().setByMenu(WeaknessCode, 0x0403));
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuColorWeakness")),
             QStringList{QStringLiteral("LuColorWeakness 25 on 5 [r4]")});
    bed.hotplug();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuColorWeakness")), QStringList());
}

void TestColorWeakness::firstConnectionWithoutAFilterReportsNothing()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuColorWeakness")), QStringList());
}

void TestColorWeakness::launchRestores()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "mode", Green);
    bed.set(Module, "weakness", 6);
    QVERIFY(bed.idle());
    bed.destroy();
    QVERIFY(bed.monitor().setByMenu(WeaknessCode, 0));
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("0xFD")),
             (QStringList{QStringLiteral("set 0xFD 1540"), QStringLiteral("get 0xFD 1540")}));
    QCOMPARE(bed.events().filter(QStringLiteral("LuColorWeakness")),
             QStringList{QStringLiteral("LuColorWeakness 25 on 3 [g6]")});
    const QStringList log = bed.log();
    QVERIFY(!log.filter(QStringLiteral("[LuColorWeakness] apply mode:")).isEmpty());
    QVERIFY(log.contains(QStringLiteral("[LuColorWeakness] apply weakness: 6")));
    QSignalSpy mode(bed.module(Module), SIGNAL(modeChanged()));
    QSignalSpy weakness(bed.module(Module), SIGNAL(weaknessChanged()));
    QVERIFY(bed.apply());
    QCOMPARE(mode.count(), 1);
    QCOMPARE(weakness.count(), 1);
    bed.set(Module, "mode", 0);
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(bed.apply());
    QCOMPARE(bed.events().filter(QStringLiteral("LuColorWeakness")),
             QStringList{QStringLiteral("LuColorWeakness 25 off 3 []")});
}

void TestColorWeakness::pageVisitGivesItsEvents_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("weakness");
    QTest::addColumn<QStringList>("events");
    const QString name = QStringLiteral("LuColorWeakness 25 ");
    QTest::newRow("nothing") << Red << 3 << QStringList();
    QTest::newRow("other filter") << Green << 3
                                  << QStringList{name + QStringLiteral("on_update_setting 0 [g3]")};
    QTest::newRow("other strength") << Red << 8
                                    << QStringList{name + QStringLiteral("on_update_setting 0 [r8]")};
    QTest::newRow("off") << 0 << 0
                         << QStringList{name + QStringLiteral("off 0 []"),
                                        name + QStringLiteral("on_update_setting 0 [g0]")};
}

void TestColorWeakness::pageVisitGivesItsEvents()
{
    QFETCH(int, mode);
    QFETCH(int, weakness);
    QFETCH(QStringList, events);
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "mode", Red);
    bed.set(Module, "weakness", 3);
    QVERIFY(bed.idle());
    bed.forget();
    bed.module(Module)->takePropertySnapshot();
    bed.set(Module, "mode", mode);
    bed.set(Module, "weakness", weakness);
    QVERIFY(bed.idle());
    QCOMPARE(bed.events(), QStringList());
    bed.module(Module)->fireUpdateSettingEvent();
    QCOMPARE(bed.events(), events);
}

void TestColorWeakness::exitReportsAnActiveFilterAsOff()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.module(Module)->fireExitEvent();
    QCOMPARE(bed.events(), QStringList());
    bed.set(Module, "mode", Red);
    QVERIFY(bed.idle());
    bed.module(Module)->fireExitEvent();
    QCOMPARE(bed.events(), QStringList{QStringLiteral("LuColorWeakness 25 off 2 []")});
}

QTEST_MAIN(TestColorWeakness)
#include "tst_colorweakness.moc"
