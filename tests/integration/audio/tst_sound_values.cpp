// SPDX-License-Identifier: Apache-2.0
#include "SoundDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList Sound{u"9"_s, u"37"_s, u"38"_s};
const QStringList Steps{u"17"_s, u"37"_s};

} // namespace

/// The monitor's sound through the control socket alone: values, keys, the session's outputs, and what a
/// restart finds again.
class TestSoundValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_desk = std::make_unique<SoundDesk>(); }
    void cleanup();
    void valuesReachTheMonitor();
    void aChangeAtTheMenuIsFollowed();
    void theFirstConnectionIsTold();
    void aRestartBringsTheSoundBack();
    void keysStepTheVolume();
    void heldKeysStepOnAndMuteOnce();
    void keysReachOnlyTheMonitorThatPlays();
    void aKeyOfOnesOwnGoesRoundOutputsAndModes();
    void onlyTheCurrentMonitorListens();
    void outputsAreChosenAndTold();
    void theSystemsVolumeIsRead();
    void theEqualiserSpeaksItsProtocol();
    void anotherFunctionTellsItsSource();
    void badValuesAreRefused_data();
    void badValuesAreRefused();

private:
    SoundDesk& desk() { return *m_desk; }
    void startOn(const QString& monitors)
    {
        QVERIFY2(desk().startSound(monitors), qPrintable(desk().errors()));
    }

    std::unique_ptr<SoundDesk> m_desk;
};

void TestSoundValues::cleanup()
{
    if (m_desk->isRunning())
        QCOMPARE(m_desk->stop(), 0);
    m_desk.reset();
}

void TestSoundValues::valuesReachTheMonitor()
{
    startOn(u"TK30Z"_s);
    QCOMPARE(desk().get(u"volume.volumeEnable"_s), QJsonValue(true));
    QCOMPARE(desk().get(u"volume.maxVolume"_s), QJsonValue(50));
    QCOMPARE(desk().get(u"volume.audioModeList"_s),
             QJsonValue(QJsonArray{u"Standard"_s, u"Dialogue"_s, u"Music"_s}));
    desk().forget();
    QVERIFY(desk().set(u"volume.displayVolume"_s, 33));
    QVERIFY(desk().set(u"volume.mute"_s, true));
    QVERIFY(desk().set(u"volume.displayVolume"_s, 99));
    QVERIFY(desk().set(u"volume.audioMode"_s, u"Music"_s));
    QCOMPARE(desk().writes(), (QStringList{u"62=33"_s, u"8d=1"_s, u"62=50"_s, u"8d=2"_s, u"94=3"_s}));
    QCOMPARE(desk().get(u"volume.displayVolume"_s), QJsonValue(50));
    QCOMPARE(desk().get(u"volume.mute"_s), QJsonValue(false));
    QCOMPARE(desk().setting(u"LuVolume/displayVolume"_s), QJsonValue(50));
    QCOMPARE(desk().setting(u"LuVolume/mute"_s), QJsonValue(false));
    QCOMPARE(desk().setting(u"LuVolume/audioMode"_s), QJsonValue(u"Music"_s));
    QCOMPARE(desk().told(Sound), QStringList());
}

void TestSoundValues::aChangeAtTheMenuIsFollowed()
{
    startOn(u"TK20"_s);
    QVERIFY(desk().menu(0x62, 41));
    QVERIFY(desk().menu(0x8D, 1));
    QVERIFY(desk().menu(0x94, 2));
    desk().forget();
    QVERIFY(desk().sync(u"LuVolume"_s));
    QCOMPARE(desk().get(u"volume.displayVolume"_s), QJsonValue(41));
    QCOMPARE(desk().get(u"volume.mute"_s), QJsonValue(true));
    QCOMPARE(desk().get(u"volume.audioMode"_s), QJsonValue(u"Dialogue"_s));
    QCOMPARE(desk().reads(), (QStringList{u"62"_s, u"8d"_s, u"94"_s}));
    QCOMPARE(desk().told(Sound), (QStringList{u"37 \"\" 1 [41,50]"_s, u"38 \"Dialogue\" 1 []"_s}));
}

void TestSoundValues::theFirstConnectionIsTold()
{
    startOn(u"TK30Z"_s);
    QCOMPARE(desk().told(Sound), (QStringList{u"37 \"\" 5 [20,50]"_s, u"38 \"Standard\" 5 []"_s}));
}

