// SPDX-License-Identifier: Apache-2.0
#include "AudioBed.h"

#include <QAudioDevice>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto LoopOutputs = LuShortcutAction::Volume_LoopAllSpeakerOutput;
constexpr auto LoopModes = LuShortcutAction::Volume_LoopAllAudioMode;

const QString Default = u"defaultAudioOutput"_s;

QString defaultOutput()
{
    return TestBed::instance().services().get(Default).toString();
}

} // namespace

/// The system's audio outputs: whether the monitor is the one that plays, what is told of a change, and the
/// keys that depend on it.
class TestAudioOutputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMonitorIsKnownByItsName_data();
    void theMonitorIsKnownByItsName();
    void theOutputIsKnownFromTheStart();
    void aChangeIsTold_data();
    void aChangeIsTold();
    void aChangeOfTheFirstConnectionIsTold_data();
    void aChangeOfTheFirstConnectionIsTold();
    void theUsersChoiceIsTheUsers_data();
    void theUsersChoiceIsTheUsers();
    void anOutputThatIsNotThereIsRefused_data();
    void anOutputThatIsNotThereIsRefused();
    void keysNeedTheSystemsOutput_data();
    void keysNeedTheSystemsOutput();
    void keysNeedTheWidget_data() { keysNeedTheSystemsOutput_data(); }
    void keysNeedTheWidget();
    void aKeyGoesRoundTheOutputs();
    void aHeldKeyGoesOneOutputFurther();
    void outputsAreTakenAnewWhenTheirNumberChanges();
    void aKeyGoesRoundTheAudioModes();
    void aKeyFindsNoAudioMode_data();
    void aKeyFindsNoAudioMode();
};

void TestAudioOutputs::theMonitorIsKnownByItsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isThis");
    QTest::newRow("alone") << u"TK30Z"_s << true;
    QTest::newRow("within") << u"HDMI / TK30Z (Digital Stereo)"_s << true;
    QTest::newRow("small letters") << u"tk30z"_s << false;
    QTest::newRow("another model") << u"TK30X"_s << false;
    QTest::newRow("a part of it") << u"TK30"_s << false;
    QTest::newRow("without") << u"HDMI 2"_s << false;
}

void TestAudioOutputs::theMonitorIsKnownByItsName()
{
    QFETCH(QString, name);
    QFETCH(bool, isThis);
    AudioBed bed;
    bed.begin();
    QSignalSpy spy(bed.module(), SIGNAL(isCurrentAudioOutputChanged()));
    QCOMPARE(bed.flag("isCurrentAudioOutput"), false);
    AudioBed::outputs({{u"BuiltInSpeakerDevice"_s, u"Built-in Speakers"_s}, {u"x"_s, name}});
    AudioBed::play("x");
    QCOMPARE(bed.flag("isCurrentAudioOutput"), isThis);
    QCOMPARE(spy.count(), isThis ? 1 : 0);
    if (isThis)
        QCOMPARE(bed.plain("isCurrentAudioOutput"), QVariant(true));
    // Without any output there is none of this monitor.
    AudioBed::outputs({});
    QCOMPARE(bed.flag("isCurrentAudioOutput"), false);
}

void TestAudioOutputs::theOutputIsKnownFromTheStart()
{
    AudioBed bed;
    AudioBed::play("dp-0");
    bed.begin();
    QCOMPARE(bed.flag("isCurrentAudioOutput"), true);
    QCOMPARE(bed.plain("isCurrentAudioOutput"), QVariant(true));
    QCOMPARE(bed.told().filter(u"LuVolume 9 "_s), QStringList());
    // What was stored yields to what is.
    bed.destroy();
    AudioBed::play("usb-0");
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.flag("isCurrentAudioOutput"), false);
    QCOMPARE(bed.plain("isCurrentAudioOutput"), QVariant(false));
}

void TestAudioOutputs::aChangeIsTold_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QStringList>("events");
    const QByteArray builtIn("BuiltInSpeakerDevice");
    const QByteArray monitor("dp-0");
    const QByteArray other("usb-0");
    QTest::newRow("to the monitor") << builtIn << monitor
                                    << QStringList{u"LuVolume 9 monitor_speaker 1 []"_s};
    QTest::newRow("to the built-in ones")
        << monitor << builtIn << QStringList{u"LuVolume 9 built_in_speaker 1 []"_s};
    QTest::newRow("to others") << monitor << other << QStringList{u"LuVolume 9 others 1 []"_s};
    QTest::newRow("beside the monitor") << builtIn << other << QStringList();
    QTest::newRow("none") << monitor << monitor << QStringList();
}

