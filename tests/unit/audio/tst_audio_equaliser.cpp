// SPDX-License-Identifier: Apache-2.0
#include "AudioBed.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int Mode = AudioBed::Mode;
constexpr int Gain = AudioBed::Gain;
constexpr int Bands[] = {1, 3, 10, 30, 100};

const QString GainsKey = u"LuVolume/frequencyGainHash"_s;

QJsonObject stored(AudioBed& bed)
{
    return bed.setting(GainsKey).toJsonObject();
}

} // namespace

/// Audio modes, and the equaliser of those modes in which it may be changed.
class TestAudioEqualiser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSchemaListsTheModes_data();
    void theSchemaListsTheModes();
    void schemaOrderIsKept();
    void aModeIsWrittenAndStored_data();
    void aModeIsWrittenAndStored();
    void thePresentModeWritesNothing();
    void ofFastChangesTheLastIsWritten();
    void aFailedWriteIsTakenAllTheSame();
    void readBackTakesTheMonitorsMode_data();
    void readBackTakesTheMonitorsMode();
    void withoutModesNoneIsRead();
    void launchWritesTheMode_data();
    void launchWritesTheMode();
    void gainsAreWrittenAsBytes_data();
    void gainsAreWrittenAsBytes();
    void bandsAreHighBytes_data();
    void bandsAreHighBytes();
    void aGainIsStored();
    void thePresentGainWritesNothing();
    void anotherBandIsRefused();
    void eachBandWaitsForItself();
    void resetWritesEveryBand();
    void aGainAfterAResetStays();
    void gainsAreReadInEditableModes_data();
    void gainsAreReadInEditableModes();
    void readGainsAreStoredTogether();
    void unknownBytesCountAsZero();
    void aBandThatFailsIsLeftOut();
    void launchWritesTheGains_data();
    void launchWritesTheGains();
    void unknownBandsDoNothing();
};

void TestAudioEqualiser::theSchemaListsTheModes_data()
{
    QTest::addColumn<QStringList>("modes");
    const QStringList three{u"Standard"_s, u"Dialogue"_s, u"Music"_s};
    for (const char* model : {"TK10", "TK30", "TK30X", "TK40", "TK40X"})
        QTest::newRow(model) << QStringList();
    QTest::newRow("TK20") << three;
    QTest::newRow("TK30Z") << three;
}

void TestAudioEqualiser::theSchemaListsTheModes()
{
    QFETCH(QStringList, modes);
    AudioBed bed(QLatin1String(QTest::currentDataTag()));
    bed.begin();
    QCOMPARE(bed.flag("volumeEnable"), true);
    QCOMPARE(bed.flag("audioModeEnable"), !modes.isEmpty());
    QCOMPARE(bed.get("LuVolume", "audioModeList").toStringList(), modes);
    QCOMPARE(bed.get("LuVolume", "editableAudioModeList").toStringList(), QStringList());
}

void TestAudioEqualiser::schemaOrderIsKept()
{
    AudioBed bed;
    bed.begin();
    bed.readSchema(
        AudioBed::entry("User", "Audio Mode", "on") + AudioBed::entry("Game", "Audio Mode", "off") +
        AudioBed::entry("User", "Editable Audio Mode", "on") + AudioBed::entry("Cinema", "Audio Mode", "on") +
        AudioBed::entry("Music", "Editable Audio Mode", "off") +
        AudioBed::entry("Cinema", "Editable Audio Mode", "on"));
    QCOMPARE(bed.get("LuVolume", "audioModeList").toStringList(), (QStringList{u"User"_s, u"Cinema"_s}));
    QCOMPARE(bed.get("LuVolume", "editableAudioModeList").toStringList(),
             (QStringList{u"User"_s, u"Cinema"_s}));
}

void TestAudioEqualiser::aModeIsWrittenAndStored_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("triggered");
    int value = 0;
    for (const char* name : {"Standard", "Dialogue", "Music", "Cinema", "Game", "Studio", "User"})
        QTest::newRow(name) << ++value << false;
    QTest::newRow("Loud") << 0 << false;
    QTest::newRow("music") << 0 << false;
    QTest::newRow("Music by another function") << 3 << true;
}