void TestSoundValues::aRestartBringsTheSoundBack()
{
    startOn(u"TK30Z@SND"_s);
    QVERIFY(desk().playThrough(u"TK30Z"_s));
    QCOMPARE(desk().get(u"volume.isCurrentAudioOutput"_s), QJsonValue(true));
    QVERIFY(desk().set(u"volume.displayVolume"_s, 31));
    QVERIFY(desk().set(u"volume.mute"_s, true));
    QVERIFY(desk().set(u"volume.audioMode"_s, u"Dialogue"_s));
    QCOMPARE(desk().stop(), 0);
    // Meanwhile somebody changed all of it at the monitor.
    const QString world =
        desk().write(u"world.json"_s, R"({"vcp": {"TK30Z@SND": {"0x62": 3, "0x8D": 2, "0x94": 3}}})");
    QVERIFY2(desk().startWith(u"TK30Z@SND"_s, {u"--services"_s, u"simulated"_s, u"--state"_s, world}),
             qPrintable(desk().errors()));
    QCOMPARE(desk().held(0x62), 31);
    QCOMPARE(desk().held(0x8D), 1);
    QCOMPARE(desk().held(0x94), 2);
    // The session of now plays elsewhere.
    QCOMPARE(desk().get(u"volume.isCurrentAudioOutput"_s), QJsonValue(false));
    QCOMPARE(desk().told(Sound), (QStringList{u"38 \"Dialogue\" 3 []"_s, u"37 \"\" 3 [31,50]"_s}));
}

void TestSoundValues::keysStepTheVolume()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().playThrough(u"TK30Z"_s));
    QVERIFY(desk().set(u"shortcuts.active"_s, true));
    QVERIFY(desk().set(u"volume.displayVolume"_s, 25));
    desk().forget();
    QVERIFY(desk().press(u"Ctrl+Shift"_s, u"F3"_s));
    QCOMPARE(desk().get(u"volume.displayVolume"_s), QJsonValue(28));
    QVERIFY(desk().press(u"Ctrl+Shift"_s, u"F3"_s));
    QCOMPARE(desk().get(u"volume.displayVolume"_s), QJsonValue(30));
    QVERIFY(desk().press(u"Ctrl+Shift"_s, u"F2"_s));
    QVERIFY(desk().press(u"Ctrl+Shift"_s, u"F2"_s));
    QCOMPARE(desk().get(u"volume.displayVolume"_s), QJsonValue(25));
    QVERIFY(desk().press(u"Ctrl+Shift"_s, u"F1"_s));
    QCOMPARE(desk().get(u"volume.mute"_s), QJsonValue(true));
    QVERIFY(desk().press(u"Ctrl+Shift"_s, u"F3"_s));
    QCOMPARE(desk().writes(),
             (QStringList{u"62=28"_s, u"62=30"_s, u"62=28"_s, u"62=25"_s, u"8d=1"_s, u"62=28"_s, u"8d=2"_s}));
    QStringList steps = desk().told(Steps);
    QStringList uses = steps.filter(u"17 "_s);
    steps.removeIf([](const QString& event) { return event.startsWith(u"17 "_s); });
    QCOMPARE(steps,
             (QStringList{u"37 \"on_update_setting\" 0 [28,50]"_s, u"37 \"on_update_setting\" 0 [30,50]"_s,
                          u"37 \"on_update_setting\" 0 [28,50]"_s, u"37 \"on_update_setting\" 0 [25,50]"_s,
                          u"37 \"on_update_setting\" 0 [28,50]"_s}));
    QCOMPARE(uses, (QStringList{
                       u"17 \"use_hotkey\" 0 [volume_increase]"_s, u"17 \"use_hotkey\" 0 [volume_increase]"_s,
                       u"17 \"use_hotkey\" 0 [volume_decrease]"_s, u"17 \"use_hotkey\" 0 [volume_decrease]"_s,
                       u"17 \"use_hotkey\" 0 [volume_mute]"_s, u"17 \"use_hotkey\" 0 [volume_increase]"_s}));
}

