// SPDX-License-Identifier: Apache-2.0
#include "feature_bed.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

constexpr int StateCode = 0xD7;
constexpr int LightCode = 0xD9;
constexpr int Auto = 48;
constexpr int On = 32;
constexpr int Off = 16;
constexpr int Angle270 = 1;
constexpr int Angle360 = 2;

constexpr int packed(int high, int low)
{
    return high << 8 | low;
}

struct Bed : FeatureBed
{
    explicit Bed(const QString& name = u"TK30Z"_s, Timing timing = Timing::Fast)
        : FeatureBed("LuBackLight", {StateCode, LightCode}, name, timing)
    {
    }

    /// Angle 270, brightness 5 and colour temperature 4, as the monitor comes from the factory.
    void beginAt(int state, bool nonStop = false)
    {
        beginWith({{"nonStopMode", nonStop}, {"state", state}});
        QCOMPARE(number("brightness"), 5);
        QCOMPARE(number("colorTemperature"), 4);
    }
    int held(int code) { return monitor().value(code).value_or(0xFFFF); }
};

QString sets(int code, int value)
{
    return u"set 0x%1 %2"_s.arg(code, 0, 16).arg(value).replace(u"0xd"_s, u"0xD"_s);
}

} // namespace

class TestBackLight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSchemaDecides_data();
    void theSchemaDecides();
    void withoutTheFeatureNothingHappens();
    void stateIsOnTheWireWhenTheSetterReturns_data();
    void stateIsOnTheWireWhenTheSetterReturns();
    void aReadBackUnderWayDoesNotUndoTheState();
    void aRestingMonitorTakesTheStateLater_data();
    void aRestingMonitorTakesTheStateLater();
    void queuedValuesAreWrittenAndStored_data();
    void queuedValuesAreWrittenAndStored();
    void presentValuesWriteNothing();
    void hangingBusHoldsTheSetterForItsLimitAlone();
    void fastChangesLoseNothing();
    void choicesOfTwoThreadsBothHold();
    void whatDoesNotFitIntoAByteIsRefused_data();
    void whatDoesNotFitIntoAByteIsRefused();
    void nonStopModeIsToldOf_data();
    void nonStopModeIsToldOf();
    void sensorsFirstTimeIsKept();
    void failedWriteIsTakenAllTheSame();
    void readBackOfTheState_data();
    void readBackOfTheState();
    void readBackOfTheLight();
    void aFailedReadEndsItsOwnTaskAlone_data();
    void aFailedReadEndsItsOwnTaskAlone();
    void firstConnection_data();
    void firstConnection();
    void modeChangeReadsTheNewModesValues();
    void launchRestores_data();
    void launchRestores();
    void lightThatWasNeverKnownIsNotWritten();
    void whatStaysOffIsNotAppliedAgain();
    void parametersNameTheAngle_data();
    void parametersNameTheAngle();
    void pageVisitGivesOneEvent_data();
    void pageVisitGivesOneEvent();
    void exitReportsOff();
};

void TestBackLight::theSchemaDecides_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("enabled");
    for (const char* name : {"TK30", "TK30X", "TK30Z", "TK40", "TK40X"})
        QTest::newRow(name) << QString::fromLatin1(name) << true;
    for (const char* name : {"TK10", "TK20", "Other"})
        QTest::newRow(name) << QString::fromLatin1(name) << false;
}

void TestBackLight::theSchemaDecides()
{
    QFETCH(QString, model);
    Bed bed(model);
    bed.begin();
    QTEST(bed.flag("backLightEnable"), "enabled");
}

void TestBackLight::withoutTheFeatureNothingHappens()
{
    Bed bed(u"TK20"_s);
    bed.begin();
    bed.forget();
    bed.put("state", On);
    bed.put("brightness", 3);
    bed.put("colorTemperature", 3);
    bed.put("angle", Angle360);
    QVERIFY(bed.ask("nonStopMode", true));
    QVERIFY(bed.apply());
    QCOMPARE(bed.own(), QStringList());
    QCOMPARE(bed.number("state"), Off);
    QCOMPARE(bed.told(), QStringList());
}

