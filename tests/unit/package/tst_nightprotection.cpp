// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <QDateTime>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Module = "LuNightProtection";
constexpr int LevelCode = 0xD0;
constexpr int StateCode = 0xD1;
constexpr int Auto = 0;
constexpr int On = 1;
constexpr int Off = 2;

struct Bed : SimulatedBed
{
    using SimulatedBed::SimulatedBed;

    /// Launched, with the first round behind it.
    void begin()
    {
        launch();
        QVERIFY(idle());
    }
    void beginWith(int state, int level)
    {
        begin();
        set(Module, "state", state);
        set(Module, "level", level);
        QVERIFY(idle());
        forget();
    }
    int state() { return get(Module, "state").toInt(); }
    int level() { return get(Module, "level").toInt(); }
    QStringList told() { return events().filter(u"LuNightProtection"_s); }
    QString key(const char* name)
    {
        return u"LuNightProtection/%1/%2"_s.arg(model().colorMode()->displayName(), QLatin1String(name));
    }
    bool press(LuShortcutAction::ActionName name, bool repeated = false)
    {
        const QKeyEvent event(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), repeated);
        for (LuShortcutAction* action : model().shortcutActions()) {
            if (action->name() == name) {
                action->setActive(true);
                return action->handle(event);
            }
        }
        return false;
    }
    void fail(int code)
    {
        sim::Fault fault;
        fault.kind = sim::FaultKind::Nack;
        fault.code = code;
        monitor().armFault(fault);
    }
};

} // namespace

class TestNightProtection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutTheFeatureNothingHappens();
    void stateIsWrittenStoredAndReported_data();
    void stateIsWrittenStoredAndReported();
    void presentStateWritesNothing();
    void sensorsFirstTimeIsKept();
    void levelIsWrittenAndStored();
    void levelOutOfRangeIsDropped_data();
    void levelOutOfRangeIsDropped();
    void failedWriteIsTakenAllTheSame();
    void shortcutsStepTheLevel_data();
    void shortcutsStepTheLevel();
    void heldKeyStepsOnce();
    void readBackTakesTheMonitorsState_data();
    void readBackTakesTheMonitorsState();
    void levelIsReadOnlyWhileOn();
    void readBackReportsTheLevel_data();
    void readBackReportsTheLevel();
    void failedStateReadSkipsTheLevel();
    void firstConnection_data();
    void firstConnection();
    void modeChangeReadsTheNewModesValues();
    void launchRestores_data();
    void launchRestores();
    void levelThatWasNeverKnownIsNotWritten();
    void whatStaysOffIsNotAppliedAgain();
    void pageVisitGivesOneEvent_data();
    void pageVisitGivesOneEvent();
    void exitReportsOff();
};

void TestNightProtection::withoutTheFeatureNothingHappens()
{
    Bed bed(u"Other"_s);
    bed.begin();
    QCOMPARE(bed.get(Module, "nightProtectionEnable").toBool(), false);
    bed.forget();
    bed.set(Module, "state", On);
    bed.set(Module, "level", 5);
    QVERIFY(!bed.press(LuShortcutAction::NightProtection_Increase));
    QVERIFY(bed.apply());
    QCOMPARE(bed.state(), Off);
    QCOMPARE(bed.level(), 0);
    QCOMPARE(bed.wire().filter(u"0xD"_s), QStringList());
    QCOMPARE(bed.told(), QStringList());
}

void TestNightProtection::stateIsWrittenStoredAndReported_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("triggered");
    QTest::addColumn<QString>("event");
    QTest::newRow("sensor") << Off << Auto << 2 << false << u"LuNightProtection 13 auto_switch 0 []"_s;
    QTest::newRow("on") << Off << On << 1 << false << u"LuNightProtection 13 on 0 [4]"_s;
    QTest::newRow("off") << On << Off << 0 << false << u"LuNightProtection 13 off 0 []"_s;
    QTest::newRow("on by another function") << Off << On << 1 << true << u"LuNightProtection 13 on 4 [4]"_s;
    QTest::newRow("sensor by another function")
        << On << Auto << 2 << true << u"LuNightProtection 13 auto_switch 4 []"_s;
}

