// SPDX-License-Identifier: Apache-2.0
#include "feature_bed.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int StateCode = 0xE2;
constexpr int MeterCode = 0xE3;
constexpr int SensitivityCode = 0xE5;

struct Bed : FeatureBed
{
    explicit Bed(const QString& name = u"TK40X"_s)
        : FeatureBed("LuABSetting", {StateCode, MeterCode, SensitivityCode}, name)
    {
    }

    /// The sensitivity of the monitor is 5.
    void beginAt(bool on) { beginWith({{"sensitivity", 4}, {"sensitivity", 5}, {"currentAB", on}}); }
};

} // namespace

class TestABSetting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSchemaDecides_data();
    void theSchemaDecides();
    void withoutTheFeatureNothingHappens();
    void stateIsWrittenStoredAndReported_data();
    void stateIsWrittenStoredAndReported();
    void presentValuesWriteNothing();
    void lightMeterNeedsTheFeatureOn_data();
    void lightMeterNeedsTheFeatureOn();
    void sensitivityIsWrittenAlsoWhileOff_data();
    void sensitivityIsWrittenAlsoWhileOff();
    void failedWriteIsTakenAllTheSame();
    void readBack_data();
    void readBack();
    void anyNumberCountsAsOn();
    void offLeavesTheRestUnread();
    void failedStateReadSkipsTheRest();
    void firstConnection_data();
    void firstConnection();
    void switchingReadsTheBrightness();
    void modeChangeReadsTheNewModesValues();
    void launchRestores_data();
    void launchRestores();
    void whatStaysOffIsNotAppliedAgain();
    void pageVisitGivesNoEvent();
    void exitReportsOff();
};

void TestABSetting::theSchemaDecides_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("enabled");
    for (const char* name : {"TK10", "TK30", "TK30X", "TK40", "TK40X"})
        QTest::newRow(name) << QString::fromLatin1(name) << true;
    QTest::newRow("TK20, the newer form") << u"TK20"_s << false;
    QTest::newRow("TK30Z, the newer form") << u"TK30Z"_s << false;
    QTest::newRow("another make") << u"Other"_s << false;
}

void TestABSetting::theSchemaDecides()
{
    QFETCH(QString, model);
    Bed bed(model);
    bed.begin();
    QTEST(bed.flag("abSensorEnable"), "enabled");
    // The files of the series name the other form's maximum.
    QCOMPARE(bed.number("maxSensitivity"), 10);
    QCOMPARE(bed.number("transitionStepInterval"), 0);
}

void TestABSetting::withoutTheFeatureNothingHappens()
{
    Bed bed(u"TK30Z"_s);
    bed.begin();
    bed.forget();
    bed.put("currentAB", true);
    bed.put("lightMeterState", true);
    QVERIFY(bed.ask("sensitivity", 3));
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.flag("currentAB"), false);
    QVERIFY(bed.apply());
    QCOMPARE(bed.wireOf({StateCode}), QStringList());
    QCOMPARE(bed.told(), QStringList());
}

void TestABSetting::stateIsWrittenStoredAndReported_data()
{
    QTest::addColumn<bool>("to");
    QTest::addColumn<bool>("triggered");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("event");
    QTest::newRow("on") << true << false << 255 << u"LuABSetting 14 on 0 []"_s;
    QTest::newRow("off") << false << false << 0 << u"LuABSetting 14 off 0 []"_s;
    QTest::newRow("on by another function") << true << true << 255 << u"LuABSetting 14 on 4 []"_s;
    QTest::newRow("off by another function") << false << true << 0 << u"LuABSetting 14 off 4 []"_s;
}

void TestABSetting::stateIsWrittenStoredAndReported()
{
    QFETCH(bool, to);
    QFETCH(bool, triggered);
    QFETCH(int, value);
    QFETCH(QString, event);
    Bed bed;
    bed.beginAt(!to);
    bed.checkAsked({"currentAB",
                    to,
                    {u"set 0xE2 %1"_s.arg(value)},
                    {event},
                    u"[LuABSetting] set AB state: "_s,
                    triggered});
    QCOMPARE(bed.stored("currentAB").toBool(), to);
}

