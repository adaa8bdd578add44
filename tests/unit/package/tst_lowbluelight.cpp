// SPDX-License-Identifier: Apache-2.0
#include "weather_bed.h"

#include <QSemaphore>

using namespace Qt::StringLiterals;
using namespace weather_bed;

namespace {

constexpr int LevelCode = 0x19;

QStringList eventsOf(Bed& bed)
{
    return bed.events().filter(u"LuLowBlueLight"_s);
}

QString levelKey(Bed& bed)
{
    return u"LuLowBlueLight/%1/level"_s.arg(bed.model().colorMode()->displayName());
}

/// Hears of a signal on the thread that emits it.
class Told : public QObject
{
    Q_OBJECT

public:
    QSemaphore count;

public Q_SLOTS:
    void tell() { count.release(); }
};

} // namespace

class TestLowBlueLight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void schemaDecidesTheType_data();
    void schemaDecidesTheType();
    void withoutTheFeatureNothingHappens();
    void levelIsWrittenAndKeptForTheColourMode();
    void presentLevelWritesNothing();
    void failedWriteIsTakenAllTheSame();
    void firstStepFromZeroSwitchesOn_data();
    void firstStepFromZeroSwitchesOn();
    void otherFunctionsReportTheirSteps();
    void circadianAtLevelZeroIsOn();
    void theUsersLevelAfterTheScheduleStays();
    void circadianReportsItsMode_data();
    void circadianReportsItsMode();
    void readBackTakesTheMonitorsLevel();
    void readBackOfTheStoredLevelFiresNothing();
    void failedReadChangesNothing();
    void modeChangeReadsTheNewModesLevel();
    void firstConnectionReportsCircadianFirst();
    void firstConnectionWithTheFilterOn();
    void launchRestoresTheLevelOfTheMode();
    void filterThatStaysOffIsNotAppliedAgain();
    void pageVisitGivesOneEvent_data();
    void pageVisitGivesOneEvent();
    void exitReportsOff();
};

void TestLowBlueLight::init()
{
    programClock().set(at("2026-03-10T12:00:00"));
    forgetWeather();
    setPlace(0, 0, LuServerLocation::Unknown);
}

void TestLowBlueLight::cleanup()
{
    programClock().release();
}

void TestLowBlueLight::schemaDecidesTheType_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("TK10") << 2;
    QTest::newRow("TK20") << 1;
    QTest::newRow("TK30") << 2;
    QTest::newRow("TK30X") << 2;
    QTest::newRow("TK30Z") << 1;
    QTest::newRow("TK40") << 2;
    QTest::newRow("TK40X") << 2;
    QTest::newRow("Other") << 0;
}

void TestLowBlueLight::schemaDecidesTheType()
{
    QFETCH(int, type);
    Bed bed(QString::fromLatin1(QTest::currentDataTag()));
    bed.begin();
    QCOMPARE(bed.get(Module, "type").toInt(), type);
    QCOMPARE(bed.get(Module, "lowBlueLightEnable").toBool(), type != 0);
    const std::unique_ptr<LuSyncTasks> tasks(bed.module(Module)->syncPeriodically());
    QCOMPARE(tasks != nullptr, type != 0);
}

void TestLowBlueLight::withoutTheFeatureNothingHappens()
{
    Bed bed(u"Other"_s);
    bed.begin();
    bed.storeSetting(u"LuLowBlueLight/Unsupported/level"_s, 4);
    bed.relaunch();
    QVERIFY(bed.idle());
    bed.forget();
    bed.set(Module, "level", 3);
    bed.set(Module, "circadianState", true);
    QVERIFY(bed.apply());
    QCOMPARE(bed.level(), 0);
    QCOMPARE(bed.get(Module, "state").toBool(), false);
    QCOMPARE(bed.wire().filter(u"0x19"_s), QStringList());
    QCOMPARE(eventsOf(bed), QStringList());
    QVERIFY(!stored("circadianState").isValid());
}

