// SPDX-License-Identifier: Apache-2.0
#include "AudioBed.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int Volume = AudioBed::Volume;
constexpr int Mute = AudioBed::Mute;
constexpr auto Decrease = LuShortcutAction::Volume_Decrease;
constexpr auto Increase = LuShortcutAction::Volume_Increase;

} // namespace

/// Volume and mute of the monitor: setters, read-back, launch, events and the keys that step.
class TestAudioVolume : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutTheFeatureNothingHappens_data();
    void withoutTheFeatureNothingHappens();
    void theSchemaGivesTheMaximum_data();
    void theSchemaGivesTheMaximum();
    void volumeIsWrittenAndStored_data();
    void volumeIsWrittenAndStored();
    void thePresentVolumeWritesNothing();
    void ofFastChangesTheLastIsWritten();
    void aFailedWriteIsTakenAllTheSame();
    void aVolumeChangeEndsAMute();
    void aMuteAfterAVolumeChangeStays();
    void muteIsWrittenAndStored_data();
    void muteIsWrittenAndStored();
    void stepsAreTwentiethsOfTheMaximum_data();
    void stepsAreTwentiethsOfTheMaximum();
    void stepsReachBothEndsOfEveryMaximum_data();
    void stepsReachBothEndsOfEveryMaximum();
    void aStepAtTheEndWritesNothing_data();
    void aStepAtTheEndWritesNothing();
    void aHeldKeyGoesOnStepping();
    void pressesCountFromWhatWasAskedForLast();
    void aStepEndsAMute();
    void aHeldMuteKeyTogglesOnce();
    void mutePressedTwiceEndsWhereItBegan();
    void readBackTakesTheMonitorsVolume_data();
    void readBackTakesTheMonitorsVolume();
    void readBackTakesTheMonitorsMute_data();
    void readBackTakesTheMonitorsMute();
    void failedReadsChangeNothing_data();
    void failedReadsChangeNothing();
    void theFirstConnectionIsTold();
    void launchRestores_data();
    void launchRestores();
    void aVolumeThatWasNeverKnownIsNotWritten();
    void storedValuesAreKeptInTheirRange_data();
    void storedValuesAreKeptInTheirRange();
    void aPageVisitGivesOneEvent_data();
    void aPageVisitGivesOneEvent();
    void theSystemsVolumeIsPassedOn();
};

void TestAudioVolume::withoutTheFeatureNothingHappens_data()
{
    QTest::addColumn<bool>("supported");
    QTest::newRow("no schema") << false;
    QTest::newRow("off in the schema") << true;
}

void TestAudioVolume::withoutTheFeatureNothingHappens()
{
    QFETCH(bool, supported);
    AudioBed bed(supported ? u"TK30Z"_s : u"Other"_s);
    bed.begin();
    if (supported)
        bed.readSchema(AudioBed::entry("Volume", "Volume", "off") +
                       AudioBed::entry("Music", "Audio Mode", "on"));
    const int volume = bed.number("displayVolume");
    QCOMPARE(bed.flag("volumeEnable"), false);
    bed.forget();
    bed.put("displayVolume", volume + 7);
    bed.put("mute", true);
    bed.put("audioMode", u"Music"_s);
    bed.setGain(10, 3);
    bed.resetGains();
    AudioBed::play("dp-0");
    bed.module()->takePropertySnapshot();
    QVERIFY(AudioBed::session("systemVolume", 12));
    bed.module()->fireUpdateSettingEvent();
    QVERIFY(bed.syncModule());
    QVERIFY(bed.apply());
    bed.module()->onInitialSync();
    QCOMPARE(bed.number("displayVolume"), volume);
    QCOMPARE(bed.flag("mute"), false);
    QCOMPARE(bed.flag("isCurrentAudioOutput"), false);
    QCOMPARE(bed.wireOfAudio(), QStringList());
    QCOMPARE(bed.told(), QStringList());
    QVERIFY(!bed.logged(u"[LuVolume]"_s));
    // What keys do is decided by the schema that the model began with.
    if (!supported) {
        for (const auto name :
             {Decrease, Increase, LuShortcutAction::Volume_Mute,
              LuShortcutAction::Volume_LoopAllSpeakerOutput, LuShortcutAction::Volume_LoopAllAudioMode})
            QVERIFY(!bed.press(name));
    }
}