void TestABSetting::presentValuesWriteNothing()
{
    Bed bed;
    bed.beginAt(true);
    bed.put("currentAB", true);
    bed.put("sensitivity", 5);
    QVERIFY(bed.ask("lightMeterState", false));
    QCOMPARE(bed.own(), QStringList());
    QCOMPARE(bed.told(), QStringList());
}

void TestABSetting::lightMeterNeedsTheFeatureOn_data()
{
    QTest::addColumn<bool>("on");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void TestABSetting::lightMeterNeedsTheFeatureOn()
{
    QFETCH(bool, on);
    Bed bed;
    bed.beginAt(on);
    QSignalSpy spy(bed.module(), SIGNAL(lightMeterStateChanged()));
    QVERIFY(bed.ask("lightMeterState", true));
    QCOMPARE(bed.own(), on ? QStringList{u"set 0xE3 1"_s} : QStringList());
    QCOMPARE(bed.flag("lightMeterState"), on);
    QCOMPARE(bed.stored("LightMeter").toBool(), on);
    QCOMPARE(spy.count(), int(on));
    QCOMPARE(bed.logged(u"[LuABSetting] set AB Light Meter: "_s), on);
    QCOMPARE(bed.told(), QStringList());
}

void TestABSetting::sensitivityIsWrittenAlsoWhileOff_data()
{
    lightMeterNeedsTheFeatureOn_data();
}

void TestABSetting::sensitivityIsWrittenAlsoWhileOff()
{
    QFETCH(bool, on);
    Bed bed;
    bed.beginAt(on);
    bed.checkAsked({"sensitivity", 8, {u"set 0xE5 8"_s}, {}, u"[LuABSetting] set AB Sensitivity:  8"_s});
    // With a capital, unlike the newer form's.
    QCOMPARE(bed.stored("Sensitivity").toInt(), 8);
    QVERIFY(!bed.stored("sensitivity").isValid());
}

void TestABSetting::failedWriteIsTakenAllTheSame()
{
    Bed bed;
    bed.beginAt(false);
    bed.checkFailedWrite("currentAB", StateCode);
}

void TestABSetting::readBack_data()
{
    QTest::addColumn<bool>("from");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("on");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("on") << false << 255 << true << QStringList{u"LuABSetting 14 on 1 []"_s};
    QTest::newRow("on by another number") << false << 1 << true << QStringList{u"LuABSetting 14 on 1 []"_s};
    QTest::newRow("off") << true << 0 << false << QStringList{u"LuABSetting 14 off 1 []"_s};
    QTest::newRow("the same") << true << 1 << true << QStringList();
}

void TestABSetting::readBack()
{
    QFETCH(bool, from);
    QFETCH(int, value);
    QFETCH(bool, on);
    QFETCH(QStringList, events);
    Bed bed;
    bed.beginAt(from);
    QVERIFY(bed.monitor().setByMenu(StateCode, value));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.flag("currentAB"), on);
    QCOMPARE(bed.stored("currentAB").toBool(), on);
    QCOMPARE(bed.told(), events);
    QVERIFY(bed.logged(u"[LuABSetting] sync: \"TK40X\""_s));
    QVERIFY(bed.logged(u"[LuABSetting] get AB state"_s));
    QCOMPARE(bed.logged(u"[LuABSetting] sync AB changed: %1"_s.arg(on ? u"true"_s : u"false"_s)), from != on);
}

void TestABSetting::anyNumberCountsAsOn()
{
    Bed bed;
    bed.beginAt(false);
    QVERIFY(bed.monitor().setByMenu(StateCode, 1));
    QVERIFY(bed.syncModule());
    QVERIFY(bed.ask("currentAB", false));
    QVERIFY(bed.ask("currentAB", true));
    QCOMPARE(int(*bed.monitor().value(StateCode)), 255);
}