void TestAudioEqualiser::aModeIsWrittenAndStored()
{
    QFETCH(int, value);
    QFETCH(bool, triggered);
    const QString name = QString::fromLatin1(QTest::currentDataTag()).section(u' ', 0, 0);
    AudioBed bed;
    QVERIFY(bed.monitor().setByMenu(Mode, name == u"Standard"_s ? 2 : 1));
    bed.beginWith({});
    QSignalSpy spy(bed.module(), SIGNAL(audioModeChanged()));
    bed.putBy(triggered, "audioMode", name);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x94 %1"_s.arg(value)});
    QCOMPARE(bed.get("LuVolume", "audioMode").toString(), name);
    QCOMPARE(bed.plain("audioMode"), QVariant(name));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.told(), triggered ? QStringList{u"LuVolume 38 Music 4 []"_s} : QStringList());
    QVERIFY(bed.logged(u"[LuVolume] setAudioMode: \"%1\""_s.arg(name)));
}

void TestAudioEqualiser::thePresentModeWritesNothing()
{
    AudioBed bed;
    bed.beginWith({});
    bed.put("audioMode", u"Standard"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestAudioEqualiser::ofFastChangesTheLastIsWritten()
{
    AudioBed bed;
    bed.beginWith({});
    {
        const HeldQueue held(bed.model());
        bed.put("audioMode", u"Dialogue"_s);
        bed.put("audioMode", u"Music"_s);
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x94 3"_s});
}

void TestAudioEqualiser::aFailedWriteIsTakenAllTheSame()
{
    AudioBed bed;
    bed.beginWith({});
    bed.fail(Mode);
    bed.put("audioMode", u"Music"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.get("LuVolume", "audioMode").toString(), u"Music"_s);
    bed.monitor().clearFaults();
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.get("LuVolume", "audioMode").toString(), u"Standard"_s);
}

void TestAudioEqualiser::readBackTakesTheMonitorsMode_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    int value = 0;
    for (const char* name : {"Standard", "Dialogue", "Music", "Cinema", "Game", "Studio", "User"})
        QTest::newRow(name) << ++value << QString::fromLatin1(name);
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("unknown") << 8 << QString();
}

void TestAudioEqualiser::readBackTakesTheMonitorsMode()
{
    QFETCH(int, value);
    QFETCH(QString, name);
    AudioBed bed;
    QVERIFY(bed.monitor().setByMenu(Mode, value == 2 ? 1 : 2));
    bed.beginWith({});
    QVERIFY(bed.monitor().setByMenu(Mode, value));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.get("LuVolume", "audioMode").toString(), name);
    QCOMPARE(bed.plain("audioMode").toString(), name);
    QCOMPARE(bed.told(), QStringList{u"LuVolume 38 %1 1 []"_s.arg(name)});
    QVERIFY(bed.logged(u"[LuVolume] sync audio mode changed: \"%1\""_s.arg(name)));
    // None of these modes has an equaliser.
    QCOMPARE(bed.wireOf({Gain}), QStringList());
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.told(), QStringList());
}

void TestAudioEqualiser::withoutModesNoneIsRead()
{
    AudioBed bed(u"TK10"_s);
    bed.storeSetting(u"LuVolume/audioMode"_s, u"Cinema"_s);
    bed.begin();
    QCOMPARE(bed.flag("audioModeEnable"), false);
    QCOMPARE(bed.get("LuVolume", "audioMode").toString(), u"Cinema"_s);
    bed.forget();
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.wire(), (QStringList{u"get 0x62 20"_s, u"get 0x8D 2"_s}));
    bed.put("audioMode", u"Music"_s);
    bed.setGain(10, 3);
    bed.resetGains();
    QVERIFY(bed.idle());
    QVERIFY(bed.apply());
    QCOMPARE(bed.get("LuVolume", "audioMode").toString(), u"Cinema"_s);
    QCOMPARE(bed.wireOf({Mode, Gain}), QStringList());
    QCOMPARE(bed.told().filter(u" 38 "_s), QStringList());
}

void TestAudioEqualiser::launchWritesTheMode_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("wire");
    QTest::newRow("Music") << u"Music"_s << QStringList{u"set 0x94 3"_s};
    QTest::newRow("another") << u"Loud"_s << QStringList{u"set 0x94 0"_s};
    QTest::newRow("never known") << QString() << QStringList();
}

