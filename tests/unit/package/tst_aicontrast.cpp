// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <QSignalSpy>
#include <QTest>

namespace {

constexpr const char* Module = "LuAiContrast";
constexpr int ContrastCode = 0xF3;

/// A colour mode keeps the bus for half a second, and a second one waits for it: what comes meanwhile waits
/// as well.
void occupyQueue(SimulatedBed& bed)
{
    LuMonitorModel& model = bed.model();
    model.setColorMode(model.getColorModeByName(QStringLiteral("Cinema")));
    QTRY_COMPARE(bed.monitor().value(0xDC).value(), 0x32);
    model.setColorMode(model.getColorModeByName(QStringLiteral("Game")));
}

} // namespace

class TestAiContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void schemaDecidesWhoHasIt_data();
    void schemaDecidesWhoHasIt();
    void settingWritesOneOrZero();
    void settingIsNotPersistedAndFiresNothing();
    void presentValuePostsNothing();
    void failedWriteChangesNothing();
    void lastWordWinsWhileTheQueueIsBusy();
    void backToThePresentValueDropsTheWaitingJob();
    void monitorsChangeIsTakenStoredAndLogged();
    void onlyOneCountsAsOn_data();
    void onlyOneCountsAsOn();
    void failedReadChangesNothing();
    void forbiddenModeIsNotRead_data();
    void forbiddenModeIsNotRead();
    void modeChangeReadsBackAtOnce();
    void launchRestoresWhatTheMonitorReportedLast();
    void applyWritesAndEmitsWhateverTheWriteCameTo();
    void modelWithoutItSendsNothing();
};

void TestAiContrast::schemaDecidesWhoHasIt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("nameType");
    QTest::newRow("TK10") << QStringLiteral("TK10") << false << 1;
    QTest::newRow("TK20") << QStringLiteral("TK20") << true << 2;
    QTest::newRow("TK30") << QStringLiteral("TK30") << false << 1;
    QTest::newRow("TK30X") << QStringLiteral("TK30X") << false << 1;
    QTest::newRow("TK30Z") << QStringLiteral("TK30Z") << true << 2;
    QTest::newRow("TK40") << QStringLiteral("TK40") << false << 1;
    QTest::newRow("TK40X") << QStringLiteral("TK40X") << false << 1;
}

void TestAiContrast::schemaDecidesWhoHasIt()
{
    QFETCH(QString, name);
    QFETCH(bool, enabled);
    QFETCH(int, nameType);
    SimulatedBed bed(name);
    bed.launch();
    QCOMPARE(bed.get(Module, "aiContrastEnable").toBool(), enabled);
    QCOMPARE(bed.get(Module, "displayNameType").toInt(), nameType);
    QVERIFY(bed.idle());
}

void TestAiContrast::settingWritesOneOrZero()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    QSignalSpy spy(bed.module(Module), SIGNAL(stateChanged()));
    QVERIFY(bed.set(Module, "state", true));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{QStringLiteral("set 0xF3 1")});
    QCOMPARE(bed.log(), QStringList{QStringLiteral("[LuAiContrast] set AiContrast state:  true")});
    QCOMPARE(bed.get(Module, "state").toBool(), true);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.monitor().value(ContrastCode).value(), 1);
    bed.set(Module, "state", false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{QStringLiteral("set 0xF3 0")});
    QCOMPARE(spy.count(), 2);
}

void TestAiContrast::settingIsNotPersistedAndFiresNothing()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QVERIFY(!bed.setting(QStringLiteral("LuAiContrast/state")).isValid());
    QCOMPARE(bed.events(), QStringList());
}

void TestAiContrast::presentValuePostsNothing()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    QSignalSpy spy(bed.module(Module), SIGNAL(stateChanged()));
    bed.set(Module, "state", bed.get(Module, "state"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(spy.count(), 0);
}

void TestAiContrast::failedWriteChangesNothing()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    sim::Fault fault;
    fault.kind = sim::FaultKind::Nack;
    fault.code = ContrastCode;
    bed.monitor().armFault(fault);
    QSignalSpy spy(bed.module(Module), SIGNAL(stateChanged()));
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QVERIFY(bed.wire().contains(QStringLiteral("set 0xF3 1 failed")));
    QCOMPARE(bed.get(Module, "state").toBool(), false);
    QVERIFY(!bed.setting(QStringLiteral("LuAiContrast/state")).isValid());
    QCOMPARE(spy.count(), 0);
    QVERIFY(!bed.log().contains(QStringLiteral("[LuAiContrast] set AiContrast state:  true")));
}

void TestAiContrast::lastWordWinsWhileTheQueueIsBusy()
{
    SimulatedBed bed(QStringLiteral("TK30Z"), SimulatedBed::Timing::Real);
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    occupyQueue(bed);
    const bool target = !bed.get(Module, "state").toBool();
    bed.set(Module, "state", target);
    bed.set(Module, "state", !target);
    bed.set(Module, "state", target);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("set 0xF3")),
             QStringList{QStringLiteral("set 0xF3 %1").arg(int(target))});
    QCOMPARE(bed.get(Module, "state").toBool(), target);
}