void TestAudioOutputs::aChangeIsTold()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QStringList, events);
    AudioBed bed;
    AudioBed::play(from);
    bed.beginWith({});
    AudioBed::play(to);
    QCOMPARE(bed.told(), events);
}

void TestAudioOutputs::aChangeOfTheFirstConnectionIsTold_data()
{
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("event");
    QTest::newRow("the monitor") << QByteArray("dp-0") << u"LuVolume 9 monitor_speaker 5 []"_s;
    QTest::newRow("the built-in ones, no change")
        << QByteArray("BuiltInSpeakerDevice") << u"LuVolume 9 built_in_speaker 5 []"_s;
    QTest::newRow("others") << QByteArray("usb-0") << u"LuVolume 9 others 5 []"_s;
}

void TestAudioOutputs::aChangeOfTheFirstConnectionIsTold()
{
    QFETCH(QByteArray, to);
    QFETCH(QString, event);
    AudioBed bed;
    bed.beginWith({});
    bed.model().setFirstTimeConnected(true);
    AudioBed::play(to);
    bed.model().setFirstTimeConnected(false);
    QCOMPARE(bed.told(), QStringList{event});
}

void TestAudioOutputs::theUsersChoiceIsTheUsers_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QStringList>("events");
    QTest::newRow("the monitor") << QByteArray("usb-0") << 1
                                 << QStringList{u"LuVolume 9 monitor_speaker 0 []"_s};
    QTest::newRow("the built-in ones, beside the monitor")
        << QByteArray("usb-0") << 0 << QStringList{u"LuVolume 9 built_in_speaker 0 []"_s};
    QTest::newRow("others") << QByteArray("dp-0") << 2 << QStringList{u"LuVolume 9 others 0 []"_s};
    QTest::newRow("the present one") << QByteArray("dp-0") << 1 << QStringList();
}

void TestAudioOutputs::theUsersChoiceIsTheUsers()
{
    QFETCH(QByteArray, from);
    QFETCH(int, to);
    QFETCH(QStringList, events);
    AudioBed bed;
    AudioBed::play(from);
    bed.beginWith({});
    const QList<QAudioDevice> outputs = LuMediaDevices::audioOutputs();
    QVERIFY(QMetaObject::invokeMethod(bed.module(), "setDefaultAudioOutputDevice",
                                      Q_ARG(QAudioDevice, outputs.at(to))));
    QStringList told;
    QTRY_COMPARE(told += bed.told(), events);
    QCOMPARE(defaultOutput(), QString::fromUtf8(outputs.at(to).id()));
    // The next change is somebody else's again.
    AudioBed::play(to == 1 ? "BuiltInSpeakerDevice" : "dp-0");
    const QStringList next = bed.told();
    QCOMPARE(next.size(), 1);
    QVERIFY2(next.first().endsWith(u" 1 []"_s), qPrintable(next.first()));
}

void TestAudioOutputs::anOutputThatIsNotThereIsRefused_data()
{
    QTest::addColumn<bool>("null");
    QTest::newRow("none") << true;
    QTest::newRow("gone") << false;
}

void TestAudioOutputs::anOutputThatIsNotThereIsRefused()
{
    QFETCH(bool, null);
    AudioBed bed;
    bed.beginWith({});
    const QAudioDevice device = null ? QAudioDevice() : LuMediaDevices::audioOutputs().at(2);
    AudioBed::outputs({{u"BuiltInSpeakerDevice"_s, u"Built-in Speakers"_s}, {u"dp-0"_s, u"TK30Z"_s}});
    QVERIFY(
        QMetaObject::invokeMethod(bed.module(), "setDefaultAudioOutputDevice", Q_ARG(QAudioDevice, device)));
    QVERIFY(bed.logged(u"[LuVolume] the system has no audio output"_s));
    QCOMPARE(defaultOutput(), u"BuiltInSpeakerDevice"_s);
    AudioBed::play("dp-0");
    QCOMPARE(bed.told(), QStringList{u"LuVolume 9 monitor_speaker 1 []"_s});
}

void TestAudioOutputs::keysNeedTheSystemsOutput_data()
{
    QTest::addColumn<int>("name");
    QTest::addColumn<bool>("elsewhere");
    QTest::newRow("decrease") << int(LuShortcutAction::Volume_Decrease) << false;
    QTest::newRow("increase") << int(LuShortcutAction::Volume_Increase) << false;
    QTest::newRow("mute") << int(LuShortcutAction::Volume_Mute) << false;
    QTest::newRow("next output") << int(LoopOutputs) << true;
    QTest::newRow("next audio mode") << int(LoopModes) << true;
}