void TestAudioEqualiser::launchWritesTheMode()
{
    QFETCH(QString, mode);
    QFETCH(QStringList, wire);
    AudioBed bed;
    bed.begin();
    bed.destroy();
    bed.storeSetting(u"LuVolume/audioMode"_s, mode);
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wireOf({Mode}).filter(u"set "_s), wire);
    QCOMPARE(bed.told().value(0), u"LuVolume 38 %1 3 []"_s.arg(mode));
    QVERIFY(bed.logged(u"[LuVolume] apply audio mode: \"%1\""_s.arg(mode)));
}

void TestAudioEqualiser::gainsAreWrittenAsBytes_data()
{
    QTest::addColumn<int>("gain");
    QTest::addColumn<int>("value");
    struct Row
    {
        int gain;
        int byte;
    };
    constexpr Row rows[] = {
        {-6, 0x16}, {-5, 0x15}, {-4, 0x14}, {-3, 0x13}, {-2, 0x12}, {-1, 0x11}, {1, 0x01},
        {2, 0x02},  {3, 0x03},  {4, 0x04},  {5, 0x05},  {6, 0x06},  {7, 0x00},  {-7, 0x00},
    };
    for (const Row& row : rows)
        QTest::addRow("%d", row.gain) << row.gain << (0x0A00 | row.byte);
    QTest::newRow("0") << 0 << 0x0A00;
}

void TestAudioEqualiser::gainsAreWrittenAsBytes()
{
    QFETCH(int, gain);
    QFETCH(int, value);
    AudioBed bed;
    bed.begin();
    bed.setGain(10, gain == 6 ? 5 : 6);
    QVERIFY(bed.idle());
    bed.forget();
    bed.setGain(10, gain);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x99 %1"_s.arg(value)});
    QCOMPARE(bed.gain(10), gain);
    QVERIFY(bed.logged(u"[LuVolume] setGain:"_s));
}

void TestAudioEqualiser::bandsAreHighBytes_data()
{
    QTest::addColumn<int>("band");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("100 Hz") << 1 << 0x0113 << u"100Hz"_s;
    QTest::newRow("300 Hz") << 3 << 0x0313 << u"300Hz"_s;
    QTest::newRow("1 kHz") << 10 << 0x0A13 << u"1KHz"_s;
    QTest::newRow("3 kHz") << 30 << 0x1E13 << u"30KHz"_s;
    QTest::newRow("10 kHz") << 100 << 0x6413 << u"100KHz"_s;
}

void TestAudioEqualiser::bandsAreHighBytes()
{
    QFETCH(int, band);
    QFETCH(int, value);
    QFETCH(QString, name);
    AudioBed bed;
    bed.beginWith({});
    QSignalSpy spy(bed.module(), SIGNAL(frequencyGainHashChanged()));
    bed.setGain(band, -3);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0x99 %1"_s.arg(value)});
    QCOMPARE(bed.monitor().value(Gain, band), std::optional<std::uint16_t>(0x13));
    QCOMPARE(bed.gain(band), -3);
    QCOMPARE(stored(bed), (QJsonObject{{name, -3}}));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.told(), QStringList());
}

void TestAudioEqualiser::aGainIsStored()
{
    AudioBed bed;
    bed.begin();
    bed.setGain(100, 6);
    bed.setGain(1, -6);
    QVERIFY(bed.idle());
    QCOMPARE(stored(bed), (QJsonObject{{u"100KHz"_s, 6}, {u"100Hz"_s, -6}}));
    QVERIFY(bed.relaunchAnew());
    QCOMPARE(bed.gains(), (QList<int>{-6, 0, 0, 0, 6}));
}

