// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <LuShared/LuSyncTasks.h>
#include <ZrCore/ZrDispatch.h>

#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

constexpr const char* Module = "LuAutoPivot";
constexpr int OrientationCode = 0xAA;

services::SimulatedServices& desktop()
{
    return TestBed::instance().services();
}

} // namespace

class TestAutoPivot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void schemaDecidesWhoHasTheSensor_data();
    void schemaDecidesWhoHasTheSensor();
    void initialSyncTakesTheDesktopsRotation();
    void choosingARotationTurnsTheDesktop();
    void presentRotationDoesNothing();
    void landscapeFollowsTheRotation_data();
    void landscapeFollowsTheRotation();
    void desktopsOwnChangeIsTakenButNotStored();
    void switchingStoresEmitsAndReports();
    void sensorTurnsTheDesktop_data();
    void sensorTurnsTheDesktop();
    void halfTurnIsUndoneByTheSensor();
    void failedReadOfTheSensorTurnsNothing();
    void offIsNotRead();
    void switchedOffDuringARoundTheRotationIsTheUsers();
    void onlyRotationsOfAScreenAreTaken();
    void rotationNeverChosenIsLeftAlone_data();
    void rotationNeverChosenIsLeftAlone();
    void applyWithoutTheSensorIsSilent();
    void applyOffRestoresTheRotation();
    void applyOnLeavesTheDesktopAlone();
    void firstConnectionReportsOff();
    void firstConnectionOfAModelWithoutSensorReportsNothing();
    void pageVisitGivesOneEvent();
    void pageVisitWithTheSensorOnGivesNone();
    void settingsAreFoundAgain();
};

void TestAutoPivot::init()
{
    services::Error error;
    QVERIFY(desktop().set(QStringLiteral("pivot"), 0, &error));
}

void TestAutoPivot::schemaDecidesWhoHasTheSensor_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("TK10") << QStringLiteral("TK10") << true;
    QTest::newRow("TK20") << QStringLiteral("TK20") << false;
    QTest::newRow("TK30") << QStringLiteral("TK30") << false;
    QTest::newRow("TK30X") << QStringLiteral("TK30X") << false;
    QTest::newRow("TK30Z") << QStringLiteral("TK30Z") << true;
    QTest::newRow("TK40") << QStringLiteral("TK40") << true;
    QTest::newRow("TK40X") << QStringLiteral("TK40X") << true;
}

void TestAutoPivot::schemaDecidesWhoHasTheSensor()
{
    QFETCH(QString, name);
    QFETCH(bool, enabled);
    SimulatedBed bed(name);
    bed.launch();
    QCOMPARE(bed.get(Module, "autoPivotEnable").toBool(), enabled);
    QVERIFY(bed.idle());
}

void TestAutoPivot::initialSyncTakesTheDesktopsRotation()
{
    QVERIFY(desktop().set(QStringLiteral("pivot"), 180));
    SimulatedBed bed;
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "currentPivot").toInt(), 180);
    const QStringList log = bed.log();
    QVERIFY(log.contains(QStringLiteral("[LuAutoPivot] sync orientation: \"TK30Z\"")));
    QVERIFY(log.contains(QStringLiteral("[LuAutoPivot] sync orientation changed: 180")));
    QVERIFY(!bed.setting(QStringLiteral("LuAutoPivot/degree")).isValid());
}

void TestAutoPivot::choosingARotationTurnsTheDesktop()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    QSignalSpy pivot(bed.module(Module), SIGNAL(currentPivotChanged()));
    QSignalSpy landscape(bed.module(Module), SIGNAL(isLandscapeChanged()));
    bed.set(Module, "currentPivot", 90);
    // The setter runs on the caller's thread: nothing is to be waited for.
    QCOMPARE(bed.get(Module, "currentPivot").toInt(), 90);
    QCOMPARE(desktop().get(bed.model().id() + QStringLiteral("/pivot")).toInt(), 90);
    QCOMPARE(bed.setting(QStringLiteral("LuAutoPivot/degree")).toInt(), 90);
    QCOMPARE(pivot.count(), 1);
    QCOMPARE(landscape.count(), 1);
    QVERIFY(bed.log().contains(QStringLiteral("[LuAutoPivot] set current pivot: 90")));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")), QStringList());
    QCOMPARE(pivot.count(), 1);
}

void TestAutoPivot::presentRotationDoesNothing()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QSignalSpy pivot(bed.module(Module), SIGNAL(currentPivotChanged()));
    bed.set(Module, "currentPivot", 0);
    QVERIFY(bed.idle());
    QCOMPARE(pivot.count(), 0);
    QVERIFY(!bed.setting(QStringLiteral("LuAutoPivot/degree")).isValid());
}

void TestAutoPivot::landscapeFollowsTheRotation_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<bool>("landscape");
    QTest::newRow("0") << 0 << true;
    QTest::newRow("90") << 90 << false;
    QTest::newRow("180") << 180 << true;
    QTest::newRow("270") << 270 << false;
}

