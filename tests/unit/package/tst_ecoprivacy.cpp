// SPDX-License-Identifier: Apache-2.0
#include "feature_bed.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int TimeCode = 0xE7;
constexpr int ModeCode = 0xE8;
constexpr int SensitivityCode = 0xE9;
constexpr int TypeNormal = 1;
constexpr int TypeBackGlow = 2;
constexpr int Both = 1;
constexpr int DisplayOnly = 2;

struct Bed : FeatureBed
{
    explicit Bed(const QString& name = u"TK30Z"_s, Timing timing = Timing::Fast)
        : FeatureBed("LuEcoPrivacy", {TimeCode, ModeCode, SensitivityCode}, name, timing)
    {
    }

    /// Twenty seconds, and the middle reach that the monitor comes with.
    void beginAt(bool state) { beginWith({{"state", true}, {"activeTime", 20}, {"state", state}}); }
    bool press(bool repeated = false)
    {
        const QKeyEvent event(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), repeated);
        for (LuShortcutAction* action : model().shortcutActions()) {
            if (action->name() == LuShortcutAction::EcoPrivacy_TurnOnOff) {
                action->setActive(true);
                return action->handle(event);
            }
        }
        return false;
    }
    QList<int> times()
    {
        QList<int> result;
        const QVariant list = get("LuEcoPrivacy", "activeTimeList");
        for (const QVariant& time : list.toList())
            result.append(time.toInt());
        return result;
    }
};

} // namespace

class TestEcoPrivacy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSchemaDecides_data();
    void theSchemaDecides();
    void optionsAreKnownNumbersInTheirOrder_data();
    void optionsAreKnownNumbersInTheirOrder();
    void withoutTheFeatureNothingHappens();
    void stateIsWrittenStoredAndReported_data();
    void stateIsWrittenStoredAndReported();
    void offAndOnKeepsTheTime();
    void timeIsOnTheWireWhenTheSetterReturns_data();
    void timeIsOnTheWireWhenTheSetterReturns();
    void readBacksDoNotUndoTheTime();
    void aRestingMonitorTakesTheTimeLater();
    void aTimeChosenRightAfterTheStateCounts();
    void aTimeWhileOffTurnsTheMonitorOn();
    void timeZeroChangesTheMonitorOnly();
    void presentValuesWriteNothing();
    void sensitivityIsWrittenAndStored();
    void modeIsWrittenAlsoWhereItIsTheSame();
    void modeNeedsTheRearLight();
    void failedWriteIsTakenAllTheSame();
    void theShortcutToggles();
    void readBackOfTheTime_data();
    void readBackOfTheTime();
    void readBackOfTheRest();
    void aFailedReadEndsItsOwnTaskAlone_data();
    void aFailedReadEndsItsOwnTaskAlone();
    void firstConnection_data();
    void firstConnection();
    void launchRestores_data();
    void launchRestores();
    void whatStaysOffIsNotAppliedAgain();
    void exitReportsOff();
};

void TestEcoPrivacy::theSchemaDecides_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("type");
    QTest::addColumn<QList<int>>("times");
    const QList<int> five{5, 10, 20, 30, 60};
    QTest::newRow("TK30Z") << u"TK30Z"_s << true << TypeBackGlow << QList<int>{5, 10, 20, 30, 60, 80, 160};
    for (const char* name : {"TK10", "TK30", "TK30X", "TK40", "TK40X"})
        QTest::newRow(name) << QString::fromLatin1(name) << true << TypeNormal << five;
    QTest::newRow("TK20") << u"TK20"_s << false << TypeNormal << QList<int>();
    QTest::newRow("another make") << u"Other"_s << false << TypeNormal << QList<int>();
}

void TestEcoPrivacy::theSchemaDecides()
{
    QFETCH(QString, model);
    Bed bed(model);
    bed.begin();
    QTEST(bed.flag("ecoPrivacyEnable"), "enabled");
    QTEST(bed.number("type"), "type");
    QTEST(bed.times(), "times");
}