void TestBackLight::stateIsOnTheWireWhenTheSetterReturns_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("nonStop");
    QTest::addColumn<bool>("triggered");
    QTest::addColumn<QString>("event");
    QTest::newRow("on") << Off << On << false << false << u"LuBackLight 43 on 0 [270_degree]"_s;
    QTest::newRow("on, non-stop") << Off << On << true << false << u"LuBackLight 43 on 0 [270_degree]"_s;
    QTest::newRow("sensor") << Off << Auto << false << false
                            << u"LuBackLight 43 auto_dimming 0 [270_degree]"_s;
    QTest::newRow("off") << On << Off << false << false << u"LuBackLight 43 off 0 []"_s;
    QTest::newRow("off, non-stop") << On << Off << true << false << u"LuBackLight 43 off 0 []"_s;
    QTest::newRow("on by another function")
        << Off << On << false << true << u"LuBackLight 43 on 4 [270_degree]"_s;
    QTest::newRow("sensor by another function")
        << Off << Auto << false << true << u"LuBackLight 43 auto_dimming 4 [270_degree]"_s;
    QTest::newRow("off by another function") << On << Off << false << true << u"LuBackLight 43 off 4 []"_s;
}

void TestBackLight::stateIsOnTheWireWhenTheSetterReturns()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, nonStop);
    QFETCH(bool, triggered);
    QFETCH(QString, event);
    Bed bed;
    bed.beginAt(from, nonStop);
    QSignalSpy spy(bed.module(), SIGNAL(stateChanged()));
    bed.putBy(triggered, "state", to);
    // Nothing has waited for the queue.
    QCOMPARE(bed.own(), QStringList{sets(StateCode, packed(Angle270, to + int(nonStop)))});
    QCOMPARE(bed.number("state"), to);
    QCOMPARE(bed.stored("state").toInt(), to);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.told(), QStringList{event});
}

void TestBackLight::aReadBackUnderWayDoesNotUndoTheState()
{
    Bed bed(u"TK30Z"_s, SimulatedBed::Timing::Real);
    bed.beginAt(Off);
    // The light is read first, so that the state's own answer is on its way now.
    QVERIFY(bed.beginReadBackUntil(LightCode));
    bed.put("state", On);
    QCOMPARE(bed.number("state"), On);
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("state"), On);
    QCOMPARE(bed.held(StateCode), packed(Angle270, On));
    QCOMPARE(bed.told(), QStringList{u"LuBackLight 43 on 0 [270_degree]"_s});
}

void TestBackLight::aRestingMonitorTakesTheStateLater_data()
{
    QTest::addColumn<bool>("angleFirst");
    QTest::newRow("alone") << false;
    QTest::newRow("with an angle that waits") << true;
}

void TestBackLight::aRestingMonitorTakesTheStateLater()
{
    QFETCH(bool, angleFirst);
    Bed bed(u"TK30Z"_s, SimulatedBed::Timing::Real);
    bed.beginAt(Off);
    const quint64 before = bed.monitor().traffic().last().seq;
    bed.model().setColorMode(bed.model().getColorModeByName(u"Cinema"_s));
    // Half a second of rest, longer than the setter may hold its caller.
    QTRY_VERIFY(!bed.monitor().traffic(before).isEmpty());
    if (angleFirst) {
        bed.put("angle", Angle360);
        QTRY_COMPARE(bed.number("angle"), Angle360);
    }
    bed.put("state", On);
    QCOMPARE(bed.number("state"), On);
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("state"), On);
    QCOMPARE(bed.held(StateCode), packed(angleFirst ? Angle360 : Angle270, On));
    QCOMPARE(bed.stored("state").toInt(), On);
    QCOMPARE(bed.told(), QStringList{angleFirst ? u"LuBackLight 43 on 0 [360_degree]"_s
                                                : u"LuBackLight 43 on 0 [270_degree]"_s});
}

void TestBackLight::queuedValuesAreWrittenAndStored_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("written");
    QTest::newRow("brightness") << QByteArray("brightness") << 9 << LightCode << packed(4, 9);
    QTest::newRow("colour temperature") << QByteArray("colorTemperature") << 7 << LightCode << packed(7, 5);
    QTest::newRow("angle") << QByteArray("angle") << Angle360 << StateCode << packed(Angle360, On);
    QTest::newRow("non-stop") << QByteArray("nonStopMode") << 1 << StateCode << packed(Angle270, On + 1);
}