void TestAudioEqualiser::thePresentGainWritesNothing()
{
    AudioBed bed;
    bed.begin();
    bed.setGain(30, 4);
    QVERIFY(bed.idle());
    bed.forget();
    bed.setGain(30, 4);
    bed.setGain(3, 0);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestAudioEqualiser::anotherBandIsRefused()
{
    AudioBed bed;
    bed.beginWith({});
    for (const int band : {0, 2, -1, 1000}) {
        bed.setGain(band, 3);
        QVERIFY(bed.logged(u"[LuVolume] the equaliser has no band %1"_s.arg(band)));
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(stored(bed), QJsonObject());
}

void TestAudioEqualiser::eachBandWaitsForItself()
{
    AudioBed bed;
    bed.beginWith({});
    {
        const HeldQueue held(bed.model());
        bed.setGain(1, 1);
        bed.setGain(3, 2);
        bed.setGain(1, 5);
        bed.setGain(10, 4);
        bed.setGain(10, 0); // taken back
    }
    QVERIFY(bed.idle());
    QStringList wire = bed.wire();
    wire.sort();
    QCOMPARE(wire, (QStringList{u"set 0x99 %1"_s.arg(0x0105), u"set 0x99 %1"_s.arg(0x0302)}));
    QCOMPARE(bed.gains(), (QList<int>{5, 2, 0, 0, 0}));
}

void TestAudioEqualiser::resetWritesEveryBand()
{
    AudioBed bed;
    bed.begin();
    bed.setGain(10, 4);
    bed.setGain(100, -2);
    QVERIFY(bed.idle());
    bed.forget();
    QSignalSpy spy(bed.module(), SIGNAL(frequencyGainHashChanged()));
    bed.resetGains();
    QVERIFY(bed.idle());
    QStringList wanted;
    for (const int value : {0x0100, 0x0300, 0x0A00, 0x1E00, 0x6400})
        wanted.append(u"set 0x99 %1"_s.arg(value));
    QCOMPARE(bed.wire(), wanted);
    QCOMPARE(bed.gains(), (QList<int>{0, 0, 0, 0, 0}));
    QCOMPARE(
        stored(bed),
        (QJsonObject{{u"100Hz"_s, 0}, {u"300Hz"_s, 0}, {u"1KHz"_s, 0}, {u"30KHz"_s, 0}, {u"100KHz"_s, 0}}));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.told(), QStringList());
    QVERIFY(bed.logged(u"[LuVolume] resetGains"_s));
}

void TestAudioEqualiser::aGainAfterAResetStays()
{
    AudioBed bed;
    bed.begin();
    bed.setGain(10, 4);
    QVERIFY(bed.idle());
    {
        const HeldQueue held(bed.model());
        bed.resetGains();
        bed.setGain(10, 4);
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.gains(), (QList<int>{0, 0, 4, 0, 0}));
    QCOMPARE(bed.monitor().value(Gain, 10), std::optional<std::uint16_t>(4));
}

void TestAudioEqualiser::gainsAreReadInEditableModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("read");
    QTest::newRow("User") << 7 << true;
    QTest::newRow("Music") << 3 << true;
    QTest::newRow("Standard") << 1 << false;
    QTest::newRow("unknown") << 9 << false;
}

void TestAudioEqualiser::gainsAreReadInEditableModes()
{
    QFETCH(int, mode);
    QFETCH(bool, read);
    AudioBed bed;
    bed.begin();
    bed.allowEqualiser();
    for (const int band : Bands)
        QVERIFY(bed.monitor().setByMenu(Gain, 0x12, band));
    QVERIFY(bed.monitor().setByMenu(Mode, mode));
    bed.forget();
    QVERIFY(bed.syncModule());
    QStringList wanted;
    for (const int band : Bands) {
        wanted.append(u"set 0x99 %1"_s.arg(band << 8 | 0xFF));
        wanted.append(u"get 0x99 %1"_s.arg(0x12));
    }
    QCOMPARE(bed.wireOf({Gain}), read ? wanted : QStringList());
    QCOMPARE(bed.gains(), read ? (QList<int>{-2, -2, -2, -2, -2}) : (QList<int>{0, 0, 0, 0, 0}));
}

void TestAudioEqualiser::readGainsAreStoredTogether()
{
    AudioBed bed;
    QVERIFY(bed.monitor().setByMenu(Mode, 7));
    bed.begin();
    bed.allowEqualiser();
    bed.setGain(30, 5);
    QVERIFY(bed.idle());
    for (const auto& [band, value] : {std::pair{1, 0x16}, {10, 0x06}, {100, 0x11}})
        QVERIFY(bed.monitor().setByMenu(Gain, value, band));
    bed.forget();
    QSignalSpy spy(bed.module(), SIGNAL(frequencyGainHashChanged()));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.gains(), (QList<int>{-6, 0, 6, 5, -1}));
    QCOMPARE(stored(bed),
             (QJsonObject{{u"100Hz"_s, -6}, {u"1KHz"_s, 6}, {u"30KHz"_s, 5}, {u"100KHz"_s, -1}}));
    QCOMPARE(spy.count(), 1);
    QVERIFY(bed.logged(u"[LuVolume] sync frequency gain changed"_s));
    QCOMPARE(bed.told(), QStringList());
    QVERIFY(bed.syncModule());
    QCOMPARE(spy.count(), 1);
}