void TestSoundValues::heldKeysStepOnAndMuteOnce()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().playThrough(u"TK30Z"_s));
    QVERIFY(desk().set(u"shortcuts.active"_s, true));
    QVERIFY(desk().set(u"volume.displayVolume"_s, 0));
    for (int i = 0; i < 30; ++i)
        desk().press(u"Ctrl+Shift"_s, u"F3"_s, i > 0);
    QCOMPARE(desk().get(u"volume.displayVolume"_s), QJsonValue(50));
    for (int i = 0; i < 6; ++i)
        desk().press(u"Ctrl+Shift"_s, u"F2"_s, i > 0);
    QCOMPARE(desk().get(u"volume.displayVolume"_s), QJsonValue(35));
    desk().forget();
    for (int i = 0; i < 6; ++i)
        desk().press(u"Ctrl+Shift"_s, u"F1"_s, i > 0);
    QCOMPARE(desk().get(u"volume.mute"_s), QJsonValue(true));
    QCOMPARE(desk().writes(), QStringList{u"8d=1"_s});
}

void TestSoundValues::keysReachOnlyTheMonitorThatPlays()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().set(u"shortcuts.active"_s, true));
    desk().forget();
    for (const QString& key : {u"F1"_s, u"F2"_s, u"F3"_s})
        QVERIFY(!desk().press(u"Ctrl+Shift"_s, key));
    QCOMPARE(desk().writes(), QStringList());
    QVERIFY(desk().playThrough(u"TK30Z"_s));
    for (const QString& key : {u"F1"_s, u"F2"_s, u"F3"_s})
        QVERIFY(desk().press(u"Ctrl+Shift"_s, key));
}

void TestSoundValues::aKeyOfOnesOwnGoesRoundOutputsAndModes()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().outputs({u"TK30Z"_s, u"TK20"_s}));
    QVERIFY(desk().set(u"shortcuts.active"_s, true));
    // These two have no keys at first.
    desk().invoke(u"shortcuts.registerShortcuts"_s, {4, 20, true});
    desk().press(u"Ctrl+Alt"_s, u"O"_s);
    desk().invoke(u"shortcuts.registerShortcuts"_s, {4, 36, true});
    desk().press(u"Ctrl+Alt"_s, u"A"_s);
    desk().forget();
    for (const QString& output : {u"TK30Z"_s, u"TK20"_s, u"BuiltInSpeakerDevice"_s}) {
        QVERIFY(desk().press(u"Ctrl+Alt"_s, u"O"_s));
        QVERIFY(!desk().press(u"Ctrl+Alt"_s, u"O"_s, true));
        QCOMPARE(desk().session(u"defaultAudioOutput"_s), QJsonValue(output));
    }
    QTRY_COMPARE(desk().get(u"volume.isCurrentAudioOutput"_s), QJsonValue(false));
    QCOMPARE(desk().told(Sound), (QStringList{u"9 \"monitor_speaker\" 1 []"_s, u"9 \"others\" 1 []"_s}));
    for (const int value : {2, 3, 1}) {
        QVERIFY(desk().press(u"Ctrl+Alt"_s, u"A"_s));
        QVERIFY(!desk().press(u"Ctrl+Alt"_s, u"A"_s, true));
        QCOMPARE(desk().held(0x94), value);
    }
}

void TestSoundValues::onlyTheCurrentMonitorListens()
{
    startOn(u"TK30Z,TK20"_s);
    QVERIFY(desk().outputs({u"TK30Z"_s, u"TK20"_s}));
    QVERIFY(desk().play(u"TK20"_s));
    QCOMPARE(desk().get(u"volume.isCurrentAudioOutput"_s, u"TK20"_s), QJsonValue(true));
    QCOMPARE(desk().get(u"volume.isCurrentAudioOutput"_s, u"TK30Z"_s), QJsonValue(false));
    QVERIFY(desk().client().call(u"select"_s, {{u"monitor"_s, u"TK30Z"_s}}).ok());
    QVERIFY(desk().set(u"shortcuts.active"_s, true));
    // The system plays through the other one.
    QVERIFY(!desk().press(u"Ctrl+Shift"_s, u"F3"_s));
    QVERIFY(desk().client().call(u"select"_s, {{u"monitor"_s, u"TK20"_s}}).ok());
    QVERIFY(desk().idle());
    QVERIFY(desk().set(u"shortcuts.active"_s, true));
    QVERIFY(desk().press(u"Ctrl+Shift"_s, u"F3"_s));
    QCOMPARE(desk().held(0x62, u"TK30Z"_s), 20);
    QCOMPARE(desk().held(0x62, u"TK20"_s), 23);
}