void TestEcoPrivacy::optionsAreKnownNumbersInTheirOrder_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QList<int>>("times");
    QTest::newRow("an unknown number") << QByteArray("5,15,20") << QList<int>{5, 20};
    QTest::newRow("empty parts") << QByteArray(",,60,,5,") << QList<int>{60, 5};
    QTest::newRow("no numbers") << QByteArray("a,1x,600") << QList<int>{160};
    QTest::newRow("codes are no seconds") << QByteArray("80,160") << QList<int>();
}

void TestEcoPrivacy::optionsAreKnownNumbersInTheirOrder()
{
    QFETCH(QByteArray, options);
    Bed bed(u"TK20"_s);
    bed.begin();
    QCOMPARE(bed.times(), QList<int>());
    bed.module()->readSchema("<VCPcodes><VCPcode Type=\"EcoPrivacy Options\" Name=\"EcoPrivacy Options\" "
                             "Category=\"EcoPrivacy Options\" Value=\"" +
                             options + "\"/></VCPcodes>");
    QTEST(bed.times(), "times");
}

void TestEcoPrivacy::withoutTheFeatureNothingHappens()
{
    Bed bed(u"TK20"_s);
    bed.begin();
    bed.forget();
    bed.put("state", true);
    bed.put("activeTime", 60);
    bed.put("sensorSensitivity", 3);
    bed.put("mode", Both);
    QVERIFY(!bed.press());
    QVERIFY(bed.idle());
    QVERIFY(bed.apply());
    QCOMPARE(bed.own(), QStringList());
    QCOMPARE(bed.flag("state"), false);
    QCOMPARE(bed.told(), QStringList());
}

void TestEcoPrivacy::stateIsWrittenStoredAndReported_data()
{
    QTest::addColumn<bool>("to");
    QTest::addColumn<bool>("triggered");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("event");
    QTest::newRow("on") << true << false << 20 << u"LuEcoPrivacy 16 on 0 []"_s;
    QTest::newRow("off") << false << false << 0 << u"LuEcoPrivacy 16 off 0 []"_s;
    QTest::newRow("on by another function") << true << true << 20 << u"LuEcoPrivacy 16 on 4 []"_s;
    QTest::newRow("off by another function") << false << true << 0 << u"LuEcoPrivacy 16 off 4 []"_s;
}

void TestEcoPrivacy::stateIsWrittenStoredAndReported()
{
    QFETCH(bool, to);
    QFETCH(bool, triggered);
    QFETCH(int, value);
    QFETCH(QString, event);
    Bed bed;
    bed.beginAt(!to);
    bed.checkAsked({"state",
                    to,
                    {u"set 0xE7 %1"_s.arg(value)},
                    {event},
                    u"[LuEcoPrivacy] set EcoPrivacy activeTime: "_s,
                    triggered});
    QCOMPARE(bed.plain("state").toBool(), to);
    QCOMPARE(bed.number("activeTime"), 20);
}

void TestEcoPrivacy::offAndOnKeepsTheTime()
{
    Bed bed;
    bed.beginAt(true);
    QVERIFY(bed.ask("state", false));
    QCOMPARE(bed.number("activeTime"), 20);
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number("activeTime"), 20);
    QCOMPARE(bed.plain("activeTime").toInt(), 20);
    bed.forget();
    QVERIFY(bed.ask("state", true));
    QCOMPARE(bed.own(), QStringList{u"set 0xE7 20"_s});
}

void TestEcoPrivacy::timeIsOnTheWireWhenTheSetterReturns_data()
{
    QTest::addColumn<int>("time");
    for (const int time : {5, 10, 30, 60, 80, 160})
        QTest::addRow("%d", time) << time;
}

void TestEcoPrivacy::timeIsOnTheWireWhenTheSetterReturns()
{
    QFETCH(int, time);
    Bed bed;
    bed.beginAt(true);
    QSignalSpy spy(bed.module(), SIGNAL(activeTimeChanged()));
    bed.put("activeTime", time);
    // Nothing has waited for the queue.
    QCOMPARE(bed.own(), QStringList{u"set 0xE7 %1"_s.arg(time)});
    QCOMPARE(bed.number("activeTime"), time);
    QCOMPARE(bed.plain("activeTime").toInt(), time);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.told(), QStringList());
    QVERIFY(bed.logged(u"[LuEcoPrivacy] set EcoPrivacy activeTime: "_s));
}