void TestLowBlueLight::levelIsWrittenAndKeptForTheColourMode()
{
    Bed bed;
    bed.begin();
    bed.forget();
    QSignalSpy spy(bed.module(Module), SIGNAL(levelChanged()));
    bed.set(Module, "level", 4);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x19 4"_s});
    QCOMPARE(bed.setting(levelKey(bed)).toInt(), 4);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.get(Module, "state").toBool(), true);
    QVERIFY(bed.log().contains(u"[LuLowBlueLight] setLevel: 4"_s));
    QCOMPARE(eventsOf(bed), QStringList{u"LuLowBlueLight 15 on 0 [4]"_s});
}

void TestLowBlueLight::presentLevelWritesNothing()
{
    Bed bed;
    bed.begin();
    bed.set(Module, "level", 2);
    QVERIFY(bed.idle());
    bed.forget();
    bed.set(Module, "level", 2);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(eventsOf(bed), QStringList());
}

void TestLowBlueLight::failedWriteIsTakenAllTheSame()
{
    Bed bed;
    bed.begin();
    sim::Fault fault;
    fault.kind = sim::FaultKind::Nack;
    fault.code = LevelCode;
    bed.monitor().armFault(fault);
    bed.set(Module, "level", 3);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 3);
    QCOMPARE(bed.setting(levelKey(bed)).toInt(), 3);
}

void TestLowBlueLight::firstStepFromZeroSwitchesOn_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("action");
    QTest::newRow("normal") << u"TK30Z"_s << 15;
    QTest::newRow("plus") << u"TK40"_s << 40;
}

void TestLowBlueLight::firstStepFromZeroSwitchesOn()
{
    QFETCH(QString, model);
    QFETCH(int, action);
    Bed bed(model);
    bed.begin();
    bed.set(Module, "level", 0);
    QVERIFY(bed.idle());
    bed.forget();
    QSignalSpy state(bed.module(Module), SIGNAL(stateChanged()));
    bed.set(Module, "level", 1);
    QVERIFY(bed.idle());
    // A further step stays silent: the page's closing tells it.
    bed.set(Module, "level", 5);
    QVERIFY(bed.idle());
    bed.set(Module, "level", 0);
    QVERIFY(bed.idle());
    QCOMPARE(eventsOf(bed), (QStringList{u"LuLowBlueLight %1 on 0 [1]"_s.arg(action),
                                         u"LuLowBlueLight %1 off 0 []"_s.arg(action)}));
    QCOMPARE(state.count(), 2);
}

void TestLowBlueLight::otherFunctionsReportTheirSteps()
{
    Bed bed;
    bed.begin();
    bed.forget();
    const auto trigger = [&](int level) {
        const LuMonitorModel::OtherFunctionScope scope(bed.module(Module));
        bed.set(Module, "level", level);
    };
    trigger(2);
    QVERIFY(bed.idle());
    trigger(3);
    QVERIFY(bed.idle());
    trigger(0);
    QVERIFY(bed.idle());
    QCOMPARE(eventsOf(bed),
             (QStringList{u"LuLowBlueLight 15 on 4 [2]"_s, u"LuLowBlueLight 15 on_update_setting 4 [3]"_s,
                          u"LuLowBlueLight 15 off 4 []"_s}));
}

void TestLowBlueLight::circadianAtLevelZeroIsOn()
{
    Bed bed;
    bed.begin();
    QCOMPARE(bed.level(), 0);
    bed.forget();
    QSignalSpy circadian(bed.module(Module), SIGNAL(circadianStateChanged()));
    bed.set(Module, "circadianState", true);
    QCOMPARE(bed.get(Module, "state").toBool(), true);
    bed.set(Module, "circadianState", true);
    QCOMPARE(circadian.count(), 1);
    QCOMPARE(eventsOf(bed),
             (QStringList{u"LuLowBlueLight 15 on 0 [0]"_s, u"LuLowBlueLight 41 on 0 [auto]"_s}));
    bed.set(Module, "circadianState", false);
    QCOMPARE(bed.get(Module, "state").toBool(), false);
    QCOMPARE(eventsOf(bed), (QStringList{u"LuLowBlueLight 15 off 0 []"_s, u"LuLowBlueLight 41 off 0 []"_s}));
    QVERIFY(bed.idle());
}