void TestNightProtection::stateIsWrittenStoredAndReported()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, value);
    QFETCH(bool, triggered);
    QFETCH(QString, event);
    Bed bed;
    bed.beginWith(from, 4);
    QSignalSpy spy(bed.module(Module), SIGNAL(stateChanged()));
    {
        std::optional<LuMonitorModel::OtherFunctionScope> scope;
        if (triggered)
            scope.emplace(bed.module(Module));
        bed.set(Module, "state", to);
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xD1 %1"_s.arg(value)});
    QCOMPARE(bed.setting(bed.key("state")).toInt(), to);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.told(), QStringList{event});
    QVERIFY(!bed.log().filter(u"[LuNightProtection] set Night Hours Protection state:"_s).isEmpty());
}

void TestNightProtection::presentStateWritesNothing()
{
    Bed bed;
    bed.beginWith(On, 4);
    bed.set(Module, "state", On);
    bed.set(Module, "level", 4);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.told(), QStringList());
}

void TestNightProtection::sensorsFirstTimeIsKept()
{
    Bed bed;
    bed.begin();
    const QString key = u"LuNightProtection/dataCollection/startTime"_s;
    QVERIFY(!bed.setting(key).isValid());
    bed.set(Module, "state", Auto);
    QVERIFY(bed.idle());
    const QDateTime first = bed.setting(key).toDateTime();
    QVERIFY(first.isValid());
    bed.set(Module, "state", Off);
    bed.set(Module, "state", Auto);
    QVERIFY(bed.idle());
    QCOMPARE(bed.setting(key).toDateTime(), first);
}

void TestNightProtection::levelIsWrittenAndStored()
{
    Bed bed;
    bed.beginWith(On, 4);
    QSignalSpy spy(bed.module(Module), SIGNAL(levelChanged()));
    bed.set(Module, "level", 7);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xD0 7"_s});
    QCOMPARE(bed.setting(bed.key("level")).toInt(), 7);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.told(), QStringList());
    QVERIFY(bed.log().contains(u"[LuNightProtection] set Night Hours Protection Level: 7"_s));
}

void TestNightProtection::levelOutOfRangeIsDropped_data()
{
    QTest::addColumn<int>("level");
    for (const int level : {-1, 0, 11, 65535})
        QTest::addRow("%d", level) << level;
}

void TestNightProtection::levelOutOfRangeIsDropped()
{
    QFETCH(int, level);
    Bed bed;
    bed.beginWith(On, 4);
    bed.set(Module, "level", level);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 4);
    QCOMPARE(bed.wire(), QStringList());
}

void TestNightProtection::failedWriteIsTakenAllTheSame()
{
    Bed bed;
    bed.beginWith(Off, 4);
    bed.fail(StateCode);
    bed.fail(LevelCode);
    bed.set(Module, "state", On);
    bed.set(Module, "level", 6);
    QVERIFY(bed.idle());
    QCOMPARE(bed.state(), On);
    QCOMPARE(bed.level(), 6);
    bed.monitor().clearFaults();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.state(), Off);
}

void TestNightProtection::shortcutsStepTheLevel_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("from");
    QTest::addColumn<bool>("increase");
    QTest::addColumn<bool>("taken");
    QTest::addColumn<int>("to");
    QTest::newRow("up") << On << 4 << true << true << 5;
    QTest::newRow("down") << On << 4 << false << true << 3;
    QTest::newRow("by the sensor") << Auto << 4 << true << true << 5;
    QTest::newRow("at the end") << On << 10 << true << true << 10;
    QTest::newRow("at the beginning") << On << 1 << false << true << 1;
    QTest::newRow("off") << Off << 4 << true << false << 4;
    QTest::newRow("off, down") << Off << 4 << false << false << 4;
}

void TestNightProtection::shortcutsStepTheLevel()
{
    QFETCH(int, state);
    QFETCH(int, from);
    QFETCH(bool, increase);
    QFETCH(bool, taken);
    QFETCH(int, to);
    Bed bed;
    bed.beginWith(state, from);
    QCOMPARE(bed.press(increase ? LuShortcutAction::NightProtection_Increase
                                : LuShortcutAction::NightProtection_Decrease),
             taken);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), to);
    const bool steps = from != to;
    QCOMPARE(bed.wire(), steps ? QStringList{u"set 0xD0 %1"_s.arg(to)} : QStringList());
    QCOMPARE(bed.told(),
             steps ? QStringList{u"LuNightProtection 13 on_update_setting 0 [%1]"_s.arg(to)} : QStringList());
}