void TestAudioVolume::theSchemaGivesTheMaximum_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("maximum");
    QTest::newRow("as given") << u"30"_s << 30;
    QTest::newRow("none") << QString() << 50;
    QTest::newRow("nothing") << u"0"_s << 50;
    QTest::newRow("negative") << u"-5"_s << 50;
    QTest::newRow("no number") << u"loud"_s << 50;
}

void TestAudioVolume::theSchemaGivesTheMaximum()
{
    QFETCH(QString, value);
    QFETCH(int, maximum);
    AudioBed bed;
    bed.begin();
    QCOMPARE(bed.number("maxVolume"), 50);
    bed.readSchema(
        AudioBed::entry("Volume", "Volume", "on") +
        (value.isEmpty() ? QString() : AudioBed::entry("MaxVolume", "MaxVolume", qPrintable(value))));
    QCOMPARE(bed.number("maxVolume"), maximum);
    AudioBed other(u"Other"_s);
    other.begin();
    QCOMPARE(other.number("maxVolume"), 100);
}

void TestAudioVolume::volumeIsWrittenAndStored_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("taken");
    QTest::addColumn<bool>("triggered");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("by the user") << 33 << 33 << false << QStringList();
    QTest::newRow("silence") << 0 << 0 << false << QStringList();
    QTest::newRow("full") << 50 << 50 << false << QStringList();
    QTest::newRow("too much") << 51 << 50 << false << QStringList();
    QTest::newRow("too little") << -1 << 0 << false << QStringList();
    QTest::newRow("by another function") << 33 << 33 << true << QStringList{u"LuVolume 37  4 [33,50]"_s};
}

void TestAudioVolume::volumeIsWrittenAndStored()
{
    QFETCH(int, asked);
    QFETCH(int, taken);
    QFETCH(bool, triggered);
    QFETCH(QStringList, events);
    AudioBed bed;
    bed.beginWith({});
    QSignalSpy spy(bed.module(), SIGNAL(displayVolumeChanged()));
    bed.putBy(triggered, "displayVolume", asked);
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), taken);
    QCOMPARE(bed.plain("displayVolume"), QVariant(taken));
    QCOMPARE(bed.wire(), QStringList{u"set 0x62 %1"_s.arg(taken)});
    QCOMPARE(bed.told(), events);
    QCOMPARE(spy.count(), 1);
    QVERIFY(bed.logged(u"[LuVolume] setDisplayVolume: %1"_s.arg(taken)));
}

void TestAudioVolume::thePresentVolumeWritesNothing()
{
    AudioBed bed;
    bed.beginWith({{"displayVolume", 33}});
    bed.put("displayVolume", 33);
    bed.put("mute", false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QVERIFY(!bed.logged(u"[LuVolume]"_s));
}

void TestAudioVolume::ofFastChangesTheLastIsWritten()
{
    AudioBed bed;
    bed.beginWith({{"displayVolume", 10}});
    {
        const HeldQueue held(bed.model());
        for (const int volume : {11, 20, 30})
            bed.put("displayVolume", volume);
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x62 30"_s});
    {
        const HeldQueue held(bed.model());
        bed.put("displayVolume", 40);
        bed.put("displayVolume", 30);
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.number("displayVolume"), 30);
}

void TestAudioVolume::aFailedWriteIsTakenAllTheSame()
{
    AudioBed bed;
    bed.beginWith({{"displayVolume", 10}});
    bed.fail(Volume);
    bed.fail(Mute);
    bed.put("displayVolume", 44);
    QVERIFY(bed.idle());
    bed.put("mute", true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 44);
    QCOMPARE(bed.flag("mute"), true);
    bed.monitor().clearFaults();
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number("displayVolume"), 10);
    QCOMPARE(bed.flag("mute"), false);
}

void TestAudioVolume::aVolumeChangeEndsAMute()
{
    AudioBed bed;
    bed.beginWith({{"displayVolume", 10}, {"mute", true}});
    bed.put("displayVolume", 12);
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("mute"), false);
    QCOMPARE(bed.plain("mute"), QVariant(false));
    QCOMPARE(bed.wire(), (QStringList{u"set 0x62 12"_s, u"set 0x8D 2"_s}));
    QCOMPARE(bed.told(), QStringList());
}

