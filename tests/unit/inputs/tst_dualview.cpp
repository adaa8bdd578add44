// SPDX-License-Identifier: Apache-2.0
#include "InputsBed.h"

#include <lushared/LuModelHost.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Module = "LuDualView";
constexpr int DualViewCode = 0xF4;

using Rows = QList<SchemaOverride::Row>;

const Rows Plain{{u"Dualview"_s, u"Dualview"_s, u"on"_s}, {u"DualviewPlus"_s, u"DualviewPlus"_s, {}}};

QString modeOf(SimulatedBed& bed)
{
    const auto* node = bed.get(Module, "currentDualMode").value<LuVCPNode*>();
    return node ? node->displayName() : QString();
}

void setMode(SimulatedBed& bed, const QString& name)
{
    bed.set(Module, "currentDualMode", QVariant::fromValue(bed.model().getColorModeByName(name)));
}

QStringList eventsOf(SimulatedBed& bed)
{
    return bed.events().filter(u"LuDualView"_s);
}

} // namespace

class TestDualView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void variantsComeFromTheSchema_data();
    void variantsComeFromTheSchema();
    void switchingWritesTheSecondMode_data();
    void switchingWritesTheSecondMode();
    void turningOnWithoutAModeIsRefused();
    void choosingAModeWritesAlsoWhileOff();
    void choosingAModeWhileOnReportsInThePlainVariant();
    void noModeIsNotWritten();
    void aReadingIsTaken_data();
    void aReadingIsTaken();
    void aFailedReadChangesNothing();
    void eventsOfTheReadBack_data();
    void eventsOfTheReadBack();
    void theFirstConnectionReportsAnOpenView_data();
    void theFirstConnectionReportsAnOpenView();
    void aChangeOfTheColourModeReportsInThePlainVariant();
    void theLaunchRestores_data();
    void theLaunchRestores();
    void aStoredModeThatIsGoneGivesTheFirst();
    void onlyThePlainVariantReportsItsExit();
    void otherModelsSendNothing_data();
    void otherModelsSendNothing();
};

void TestDualView::variantsComeFromTheSchema_data()
{
    QTest::addColumn<bool>("plain");
    QTest::addColumn<bool>("plus");
    for (const char* model : {"TK10", "TK20", "TK30", "TK30X"})
        QTest::newRow(model) << false << false;
    for (const char* model : {"TK30Z", "TK40", "TK40X"})
        QTest::newRow(model) << false << true;
}

void TestDualView::variantsComeFromTheSchema()
{
    QFETCH(bool, plain);
    QFETCH(bool, plus);
    SimulatedBed bed(QString::fromLatin1(QTest::currentDataTag()));
    bed.launch();
    QCOMPARE(bed.get(Module, "dualModeEnable").toBool(), plain);
    QCOMPARE(bed.get(Module, "dualModePlusEnable").toBool(), plus);
    QVERIFY(bed.idle());
}

void TestDualView::switchingWritesTheSecondMode_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<QStringList>("on");
    QTest::addColumn<QStringList>("off");
    QTest::newRow("plain") << Plain << QStringList{u"LuDualView 4 on 0 [User,Cinema]"_s}
                           << QStringList{u"LuDualView 4 off 0 []"_s};
    QTest::newRow("plus") << Rows() << QStringList{u"LuDualView 32 on 0 []"_s}
                          << QStringList{u"LuDualView 32 off 0 []"_s};
}

