// SPDX-License-Identifier: Apache-2.0
#include "feature_bed.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int StateCode = 0x81;
constexpr int MeterCode = 0xE3;
constexpr int SensitivityCode = 0xE5;
constexpr int Both = 1;
constexpr int BrightnessOnly = 2;

struct Bed : FeatureBed
{
    explicit Bed(const QString& name = u"TK30Z"_s)
        : FeatureBed("LuABPlus", {StateCode, MeterCode, SensitivityCode}, name)
    {
    }

    /// The sensitivity of the monitor is 5.
    void beginAt(bool state, int mode = Both)
    {
        beginWith({{"sensitivity", 4}, {"sensitivity", 5}});
        if (mode != Both) {
            QVERIFY(ask("mode", mode));
            QVERIFY(monitor().setByMenu(StateCode, state ? mode : 0));
            QVERIFY(syncModule());
        }
        QVERIFY(ask("state", state));
        forget();
    }
};

} // namespace

class TestABPlus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSchemaDecides_data();
    void theSchemaDecides();
    void withoutTheFeatureNothingHappens();
    void stateIsWrittenStoredAndReported_data();
    void stateIsWrittenStoredAndReported();
    void presentValuesWriteNothing();
    void modeIsWrittenAlsoWhileOff_data();
    void modeIsWrittenAlsoWhileOff();
    void modeZeroIsOff();
    void sensitivityIsWrittenAndStored();
    void lightMeterIsWrittenAndStored_data();
    void lightMeterIsWrittenAndStored();
    void lightMeterNeedsItsCategory();
    void failedWriteIsTakenAllTheSame();
    void readBack_data();
    void readBack();
    void offLeavesTheRestUnread();
    void failedStateReadSkipsTheRest();
    void firstConnection_data();
    void firstConnection();
    void switchingReadsTheBrightness();
    void modeChangeReadsTheNewModesValues();
    void launchRestores_data();
    void launchRestores();
    void whatStaysOffIsNotAppliedAgain();
    void pageVisitGivesOneEvent_data();
    void pageVisitGivesOneEvent();
    void exitReportsOff();
};

void TestABPlus::theSchemaDecides_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("name");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("meter");
    QTest::newRow("TK30Z") << u"TK30Z"_s << true << 2 << 0 << 10 << true;
    QTest::newRow("TK20") << u"TK20"_s << true << 2 << 0 << 10 << true;
    QTest::newRow("TK40X, the older form") << u"TK40X"_s << false << 1 << 1 << 5 << false;
    QTest::newRow("another make") << u"Other"_s << false << 1 << 1 << 5 << false;
}

void TestABPlus::theSchemaDecides()
{
    QFETCH(QString, model);
    Bed bed(model);
    bed.begin();
    QTEST(bed.flag("sensorEnable"), "enabled");
    QTEST(bed.number("displayNameType"), "name");
    QTEST(bed.number("minSensitivity"), "minimum");
    QTEST(bed.number("maxSensitivity"), "maximum");
    QTEST(bed.flag("lightMeterEnable"), "meter");
    QCOMPARE(bed.number("transitionStepInterval"), 0);
}

void TestABPlus::withoutTheFeatureNothingHappens()
{
    Bed bed(u"TK30"_s);
    bed.begin();
    bed.forget();
    bed.put("state", true);
    bed.put("mode", BrightnessOnly);
    bed.put("sensitivity", 3);
    QVERIFY(bed.ask("lightMeterState", true));
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.flag("state"), false);
    QCOMPARE(bed.number("mode"), Both);
    QVERIFY(bed.apply());
    QCOMPARE(bed.wireOf({StateCode}), QStringList());
    QCOMPARE(bed.told(), QStringList());
}

void TestABPlus::stateIsWrittenStoredAndReported_data()
{
    QTest::addColumn<bool>("to");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("triggered");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("event");
    QTest::newRow("on") << true << Both << false << 1 << u"LuABPlus 39 on 0 [brightness_colorTemp,5]"_s;
    QTest::newRow("on, brightness only")
        << true << BrightnessOnly << false << 2 << u"LuABPlus 39 on 0 [brightness_only,5]"_s;
    QTest::newRow("off") << false << Both << false << 0 << u"LuABPlus 39 off 0 []"_s;
    QTest::newRow("on by another function")
        << true << Both << true << 1 << u"LuABPlus 39 on 4 [brightness_colorTemp,5]"_s;
    QTest::newRow("off by another function") << false << Both << true << 0 << u"LuABPlus 39 off 4 []"_s;
}