void TestAudioVolume::aMuteAfterAVolumeChangeStays()
{
    AudioBed bed;
    bed.beginWith({{"displayVolume", 10}});
    {
        const HeldQueue held(bed.model());
        bed.put("displayVolume", 12);
        bed.put("mute", true);
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("mute"), true);
    QCOMPARE(bed.wire(), (QStringList{u"set 0x62 12"_s, u"set 0x8D 1"_s}));
}

void TestAudioVolume::muteIsWrittenAndStored_data()
{
    QTest::addColumn<bool>("from");
    QTest::addColumn<bool>("triggered");
    QTest::newRow("on") << false << false;
    QTest::newRow("off") << true << false;
    QTest::newRow("on by another function") << false << true;
}

void TestAudioVolume::muteIsWrittenAndStored()
{
    QFETCH(bool, from);
    QFETCH(bool, triggered);
    AudioBed bed;
    bed.beginWith({{"mute", from}});
    QSignalSpy spy(bed.module(), SIGNAL(muteChanged()));
    bed.putBy(triggered, "mute", !from);
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("mute"), !from);
    QCOMPARE(bed.plain("mute"), QVariant(!from));
    QCOMPARE(bed.wire(), QStringList{u"set 0x8D %1"_s.arg(from ? 2 : 1)});
    QCOMPARE(bed.told(), QStringList());
    QCOMPARE(spy.count(), 1);
    QVERIFY(bed.logged(u"[LuVolume] setMute: %1"_s.arg(from ? u"false"_s : u"true"_s)));
}

void TestAudioVolume::stepsAreTwentiethsOfTheMaximum_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("from");
    QTest::addColumn<bool>("up");
    QTest::addColumn<int>("to");
    struct Row
    {
        int maximum;
        int from;
        bool up;
        int to;
    };
    constexpr Row rows[] = {
        {50, 25, true, 28},   // 27.5, half away from zero
        {50, 28, true, 30},   //
        {50, 28, false, 25},  // 27.5 is 28 again, so the one below
        {50, 27, true, 28},   // off the grid: to its next point
        {50, 27, false, 25},  //
        {50, 26, false, 25},  //
        {50, 3, true, 5},     //
        {50, 3, false, 0},    //
        {50, 1, false, 0},    //
        {50, 0, true, 3},     //
        {50, 49, true, 50},   //
        {50, 50, false, 48},  //
        {100, 50, true, 55},  //
        {100, 50, false, 45}, //
        {100, 52, true, 55},  //
        {100, 52, false, 50}, //
        {10, 5, true, 6},     // half steps
        {10, 5, false, 4},    //
        {30, 3, true, 5},     // 4.5
    };
    for (const Row& row : rows)
        QTest::addRow("%d of %d %s", row.from, row.maximum, row.up ? "up" : "down")
            << row.maximum << row.from << row.up << row.to;
}

void TestAudioVolume::stepsAreTwentiethsOfTheMaximum()
{
    QFETCH(int, maximum);
    QFETCH(int, from);
    QFETCH(bool, up);
    QFETCH(int, to);
    AudioBed bed;
    bed.beginPlaying();
    bed.readSchema(AudioBed::entry("Volume", "Volume", "on") +
                   AudioBed::entry("MaxVolume", "MaxVolume", qPrintable(QString::number(maximum))));
    bed.put("displayVolume", from);
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(bed.press(up ? Increase : Decrease));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), to);
    QCOMPARE(bed.wire(), QStringList{u"set 0x62 %1"_s.arg(to)});
    QCOMPARE(bed.told(), QStringList{u"LuVolume 37 on_update_setting 0 [%1,50]"_s.arg(to)});
    // A later change is no key's.
    bed.put("displayVolume", from);
    QVERIFY(bed.idle());
    QCOMPARE(bed.told(), QStringList());
}