void TestNightProtection::heldKeyStepsOnce()
{
    Bed bed;
    bed.beginWith(On, 4);
    QVERIFY(bed.press(LuShortcutAction::NightProtection_Increase));
    QVERIFY(bed.idle());
    QVERIFY(!bed.press(LuShortcutAction::NightProtection_Increase, true));
    QVERIFY(!bed.press(LuShortcutAction::NightProtection_Increase, true));
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 5);
}

void TestNightProtection::readBackTakesTheMonitorsState_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("state");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("on") << Off << 1 << On << QStringList{u"LuNightProtection 13 on 1 [4]"_s};
    QTest::newRow("off") << On << 0 << Off << QStringList{u"LuNightProtection 13 off 1 []"_s};
    QTest::newRow("sensor") << Off << 2 << Auto << QStringList{u"LuNightProtection 13 auto_switch 1 []"_s};
    QTest::newRow("unknown") << Off << 77 << Auto << QStringList{u"LuNightProtection 13 auto_switch 1 []"_s};
    QTest::newRow("the same") << On << 1 << On << QStringList();
}

void TestNightProtection::readBackTakesTheMonitorsState()
{
    QFETCH(int, from);
    QFETCH(int, value);
    QFETCH(int, state);
    QFETCH(QStringList, events);
    Bed bed;
    bed.beginWith(from, 4);
    QVERIFY(bed.monitor().setByMenu(StateCode, value));
    QSignalSpy spy(bed.module(Module), SIGNAL(stateChanged()));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.state(), state);
    QCOMPARE(spy.count(), from == state ? 0 : 1);
    QCOMPARE(bed.setting(bed.key("state")).toInt(), state);
    QCOMPARE(bed.told(), events);
    const QStringList log = bed.log();
    QVERIFY(log.contains(u"[LuNightProtection] sync: \"TK30Z\""_s));
    QVERIFY(log.contains(u"[LuNightProtection] get LuNightProtection state"_s));
    QCOMPARE(log.filter(u"[LuNightProtection] sync NightProtection state changed:"_s).isEmpty(),
             from == state);
}

void TestNightProtection::levelIsReadOnlyWhileOn()
{
    Bed bed;
    bed.beginWith(Off, 4);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList{u"get 0xD1 0"_s});
    bed.set(Module, "state", On);
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), (QStringList{u"get 0xD1 1"_s, u"get 0xD0 4"_s}));
}

void TestNightProtection::readBackReportsTheLevel_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("on") << On << QStringList{u"LuNightProtection 13 on_update_setting 1 [9]"_s};
    // The sensor moves it by itself.
    QTest::newRow("sensor") << Auto << QStringList();
}

void TestNightProtection::readBackReportsTheLevel()
{
    QFETCH(int, state);
    QFETCH(QStringList, events);
    Bed bed;
    bed.beginWith(state, 4);
    QVERIFY(bed.monitor().setByMenu(LevelCode, 9));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.level(), 9);
    QCOMPARE(bed.setting(bed.key("level")).toInt(), 9);
    QCOMPARE(bed.told(), events);
    const QStringList log = bed.log();
    QVERIFY(log.contains(u"[LuNightProtection] get LuNightProtection level"_s));
    QVERIFY(log.contains(u"[LuNightProtection] sync NightProtection level changed: 9"_s));
}

void TestNightProtection::failedStateReadSkipsTheLevel()
{
    Bed bed;
    bed.beginWith(On, 4);
    bed.fail(StateCode);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire().filter(u"0xD0"_s), QStringList());
    QCOMPARE(bed.state(), On);
    QCOMPARE(bed.told(), QStringList());
}

void TestNightProtection::firstConnection_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("off") << 0 << QStringList();
    // The level is read after the state and reported as what it is then.
    QTest::newRow("on") << 1
                        << QStringList{u"LuNightProtection 13 on 5 [0]"_s,
                                       u"LuNightProtection 13 on_update_setting 1 [6]"_s};
    QTest::newRow("sensor") << 2 << QStringList{u"LuNightProtection 13 auto_switch 5 []"_s};
}

void TestNightProtection::firstConnection()
{
    QFETCH(int, value);
    QFETCH(QStringList, events);
    Bed bed;
    QVERIFY(bed.monitor().setByMenu(StateCode, value));
    QVERIFY(bed.monitor().setByMenu(LevelCode, 6));
    bed.begin();
    QCOMPARE(bed.told(), events);
}