void TestABPlus::stateIsWrittenStoredAndReported()
{
    QFETCH(bool, to);
    QFETCH(int, mode);
    QFETCH(bool, triggered);
    QFETCH(int, value);
    QFETCH(QString, event);
    Bed bed;
    bed.beginAt(!to, mode);
    bed.checkAsked({"state",
                    to,
                    {u"set 0x81 %1"_s.arg(value)},
                    {event},
                    u"[LuABPlus] setState: %1"_s.arg(to ? u"true"_s : u"false"_s),
                    triggered});
    QCOMPARE(bed.stored("state").toBool(), to);
}

void TestABPlus::presentValuesWriteNothing()
{
    Bed bed;
    bed.beginAt(true);
    bed.put("state", true);
    bed.put("mode", Both);
    bed.put("sensitivity", 5);
    QVERIFY(bed.ask("lightMeterState", false));
    QCOMPARE(bed.own(), QStringList());
    QCOMPARE(bed.told(), QStringList());
}

void TestABPlus::modeIsWrittenAlsoWhileOff_data()
{
    QTest::addColumn<bool>("state");
    QTest::newRow("on") << true;
    // The monitor takes the mode as on, and the next read-back says so.
    QTest::newRow("off") << false;
}

void TestABPlus::modeIsWrittenAlsoWhileOff()
{
    QFETCH(bool, state);
    Bed bed;
    bed.beginAt(state);
    bed.checkAsked({"mode", BrightnessOnly, {u"set 0x81 2"_s}, {}, u"[LuABPlus] set AB Plus mode: "_s});
    QCOMPARE(bed.stored("mode").toInt(), BrightnessOnly);
    QCOMPARE(bed.flag("state"), state);
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.flag("state"), true);
    QCOMPARE(bed.told(), state ? QStringList() : QStringList{u"LuABPlus 39 on 1 [brightness_only,5]"_s});
}

void TestABPlus::modeZeroIsOff()
{
    Bed bed;
    bed.beginAt(true, BrightnessOnly);
    QVERIFY(bed.ask("mode", 0));
    QCOMPARE(bed.flag("state"), false);
    QCOMPARE(bed.number("mode"), BrightnessOnly);
    QCOMPARE(bed.own(), QStringList{u"set 0x81 0"_s});
    QCOMPARE(bed.told(), QStringList{u"LuABPlus 39 off 0 []"_s});
}

void TestABPlus::sensitivityIsWrittenAndStored()
{
    Bed bed;
    bed.beginAt(true);
    bed.checkAsked({"sensitivity", 8, {u"set 0xE5 8"_s}, {}, u"[LuABPlus] set AB Plus sensitivity:  8"_s});
    QCOMPARE(bed.stored("sensitivity").toInt(), 8);
}