void TestBackLight::queuedValuesAreWrittenAndStored()
{
    QFETCH(QByteArray, property);
    QFETCH(int, value);
    QFETCH(int, code);
    QFETCH(int, written);
    Bed bed;
    bed.beginAt(On);
    QSignalSpy spy(bed.module(), QByteArray("2" + property + "Changed()").constData());
    QVERIFY(bed.ask(property.constData(), value));
    QCOMPARE(bed.own(), QStringList{sets(code, written)});
    QCOMPARE(bed.number(property.constData()), value);
    QCOMPARE(bed.stored(property.constData()).toInt(), value);
    QCOMPARE(spy.count(), 1);
}

void TestBackLight::presentValuesWriteNothing()
{
    Bed bed;
    bed.beginAt(On);
    bed.put("state", On);
    bed.put("brightness", 5);
    bed.put("colorTemperature", 4);
    bed.put("angle", Angle270);
    QVERIFY(bed.ask("nonStopMode", false));
    QCOMPARE(bed.own(), QStringList());
    QCOMPARE(bed.told(), QStringList());
}

void TestBackLight::hangingBusHoldsTheSetterForItsLimitAlone()
{
    Bed bed;
    bed.beginAt(Off);
    // The setter's own transfer is the one that hangs: nobody else holds the bus.
    sim::Fault fault;
    fault.kind = sim::FaultKind::Timeout;
    fault.blocks = std::chrono::minutes(2);
    fault.code = StateCode;
    bed.monitor().armFault(fault);
    QElapsedTimer timer;
    timer.start();
    bed.put("state", On);
    const qint64 took = timer.elapsed();
    QVERIFY2(took >= 140 && took < 30'000, qPrintable(QString::number(took)));
    QCOMPARE(bed.number("state"), int(On));
    bed.monitor().unplug();
}

void TestBackLight::fastChangesLoseNothing()
{
    Bed bed;
    bed.beginAt(On);
    for (int step = 1; step <= 7; ++step) {
        bed.put("brightness", step + 3);
        bed.put("colorTemperature", step);
        bed.put("angle", step % 2 ? Angle360 : Angle270);
        bed.put("nonStopMode", step % 2 != 0);
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.held(LightCode), packed(7, 10));
    QCOMPARE(bed.held(StateCode), packed(Angle360, On + 1));
    QCOMPARE(bed.number("brightness"), 10);
    QCOMPARE(bed.number("colorTemperature"), 7);
}

// The angle is written by the monitor's queue, the state by whoever sets it, and both share one code.
void TestBackLight::choicesOfTwoThreadsBothHold()
{
    Bed bed;
    bed.beginAt(On);
    int angle = Angle270;
    int state = On;
    for (int i = 0; i < 100; ++i) {
        angle = angle == Angle270 ? Angle360 : Angle270;
        state = state == On ? Off : On;
        bed.put("angle", angle);
        bed.put("state", state);
        QVERIFY(bed.idle());
        QCOMPARE(bed.held(StateCode), packed(angle, state));
    }
}

void TestBackLight::whatDoesNotFitIntoAByteIsRefused_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("value");
    QTest::newRow("brightness below") << QByteArray("brightness") << -1;
    QTest::newRow("brightness above") << QByteArray("brightness") << 256;
    QTest::newRow("colour temperature") << QByteArray("colorTemperature") << 256;
    QTest::newRow("angle") << QByteArray("angle") << 256;
}

void TestBackLight::whatDoesNotFitIntoAByteIsRefused()
{
    QFETCH(QByteArray, property);
    QFETCH(int, value);
    Bed bed;
    bed.beginAt(On);
    const int before = bed.number(property.constData());
    QVERIFY(bed.ask(property.constData(), value));
    QCOMPARE(bed.number(property.constData()), before);
    QCOMPARE(bed.own(), QStringList());
    QVERIFY(bed.logged(u" %1 is not in 0 to 255"_s.arg(value)));
}