void TestNightProtection::modeChangeReadsTheNewModesValues()
{
    Bed bed;
    bed.beginWith(On, 4);
    const QString before = bed.key("state");
    bed.storeSetting(u"LuNightProtection/Cinema/level"_s, 9);
    bed.model().setColorMode(bed.model().getColorModeByName(u"Cinema"_s));
    QVERIFY(bed.idle());
    // What the monitor holds in that mode, not what was stored once.
    QCOMPARE(bed.state(), Off);
    QCOMPARE(bed.setting(u"LuNightProtection/Cinema/state"_s).toInt(), Off);
    QCOMPARE(bed.setting(before).toInt(), On);
    QCOMPARE(bed.setting(u"LuNightProtection/Cinema/level"_s).toInt(), 9);
}

void TestNightProtection::launchRestores_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QStringList>("wire");
    QTest::addColumn<QString>("event");
    QTest::newRow("on") << On << QStringList{u"set 0xD1 1"_s, u"set 0xD0 7"_s}
                        << u"LuNightProtection 13 on 3 [7]"_s;
    QTest::newRow("sensor") << Auto << QStringList{u"set 0xD1 2"_s, u"set 0xD0 7"_s}
                            << u"LuNightProtection 13 auto_switch 3 []"_s;
    QTest::newRow("off") << Off << QStringList{u"set 0xD1 0"_s, u"set 0xD0 7"_s}
                         << u"LuNightProtection 13 off 3 []"_s;
}

void TestNightProtection::launchRestores()
{
    QFETCH(int, state);
    QFETCH(QStringList, wire);
    QFETCH(QString, event);
    Bed bed;
    bed.beginWith(On, 7);
    bed.set(Module, "state", state);
    QVERIFY(bed.idle());
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QRegularExpression(u"set 0xD[01] "_s)), wire);
    QCOMPARE(bed.told().value(0), event);
    const QStringList log = bed.log();
    QVERIFY(!log.filter(u"[LuNightProtection] apply Night Hours Protection state:"_s).isEmpty());
    QVERIFY(log.contains(u"[LuLowBlueLight] apply Night Hours Protection level: 7"_s));
}

void TestNightProtection::levelThatWasNeverKnownIsNotWritten()
{
    Bed bed;
    bed.begin();
    QCOMPARE(bed.level(), 0);
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QRegularExpression(u"set 0xD[01] "_s)), QStringList{u"set 0xD1 0"_s});
}

void TestNightProtection::whatStaysOffIsNotAppliedAgain()
{
    Bed bed;
    bed.begin();
    bed.relaunch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QRegularExpression(u"set 0xD[01] "_s)), QStringList());
    bed.set(Module, "state", On);
    QVERIFY(bed.idle());
    bed.forget();
    bed.relaunch();
    QVERIFY(bed.idle());
    QVERIFY(bed.wire().contains(u"set 0xD1 1"_s));
}

void TestNightProtection::pageVisitGivesOneEvent_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QList<int>>("moves");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("moved") << On << QList<int>{5, 6, 7}
                           << QStringList{u"LuNightProtection 13 on_update_setting 0 [7]"_s};
    QTest::newRow("and back") << On << QList<int>{5, 4} << QStringList();
    QTest::newRow("off") << Off << QList<int>{6} << QStringList();
}

void TestNightProtection::pageVisitGivesOneEvent()
{
    QFETCH(int, state);
    QFETCH(QList<int>, moves);
    QFETCH(QStringList, events);
    Bed bed;
    bed.beginWith(state, 4);
    bed.module(Module)->takePropertySnapshot();
    for (const int level : moves)
        bed.set(Module, "level", level);
    QVERIFY(bed.idle());
    bed.module(Module)->fireUpdateSettingEvent();
    QCOMPARE(bed.told(), events);
}

void TestNightProtection::exitReportsOff()
{
    Bed bed;
    bed.beginWith(Off, 4);
    bed.module(Module)->fireExitEvent();
    QCOMPARE(bed.told(), QStringList());
    bed.set(Module, "state", Auto);
    QVERIFY(bed.idle());
    bed.forget();
    bed.module(Module)->fireExitEvent();
    QCOMPARE(bed.told(), QStringList{u"LuNightProtection 13 off 2 []"_s});
}

QTEST_MAIN(TestNightProtection)
#include "tst_nightprotection.moc"