void TestABPlus::lightMeterIsWrittenAndStored_data()
{
    QTest::addColumn<bool>("state");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void TestABPlus::lightMeterIsWrittenAndStored()
{
    QFETCH(bool, state);
    Bed bed;
    bed.beginWith({{"lightMeterState", !state}});
    bed.checkAsked({"lightMeterState",
                    state,
                    {u"set 0xE3 %1"_s.arg(int(state))},
                    {},
                    u"[LuABPlus] set AB Light Meter: "_s});
    QCOMPARE(bed.stored("LightMeter").toBool(), state);
}

void TestABPlus::lightMeterNeedsItsCategory()
{
    // The setter looks at its own flag, not at the feature alone.
    Bed bed(u"TK40"_s);
    bed.begin();
    bed.forget();
    QVERIFY(bed.ask("lightMeterState", true));
    QCOMPARE(bed.wireOf({MeterCode}), QStringList());
    QCOMPARE(bed.flag("lightMeterState"), false);
}

void TestABPlus::failedWriteIsTakenAllTheSame()
{
    Bed bed;
    bed.beginAt(false);
    bed.checkFailedWrite("state", StateCode);
}

void TestABPlus::readBack_data()
{
    QTest::addColumn<bool>("from");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("state");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("events");
    QTest::addColumn<QStringList>("texts");
    const QString stateText = u"[LuABPlus] sync AB Plus state changed:"_s;
    const QString modeText = u"[LuABPlus] sync AB Plus mode changed:"_s;
    QTest::newRow("on") << false << 1 << true << 1
                        << QStringList{u"LuABPlus 39 on 1 [brightness_colorTemp,5]"_s}
                        << QStringList{stateText};
    QTest::newRow("on in the other mode")
        << false << 2 << true << 2 << QStringList{u"LuABPlus 39 on 1 [brightness_only,5]"_s}
        << QStringList{modeText, stateText};
    QTest::newRow("the mode alone") << true << 2 << true << 2
                                    << QStringList{u"LuABPlus 39 on_update_setting 1 [brightness_only,5]"_s}
                                    << QStringList{modeText};
    QTest::newRow("off keeps the mode")
        << true << 0 << false << 1 << QStringList{u"LuABPlus 39 off 1 []"_s} << QStringList{stateText};
    QTest::newRow("a number without a name")
        << true << 9 << true << 9 << QStringList{u"LuABPlus 39 on_update_setting 1 [brightness_only,5]"_s}
        << QStringList{modeText};
    QTest::newRow("the same") << true << 1 << true << 1 << QStringList() << QStringList();
}

void TestABPlus::readBack()
{
    QFETCH(bool, from);
    QFETCH(int, value);
    QFETCH(bool, state);
    QFETCH(int, mode);
    QFETCH(QStringList, events);
    QFETCH(QStringList, texts);
    Bed bed;
    bed.beginAt(from);
    QVERIFY(bed.monitor().setByMenu(StateCode, value));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.flag("state"), state);
    QCOMPARE(bed.number("mode"), mode);
    QCOMPARE(bed.stored("state").toBool(), state);
    QCOMPARE(bed.told(), events);
    const QStringList changes = bed.log().filter(u"[LuABPlus] sync "_s);
    QCOMPARE(changes.size(), texts.size());
    for (qsizetype i = 0; i < texts.size(); ++i)
        QVERIFY2(changes.at(i).startsWith(texts.at(i)), qPrintable(changes.at(i)));
}

void TestABPlus::offLeavesTheRestUnread()
{
    Bed bed;
    bed.beginAt(false);
    QVERIFY(bed.monitor().setByMenu(SensitivityCode, 9));
    QVERIFY(bed.monitor().setByMenu(MeterCode, 1));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.own(), QStringList{u"get 0x81 0"_s});
    QCOMPARE(bed.number("sensitivity"), 5);
    QVERIFY(bed.logged(u"[LuABPlus] sync: \"TK30Z\""_s));
    QVERIFY(bed.monitor().setByMenu(StateCode, 1));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.own(), (QStringList{u"get 0x81 1"_s, u"get 0xE5 9"_s, u"get 0xE3 1"_s}));
    QCOMPARE(bed.number("sensitivity"), 9);
    QCOMPARE(bed.flag("lightMeterState"), true);
    QCOMPARE(bed.stored("sensitivity").toInt(), 9);
    QCOMPARE(bed.stored("LightMeter").toBool(), true);
    QVERIFY(bed.logged(u"[LuABPlus] sync AB Plus sensitivity changed: 9"_s));
    QVERIFY(bed.logged(u"[LuABPlus] get AB Light Meter:  true"_s));
    QVERIFY(bed.logged(u"[LuABPlus] sync AB Plus Light Meter changed: true"_s));
    // A sensitivity alone is told of by nobody.
    bed.forget();
    QVERIFY(bed.monitor().setByMenu(SensitivityCode, 2));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number("sensitivity"), 2);
    QCOMPARE(bed.told(), QStringList());
}

void TestABPlus::failedStateReadSkipsTheRest()
{
    Bed bed;
    bed.beginAt(true);
    bed.fail(StateCode);
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.wireOf({MeterCode, SensitivityCode}), QStringList());
    QCOMPARE(bed.flag("state"), true);
    QCOMPARE(bed.told(), QStringList());
}

void TestABPlus::firstConnection_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("off") << 0 << QStringList();
    QTest::newRow("on") << 1 << QStringList{u"LuABPlus 39 on 5 [brightness_colorTemp,7]"_s};
    // The mode differs too, and one event is enough.
    QTest::newRow("on in the other mode") << 2 << QStringList{u"LuABPlus 39 on 5 [brightness_only,7]"_s};
}

void TestABPlus::firstConnection()
{
    QFETCH(int, value);
    QFETCH(QStringList, events);
    Bed bed;
    QVERIFY(bed.monitor().setByMenu(SensitivityCode, 7));
    bed.checkFirstConnection(StateCode, value, events);
}