void TestDualView::switchingWritesTheSecondMode()
{
    QFETCH(Rows, rows);
    QFETCH(QStringList, on);
    QFETCH(QStringList, off);
    const SchemaOverride schema(u"TK30Z"_s, rows);
    SimulatedBed bed;
    bed.storeSetting(u"LuDualView/mode"_s, u"Cinema"_s);
    QVERIFY(launchAndForget(bed));
    QCOMPARE(modeOf(bed), u"Cinema"_s);
    SignalRecorder recorder(bed.module(Module));
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xF4 %1"_s.arg(0x3201)});
    QCOMPARE(eventsOf(bed), on);
    QCOMPARE(recorder.take(), QStringList{u"stateChanged"_s});
    QCOMPARE(bed.setting(u"LuDualView/state"_s).toBool(), true);
    QVERIFY(bed.log().contains(u"[LuDualView] setState: true"_s));
    bed.set(Module, "state", false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xF4 0"_s});
    QCOMPARE(eventsOf(bed), off);
    // The mode stays for the next time.
    QCOMPARE(modeOf(bed), u"Cinema"_s);
}

void TestDualView::turningOnWithoutAModeIsRefused()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "currentDualMode", QVariant::fromValue<LuVCPNode*>(nullptr));
    QVERIFY(bed.idle());
    bed.forget();
    bed.set(Module, "state", true);
    QVERIFY(bed.idle());
    QVERIFY(!bed.get(Module, "state").toBool());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(eventsOf(bed), QStringList());
    QVERIFY(bed.log().contains(u"[LuDualView] m_currentDualMode is null in setState"_s));
    // Turning off is always allowed.
    QVERIFY(bed.monitor().setByMenu(DualViewCode, 0x7701));
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.get(Module, "state").toBool());
    bed.forget();
    bed.set(Module, "state", false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xF4 0"_s});
}

void TestDualView::choosingAModeWritesAlsoWhileOff()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    SignalRecorder recorder(bed.module(Module));
    setMode(bed, u"ePaper"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xF4 %1"_s.arg(0x1F01)});
    QCOMPARE(recorder.take(), QStringList{u"currentDualModeChanged"_s});
    QCOMPARE(bed.setting(u"LuDualView/mode"_s).toString(), u"ePaper"_s);
    QCOMPARE(eventsOf(bed), QStringList());
    QVERIFY(!bed.get(Module, "state").toBool());
    QVERIFY(bed.log().contains(u"[LuDualView] setCurrentDualMode: \"ePaper\""_s));
    // The monitor shows it now, and the next reading says so.
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.get(Module, "state").toBool());
    bed.forget();
    setMode(bed, u"ePaper"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestDualView::choosingAModeWhileOnReportsInThePlainVariant()
{
    for (const bool plain : {true, false}) {
        const SchemaOverride schema(u"TK30Z"_s, plain ? Plain : Rows());
        SimulatedBed bed;
        QVERIFY(launchAndForget(bed));
        bed.set(Module, "state", true);
        QVERIFY(bed.idle());
        bed.forget();
        setMode(bed, u"Game"_s);
        QVERIFY(bed.idle());
        QCOMPARE(eventsOf(bed),
                 plain ? QStringList{u"LuDualView 4 on_update_setting 0 [User,Game]"_s} : QStringList());
    }
}

void TestDualView::noModeIsNotWritten()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    SignalRecorder recorder(bed.module(Module));
    bed.set(Module, "currentDualMode", QVariant::fromValue<LuVCPNode*>(nullptr));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(recorder.take(), QStringList{u"currentDualModeChanged"_s});
    QCOMPARE(modeOf(bed), QString());
}

void TestDualView::aReadingIsTaken_data()
{
    QTest::addColumn<int>("reading");
    QTest::addColumn<bool>("on");
    QTest::addColumn<QString>("mode");
    QTest::newRow("on") << 0x2801 << true << u"Game"_s;
    QTest::newRow("off") << 0 << false << u"Cinema"_s;
    QTest::newRow("off with a mode") << 0x2800 << false << u"Cinema"_s;
    QTest::newRow("a mode that the model lacks") << 0x7701 << true << u"Cinema"_s;
    QTest::newRow("another low byte") << 0x2802 << true << u"Cinema"_s;
}