void TestAutoPivot::landscapeFollowsTheRotation()
{
    QFETCH(int, degrees);
    QFETCH(bool, landscape);
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "currentPivot", degrees);
    QCOMPARE(bed.get(Module, "isLandscape").toBool(), landscape);
}

void TestAutoPivot::desktopsOwnChangeIsTakenButNotStored()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "currentPivot", 270);
    QVERIFY(bed.idle());
    QSignalSpy pivot(bed.module(Module), SIGNAL(currentPivotChanged()));
    QVERIFY(desktop().set(bed.model().id() + QStringLiteral("/pivot"), 180));
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "currentPivot").toInt(), 180);
    QCOMPARE(pivot.count(), 1);
    QCOMPARE(bed.setting(QStringLiteral("LuAutoPivot/degree")).toInt(), 270);
}

void TestAutoPivot::switchingStoresEmitsAndReports()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "currentPivot", 90);
    bed.forget();
    QSignalSpy spy(bed.module(Module), SIGNAL(stateChanged()));
    bed.set(Module, "state", true);
    bed.set(Module, "state", true);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.setting(QStringLiteral("LuAutoPivot/state")).toBool(), true);
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")),
             QStringList{QStringLiteral("LuAutoPivot 6 on 0 []")});
    bed.set(Module, "state", false);
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")),
             QStringList{QStringLiteral("LuAutoPivot 6 off 0 [90]")});
    QCOMPARE(bed.setting(QStringLiteral("LuAutoPivot/state")).toBool(), false);
}

void TestAutoPivot::sensorTurnsTheDesktop_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("degrees");
    QTest::newRow("horizontal") << 1 << 0;
    QTest::newRow("vertical") << 2 << 90;
    QTest::newRow("reverse vertical") << 3 << 270;
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("unknown") << 4 << 0;
    QTest::newRow("far out") << 65535 << 0;
}

void TestAutoPivot::sensorTurnsTheDesktop()
{
    QFETCH(int, value);
    QFETCH(int, degrees);
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "currentPivot", degrees == 90 ? 270 : 90);
    bed.set(Module, "state", true);
    QVERIFY(bed.monitor().setByMenu(OrientationCode, value));
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList{QStringLiteral("get 0xAA %1").arg(value)});
    QVERIFY(bed.log().contains(QStringLiteral("[LuAutoPivot] sync: \"TK30Z\"")));
    QCOMPARE(bed.get(Module, "currentPivot").toInt(), degrees);
    QCOMPARE(desktop().get(bed.model().id() + QStringLiteral("/pivot")).toInt(), degrees);
    QCOMPARE(bed.setting(QStringLiteral("LuAutoPivot/degree")).toInt(), degrees);
}

void TestAutoPivot::halfTurnIsUndoneByTheSensor()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "state", true);
    bed.set(Module, "currentPivot", 180);
    QVERIFY(bed.monitor().setByMenu(OrientationCode, 1));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "currentPivot").toInt(), 0);
}

void TestAutoPivot::failedReadOfTheSensorTurnsNothing()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "state", true);
    bed.set(Module, "currentPivot", 90);
    sim::Fault fault;
    fault.kind = sim::FaultKind::Nack;
    fault.code = OrientationCode;
    bed.monitor().armFault(fault);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "currentPivot").toInt(), 90);
}

void TestAutoPivot::offIsNotRead()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList());
}

void TestAutoPivot::switchedOffDuringARoundTheRotationIsTheUsers()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "state", true);
    QVERIFY(bed.sync(Module));
    // A round asks all modules for their steps first, and comes to this one later.
    LuSyncTasks* tasks = bed.module(Module)->syncPeriodically();
    QVERIFY(tasks);
    const std::unique_ptr<LuSyncTasks> owner(tasks);
    bed.set(Module, "state", false);
    bed.set(Module, "currentPivot", 180);
    const auto steps = tasks->takeTasks();
    bed.model().dispatch()->post(nullptr, [&steps] { steps.front()(); });
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "currentPivot").toInt(), 180);
    QCOMPARE(desktop().get(bed.model().id() + QStringLiteral("/pivot")).toInt(), 180);
}

void TestAutoPivot::onlyRotationsOfAScreenAreTaken()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.set(Module, "currentPivot", 45);
    QCOMPARE(bed.get(Module, "currentPivot").toInt(), 0);
    QVERIFY(!bed.setting(QStringLiteral("LuAutoPivot/degree")).isValid());
    QVERIFY(bed.log().contains(QStringLiteral("[LuAutoPivot] no screen can be rotated by 45 degrees")));
    bed.storeSetting(QStringLiteral("LuAutoPivot/degree"), 45);
    bed.relaunch();
    QCOMPARE(bed.get(Module, "currentPivot").toInt(), 0);
    QVERIFY(bed.idle());
}

void TestAutoPivot::rotationNeverChosenIsLeftAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("with the sensor") << QStringLiteral("TK30Z");
    QTest::newRow("without") << QStringLiteral("TK30");
}