void TestAudioVolume::stepsReachBothEndsOfEveryMaximum_data()
{
    QTest::addColumn<int>("maximum");
    for (const int maximum : {1, 2, 7, 10, 19, 33, 50, 64, 100, 255})
        QTest::addRow("%d", maximum) << maximum;
}

void TestAudioVolume::stepsReachBothEndsOfEveryMaximum()
{
    QFETCH(int, maximum);
    AudioBed bed;
    bed.beginPlaying();
    bed.readSchema(AudioBed::entry("Volume", "Volume", "on") +
                   AudioBed::entry("MaxVolume", "MaxVolume", qPrintable(QString::number(maximum))));
    bed.put("displayVolume", 0);
    QVERIFY(bed.idle());
    for (const auto& [name, end] : {std::pair{Increase, maximum}, {Decrease, 0}}) {
        for (int press = 0; press < 20 && bed.number("displayVolume") != end; ++press) {
            const int before = bed.number("displayVolume");
            QVERIFY(bed.press(name));
            QVERIFY(bed.idle());
            QVERIFY(name == Increase ? bed.number("displayVolume") > before
                                     : bed.number("displayVolume") < before);
        }
        QCOMPARE(bed.number("displayVolume"), end);
    }
}

void TestAudioVolume::aStepAtTheEndWritesNothing_data()
{
    QTest::addColumn<int>("volume");
    QTest::addColumn<bool>("up");
    QTest::newRow("silence") << 0 << false;
    QTest::newRow("full") << 50 << true;
}

void TestAudioVolume::aStepAtTheEndWritesNothing()
{
    QFETCH(int, volume);
    QFETCH(bool, up);
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", volume}});
    QVERIFY(bed.press(up ? Increase : Decrease));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), volume);
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.told(), QStringList());
}

void TestAudioVolume::aHeldKeyGoesOnStepping()
{
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 25}});
    QVERIFY(bed.press(Increase));
    QVERIFY(bed.idle());
    QVERIFY(bed.press(Increase, true));
    QVERIFY(bed.idle());
    QVERIFY(bed.press(Increase, true));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 33);
    QVERIFY(bed.press(Decrease, true));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 30);
}

void TestAudioVolume::pressesCountFromWhatWasAskedForLast()
{
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 10}});
    {
        const HeldQueue held(bed.model());
        for (int i = 0; i < 4; ++i)
            QVERIFY(bed.press(Increase, i > 0));
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 20);
    QCOMPARE(bed.wire(), QStringList{u"set 0x62 20"_s});
    {
        const HeldQueue held(bed.model());
        bed.put("displayVolume", 40);
        bed.put("displayVolume", 20); // taken back
        QVERIFY(bed.press(Decrease));
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 18);
}

void TestAudioVolume::aStepEndsAMute()
{
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 25}, {"mute", true}});
    QVERIFY(bed.press(Increase));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 28);
    QCOMPARE(bed.flag("mute"), false);
    QCOMPARE(bed.wire(), (QStringList{u"set 0x62 28"_s, u"set 0x8D 2"_s}));
}

void TestAudioVolume::aHeldMuteKeyTogglesOnce()
{
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 25}});
    QVERIFY(bed.press(LuShortcutAction::Volume_Mute));
    QVERIFY(bed.idle());
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!bed.press(LuShortcutAction::Volume_Mute, true));
        QVERIFY(bed.idle());
    }
    QCOMPARE(bed.flag("mute"), true);
    QCOMPARE(bed.wire(), QStringList{u"set 0x8D 1"_s});
    QVERIFY(bed.press(LuShortcutAction::Volume_Mute));
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("mute"), false);
    QCOMPARE(bed.told(), QStringList());
}