void TestEcoPrivacy::readBacksDoNotUndoTheTime()
{
    Bed bed(u"TK30Z"_s, SimulatedBed::Timing::Real);
    bed.beginAt(true);
    bed.module()->forceSyncHardwareState(false);
    for (const int time : {5, 10, 30, 60}) {
        bed.put("activeTime", time);
        QCOMPARE(bed.number("activeTime"), time);
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("activeTime"), 60);
    QCOMPARE(int(*bed.monitor().value(TimeCode)), 60);
    QCOMPARE(bed.plain("activeTime").toInt(), 60);
}

void TestEcoPrivacy::aRestingMonitorTakesTheTimeLater()
{
    Bed bed(u"TK30Z"_s, SimulatedBed::Timing::Real);
    bed.beginAt(true);
    const quint64 before = bed.monitor().traffic().last().seq;
    bed.model().setColorMode(bed.model().getColorModeByName(u"Cinema"_s));
    // Half a second of rest, longer than the setter may hold its caller.
    QTRY_VERIFY(!bed.monitor().traffic(before).isEmpty());
    bed.put("activeTime", 60);
    QCOMPARE(bed.number("activeTime"), 60);
    QVERIFY(bed.idle());
    QCOMPARE(int(*bed.monitor().value(TimeCode)), 60);
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number("activeTime"), 60);
}

void TestEcoPrivacy::aTimeChosenRightAfterTheStateCounts()
{
    // As a flow writes them, one right behind the other.
    Bed bed(u"TK30Z"_s, SimulatedBed::Timing::Real);
    bed.beginAt(false);
    for (const int time : {60, 5, 30, 10}) {
        bed.put("state", true);
        bed.put("activeTime", time);
        QVERIFY(bed.idle());
        QCOMPARE(int(*bed.monitor().value(TimeCode)), time);
        QCOMPARE(bed.number("activeTime"), time);
        QCOMPARE(bed.plain("activeTime").toInt(), time);
        bed.put("state", false);
        QVERIFY(bed.idle());
    }
}

void TestEcoPrivacy::aTimeWhileOffTurnsTheMonitorOn()
{
    Bed bed;
    bed.beginAt(false);
    bed.put("activeTime", 30);
    QCOMPARE(bed.flag("state"), false);
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.flag("state"), true);
    QCOMPARE(bed.told(), QStringList{u"LuEcoPrivacy 16 on 1 []"_s});
}

void TestEcoPrivacy::timeZeroChangesTheMonitorOnly()
{
    Bed bed;
    bed.beginAt(true);
    bed.put("activeTime", 0);
    QCOMPARE(bed.own(), QStringList{u"set 0xE7 0"_s});
    QCOMPARE(bed.number("activeTime"), 20);
    QCOMPARE(bed.plain("activeTime").toInt(), 20);
}

void TestEcoPrivacy::presentValuesWriteNothing()
{
    Bed bed;
    bed.beginAt(true);
    bed.put("state", true);
    bed.put("activeTime", 20);
    QVERIFY(bed.ask("sensorSensitivity", 2));
    QCOMPARE(bed.own(), QStringList());
    QCOMPARE(bed.told(), QStringList());
}

void TestEcoPrivacy::sensitivityIsWrittenAndStored()
{
    Bed bed;
    bed.beginAt(true);
    bed.checkAsked(
        {"sensorSensitivity", 3, {u"set 0xE9 3"_s}, {}, u"[LuEcoPrivacy] set EcoPrivacy Sensitivity: "_s});
    QCOMPARE(bed.plain("sensorSensitivity").toInt(), 3);
}

void TestEcoPrivacy::modeIsWrittenAlsoWhereItIsTheSame()
{
    Bed bed;
    bed.beginAt(true);
    bed.checkAsked({"mode", Both, {u"set 0xE8 1"_s}, {}, u"[LuEcoPrivacy] set EcoPrivacy Mode: "_s});
    QCOMPARE(bed.plain("mode").toInt(), Both);
    const QSignalSpy changes(bed.module(), SIGNAL(modeChanged()));
    QVERIFY(bed.ask("mode", Both));
    QCOMPARE(bed.own(), QStringList{u"set 0xE8 1"_s});
    QCOMPARE(changes.count(), 0);
}