void TestAiContrast::backToThePresentValueDropsTheWaitingJob()
{
    SimulatedBed bed(QStringLiteral("TK30Z"), SimulatedBed::Timing::Real);
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    occupyQueue(bed);
    bed.set(Module, "state", true);
    bed.set(Module, "state", false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("set 0xF3")), QStringList());
    QCOMPARE(bed.get(Module, "state").toBool(), false);
}

void TestAiContrast::monitorsChangeIsTakenStoredAndLogged()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QVERIFY(bed.monitor().setByMenu(ContrastCode, 1));
    bed.forget();
    QSignalSpy spy(bed.module(Module), SIGNAL(stateChanged()));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList{QStringLiteral("get 0xF3 1")});
    QCOMPARE(bed.get(Module, "state").toBool(), true);
    QCOMPARE(bed.setting(QStringLiteral("LuAiContrast/state")).toBool(), true);
    QCOMPARE(bed.log(),
             (QStringList{QStringLiteral("[LuAiContrast] sync: \"TK30Z\""),
                          QStringLiteral("[LuAiContrast] sync LuAiContrast state changed: true")}));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.events(), QStringList());
    QVERIFY(bed.sync(Module));
    QCOMPARE(spy.count(), 1);
}

void TestAiContrast::onlyOneCountsAsOn_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("on");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("2") << 2 << false;
    QTest::newRow("256") << 256 << false;
    QTest::newRow("65535") << 65535 << false;
}

void TestAiContrast::onlyOneCountsAsOn()
{
    QFETCH(int, value);
    QFETCH(bool, on);
    SimulatedBed bed;
    bed.launch();
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QVERIFY(bed.monitor().setByMenu(ContrastCode, value));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "state").toBool(), on);
}

void TestAiContrast::failedReadChangesNothing()
{
    SimulatedBed bed;
    bed.launch();
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    sim::Fault fault;
    fault.kind = sim::FaultKind::Checksum;
    fault.code = ContrastCode;
    bed.monitor().armFault(fault);
    bed.monitor().setByMenu(ContrastCode, 0);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "state").toBool(), true);
    bed.monitor().clearFaults();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.get(Module, "state").toBool(), false);
}

void TestAiContrast::forbiddenModeIsNotRead_data()
{
    QTest::addColumn<QString>("mode");
    QTest::newRow("sRGB") << QStringLiteral("sRGB");
    QTest::newRow("HDR") << QStringLiteral("HDR");
}

void TestAiContrast::forbiddenModeIsNotRead()
{
    QFETCH(QString, mode);
    SimulatedBed bed;
    bed.launch();
    bed.model().setColorMode(bed.model().getColorModeByName(mode));
    QVERIFY(bed.idle());
    QVERIFY(bed.model().colorMode());
    QCOMPARE(bed.model().colorMode()->displayName(), mode);
    bed.forget();
    const std::unique_ptr<LuSyncTasks> tasks(bed.module(Module)->syncPeriodically());
    QVERIFY(!tasks);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList());
}

void TestAiContrast::modeChangeReadsBackAtOnce()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.model().setColorMode(bed.model().getColorModeByName(QStringLiteral("Cinema")));
    QVERIFY(bed.idle());
    const QStringList wire = bed.wire();
    QCOMPARE(wire.first(), QStringLiteral("set 0xDC 50"));
    QCOMPARE(wire.filter(QStringLiteral("get 0xF3")).size(), 1);
}

void TestAiContrast::launchRestoresWhatTheMonitorReportedLast()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    // The monitor reports on, and this is what is kept; then the user turns it off, unseen by any read-back.
    bed.monitor().setByMenu(ContrastCode, 1);
    QVERIFY(bed.sync(Module));
    bed.set(Module, "state", false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.setting(QStringLiteral("LuAiContrast/state")).toBool(), true);
    bed.forget();
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("0xF3")).first(), QStringLiteral("set 0xF3 1"));
    QVERIFY(bed.log().contains(QStringLiteral("[LuAiContrast] apply LuAiContrast state: true")));
}

void TestAiContrast::applyWritesAndEmitsWhateverTheWriteCameTo()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    sim::Fault fault;
    fault.kind = sim::FaultKind::Nack;
    fault.code = ContrastCode;
    fault.op = sim::Op::Set;
    bed.monitor().armFault(fault);
    bed.forget();
    QSignalSpy spy(bed.module(Module), SIGNAL(stateChanged()));
    QVERIFY(bed.apply());
    QVERIFY(bed.wire().contains(QStringLiteral("set 0xF3 0 failed")));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.events().filter(QStringLiteral("LuAiContrast")), QStringList());
}

void TestAiContrast::modelWithoutItSendsNothing()
{
    SimulatedBed bed(QStringLiteral("TK10"));
    bed.launch();
    QVERIFY(bed.idle());
    bed.storeSetting(QStringLiteral("LuAiContrast/state"), true);
    bed.relaunch();
    QVERIFY(bed.idle());
    QVERIFY(bed.apply());
    QVERIFY(bed.sync());
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "state").toBool(), false);
    QCOMPARE(bed.wire().filter(QStringLiteral("0xF3")), QStringList());
}

QTEST_MAIN(TestAiContrast)
#include "tst_aicontrast.moc"