void TestAudioVolume::mutePressedTwiceEndsWhereItBegan()
{
    AudioBed bed;
    bed.beginPlaying({{"displayVolume", 25}});
    for (const int presses : {2, 3, 4}) {
        const bool before = bed.flag("mute");
        {
            const HeldQueue held(bed.model());
            for (int i = 0; i < presses; ++i)
                QVERIFY(bed.press(LuShortcutAction::Volume_Mute));
        }
        QVERIFY(bed.idle());
        QCOMPARE(bed.flag("mute"), before != (presses % 2 == 1));
    }
}

void TestAudioVolume::readBackTakesTheMonitorsVolume_data()
{
    QTest::addColumn<int>("reported");
    QTest::addColumn<int>("taken");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("another") << 33 << 33 << QStringList{u"LuVolume 37  1 [33,50]"_s};
    QTest::newRow("silence") << 0 << 0 << QStringList{u"LuVolume 37  1 [0,50]"_s};
    QTest::newRow("full") << 50 << 50 << QStringList{u"LuVolume 37  1 [50,50]"_s};
    QTest::newRow("the same") << 10 << 10 << QStringList();
    QTest::newRow("above the monitor's own maximum") << 51 << 10 << QStringList();
    QTest::newRow("far above") << 65535 << 10 << QStringList();
}

void TestAudioVolume::readBackTakesTheMonitorsVolume()
{
    QFETCH(int, reported);
    QFETCH(int, taken);
    QFETCH(QStringList, events);
    AudioBed bed;
    bed.beginWith({{"displayVolume", 10}});
    QSignalSpy spy(bed.module(), SIGNAL(displayVolumeChanged()));
    QVERIFY(bed.monitor().setByMenu(Volume, reported));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number("displayVolume"), taken);
    QCOMPARE(bed.plain("displayVolume"), QVariant(taken));
    QCOMPARE(spy.count(), taken == 10 ? 0 : 1);
    QCOMPARE(bed.told(), events);
    QCOMPARE(bed.wire(), (QStringList{u"get 0x62 %1"_s.arg(reported), u"get 0x8D 2"_s, u"get 0x94 1"_s}));
    QVERIFY(bed.logged(u"[LuVolume] sync: \"TK30Z\""_s));
    QCOMPARE(bed.logged(u"[LuVolume] sync volume changed: %1"_s.arg(taken)), taken != 10);
}

void TestAudioVolume::readBackTakesTheMonitorsMute_data()
{
    QTest::addColumn<bool>("from");
    QTest::addColumn<int>("reported");
    QTest::addColumn<bool>("taken");
    QTest::newRow("muted") << false << 1 << true;
    QTest::newRow("not muted") << true << 2 << false;
    QTest::newRow("the same") << false << 2 << false;
    QTest::newRow("a number of its own") << true << 7 << false;
}

void TestAudioVolume::readBackTakesTheMonitorsMute()
{
    QFETCH(bool, from);
    QFETCH(int, reported);
    QFETCH(bool, taken);
    AudioBed bed;
    bed.beginWith({{"mute", from}});
    QSignalSpy spy(bed.module(), SIGNAL(muteChanged()));
    QVERIFY(bed.monitor().setByMenu(Mute, reported));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.flag("mute"), taken);
    QCOMPARE(spy.count(), from == taken ? 0 : 1);
    QCOMPARE(bed.told(), QStringList());
    if (from != taken)
        QCOMPARE(bed.plain("mute"), QVariant(taken));
    QCOMPARE(bed.logged(u"[LuVolume] sync mute changed: %1"_s.arg(taken ? u"true"_s : u"false"_s)),
             from != taken);
}

void TestAudioVolume::failedReadsChangeNothing_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("volume") << Volume;
    QTest::newRow("mute") << Mute;
    QTest::newRow("audio mode") << int(AudioBed::Mode);
}