void TestLowBlueLight::theUsersLevelAfterTheScheduleStays()
{
    Bed bed;
    bed.begin();
    bed.turnOn(weather_bed::Manual);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 0);
    // The schedule finds its next level on a thread of its own, and this one has not heard of it yet.
    Told told;
    QVERIFY(QObject::connect(bed.weather(), SIGNAL(lowBlueLightLevelChanged()), &told, SLOT(tell()),
                             Qt::DirectConnection));
    programClock().set(at("2026-03-10T16:00:00"));
    QVERIFY(told.count.tryAcquire(1, 30'000));
    bed.set(Module, "circadianState", false);
    bed.set(Module, "level", 4);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), 4);
    QCOMPARE(int(*bed.monitor().value(LevelCode)), 4);
}

void TestLowBlueLight::circadianReportsItsMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("triggered");
    QTest::addColumn<QString>("event");
    QTest::newRow("auto") << Auto << false << u"LuLowBlueLight 41 on 0 [auto]"_s;
    QTest::newRow("manual") << Manual << false << u"LuLowBlueLight 41 on 0 [manual]"_s;
    QTest::newRow("other function") << Manual << true << u"LuLowBlueLight 41 on 4 [manual]"_s;
}

void TestLowBlueLight::circadianReportsItsMode()
{
    QFETCH(int, mode);
    QFETCH(bool, triggered);
    QFETCH(QString, event);
    Bed bed;
    bed.begin();
    bed.setMode(mode);
    bed.forget();
    {
        std::optional<LuMonitorModel::OtherFunctionScope> scope;
        if (triggered)
            scope.emplace(bed.module(Module));
        bed.set(Module, "circadianState", true);
    }
    QCOMPARE(eventsOf(bed).last(), event);
    QVERIFY(bed.idle());
}

void TestLowBlueLight::readBackTakesTheMonitorsLevel()
{
    Bed bed;
    bed.begin();
    QVERIFY(bed.monitor().setByMenu(LevelCode, 3));
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList{u"get 0x19 3"_s});
    QCOMPARE(bed.setting(levelKey(bed)).toInt(), 3);
    QVERIFY(bed.log().contains(u"[LuLowBlueLight] sync: \"TK30Z\""_s));
    QCOMPARE(eventsOf(bed), QStringList{u"LuLowBlueLight 15 on 1 [3]"_s});
    QVERIFY(bed.monitor().setByMenu(LevelCode, 2));
    QVERIFY(bed.sync(Module));
    QCOMPARE(eventsOf(bed), QStringList{u"LuLowBlueLight 15 on_update_setting 1 [2]"_s});
    QVERIFY(bed.monitor().setByMenu(LevelCode, 0));
    QVERIFY(bed.sync(Module));
    QCOMPARE(eventsOf(bed), QStringList{u"LuLowBlueLight 15 off 1 []"_s});
}

void TestLowBlueLight::readBackOfTheStoredLevelFiresNothing()
{
    Bed bed;
    bed.begin();
    bed.set(Module, "level", 2);
    QVERIFY(bed.idle());
    bed.forget();
    QSignalSpy spy(bed.module(Module), SIGNAL(levelChanged()));
    QVERIFY(bed.sync(Module));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(eventsOf(bed), QStringList());
}

void TestLowBlueLight::failedReadChangesNothing()
{
    Bed bed;
    bed.begin();
    bed.set(Module, "level", 2);
    QVERIFY(bed.idle());
    sim::Fault fault;
    fault.kind = sim::FaultKind::Nack;
    fault.code = LevelCode;
    bed.monitor().armFault(fault);
    bed.forget();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.level(), 2);
    QCOMPARE(eventsOf(bed), QStringList());
}

void TestLowBlueLight::modeChangeReadsTheNewModesLevel()
{
    Bed bed;
    bed.begin();
    bed.set(Module, "level", 4);
    QVERIFY(bed.idle());
    const QString before = levelKey(bed);
    LuVCPNode* other = bed.model().getColorModeByName(u"Cinema"_s);
    QVERIFY(other && other != bed.model().colorMode());
    // The monitor's own memory of the other mode, and an older one of the program's that does not count.
    bed.storeSetting(u"LuLowBlueLight/Cinema/level"_s, 5);
    bed.model().setColorMode(other);
    QVERIFY(bed.idle());
    QCOMPARE(bed.level(), int(bed.monitor().value(LevelCode).value_or(99)));
    QCOMPARE(bed.setting(u"LuLowBlueLight/Cinema/level"_s).toInt(), bed.level());
    QCOMPARE(bed.setting(before).toInt(), 4);
}