void TestABPlus::switchingReadsTheBrightness()
{
    Bed bed;
    bed.beginAt(false);
    QVERIFY(bed.ask("state", true));
    QVERIFY(!bed.wire().filter(u"get 0x10"_s).isEmpty());
}

void TestABPlus::modeChangeReadsTheNewModesValues()
{
    Bed bed;
    bed.beginAt(true, BrightnessOnly);
    const QString before = bed.key("state");
    bed.storeSetting(u"LuABPlus/Cinema/state"_s, true);
    bed.model().setColorMode(bed.model().getColorModeByName(u"Cinema"_s));
    QVERIFY(bed.idle());
    // What the monitor holds in that mode, not what was stored once.
    QCOMPARE(bed.flag("state"), false);
    QCOMPARE(bed.setting(u"LuABPlus/Cinema/state"_s).toBool(), false);
    QCOMPARE(bed.setting(before).toBool(), true);
    bed.model().setColorMode(bed.model().getColorModeByName(u"User"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("state"), true);
    QCOMPARE(bed.number("mode"), BrightnessOnly);
}

void TestABPlus::launchRestores_data()
{
    QTest::addColumn<bool>("state");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("event");
    QTest::newRow("on") << true << u"[LuABPlus] apply AB Plus mode:"_s << 2
                        << u"LuABPlus 39 on 3 [brightness_only,5]"_s;
    QTest::newRow("off") << false << u"[LuABPlus] apply AB Plus state: false"_s << 0
                         << u"LuABPlus 39 off 3 []"_s;
}

void TestABPlus::launchRestores()
{
    QFETCH(bool, state);
    QFETCH(QString, text);
    QFETCH(int, value);
    QFETCH(QString, event);
    Bed bed;
    bed.beginAt(true, BrightnessOnly);
    bed.put("lightMeterState", true);
    QVERIFY(bed.ask("state", state));
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.own().filter(u"set"_s),
             (QStringList{u"set 0x81 %1"_s.arg(value), u"set 0xE5 5"_s, u"set 0xE3 1"_s}));
    QCOMPARE(bed.told().value(0), event);
    QVERIFY(bed.logged(text));
    QVERIFY(bed.logged(u"[LuABPlus] apply AB Plus sensitivity:  5"_s));
    QVERIFY(bed.logged(u"[LuABPlus] apply AB Plus Light Meter:  true"_s));
}

void TestABPlus::whatStaysOffIsNotAppliedAgain()
{
    Bed bed;
    bed.checkWhatStaysOff("state", u"set 0x81 1"_s);
}

void TestABPlus::pageVisitGivesOneEvent_data()
{
    using Moves = QList<std::pair<QByteArray, int>>;
    QTest::addColumn<bool>("state");
    QTest::addColumn<Moves>("moves");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("sensitivity") << true << Moves{{"sensitivity", 6}, {"sensitivity", 9}}
                                 << QStringList{
                                        u"LuABPlus 39 on_update_setting 0 [brightness_colorTemp,9]"_s};
    QTest::newRow("mode") << true << Moves{{"mode", 2}}
                          << QStringList{u"LuABPlus 39 on_update_setting 0 [brightness_only,5]"_s};
    QTest::newRow("both") << true << Moves{{"mode", 2}, {"sensitivity", 1}}
                          << QStringList{u"LuABPlus 39 on_update_setting 0 [brightness_only,1]"_s};
    QTest::newRow("and back") << true << Moves{{"sensitivity", 6}, {"sensitivity", 5}} << QStringList();
    QTest::newRow("light meter") << true << Moves{{"lightMeterState", 1}} << QStringList();
    QTest::newRow("off") << false << Moves{{"sensitivity", 6}} << QStringList();
}

void TestABPlus::pageVisitGivesOneEvent()
{
    using Moves = QList<std::pair<QByteArray, int>>;
    QFETCH(bool, state);
    QFETCH(Moves, moves);
    QFETCH(QStringList, events);
    Bed bed;
    bed.beginAt(state);
    bed.module()->takePropertySnapshot();
    for (const auto& [name, value] : moves)
        QVERIFY(bed.ask(name.constData(), value));
    bed.module()->fireUpdateSettingEvent();
    QCOMPARE(bed.told(), events);
}

void TestABPlus::exitReportsOff()
{
    Bed bed;
    bed.beginAt(false);
    bed.checkExit("state", u"LuABPlus 39 off 2 []"_s);
}

QTEST_MAIN(TestABPlus)
#include "tst_abplus.moc"