void TestAudioVolume::failedReadsChangeNothing()
{
    QFETCH(int, code);
    AudioBed bed;
    bed.beginWith({{"displayVolume", 10}});
    QVERIFY(bed.monitor().setByMenu(code, code == Volume ? 30 : code == Mute ? 1 : 3));
    bed.fail(code);
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number("displayVolume"), 10);
    QCOMPARE(bed.flag("mute"), false);
    QCOMPARE(bed.get("LuVolume", "audioMode").toString(), u"Standard"_s);
    QCOMPARE(bed.told(), QStringList());
    // The others are read all the same.
    QCOMPARE(bed.wire().filter(u"failed"_s).isEmpty(), false);
    bed.monitor().clearFaults();
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.number("displayVolume"), code == Volume ? 30 : 10);
}

void TestAudioVolume::theFirstConnectionIsTold()
{
    AudioBed bed;
    QVERIFY(bed.monitor().setByMenu(Volume, 0));
    bed.begin();
    // Also where nothing differs from what a new module holds.
    QCOMPARE(bed.told(), (QStringList{u"LuVolume 37  5 [0,50]"_s, u"LuVolume 38 Standard 5 []"_s}));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.told(), QStringList());
    QVERIFY(bed.monitor().setByMenu(Volume, 9));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.told(), QStringList{u"LuVolume 37  1 [9,50]"_s});
}

void TestAudioVolume::launchRestores_data()
{
    QTest::addColumn<QString>("monitor");
    QTest::addColumn<int>("volume");
    QTest::addColumn<bool>("mute");
    QTest::addColumn<QStringList>("wire");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("volume") << u"TK30Z"_s << 31 << false
                            << QStringList{u"set 0x62 31"_s, u"set 0x8D 2"_s, u"set 0x94 1"_s}
                            << QStringList{u"LuVolume 38 Standard 3 []"_s, u"LuVolume 37  3 [31,50]"_s};
    QTest::newRow("muted") << u"TK30Z"_s << 31 << true
                           << QStringList{u"set 0x62 31"_s, u"set 0x8D 1"_s, u"set 0x94 1"_s}
                           << QStringList{u"LuVolume 38 Standard 3 []"_s, u"LuVolume 37  3 [31,50]"_s};
    QTest::newRow("silence") << u"TK30Z"_s << 0 << false
                             << QStringList{u"set 0x62 0"_s, u"set 0x8D 2"_s, u"set 0x94 1"_s}
                             << QStringList{u"LuVolume 38 Standard 3 []"_s, u"LuVolume 37  3 [0,50]"_s};
    QTest::newRow("without audio modes")
        << u"TK10"_s << 31 << false << QStringList{u"set 0x62 31"_s, u"set 0x8D 2"_s}
        << QStringList{u"LuVolume 37  3 [31,50]"_s};
}

void TestAudioVolume::launchRestores()
{
    QFETCH(QString, monitor);
    QFETCH(int, volume);
    QFETCH(bool, mute);
    QFETCH(QStringList, wire);
    QFETCH(QStringList, events);
    AudioBed bed(monitor);
    bed.beginWith({{"displayVolume", volume}, {"mute", mute}});
    QVERIFY(bed.relaunchAnew());
    QCOMPARE(bed.number("displayVolume"), volume);
    QCOMPARE(bed.flag("mute"), mute);
    QCOMPARE(bed.wireOfAudio().filter(u"set "_s), wire);
    QCOMPARE(bed.told(), events);
    QVERIFY(
        bed.logged(u"[LuVolume] apply volume: %1 mute: %2"_s.arg(volume).arg(mute ? u"true"_s : u"false"_s)));
}

void TestAudioVolume::aVolumeThatWasNeverKnownIsNotWritten()
{
    AudioBed bed;
    bed.fail(Volume);
    bed.begin();
    bed.monitor().clearFaults();
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wireOf({Volume}).filter(u"set "_s), QStringList());
    QCOMPARE(bed.number("displayVolume"), 20);
}

void TestAudioVolume::storedValuesAreKeptInTheirRange_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("volume");
    QTest::newRow("too much") << QVariant(9999) << 50;
    QTest::newRow("too little") << QVariant(-3) << 0;
    QTest::newRow("no number") << QVariant(u"loud"_s) << 0;
    QTest::newRow("a list") << QVariant(QVariantList{1, 2}) << 0;
}