void TestAudioEqualiser::unknownBytesCountAsZero()
{
    AudioBed bed;
    QVERIFY(bed.monitor().setByMenu(Mode, 7));
    bed.begin();
    bed.allowEqualiser();
    bed.setGain(1, 3);
    bed.setGain(3, 3);
    bed.setGain(10, 3);
    QVERIFY(bed.idle());
    // Beyond the scale; with the band's number before it; the sign alone.
    for (const auto& [band, value] : {std::pair{1, 0x07}, {3, 0x0303}, {10, 0x10}})
        QVERIFY(bed.monitor().setByMenu(Gain, value, band));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.gains(), (QList<int>{0, 0, 0, 0, 0}));
}

void TestAudioEqualiser::aBandThatFailsIsLeftOut()
{
    AudioBed bed;
    QVERIFY(bed.monitor().setByMenu(Mode, 7));
    bed.begin();
    bed.allowEqualiser();
    for (const int band : Bands)
        QVERIFY(bed.monitor().setByMenu(Gain, 0x02, band));
    sim::Fault fault;
    fault.code = std::uint8_t(Gain);
    fault.op = sim::Op::Get;
    fault.count = 1;
    bed.monitor().armFault(fault);
    bed.forget();
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.gains(), (QList<int>{0, 2, 2, 2, 2}));
    QVERIFY(bed.syncModule());
    QCOMPARE(bed.gains(), (QList<int>{2, 2, 2, 2, 2}));
}

void TestAudioEqualiser::launchWritesTheGains_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("wire");
    QTest::newRow("editable") << u"User"_s
                              << QStringList{u"set 0x94 7"_s, u"set 0x99 %1"_s.arg(0x0316),
                                             u"set 0x99 %1"_s.arg(0x1E02)};
    QTest::newRow("not editable") << u"Standard"_s << QStringList{u"set 0x94 1"_s};
}

void TestAudioEqualiser::launchWritesTheGains()
{
    QFETCH(QString, mode);
    QFETCH(QStringList, wire);
    AudioBed bed;
    bed.begin();
    bed.allowEqualiser();
    bed.setGain(30, 2);
    bed.setGain(3, -6);
    bed.put("audioMode", u"Music"_s);
    QVERIFY(bed.idle());
    bed.put("audioMode", mode);
    QVERIFY(bed.idle());
    bed.forget();
    QSignalSpy spy(bed.module(), SIGNAL(frequencyGainHashChanged()));
    QVERIFY(bed.apply());
    QCOMPARE(bed.wireOf({Mode, Gain}), wire);
    QCOMPARE(spy.count(), mode == u"User"_s ? 1 : 0);
    // The gains stay stored in either case.
    QCOMPARE(stored(bed), (QJsonObject{{u"30KHz"_s, 2}, {u"300Hz"_s, -6}}));
    QCOMPARE(bed.logged(u"[LuVolume] apply frequency gain: \"User\""_s), mode == u"User"_s);
    QCOMPARE(bed.told().filter(u" 38 "_s), QStringList{u"LuVolume 38 %1 3 []"_s.arg(mode)});
}

void TestAudioEqualiser::unknownBandsDoNothing()
{
    AudioBed bed;
    bed.begin();
    bed.destroy();
    bed.storeSetting(GainsKey, QJsonObject{{u"20Hz"_s, 4}, {u"1KHz"_s, 3}, {u"300Hz"_s, u"x"_s}});
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.gains(), (QList<int>{0, 0, 3, 0, 0}));
    bed.allowEqualiser();
    bed.put("audioMode", u"User"_s);
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(bed.apply());
    QCOMPARE(bed.wireOf({Gain}), (QStringList{u"set 0x99 %1"_s.arg(0x0300), u"set 0x99 %1"_s.arg(0x0A03)}));
}

QTEST_MAIN(TestAudioEqualiser)
#include "tst_audio_equaliser.moc"