void TestEcoPrivacy::modeNeedsTheRearLight()
{
    Bed bed(u"TK40"_s);
    bed.begin();
    bed.forget();
    QVERIFY(bed.ask("mode", Both));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.wireOf({ModeCode}), QStringList());
    QCOMPARE(bed.number("mode"), DisplayOnly);
    QVERIFY(!bed.plain("mode").isValid());
    const std::unique_ptr<LuSyncTasks> tasks(bed.module()->syncPeriodically());
    QCOMPARE(tasks->count(), 2);
}

void TestEcoPrivacy::failedWriteIsTakenAllTheSame()
{
    Bed bed;
    bed.beginAt(false);
    bed.checkFailedWrite("state", TimeCode);
}

void TestEcoPrivacy::theShortcutToggles()
{
    Bed bed;
    bed.beginAt(false);
    QVERIFY(bed.press());
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("state"), true);
    QVERIFY(!bed.press(true));
    QVERIFY(!bed.press(true));
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("state"), true);
    QVERIFY(bed.press());
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("state"), false);
    QCOMPARE(bed.told(), (QStringList{u"LuEcoPrivacy 16 on 0 []"_s, u"LuEcoPrivacy 16 off 0 []"_s}));
}

void TestEcoPrivacy::readBackOfTheTime_data()
{
    QTest::addColumn<bool>("from");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("state");
    QTest::addColumn<int>("time");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("on") << false << 20 << true << 20 << QStringList{u"LuEcoPrivacy 16 on 1 []"_s};
    QTest::newRow("on with another time")
        << false << 160 << true << 160 << QStringList{u"LuEcoPrivacy 16 on 1 []"_s};
    QTest::newRow("another time") << true << 5 << true << 5 << QStringList();
    QTest::newRow("a time that is not offered") << true << 15 << true << 15 << QStringList();
    QTest::newRow("off keeps the time")
        << true << 0 << false << 20 << QStringList{u"LuEcoPrivacy 16 off 1 []"_s};
    QTest::newRow("the same") << true << 20 << true << 20 << QStringList();
}

void TestEcoPrivacy::readBackOfTheTime()
{
    QFETCH(bool, from);
    QFETCH(int, value);
    QFETCH(bool, state);
    QFETCH(int, time);
    QFETCH(QStringList, events);
    Bed bed;
    bed.beginAt(from);
    QVERIFY(bed.monitor().setByMenu(TimeCode, value));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.flag("state"), state);
    QCOMPARE(bed.number("activeTime"), time);
    QCOMPARE(bed.plain("state").toBool(), state);
    QCOMPARE(bed.plain("activeTime").toInt(), time);
    QCOMPARE(bed.told(), events);
    QVERIFY(bed.logged(u"[LuEcoPrivacy] sync: \"TK30Z\""_s));
    QVERIFY(bed.logged(u"[LuEcoPrivacy] get LuEcoPrivacy state"_s));
    QCOMPARE(bed.logged(u"[LuEcoPrivacy] sync EcoPrivacy state changed:"_s), from != state);
    QCOMPARE(bed.logged(u"[LuEcoPrivacy] sync EcoPrivacy activeTime changed:"_s), time != 20);
}

void TestEcoPrivacy::readBackOfTheRest()
{
    Bed bed;
    bed.beginAt(false);
    QVERIFY(bed.monitor().setByMenu(SensitivityCode, 3));
    QVERIFY(bed.monitor().setByMenu(ModeCode, Both));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.own(), (QStringList{u"get 0xE7 0"_s, u"get 0xE9 3"_s, u"get 0xE8 1"_s}));
    QCOMPARE(bed.number("sensorSensitivity"), 3);
    QCOMPARE(bed.number("mode"), Both);
    QCOMPARE(bed.plain("sensorSensitivity").toInt(), 3);
    QCOMPARE(bed.plain("mode").toInt(), Both);
    QVERIFY(bed.logged(u"[LuEcoPrivacy] get LuEcoPrivacy Sensor Sensitivity level"_s));
    QVERIFY(bed.logged(u"[LuEcoPrivacy] sync LuEcoPrivacy Sensor Sensitivity level changed:"_s));
    QVERIFY(bed.logged(u"[LuEcoPrivacy] get LuEcoPrivacy Mode"_s));
    QVERIFY(bed.logged(u"[LuEcoPrivacy] sync LuEcoPrivacy Mode changed:"_s));
    QCOMPARE(bed.told(), QStringList());
}