void TestDualView::aReadingIsTaken()
{
    QFETCH(int, reading);
    QFETCH(bool, on);
    QFETCH(QString, mode);
    SimulatedBed bed;
    bed.storeSetting(u"LuDualView/mode"_s, u"Cinema"_s);
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "state", !on);
    QVERIFY(bed.idle());
    QVERIFY(bed.monitor().setByMenu(DualViewCode, reading));
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList{u"get 0xF4 %1"_s.arg(reading)});
    QCOMPARE(bed.get(Module, "state").toBool(), on);
    QCOMPARE(bed.setting(u"LuDualView/state"_s).toBool(), on);
    QCOMPARE(modeOf(bed), mode);
    QCOMPARE(bed.setting(u"LuDualView/mode"_s).toString(), mode);
    const QStringList log = bed.log();
    QVERIFY(log.contains(u"[LuDualView] sync: \"TK30Z\""_s));
    QVERIFY(log.contains(u"[LuDualView] sync state changed: %1"_s.arg(on ? u"true"_s : u"false"_s)));
    QCOMPARE(log.contains(u"[LuDualView] sync dualMode changed: \"Game\""_s), mode == u"Game");
}

void TestDualView::aFailedReadChangesNothing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(bed.monitor().setByMenu(DualViewCode, 0x2801));
    sim::Fault fault;
    fault.code = DualViewCode;
    bed.monitor().armFault(fault);
    QVERIFY(bed.sync(Module));
    QVERIFY(!bed.get(Module, "state").toBool());
    QCOMPARE(eventsOf(bed), QStringList());
}

void TestDualView::eventsOfTheReadBack_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<bool>("wasOn");
    QTest::addColumn<int>("reading");
    QTest::addColumn<QStringList>("events");
    const QStringList none;
    QTest::newRow("plain, opened") << Plain << false << 0x2801
                                   << QStringList{u"LuDualView 4 on 1 [User,Game]"_s};
    QTest::newRow("plain, closed") << Plain << true << 0 << QStringList{u"LuDualView 4 off 1 []"_s};
    QTest::newRow("plain, another mode")
        << Plain << true << 0x2801 << QStringList{u"LuDualView 4 on_update_setting 1 [User,Game]"_s};
    QTest::newRow("plain, nothing") << Plain << true << 0x3201 << none;
    QTest::newRow("plus, opened") << Rows() << false << 0x2801 << QStringList{u"LuDualView 32 on 1 []"_s};
    QTest::newRow("plus, closed") << Rows() << true << 0 << QStringList{u"LuDualView 32 off 1 []"_s};
    QTest::newRow("plus, another mode") << Rows() << true << 0x2801 << none;
}

void TestDualView::eventsOfTheReadBack()
{
    QFETCH(Rows, rows);
    QFETCH(bool, wasOn);
    QFETCH(int, reading);
    QFETCH(QStringList, events);
    const SchemaOverride schema(u"TK30Z"_s, rows);
    SimulatedBed bed;
    bed.storeSetting(u"LuDualView/mode"_s, u"Cinema"_s);
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "state", wasOn);
    QVERIFY(bed.idle());
    QVERIFY(bed.monitor().setByMenu(DualViewCode, reading));
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(eventsOf(bed), events);
}

void TestDualView::theFirstConnectionReportsAnOpenView_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<int>("reading");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("plain") << Plain << 0x2801 << QStringList{u"LuDualView 4 on 5 [User,Game]"_s};
    QTest::newRow("plus") << Rows() << 0x2801 << QStringList{u"LuDualView 32 on 5 []"_s};
    QTest::newRow("off") << Rows() << 0 << QStringList();
}

void TestDualView::theFirstConnectionReportsAnOpenView()
{
    QFETCH(Rows, rows);
    QFETCH(int, reading);
    QFETCH(QStringList, events);
    const SchemaOverride schema(u"TK30Z"_s, rows);
    SimulatedBed bed;
    QVERIFY(bed.monitor().setByMenu(DualViewCode, reading));
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(eventsOf(bed), events);
}

void TestDualView::aChangeOfTheColourModeReportsInThePlainVariant()
{
    for (const bool plain : {true, false}) {
        const SchemaOverride schema(u"TK30Z"_s, plain ? Plain : Rows());
        SimulatedBed bed;
        QVERIFY(launchAndForget(bed));
        bed.model().setColorMode(bed.model().getColorModeByName(u"Cinema"_s));
        QVERIFY(bed.idle());
        QCOMPARE(eventsOf(bed), QStringList());
        setMode(bed, u"Game"_s);
        bed.set(Module, "state", true);
        QVERIFY(bed.idle());
        bed.forget();
        bed.model().setColorMode(bed.model().getColorModeByName(u"ePaper"_s));
        QVERIFY(bed.idle());
        QCOMPARE(eventsOf(bed),
                 plain ? QStringList{u"LuDualView 4 on_update_setting 0 [ePaper,Game]"_s} : QStringList());
    }
}