void TestBackLight::nonStopModeIsToldOf_data()
{
    QTest::addColumn<bool>("to");
    QTest::addColumn<QString>("event");
    QTest::newRow("on") << true << u"LuBackLight 44 on 0 []"_s;
    QTest::newRow("off") << false << u"LuBackLight 44 off 0 []"_s;
}

void TestBackLight::nonStopModeIsToldOf()
{
    QFETCH(bool, to);
    QFETCH(QString, event);
    Bed bed;
    bed.beginAt(Off, !to);
    QVERIFY(bed.ask("nonStopMode", to));
    QCOMPARE(bed.own(), QStringList{sets(StateCode, packed(Angle270, Off + int(to)))});
    QCOMPARE(bed.told(), QStringList{event});
}

void TestBackLight::sensorsFirstTimeIsKept()
{
    Bed bed;
    bed.begin();
    const QString key = u"LuBackLight/dataCollection/startTime"_s;
    QVERIFY(!bed.setting(key).isValid());
    bed.put("state", Auto);
    const QDateTime first = bed.setting(key).toDateTime();
    QVERIFY(first.isValid());
    bed.put("state", Off);
    QVERIFY(bed.ask("state", Auto));
    QCOMPARE(bed.setting(key).toDateTime(), first);
}

void TestBackLight::failedWriteIsTakenAllTheSame()
{
    Bed bed;
    bed.beginAt(Off);
    bed.fail(StateCode);
    bed.fail(LightCode);
    bed.put("state", On);
    QVERIFY(bed.ask("brightness", 6));
    QCOMPARE(bed.number("state"), On);
    QCOMPARE(bed.number("brightness"), 6);
    // A refusal is no rest: the queue does not try it again.
    QCOMPARE(bed.own().filter(u"set 0xD7"_s).size(), 1);
    bed.monitor().clearFaults();
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number("state"), Off);
    QCOMPARE(bed.number("brightness"), 5);
}

void TestBackLight::readBackOfTheState_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("angle");
    QTest::addColumn<bool>("nonStop");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("on") << Off << 0x0120 << On << Angle270 << false
                        << QStringList{u"LuBackLight 43 on 1 [270_degree]"_s};
    QTest::newRow("off") << On << 0x0110 << Off << Angle270 << false
                         << QStringList{u"LuBackLight 43 off 1 []"_s};
    QTest::newRow("sensor") << Off << 0x0130 << Auto << Angle270 << false
                            << QStringList{u"LuBackLight 43 auto_dimming 1 [270_degree]"_s};
    QTest::newRow("off and non-stop")
        << On << (0x0100 | 17) << Off << Angle270 << true
        << QStringList{u"LuBackLight 43 off 1 []"_s, u"LuBackLight 44 on 1 []"_s};
    QTest::newRow("any low bit counts as non-stop")
        << On << 0x0128 << On << Angle270 << true << QStringList{u"LuBackLight 44 on 1 []"_s};
    QTest::newRow("angle") << On << 0x0220 << On << Angle360 << false
                           << QStringList{u"LuBackLight 43 on_update_setting 1 [360_degree]"_s};
    QTest::newRow("angle first, then the rest")
        << Off << 0x0231 << Auto << Angle360 << true
        << QStringList{u"LuBackLight 43 on_update_setting 1 [360_degree]"_s,
                       u"LuBackLight 43 auto_dimming 1 [360_degree]"_s, u"LuBackLight 44 on 1 []"_s};
    QTest::newRow("a state without a name is told of by nobody")
        << Off << 0x0140 << 64 << Angle270 << false << QStringList();
    QTest::newRow("the same") << On << 0x0120 << On << Angle270 << false << QStringList();
}

void TestBackLight::readBackOfTheState()
{
    QFETCH(int, from);
    QFETCH(int, value);
    QFETCH(int, state);
    QFETCH(int, angle);
    QFETCH(bool, nonStop);
    QFETCH(QStringList, events);
    Bed bed;
    bed.beginAt(from);
    QVERIFY(bed.monitor().setByMenu(StateCode, value));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number("state"), state);
    QCOMPARE(bed.number("angle"), angle);
    QCOMPARE(bed.flag("nonStopMode"), nonStop);
    QCOMPARE(bed.stored("state").toInt(), state);
    QCOMPARE(bed.told(), events);
    QVERIFY(bed.logged(u"[LuBackLight] sync: \"TK30Z\""_s));
    QCOMPARE(bed.logged(u"[LuBackLight] sync BackLight m_state changed:"_s), from != state);
    QCOMPARE(bed.logged(u"[LuBackLight] sync BackLight angle changed:"_s), angle != Angle270);
    QCOMPARE(bed.logged(u"[LuBackLight] sync BackLight nonStopMode changed:"_s), nonStop);
}