void TestAudioVolume::storedValuesAreKeptInTheirRange()
{
    QFETCH(QVariant, stored);
    QFETCH(int, volume);
    AudioBed bed;
    bed.begin();
    bed.destroy();
    bed.storeSetting(u"LuVolume/displayVolume"_s, stored);
    bed.storeSetting(u"LuVolume/mute"_s, QVariantList{7});
    bed.storeSetting(u"LuVolume/audioMode"_s, 17.5);
    bed.storeSetting(u"LuVolume/frequencyGainHash"_s, u"flat"_s);
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wireOf({Volume}).filter(u"set "_s), QStringList{u"set 0x62 %1"_s.arg(volume)});
    QCOMPARE(bed.number("displayVolume"), volume);
    QCOMPARE(bed.gains(), (QList<int>{0, 0, 0, 0, 0}));
}

void TestAudioVolume::aPageVisitGivesOneEvent_data()
{
    using Volumes = QList<int>;
    QTest::addColumn<QList<int>>("volumes");
    QTest::addColumn<int>("systemVolume");
    QTest::addColumn<QStringList>("modes");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("nothing") << Volumes() << 50 << QStringList() << QStringList();
    QTest::newRow("volume") << Volumes{11, 12, 13} << 50 << QStringList()
                            << QStringList{u"LuVolume 37  0 [13,50]"_s};
    QTest::newRow("and back") << Volumes{11, 10} << 50 << QStringList() << QStringList();
    QTest::newRow("the system's") << Volumes() << 60 << QStringList()
                                  << QStringList{u"LuVolume 37  0 [10,60]"_s};
    QTest::newRow("both") << Volumes{11} << 60 << QStringList() << QStringList{u"LuVolume 37  0 [11,60]"_s};
    QTest::newRow("mode") << Volumes() << 50 << QStringList{u"Music"_s}
                          << QStringList{u"LuVolume 38 Music 0 []"_s};
    QTest::newRow("mode and back") << Volumes() << 50 << QStringList{u"Music"_s, u"Standard"_s}
                                   << QStringList();
    QTest::newRow("all") << Volumes{11} << 60 << QStringList{u"Music"_s}
                         << QStringList{u"LuVolume 37  0 [11,60]"_s, u"LuVolume 38 Music 0 []"_s};
}

void TestAudioVolume::aPageVisitGivesOneEvent()
{
    QFETCH(QList<int>, volumes);
    QFETCH(int, systemVolume);
    QFETCH(QStringList, modes);
    QFETCH(QStringList, events);
    AudioBed bed;
    bed.beginWith({{"displayVolume", 10}});
    bed.module()->takePropertySnapshot();
    for (const int volume : volumes) {
        bed.put("displayVolume", volume);
        QVERIFY(bed.idle());
    }
    QVERIFY(AudioBed::session("systemVolume", systemVolume));
    for (const QString& mode : modes) {
        bed.put("audioMode", mode);
        QVERIFY(bed.idle());
    }
    QCOMPARE(bed.told(), QStringList());
    bed.module()->fireUpdateSettingEvent();
    QCOMPARE(bed.told(), events);
}

void TestAudioVolume::theSystemsVolumeIsPassedOn()
{
    AudioBed bed;
    bed.begin();
    QCOMPARE(bed.number("systemVolume"), 50);
    QSignalSpy spy(bed.module(), SIGNAL(systemVolumeChanged()));
    QVERIFY(AudioBed::session("systemVolume", 34));
    QCOMPARE(bed.number("systemVolume"), 34);
    QCOMPARE(bed.module()->parametersStrings(), (QStringList{u"20"_s, u"34"_s}));
    QCOMPARE(spy.count(), 1);
    auto* const devices = bed.get("LuVolume", "mediaDevices").value<QObject*>();
    QVERIFY(devices->setProperty("systemVolume", 71));
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(AudioBed::desktop("systemVolume"), QJsonValue(71));
    QCOMPARE(bed.module()->parametersStrings(), (QStringList{u"20"_s, u"71"_s}));
}

QTEST_MAIN(TestAudioVolume)
#include "tst_audio_volume.moc"