void TestLowBlueLight::firstConnectionReportsCircadianFirst()
{
    LuSettings::instance().setValue(u"weather/circadianState"_s, true);
    Bed bed;
    bed.begin();
    QCOMPARE(eventsOf(bed),
             (QStringList{u"LuLowBlueLight 41 on 5 [auto]"_s, u"LuLowBlueLight 15 on 5 [0]"_s}));
    bed.set(Module, "circadianState", false);
    QVERIFY(bed.idle());
}

void TestLowBlueLight::firstConnectionWithTheFilterOn()
{
    Bed bed;
    QVERIFY(bed.monitor().setByMenu(LevelCode, 2));
    bed.begin();
    QCOMPARE(eventsOf(bed), QStringList{u"LuLowBlueLight 15 on 5 [2]"_s});
}

void TestLowBlueLight::launchRestoresTheLevelOfTheMode()
{
    Bed bed;
    bed.begin();
    bed.set(Module, "level", 3);
    QVERIFY(bed.idle());
    bed.destroy();
    QVERIFY(bed.monitor().setByMenu(LevelCode, 1));
    bed.forget();
    bed.launch();
    QCOMPARE(bed.level(), 3);
    QCOMPARE(bed.get(Module, "state").toBool(), true);
    QVERIFY(bed.idle());
    QCOMPARE(int(bed.monitor().value(LevelCode).value_or(99)), 3);
    QVERIFY(bed.log().contains(u"[LuLowBlueLight] apply low blue light level: 3"_s));
    QCOMPARE(eventsOf(bed), QStringList{u"LuLowBlueLight 15 on 3 [3]"_s});
}

void TestLowBlueLight::filterThatStaysOffIsNotAppliedAgain()
{
    Bed bed;
    bed.begin();
    bed.set(Module, "level", 1);
    bed.set(Module, "level", 0);
    QVERIFY(bed.idle());
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(u"set 0x19"_s).isEmpty(), false);
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(u"set 0x19"_s), QStringList());
    // The user's next level clears the mark.
    bed.set(Module, "level", 2);
    QVERIFY(bed.idle());
    bed.forget();
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(u"set 0x19"_s), QStringList{u"set 0x19 2"_s});
}

void TestLowBlueLight::pageVisitGivesOneEvent_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<QList<int>>("moves");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("moved") << 1 << QList<int>{2, 3, 4}
                           << QStringList{u"LuLowBlueLight 15 on_update_setting 0 [4]"_s};
    QTest::newRow("and back") << 1 << QList<int>{2, 1} << QStringList();
    QTest::newRow("switched on") << 0 << QList<int>{3}
                                 << QStringList{u"LuLowBlueLight 15 on 0 [3]"_s,
                                                u"LuLowBlueLight 15 on_update_setting 0 [3]"_s};
    QTest::newRow("switched off") << 3 << QList<int>{0} << QStringList{u"LuLowBlueLight 15 off 0 []"_s};
}

void TestLowBlueLight::pageVisitGivesOneEvent()
{
    QFETCH(int, from);
    QFETCH(QList<int>, moves);
    QFETCH(QStringList, events);
    Bed bed;
    bed.begin();
    bed.set(Module, "level", from);
    QVERIFY(bed.idle());
    bed.forget();
    bed.module(Module)->takePropertySnapshot();
    for (const int level : moves) {
        bed.set(Module, "level", level);
        QVERIFY(bed.idle());
    }
    bed.module(Module)->fireUpdateSettingEvent();
    QCOMPARE(eventsOf(bed), events);
}

void TestLowBlueLight::exitReportsOff()
{
    Bed bed;
    bed.begin();
    bed.module(Module)->fireExitEvent();
    bed.forget();
    bed.module(Module)->fireExitEvent();
    QCOMPARE(eventsOf(bed), QStringList());
    bed.set(Module, "level", 2);
    QVERIFY(bed.idle());
    bed.forget();
    bed.module(Module)->fireExitEvent();
    QCOMPARE(eventsOf(bed), QStringList{u"LuLowBlueLight 15 off 2 []"_s});
}

QTEST_MAIN(TestLowBlueLight)
#include "tst_lowbluelight.moc"