void TestBackLight::readBackOfTheLight()
{
    Bed bed;
    bed.beginAt(On);
    QVERIFY(bed.monitor().setByMenu(LightCode, packed(2, 8)));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number("brightness"), 8);
    QCOMPARE(bed.number("colorTemperature"), 2);
    QCOMPARE(bed.stored("brightness").toInt(), 8);
    QCOMPARE(bed.stored("colorTemperature").toInt(), 2);
    QVERIFY(bed.logged(u"[LuBackLight] sync BackLight brightness changed: 8"_s));
    QVERIFY(bed.logged(u"[LuBackLight] sync BackLight colorTemperature changed: 2"_s));
    QCOMPARE(bed.told(), QStringList());
}

void TestBackLight::aFailedReadEndsItsOwnTaskAlone_data()
{
    QTest::addColumn<int>("failing");
    QTest::addColumn<int>("brightness");
    QTest::addColumn<int>("state");
    QTest::newRow("light") << LightCode << 5 << Off;
    QTest::newRow("state") << StateCode << 8 << On;
}

void TestBackLight::aFailedReadEndsItsOwnTaskAlone()
{
    QFETCH(int, failing);
    Bed bed;
    bed.beginAt(On);
    QVERIFY(bed.monitor().setByMenu(LightCode, packed(4, 8)));
    QVERIFY(bed.monitor().setByMenu(StateCode, packed(Angle270, Off)));
    bed.fail(failing);
    QVERIFY(bed.syncModule());
    QTEST(bed.number("brightness"), "brightness");
    QTEST(bed.number("state"), "state");
}

void TestBackLight::firstConnection_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("off") << 0x0110 << QStringList();
    // The flag was found and differed, so it is told of as both.
    QTest::newRow("off and non-stop")
        << 0x0111 << QStringList{u"LuBackLight 44 on 5 []"_s, u"LuBackLight 44 on 1 []"_s};
    QTest::newRow("on") << 0x0120 << QStringList{u"LuBackLight 43 on 5 [270_degree]"_s};
    QTest::newRow("sensor") << 0x0130 << QStringList{u"LuBackLight 43 auto_dimming 5 [270_degree]"_s};
}

void TestBackLight::firstConnection()
{
    QFETCH(int, value);
    QFETCH(QStringList, events);
    Bed bed;
    QVERIFY(bed.monitor().setByMenu(StateCode, value));
    bed.begin();
    QCOMPARE(bed.told(), events);
}

void TestBackLight::modeChangeReadsTheNewModesValues()
{
    Bed bed;
    bed.beginAt(On);
    const QString before = bed.key("state");
    bed.storeSetting(u"LuBackLight/Cinema/state"_s, Auto);
    bed.model().setColorMode(bed.model().getColorModeByName(u"Cinema"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("state"), Off);
    QCOMPARE(bed.setting(u"LuBackLight/Cinema/state"_s).toInt(), Off);
    QCOMPARE(bed.setting(before).toInt(), On);
    bed.model().setColorMode(bed.model().getColorModeByName(u"User"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("state"), On);
}

void TestBackLight::launchRestores_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("nonStop");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("on") << On << false
                        << QStringList{u"LuBackLight 43 on 3 [360_degree]"_s, u"LuBackLight 44 off 3 []"_s};
    QTest::newRow("sensor") << Auto << true
                            << QStringList{u"LuBackLight 43 auto_dimming 3 [360_degree]"_s,
                                           u"LuBackLight 44 on 3 []"_s};
    QTest::newRow("off") << Off << true
                         << QStringList{u"LuBackLight 43 off 3 []"_s, u"LuBackLight 44 on 3 []"_s};
}

void TestBackLight::launchRestores()
{
    QFETCH(int, state);
    QFETCH(bool, nonStop);
    QFETCH(QStringList, events);
    Bed bed;
    bed.beginAt(On);
    bed.put("angle", Angle360);
    bed.put("brightness", 9);
    QVERIFY(bed.ask("nonStopMode", nonStop));
    QVERIFY(bed.ask("state", state));
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.own().filter(u"set"_s), (QStringList{sets(StateCode, packed(Angle360, state + int(nonStop))),
                                                      sets(LightCode, packed(4, 9))}));
    QCOMPARE(bed.told().first(2), events);
    QVERIFY(bed.logged(u"[LuBackLight] apply BackLight state:"_s));
    QVERIFY(bed.logged(u"[LuBackLight] apply BackLight angle:"_s));
    QVERIFY(bed.logged(u"[LuBackLight] apply BackLight nonStopMode: "_s));
    QVERIFY(bed.logged(u"[LuBackLight] apply BackLight colorTemperature:  4"_s));
    QVERIFY(bed.logged(u"[LuBackLight] apply BackLight brightness:  9"_s));
}