void TestSoundValues::outputsAreChosenAndTold()
{
    startOn(u"TK30Z"_s);
    QVERIFY(desk().outputs({u"TK30Z"_s}));
    desk().forget();
    desk().invoke(u"volume.setDefaultAudioOutputDevice"_s, {u"TK30Z"_s});
    QTRY_COMPARE(desk().get(u"volume.isCurrentAudioOutput"_s), QJsonValue(true));
    QCOMPARE(desk().session(u"defaultAudioOutput"_s), QJsonValue(u"TK30Z"_s));
    QCOMPARE(desk().told(Sound), QStringList{u"9 \"monitor_speaker\" 0 []"_s});
    QVERIFY(desk().play(u"BuiltInSpeakerDevice"_s));
    QTRY_COMPARE(desk().get(u"volume.isCurrentAudioOutput"_s), QJsonValue(false));
    QCOMPARE(desk().told(Sound), QStringList{u"9 \"built_in_speaker\" 1 []"_s});
    desk().invoke(u"volume.mediaDevices.openSystemSettings"_s, {});
    QVERIFY(desk().session(u"opened"_s).toArray().contains(u"settings:sound"_s));
}

void TestSoundValues::theSystemsVolumeIsRead()
{
    startOn(u"TK30Z"_s);
    QCOMPARE(desk().get(u"volume.systemVolume"_s), QJsonValue(50));
    QVERIFY(desk().session(u"systemVolume"_s, 77));
    QTRY_COMPARE(desk().get(u"volume.systemVolume"_s), QJsonValue(77));
    QVERIFY(desk().set(u"volume.mediaDevices.systemVolume"_s, 12));
    QCOMPARE(desk().session(u"systemVolume"_s), QJsonValue(12));
    QCOMPARE(desk().get(u"volume.systemVolume"_s), QJsonValue(12));
}

void TestSoundValues::theEqualiserSpeaksItsProtocol()
{
    startOn(u"TK30Z"_s);
    desk().forget();
    desk().invoke(u"volume.setGain"_s, {10, -3});
    desk().invoke(u"volume.setGain"_s, {u"Frequency100KHz"_s, 6});
    QCOMPARE(desk().writes(), (QStringList{u"99=%1"_s.arg(0x0A13), u"99=%1"_s.arg(0x6406)}));
    QCOMPARE(desk().invoke(u"volume.frequencyGainHash.get"_s, {10}), QJsonValue(-3));
    QCOMPARE(desk().setting(u"LuVolume/frequencyGainHash"_s),
             QJsonValue(QJsonObject{{u"1KHz"_s, -3}, {u"100KHz"_s, 6}}));
    desk().forget();
    desk().invoke(u"volume.resetGains"_s, {});
    QStringList wanted;
    for (const int value : {0x0100, 0x0300, 0x0A00, 0x1E00, 0x6400})
        wanted.append(u"99=%1"_s.arg(value));
    QCOMPARE(desk().writes(), wanted);
}

void TestSoundValues::anotherFunctionTellsItsSource()
{
    startOn(u"TK30Z"_s);
    desk().forget();
    const QJsonObject properties{{u"displayVolume"_s, 44}, {u"audioMode"_s, u"Music"_s}};
    QVERIFY(desk()
                .client()
                .call(u"trigger"_s, {{u"module"_s, u"LuVolume"_s}, {u"properties"_s, properties}})
                .ok());
    QVERIFY(desk().idle());
    QStringList told = desk().told(Sound);
    told.sort();
    QCOMPARE(told, (QStringList{u"37 \"\" 4 [44,50]"_s, u"38 \"Music\" 4 []"_s}));
}

void TestSoundValues::badValuesAreRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("a word for a volume") << u"volume.displayVolume"_s << QJsonValue(u"loud"_s);
    QTest::newRow("a fraction") << u"volume.displayVolume"_s << QJsonValue(1.5);
    QTest::newRow("a list for a mute") << u"volume.mute"_s << QJsonValue(QJsonArray{1});
    QTest::newRow("a number for a mode") << u"volume.audioMode"_s << QJsonValue(3);
    QTest::newRow("what cannot be set") << u"volume.maxVolume"_s << QJsonValue(70);
    QTest::newRow("the output") << u"volume.isCurrentAudioOutput"_s << QJsonValue(true);
}

void TestSoundValues::badValuesAreRefused()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    startOn(u"TK30Z"_s);
    desk().forget();
    QVERIFY(!desk().set(path, value));
    QVERIFY(desk().idle());
    QCOMPARE(desk().writes(), QStringList());
    QCOMPARE(desk().get(u"volume.displayVolume"_s), QJsonValue(20));
}

QTEST_GUILESS_MAIN(TestSoundValues)
#include "tst_sound_values.moc"