void TestAutoPivot::rotationNeverChosenIsLeftAlone()
{
    QFETCH(QString, name);
    SimulatedBed bed(name);
    bed.launch();
    QVERIFY(bed.idle());
    // Turned by the desktop's own settings, and met again.
    QVERIFY(desktop().set(bed.model().id() + QStringLiteral("/pivot"), 90));
    QVERIFY(bed.idle());
    const QString id = bed.model().id();
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(desktop().get(id + QStringLiteral("/pivot")).toInt(), 90);
    QCOMPARE(bed.get(Module, "currentPivot").toInt(), 90);
}

void TestAutoPivot::applyWithoutTheSensorIsSilent()
{
    SimulatedBed bed(QStringLiteral("TK30"));
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "currentPivot", 270);
    QVERIFY(bed.idle());
    QVERIFY(desktop().set(QStringLiteral("pivot"), 0));
    QVERIFY(bed.idle());
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(desktop().get(bed.model().id() + QStringLiteral("/pivot")).toInt(), 270);
    bed.forget();
    QSignalSpy spy(bed.module(Module), SIGNAL(currentPivotChanged()));
    QSignalSpy state(bed.module(Module), SIGNAL(stateChanged()));
    QVERIFY(bed.apply());
    QVERIFY(bed.log().contains(QStringLiteral("[LuAutoPivot] apply pivot: 270")));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(state.count(), 0);
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")), QStringList());
}

void TestAutoPivot::applyOffRestoresTheRotation()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "currentPivot", 90);
    QVERIFY(bed.idle());
    bed.destroy();
    QVERIFY(desktop().set(QStringLiteral("pivot"), 0));
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(desktop().get(bed.model().id() + QStringLiteral("/pivot")).toInt(), 90);
    QVERIFY(bed.log().contains(QStringLiteral("[LuAutoPivot] apply state: false pivot: 90")));
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")),
             QStringList{QStringLiteral("LuAutoPivot 6 off 3 [90]")});
    QSignalSpy pivot(bed.module(Module), SIGNAL(currentPivotChanged()));
    QSignalSpy landscape(bed.module(Module), SIGNAL(isLandscapeChanged()));
    QSignalSpy state(bed.module(Module), SIGNAL(stateChanged()));
    QVERIFY(bed.apply());
    QCOMPARE(pivot.count(), 1);
    QCOMPARE(landscape.count(), 1);
    QCOMPARE(state.count(), 1);
}

void TestAutoPivot::applyOnLeavesTheDesktopAlone()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.storeSetting(QStringLiteral("LuAutoPivot/state"), true);
    bed.storeSetting(QStringLiteral("LuAutoPivot/degree"), 90);
    bed.destroy();
    QVERIFY(bed.monitor().setByMenu(OrientationCode, 3));
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")),
             QStringList{QStringLiteral("LuAutoPivot 6 on 3 []")});
    // The sensor decides at the first round.
    QCOMPARE(desktop().get(bed.model().id() + QStringLiteral("/pivot")).toInt(), 270);
}

void TestAutoPivot::firstConnectionReportsOff()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")),
             QStringList{QStringLiteral("LuAutoPivot 6 off 5 [0]")});
    bed.hotplug();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")), QStringList());
}

void TestAutoPivot::firstConnectionOfAModelWithoutSensorReportsNothing()
{
    SimulatedBed bed(QStringLiteral("TK20"));
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")), QStringList());
}

void TestAutoPivot::pageVisitGivesOneEvent()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    LuModelModuleInterface* module = bed.module(Module);
    bed.forget();
    module->takePropertySnapshot();
    bed.set(Module, "currentPivot", 90);
    bed.set(Module, "currentPivot", 270);
    module->fireUpdateSettingEvent();
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")),
             QStringList{QStringLiteral("LuAutoPivot 6 off_update_setting 0 [270]")});
    module->takePropertySnapshot();
    bed.set(Module, "currentPivot", 90);
    bed.set(Module, "currentPivot", 270);
    module->fireUpdateSettingEvent();
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")), QStringList());
    module->fireUpdateSettingEvent();
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")), QStringList());
}

void TestAutoPivot::pageVisitWithTheSensorOnGivesNone()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "state", true);
    bed.forget();
    bed.module(Module)->takePropertySnapshot();
    bed.set(Module, "currentPivot", 90);
    bed.module(Module)->fireUpdateSettingEvent();
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot")), QStringList());
}

void TestAutoPivot::settingsAreFoundAgain()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.set(Module, "state", true);
    bed.set(Module, "currentPivot", 90);
    bed.destroy();
    bed.monitor().setByMenu(OrientationCode, 2);
    bed.launch();
    QCOMPARE(bed.get(Module, "state").toBool(), true);
    QCOMPARE(bed.get(Module, "isLandscape").toBool(), false);
    QVERIFY(bed.idle());
}

QTEST_MAIN(TestAutoPivot)
#include "tst_autopivot.moc"