void TestBackLight::lightThatWasNeverKnownIsNotWritten()
{
    Bed bed;
    bed.fail(LightCode);
    bed.begin();
    bed.monitor().clearFaults();
    QCOMPARE(bed.number("brightness"), 0);
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.own().filter(u"set"_s), QStringList{sets(StateCode, packed(Angle270, Off))});
    // Read afterwards.
    QCOMPARE(bed.number("brightness"), 5);
}

void TestBackLight::whatStaysOffIsNotAppliedAgain()
{
    Bed bed;
    bed.begin();
    QVERIFY(bed.relaunchAnew());
    QVERIFY(bed.relaunchAnew());
    QCOMPARE(bed.own().filter(u"set"_s), QStringList());
    QVERIFY(bed.ask("state", On));
    QVERIFY(bed.relaunchAnew());
    QVERIFY(bed.own().contains(sets(StateCode, packed(Angle270, On))));
}

void TestBackLight::parametersNameTheAngle_data()
{
    QTest::addColumn<int>("angle");
    QTest::addColumn<QString>("text");
    QTest::newRow("270") << Angle270 << u"270_degree"_s;
    QTest::newRow("360") << Angle360 << u"360_degree"_s;
    QTest::newRow("a number without a name") << 7 << QString();
}

void TestBackLight::parametersNameTheAngle()
{
    QFETCH(int, angle);
    QFETCH(QString, text);
    Bed bed;
    bed.beginAt(On);
    QVERIFY(bed.monitor().setByMenu(StateCode, packed(angle, On)));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.module()->parametersStrings(), QList<QString>{text});
}

void TestBackLight::pageVisitGivesOneEvent_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QList<int>>("angles");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("turned") << On << QList<int>{Angle360}
                            << QStringList{u"LuBackLight 43 on_update_setting 0 [360_degree]"_s};
    QTest::newRow("turned with the sensor")
        << Auto << QList<int>{Angle360} << QStringList{u"LuBackLight 43 on_update_setting 0 [360_degree]"_s};
    QTest::newRow("and back") << On << QList<int>{Angle360, Angle270} << QStringList();
    QTest::newRow("off") << Off << QList<int>{Angle360} << QStringList();
}

void TestBackLight::pageVisitGivesOneEvent()
{
    QFETCH(int, state);
    QFETCH(QList<int>, angles);
    QFETCH(QStringList, events);
    Bed bed;
    bed.beginAt(state);
    bed.module()->takePropertySnapshot();
    for (const int angle : angles)
        bed.put("angle", angle);
    QVERIFY(bed.ask("brightness", 8));
    bed.module()->fireUpdateSettingEvent();
    QCOMPARE(bed.told(), events);
}

void TestBackLight::exitReportsOff()
{
    Bed bed;
    bed.beginAt(Off, true);
    QCOMPARE(bed.toldAtExit(), QStringList());
    bed.put("state", Auto);
    QCOMPARE(bed.toldAtExit(), QStringList{u"LuBackLight 43 off 2 []"_s});
}

QTEST_MAIN(TestBackLight)
#include "tst_backlight.moc"