void TestAudioOutputs::keysNeedTheSystemsOutput()
{
    QFETCH(int, name);
    QFETCH(bool, elsewhere);
    AudioBed bed;
    bed.beginWith({{"displayVolume", 25}});
    const auto action = LuShortcutAction::ActionName(name);
    QCOMPARE(bed.press(action), elsewhere);
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayVolume"), 25);
    QCOMPARE(bed.flag("mute"), false);
    AudioBed::play("dp-0");
    QVERIFY(bed.press(action));
    QVERIFY(bed.idle());
}

void TestAudioOutputs::keysNeedTheWidget()
{
    QFETCH(int, name);
    AudioBed bed;
    bed.beginPlaying();
    const WidgetsOnly others({QUrl(u"qrc:/LuBrightnessWidget.qml"_s)});
    QVERIFY(!bed.press(LuShortcutAction::ActionName(name)));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(defaultOutput(), u"dp-0"_s);
}

void TestAudioOutputs::aKeyGoesRoundTheOutputs()
{
    AudioBed bed;
    bed.beginWith({});
    const auto next = [&](const QString& id, const QStringList& events) {
        QVERIFY(bed.press(LoopOutputs));
        QCOMPARE(defaultOutput(), id);
        QTRY_COMPARE(bed.flag("isCurrentAudioOutput"), id == u"dp-0"_s);
        QCOMPARE(bed.told(), events);
    };
    // The key is no choice in the panel: a change is told only where it concerns this monitor.
    next(u"dp-0"_s, {u"LuVolume 9 monitor_speaker 1 []"_s});
    next(u"usb-0"_s, {u"LuVolume 9 others 1 []"_s});
    next(u"BuiltInSpeakerDevice"_s, {});
    next(u"dp-0"_s, {u"LuVolume 9 monitor_speaker 1 []"_s});
    AudioBed::outputs({});
    QVERIFY(!bed.press(LoopOutputs));
}

void TestAudioOutputs::aHeldKeyGoesOneOutputFurther()
{
    AudioBed bed;
    bed.beginWith({});
    QVERIFY(bed.press(LoopOutputs));
    QVERIFY(!bed.press(LoopOutputs, true));
    QCOMPARE(defaultOutput(), u"dp-0"_s);
}

void TestAudioOutputs::outputsAreTakenAnewWhenTheirNumberChanges()
{
    AudioBed bed;
    bed.beginWith({});
    // One for another in the same moment: the list is not looked at.
    AudioBed::outputs({{u"BuiltInSpeakerDevice"_s, u"Built-in Speakers"_s},
                       {u"dp-0"_s, u"TK30Z"_s},
                       {u"hdmi-1"_s, u"Television"_s}});
    AudioBed::play("hdmi-1");
    QVERIFY(!bed.press(LoopOutputs));
    QCOMPARE(defaultOutput(), u"hdmi-1"_s);
    AudioBed::outputs({{u"hdmi-1"_s, u"Television"_s}, {u"dp-0"_s, u"TK30Z"_s}});
    QVERIFY(bed.press(LoopOutputs));
    QCOMPARE(defaultOutput(), u"dp-0"_s);
}

void TestAudioOutputs::aKeyGoesRoundTheAudioModes()
{
    AudioBed bed;
    bed.beginWith({});
    for (const auto& [name, value] :
         {std::pair{u"Dialogue"_s, 2}, {u"Music"_s, 3}, {u"Standard"_s, 1}, {u"Dialogue"_s, 2}}) {
        QVERIFY(bed.press(LoopModes));
        QVERIFY(bed.idle());
        QCOMPARE(bed.get("LuVolume", "audioMode").toString(), name);
        QCOMPARE(bed.wire(), QStringList{u"set 0x94 %1"_s.arg(value)});
    }
    QVERIFY(!bed.press(LoopModes, true));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestAudioOutputs::aKeyFindsNoAudioMode_data()
{
    QTest::addColumn<QString>("monitor");
    QTest::addColumn<int>("value");
    QTest::newRow("mode that is not offered") << u"TK30Z"_s << 4;
    QTest::newRow("unknown mode") << u"TK30Z"_s << 77;
    QTest::newRow("no modes") << u"TK10"_s << 0;
}

void TestAudioOutputs::aKeyFindsNoAudioMode()
{
    QFETCH(QString, monitor);
    QFETCH(int, value);
    AudioBed bed(monitor);
    if (value)
        QVERIFY(bed.monitor().setByMenu(AudioBed::Mode, value));
    bed.beginWith({});
    QVERIFY(!bed.press(LoopModes));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

QTEST_MAIN(TestAudioOutputs)
#include "tst_audio_outputs.moc"