void TestABSetting::offLeavesTheRestUnread()
{
    Bed bed;
    bed.beginAt(false);
    QVERIFY(bed.monitor().setByMenu(SensitivityCode, 9));
    QVERIFY(bed.monitor().setByMenu(MeterCode, 1));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.own(), QStringList{u"get 0xE2 0"_s});
    QCOMPARE(bed.number("sensitivity"), 5);
    QVERIFY(bed.monitor().setByMenu(StateCode, 255));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.own(), (QStringList{u"get 0xE2 255"_s, u"get 0xE3 1"_s, u"get 0xE5 9"_s}));
    QCOMPARE(bed.number("sensitivity"), 9);
    QCOMPARE(bed.flag("lightMeterState"), true);
    QCOMPARE(bed.stored("Sensitivity").toInt(), 9);
    QCOMPARE(bed.stored("LightMeter").toBool(), true);
    QVERIFY(bed.logged(u"[LuABSetting] get AB Light Meter"_s));
    QVERIFY(bed.logged(u"[LuABSetting] sync AB Light Meter changed: true"_s));
    QVERIFY(bed.logged(u"[LuABSetting] get AB Sensitivity"_s));
    QVERIFY(bed.logged(u"[LuABSetting] sync AB Sensitivity changed: 9"_s));
}

void TestABSetting::failedStateReadSkipsTheRest()
{
    Bed bed;
    bed.beginAt(true);
    bed.fail(StateCode);
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.wireOf({MeterCode, SensitivityCode}), QStringList());
    QCOMPARE(bed.flag("currentAB"), true);
    QCOMPARE(bed.told(), QStringList());
}

void TestABSetting::firstConnection_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("off") << 0 << QStringList();
    QTest::newRow("on") << 255 << QStringList{u"LuABSetting 14 on 5 []"_s};
}

void TestABSetting::firstConnection()
{
    QFETCH(int, value);
    QFETCH(QStringList, events);
    Bed bed;
    bed.checkFirstConnection(StateCode, value, events);
}

void TestABSetting::switchingReadsTheBrightness()
{
    Bed bed;
    bed.beginAt(false);
    QVERIFY(bed.ask("currentAB", true));
    QVERIFY(!bed.wire().filter(u"get 0x10"_s).isEmpty());
}

void TestABSetting::modeChangeReadsTheNewModesValues()
{
    Bed bed;
    bed.beginAt(true);
    const QString before = bed.key("currentAB");
    bed.storeSetting(u"LuABSetting/Cinema/currentAB"_s, true);
    bed.model().setColorMode(bed.model().getColorModeByName(u"Cinema"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("currentAB"), false);
    QCOMPARE(bed.setting(u"LuABSetting/Cinema/currentAB"_s).toBool(), false);
    QCOMPARE(bed.setting(before).toBool(), true);
}

void TestABSetting::launchRestores_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("event");
    QTest::newRow("on") << true << 255 << u"LuABSetting 14 on 3 []"_s;
    QTest::newRow("off") << false << 0 << u"LuABSetting 14 off 3 []"_s;
}

void TestABSetting::launchRestores()
{
    QFETCH(bool, on);
    QFETCH(int, value);
    QFETCH(QString, event);
    Bed bed;
    bed.beginAt(true);
    QVERIFY(bed.ask("lightMeterState", true));
    QVERIFY(bed.ask("currentAB", on));
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.own().filter(u"set"_s),
             (QStringList{u"set 0xE2 %1"_s.arg(value), u"set 0xE3 1"_s, u"set 0xE5 5"_s}));
    QCOMPARE(bed.told().value(0), event);
    QVERIFY(bed.logged(u"[LuABSetting] apply AB state:"_s));
    QVERIFY(bed.logged(u"[LuABSetting] apply Light Meter state: true"_s));
    QVERIFY(bed.logged(u"[LuABSetting] apply AB Sensitivity:  5"_s));
}

void TestABSetting::whatStaysOffIsNotAppliedAgain()
{
    Bed bed;
    bed.checkWhatStaysOff("currentAB", u"set 0xE2 255"_s);
}

void TestABSetting::pageVisitGivesNoEvent()
{
    Bed bed;
    bed.beginAt(true);
    bed.module()->takePropertySnapshot();
    QVERIFY(bed.ask("sensitivity", 9));
    bed.module()->fireUpdateSettingEvent();
    QCOMPARE(bed.told(), QStringList());
}

void TestABSetting::exitReportsOff()
{
    Bed bed;
    bed.beginAt(false);
    bed.checkExit("currentAB", u"LuABSetting 14 off 2 []"_s);
}

QTEST_MAIN(TestABSetting)
#include "tst_absetting.moc"