void TestDualView::theLaunchRestores_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<bool>("on");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("plain, on") << Plain << true << QStringList{u"LuDualView 4 on 3 [User,Game]"_s};
    QTest::newRow("plain, off") << Plain << false << QStringList{u"LuDualView 4 off 3 []"_s};
    QTest::newRow("plus, on") << Rows() << true << QStringList{u"LuDualView 32 on 3 []"_s};
    QTest::newRow("plus, off") << Rows() << false << QStringList{u"LuDualView 32 off 3 []"_s};
}

void TestDualView::theLaunchRestores()
{
    QFETCH(Rows, rows);
    QFETCH(bool, on);
    QFETCH(QStringList, events);
    const SchemaOverride schema(u"TK30Z"_s, rows);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.storeSetting(u"LuDualView/state"_s, on);
    bed.storeSetting(u"LuDualView/mode"_s, u"Game"_s);
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(writesOf(u"0xF4"_s, bed.wire()), QStringList{u"0xF4 %1"_s.arg(on ? 0x2801 : 0)});
    QCOMPARE(eventsOf(bed), events);
    QVERIFY(bed.log().contains(
        u"[LuDualView] apply state: %1 mode: \"Game\""_s.arg(on ? u"true"_s : u"false"_s)));
    SignalRecorder recorder(bed.module(Module));
    QVERIFY(bed.apply());
    QCOMPARE(recorder.take(), (QStringList{u"currentDualModeChanged"_s, u"stateChanged"_s}));
}

void TestDualView::aStoredModeThatIsGoneGivesTheFirst()
{
    SimulatedBed bed;
    bed.storeSetting(u"LuDualView/mode"_s, u"Rec.709"_s);
    bed.launch();
    QCOMPARE(modeOf(bed), bed.model().colorModeList().first()->displayName());
    QVERIFY(bed.idle());
}

void TestDualView::onlyThePlainVariantReportsItsExit()
{
    for (const bool plain : {true, false}) {
        const SchemaOverride schema(u"TK30Z"_s, plain ? Plain : Rows());
        SimulatedBed bed;
        QVERIFY(launchAndForget(bed));
        LuModelHost::fireExitEvents(&bed.model());
        QCOMPARE(eventsOf(bed), QStringList());
        bed.set(Module, "state", true);
        QVERIFY(bed.idle());
        bed.forget();
        LuModelHost::fireExitEvents(&bed.model());
        QCOMPARE(eventsOf(bed), plain ? QStringList{u"LuDualView 4 off 2 []"_s} : QStringList());
    }
}

void TestDualView::otherModelsSendNothing_data()
{
    QTest::addColumn<QString>("model");
    for (const char* model : {"TK10", "TK20", "TK30", "TK30X", "unsupported"})
        QTest::newRow(model) << QString::fromLatin1(model);
}

void TestDualView::otherModelsSendNothing()
{
    SimulatedBed bed(QString::fromLatin1(QTest::currentDataTag()));
    bed.storeSetting(u"LuDualView/state"_s, true);
    QVERIFY(launchAndForget(bed));
    QVERIFY(!bed.get(Module, "state").toBool());
    QCOMPARE(modeOf(bed), QString());
    bed.set(Module, "state", true);
    setMode(bed, u"Cinema"_s);
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.apply());
    QCOMPARE(LuModelHost::syncTaskCount(bed.module(Module)), std::nullopt);
    QCOMPARE(bed.wire().filter(u"0xF4"_s), QStringList());
    QCOMPARE(eventsOf(bed), QStringList());
}

QTEST_MAIN(TestDualView)
#include "tst_dualview.moc"