void TestEcoPrivacy::aFailedReadEndsItsOwnTaskAlone_data()
{
    QTest::addColumn<int>("failing");
    QTest::addColumn<bool>("state");
    QTest::addColumn<int>("sensitivity");
    QTest::addColumn<int>("mode");
    QTest::newRow("time") << TimeCode << true << 3 << Both;
    QTest::newRow("sensitivity") << SensitivityCode << false << 2 << Both;
    QTest::newRow("mode") << ModeCode << false << 3 << DisplayOnly;
}

void TestEcoPrivacy::aFailedReadEndsItsOwnTaskAlone()
{
    QFETCH(int, failing);
    Bed bed;
    bed.beginAt(true);
    QVERIFY(bed.monitor().setByMenu(TimeCode, 0));
    QVERIFY(bed.monitor().setByMenu(SensitivityCode, 3));
    QVERIFY(bed.monitor().setByMenu(ModeCode, Both));
    bed.fail(failing);
    QVERIFY(bed.syncModule());
    QTEST(bed.flag("state"), "state");
    QTEST(bed.number("sensorSensitivity"), "sensitivity");
    QTEST(bed.number("mode"), "mode");
}

void TestEcoPrivacy::firstConnection_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("off") << 0 << QStringList();
    QTest::newRow("on") << 30 << QStringList{u"LuEcoPrivacy 16 on 5 []"_s};
}

void TestEcoPrivacy::firstConnection()
{
    QFETCH(int, value);
    QFETCH(QStringList, events);
    Bed bed;
    bed.checkFirstConnection(TimeCode, value, events);
}

void TestEcoPrivacy::launchRestores_data()
{
    QTest::addColumn<bool>("state");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("event");
    QTest::newRow("on") << true << 20 << u"[LuEcoPrivacy] apply activeTime:"_s
                        << u"LuEcoPrivacy 16 on 3 []"_s;
    QTest::newRow("off") << false << 0 << u"[LuEcoPrivacy] apply state: false"_s
                         << u"LuEcoPrivacy 16 off 3 []"_s;
}

void TestEcoPrivacy::launchRestores()
{
    QFETCH(bool, state);
    QFETCH(int, value);
    QFETCH(QString, text);
    QFETCH(QString, event);
    Bed bed;
    bed.beginAt(true);
    bed.put("mode", Both);
    QVERIFY(bed.ask("sensorSensitivity", 3));
    QVERIFY(bed.ask("state", state));
    bed.destroy();
    // The monitor's own mode comes back through the read-back and is never written at launch.
    QVERIFY(bed.monitor().setByMenu(ModeCode, DisplayOnly));
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.own().filter(u"set"_s), (QStringList{u"set 0xE7 %1"_s.arg(value), u"set 0xE9 3"_s}));
    QCOMPARE(bed.told().value(0), event);
    QCOMPARE(bed.number("activeTime"), 20);
    QCOMPARE(bed.number("mode"), DisplayOnly);
    QVERIFY(bed.logged(text));
    QVERIFY(bed.logged(u"[LuEcoPrivacy] apply sensorSensitivity:"_s));
}

void TestEcoPrivacy::whatStaysOffIsNotAppliedAgain()
{
    Bed bed;
    bed.checkWhatStaysOff("state", u"set 0xE7 10"_s);
}

void TestEcoPrivacy::exitReportsOff()
{
    Bed bed;
    bed.beginAt(false);
    bed.checkExit("state", u"LuEcoPrivacy 16 off 2 []"_s);
}

QTEST_MAIN(TestEcoPrivacy)
#include "tst_ecoprivacy.moc"
