// SPDX-License-Identifier: Apache-2.0
#include "PictureDesk.h"

#include <QDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int Brightness = 0x10;
constexpr int Contrast = 0x12;
constexpr int Temperature = 0x14;
constexpr int Gamma = 0x72;
constexpr int Weakness = 0xFD;

/// A schema file of a model with some of its text replaced.
QByteArray schema(const QString& file, const QList<std::pair<QByteArray, QByteArray>>& changes)
{
    QFile source(QDir(QStringLiteral(LUMEN_SCHEMAS)).filePath(file));
    if (!source.open(QIODevice::ReadOnly))
        return {};
    QByteArray text = source.readAll();
    for (const auto& [from, to] : changes) {
        if (!text.contains(from))
            return {};
        text.replace(from, to);
    }
    return text;
}

} // namespace

/// Brightness, the colour controls and the filter for colour weakness, from a script to the wire and back.
class TestPictureValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void brightnessIsClamped_data();
    void brightnessIsClamped();
    void lockedBrightnessChangesAllButTheMonitor();
    void aControlIsWrittenStoredAndTold_data();
    void aControlIsWrittenStoredAndTold();
    void valuesBelongToTheColourMode();
    void aMenuChangeIsReadStoredAndReported();
    void backlightControlIsOnForExactlyOne_data();
    void backlightControlIsOnForExactlyOne();
    void gainsCountWithTheUsersTemperatureOnly();
    void unknownNumbersOfTheMonitorAreTheFirst_data();
    void unknownNumbersOfTheMonitorAreTheFirst();
    void aModelOffersWhatItsSchemaHas();
    void aSchemaMayAskForSixAxesAndMore();
    void theColourModeIsChosenByName();
    void firstConnectionReportsItsValues();
    void restartRestoresInOrder();
    void anUnsupportedMonitorKeepsItsValueApart();
    void withoutSettingsALaunchWritesTheFirstValues();
    void aSettingOfTheWrongTypeIsNoValue();
    void theBuiltInPanelFollowsTheSystem();
    void resetBringsTheModeBack();
    void theHdrStateFollowsTheMode();
    void bothFieldsOfTheFilterAreWrittenInTurn();
    void theFilterIsReadBack_data();
    void theFilterIsReadBack();
    void theFilterIsRestored();
};

void TestPictureValues::brightnessIsClamped_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("taken");
    QTest::newRow("above") << 101 << 100;
    QTest::newRow("below") << -1 << 0;
    QTest::newRow("far above") << 100000 << 100;
    QTest::newRow("inside") << 77 << 77;
}

void TestPictureValues::brightnessIsClamped()
{
    QFETCH(int, asked);
    QFETCH(int, taken);
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"brightness.softwareDimming.state"_s, false));
    QVERIFY(desk.set(u"brightness.displayBrightness"_s, asked));
    QCOMPARE(desk.get(u"brightness.displayBrightness"_s), QJsonValue(taken));
    QCOMPARE(desk.held(Brightness), taken);
    QCOMPARE(desk.setting(u"LuBrightness/User/displayBrightness"_s), QJsonValue(taken));
}

void TestPictureValues::lockedBrightnessChangesAllButTheMonitor()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    const int before = desk.held(Brightness);
    QVERIFY(desk.set(u"brightness.hardwareBrightnessEnable"_s, false));
    desk.forget();
    QVERIFY(desk.set(u"brightness.displayBrightness"_s, 10));
    QCOMPARE(desk.writes(), QStringList());
    QCOMPARE(desk.held(Brightness), before);
    QCOMPARE(desk.get(u"brightness.displayBrightness"_s), QJsonValue(10));
    QCOMPARE(desk.setting(u"LuBrightness/User/displayBrightness"_s), QJsonValue(10));
    QTRY_COMPARE(desk.overlay().value(u"alpha"_s).toDouble(), 0.7);
    // Nothing is read, either, but what is applied at launch goes out.
    QVERIFY(desk.sync());
    QVERIFY(!desk.reads().contains(u"10"_s));
    QVERIFY(desk.apply());
    QVERIFY(desk.writes().contains(u"10=0"_s));
}

void TestPictureValues::aControlIsWrittenStoredAndTold_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("wire");
    QTest::addColumn<QString>("log");
    const auto row = [](const char* property, const QJsonValue& value, const char* wire, const char* log) {
        QTest::newRow(property) << QString::fromLatin1(property) << value << QString::fromLatin1(wire)
                                << QString::fromLatin1(log);
    };
    row("displayContrast", 61, "12=61", "contrast: 61");
    row("displaySharpness", 9, "87=9", "sharpness: 9");
    row("displayColorTemperature", 2, "14=8", "color temperature: ");
    row("displayColorTemperatureR", 41, "16=41", "color temperature R: 41");
    row("displayColorTemperatureG", 42, "18=42", "color temperature G: 42");
    row("displayColorTemperatureB", 43, "1a=43", "color temperature B: 43");
    row("displayGamma", 7, "72=135", "gamma: ");
    row("displayGamut", 5, "5f=5", "gamut: ");
    row("displayHue", 31, "90=31", "hue: 31");
    row("displayHueR", 32, "9b=32", "hue R: 32");
    row("displayHueY", 33, "9c=33", "hue Y: 33");
    row("displayHueG", 34, "9d=34", "hue G: 34");
    row("displayHueC", 35, "9e=35", "hue C: 35");
    row("displayHueB", 36, "9f=36", "hue B: 36");
    row("displayHueM", 37, "a0=37", "hue M: 37");
    row("displaySaturation", 3, "8a=3", "saturation: 3");
    row("displaySaturationR", 12, "59=12", "saturation R: 12");
    row("displaySaturationY", 13, "5a=13", "saturation Y: 13");
    row("displaySaturationG", 14, "5b=14", "saturation G: 14");
    row("displaySaturationC", 15, "5c=15", "saturation C: 15");
    row("displaySaturationB", 16, "5d=16", "saturation B: 16");
    row("displaySaturationM", 17, "5e=17", "saturation M: 17");
    row("displayUniformity", true, "fa=1", "uniformity: true");
}

void TestPictureValues::aControlIsWrittenStoredAndTold()
{
    QFETCH(QString, property);
    QFETCH(QJsonValue, value);
    QFETCH(QString, wire);
    QFETCH(QString, log);
    static PictureDesk desk;
    if (QByteArray(QTest::currentDataTag()) == "displayContrast")
        QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    desk.forget();
    const QString path = u"brightness."_s + property;
    QVERIFY(desk.client().call(u"watch"_s, {{u"paths"_s, QJsonArray{path}}}).ok());
    QVERIFY(desk.set(path, value));
    QCOMPARE(desk.writes(), QStringList{wire});
    QCOMPARE(desk.get(path), value);
    QCOMPARE(desk.setting(u"LuBrightness/User/"_s + property), value);
    QVERIFY(desk.logs().first().startsWith(u"[LuBrightness] set "_s + log));
    QCOMPARE(desk.events(), QStringList());
    QTRY_COMPARE(desk.client().messages().size(), 1);
    // The same value again does nothing.
    desk.client().clearMessages();
    QVERIFY(desk.set(path, value));
    QCOMPARE(desk.writes(), QStringList());
    QVERIFY(desk.client().messages().isEmpty());
    QVERIFY(desk.client().call(u"unwatch"_s, {{u"paths"_s, QJsonArray{path}}}).ok());
    if (property == u"displayUniformity"_s)
        QCOMPARE(desk.stop(), 0);
}

void TestPictureValues::valuesBelongToTheColourMode()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"brightness.displayContrast"_s, 33));
    QVERIFY(desk.mode(u"Cinema"_s));
    // The forced read-back tells what the monitor holds there.
    QCOMPARE(desk.get(u"brightness.displayContrast"_s), QJsonValue(55));
    QVERIFY(desk.set(u"brightness.displayContrast"_s, 66));
    QCOMPARE(desk.setting(u"LuBrightness/User/displayContrast"_s), QJsonValue(33));
    QCOMPARE(desk.setting(u"LuBrightness/Cinema/displayContrast"_s), QJsonValue(66));
    QVERIFY(desk.mode(u"User"_s));
    QCOMPARE(desk.get(u"brightness.displayContrast"_s), QJsonValue(33));
    // A mode without a control neither reads nor writes it: ePaper has no gamma, HDR no contrast.
    QVERIFY(desk.mode(u"HDR"_s));
    desk.forget();
    QVERIFY(desk.sync());
    QCOMPARE(desk.reads(), (QStringList{u"10"_s, u"87"_s, u"13"_s}));
}

void TestPictureValues::aMenuChangeIsReadStoredAndReported()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    desk.forget();
    QVERIFY(desk.menu(Brightness, 43));
    QVERIFY(desk.menu(Contrast, 44));
    QVERIFY(desk.sync());
    QCOMPARE(desk.get(u"brightness.displayBrightness"_s), QJsonValue(60)); // The table's row of 43.
    QCOMPARE(desk.get(u"brightness.displayContrast"_s), QJsonValue(44));
    QCOMPARE(desk.setting(u"LuBrightness/User/displayContrast"_s), QJsonValue(44));
    QCOMPARE(desk.events(), QStringList{u"35 \"\" 1 [60]"_s});
    const QStringList logs = desk.logs();
    QVERIFY(logs.contains(u"[LuBrightness] sync: \"TK30Z\""_s));
    QVERIFY(logs.contains(u"[LuBrightness] sync hardware brightness changed: 60"_s));
    QVERIFY(logs.contains(u"[LuBrightness] sync contrast changed: 44"_s));
    // Nothing new: nothing told.
    QVERIFY(desk.sync());
    QCOMPARE(desk.events(), QStringList());
    QCOMPARE(desk.logs(), QStringList{u"[LuBrightness] sync: \"TK30Z\""_s});
}

void TestPictureValues::backlightControlIsOnForExactlyOne_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("on");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("2") << 2 << false;
    QTest::newRow("257") << 257 << false;
}

void TestPictureValues::backlightControlIsOnForExactlyOne()
{
    QFETCH(int, value);
    QFETCH(bool, on);
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.mode(u"HDR"_s));
    QVERIFY(desk.menu(0x13, value));
    QVERIFY(desk.sync());
    QCOMPARE(desk.get(u"brightness.backlightControlOn"_s), QJsonValue(on));
    QVERIFY(desk.setting(u"LuBrightness/HDR/backlightControlOn"_s).isUndefined());
}

void TestPictureValues::gainsCountWithTheUsersTemperatureOnly()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    desk.forget();
    QVERIFY(desk.sync());
    for (const QString& code : desk.reads())
        QVERIFY(!QStringList({u"16"_s, u"18"_s, u"1a"_s}).contains(code));
    QVERIFY(desk.set(u"brightness.displayColorTemperature"_s, u"ColorTemperature_UserDefine"_s));
    QCOMPARE(desk.held(Temperature), 11);
    QVERIFY(desk.set(u"brightness.displayColorTemperatureG"_s, 80));
    desk.forget();
    QVERIFY(desk.sync());
    const QStringList reads = desk.reads();
    const qsizetype at = reads.indexOf(u"14"_s);
    QCOMPARE(reads.mid(at, 4), (QStringList{u"14"_s, u"16"_s, u"18"_s, u"1a"_s}));
    QVERIFY(desk.apply());
    const QStringList writes = desk.writes();
    QCOMPARE(writes.mid(writes.indexOf(u"14=11"_s), 4),
             (QStringList{u"14=11"_s, u"16=100"_s, u"18=80"_s, u"1a=100"_s}));
}

void TestPictureValues::unknownNumbersOfTheMonitorAreTheFirst_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("property");
    QTest::addColumn<int>("number");
    QTest::newRow("gamma 121") << Gamma << 121 << u"displayGamma"_s << 0;
    QTest::newRow("gamma 135") << Gamma << 135 << u"displayGamma"_s << 7;
    QTest::newRow("temperature 7") << Temperature << 7 << u"displayColorTemperature"_s << 0;
    QTest::newRow("temperature 13") << Temperature << 13 << u"displayColorTemperature"_s << 4;
}

void TestPictureValues::unknownNumbersOfTheMonitorAreTheFirst()
{
    QFETCH(int, code);
    QFETCH(int, value);
    QFETCH(QString, property);
    QFETCH(int, number);
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.menu(code, value));
    QVERIFY(desk.sync());
    QCOMPARE(desk.get(u"brightness."_s + property), QJsonValue(number));
}

void TestPictureValues::aModelOffersWhatItsSchemaHas()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"brightness.supportedPresetColorTemp"_s), (QJsonValue(QJsonArray{0, 1, 2})));
    // 1.8, 2.0, 2.2, 2.4, 2.6; "sRGB" stands there as off.
    QCOMPARE(desk.get(u"brightness.supportedGamma"_s), (QJsonValue(QJsonArray{0, 1, 3, 4, 5})));
    QCOMPARE(desk.get(u"brightness.supportedGamut"_s), QJsonValue(QJsonArray()));
    QCOMPARE(desk.get(u"brightness.sixAxisEnable"_s), QJsonValue(false));
    QCOMPARE(desk.get(u"brightness.brightnessSyncEnable"_s), QJsonValue(true));
}

void TestPictureValues::aSchemaMayAskForSixAxesAndMore()
{
    PictureDesk desk;
    const QByteArray features =
        schema(u"TK30Z_ext.xml"_s,
               {{"Category=\"SixAxis\" Value=\"off\"", "Category=\"SixAxis\" Value=\"on\""},
                {"</VCPList>",
                 "<VCPcode Type=\"DCI\" Name=\"DCI\" Category=\"ColorTemperature\" Value=\"on\"/>"
                 "<VCPcode Type=\"Native\" Name=\"Native\" Category=\"Gamut\" Value=\"on\"/>"
                 "<VCPcode Type=\"Rec 709\" Name=\"Rec 709\" Category=\"Gamut\" Value=\"off\"/></VCPList>"}});
    const QByteArray modes = schema(
        u"TK30Z.xml"_s, {{"GammaEnable=\"on\"", "GammaEnable=\"on\" HueEnable=\"on\" GamutEnable=\"on\" "
                                                "UniformityEnable=\"on\""}});
    QVERIFY(!features.isEmpty() && !modes.isEmpty());
    QVERIFY(!desk.write(u"TK30Z_ext.xml"_s, features).isEmpty());
    const QString file = desk.write(u"TK30Z.xml"_s, modes);
    const QStringList options{u"--schema-dir"_s, QFileInfo(file).path()};
    QVERIFY2(desk.startWith(u"TK30Z"_s, options), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"brightness.sixAxisEnable"_s), QJsonValue(true));
    QCOMPARE(desk.get(u"brightness.supportedPresetColorTemp"_s), QJsonValue(QJsonArray{4}));
    QCOMPARE(desk.get(u"brightness.supportedGamut"_s), QJsonValue(QJsonArray{2}));
    desk.forget();
    QVERIFY(desk.sync());
    QCOMPARE(desk.reads(), (QStringList{u"10"_s, u"12"_s, u"87"_s, u"14"_s, u"9b"_s, u"59"_s, u"9c"_s,
                                        u"5a"_s, u"9d"_s, u"5b"_s, u"9e"_s, u"5c"_s, u"9f"_s, u"5d"_s,
                                        u"a0"_s, u"5e"_s, u"72"_s, u"5f"_s, u"fa"_s}));
    QVERIFY(desk.menu(0x5C, 71));
    QVERIFY(desk.sync());
    QCOMPARE(desk.get(u"brightness.displaySaturationC"_s), QJsonValue(71));
    QVERIFY(desk.logs().contains(u"[LuBrightness] sync saturation C changed: 71"_s));
    QVERIFY(desk.set(u"brightness.displayHueM"_s, 22));
    QVERIFY(desk.set(u"brightness.displayUniformity"_s, true));
    QCOMPARE(desk.stop(), 0);
    // The axes are restored and not the value of the whole picture.
    QVERIFY2(desk.startWith(u"TK30Z"_s, options), qPrintable(desk.errors()));
    const QStringList writes = desk.writes();
    QVERIFY(writes.contains(u"a0=22"_s) && writes.contains(u"5c=71"_s) && writes.contains(u"fa=1"_s));
    QVERIFY(writes.filter(QRegularExpression(u"^(90|8a)="_s)).isEmpty());
}

void TestPictureValues::theColourModeIsChosenByName()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"brightness.colorModeName"_s), QJsonValue(u"User"_s));
    QVERIFY(desk.set(u"brightness.colorModeName"_s, u"Game"_s));
    QCOMPARE(desk.held(0xDC), 0x28);
    QCOMPARE(desk.get(u"brightness.colorModeName"_s), QJsonValue(u"Game"_s));
    desk.forget();
    QVERIFY(desk.set(u"brightness.colorModeName"_s, u"Nobody's"_s));
    QCOMPARE(desk.writes(), QStringList());
    QCOMPARE(desk.get(u"brightness.colorModeName"_s), QJsonValue(u"Game"_s));
}

void TestPictureValues::firstConnectionReportsItsValues()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z@NEW1"_s), qPrintable(desk.errors()));
    QStringList events = desk.events();
    QVERIFY2(events.contains(u"24 on 5 []"_s), qPrintable(events.join(u'\n')));
    QVERIFY2(events.contains(u"35 \"\" 5 [65]"_s), qPrintable(events.join(u'\n')));
    QCOMPARE(desk.writes(), QStringList());
    QCOMPARE(desk.setting(u"LuBrightness/User/displayBrightness"_s), QJsonValue(65));
    QCOMPARE(desk.stop(), 0);
    // Met before: values go to the monitor, and nothing of a first connection is told.
    QVERIFY2(desk.startWith(u"TK30Z@NEW1"_s), qPrintable(desk.errors()));
    events = desk.events();
    QVERIFY(events.contains(u"35 \"\" 3 [65]"_s));
    QVERIFY(events.contains(u"24 on 3 []"_s));
    QVERIFY(!events.contains(u"24 on 5 []"_s));
}

void TestPictureValues::restartRestoresInOrder()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"brightness.softwareDimming.state"_s, false));
    const QList<std::pair<QString, QJsonValue>> values{
        {u"displayBrightness"_s, 37},       {u"displayContrast"_s, 71},
        {u"displaySharpness"_s, 3},         {u"displayGamma"_s, 4},
        {u"displayColorTemperature"_s, 3},  {u"displaySaturation"_s, 8},
        {u"displayColorTemperatureR"_s, 90}};
    for (const auto& [name, value] : values)
        QVERIFY(desk.set(u"brightness."_s + name, value));
    QVERIFY(desk.set(u"brightness.syncBaseline"_s, 12));
    // The other gains are known once they were read with the user's temperature.
    QVERIFY(desk.sync());
    QCOMPARE(desk.stop(), 0);

    // Somebody turned everything meanwhile, at the monitor's own menu.
    const QString world = desk.write(
        u"world.json"_s, R"({"vcp": {"TK30Z": {"0x10": 5, "0x12": 5, "0x87": 9, "0x72": 80, "0x8A": 1}}})");
    QVERIFY2(desk.startWith(u"TK30Z"_s, {u"--state"_s, world}), qPrintable(desk.errors()));
    QStringList picture;
    for (const QString& write : desk.writes()) {
        if (QStringList({u"10"_s, u"12"_s, u"87"_s, u"14"_s, u"16"_s, u"18"_s, u"1a"_s, u"8a"_s, u"72"_s})
                .contains(write.section(u'=', 0, 0)))
            picture.append(write);
    }
    QCOMPARE(picture, (QStringList{u"10=37"_s, u"12=71"_s, u"87=3"_s, u"14=11"_s, u"16=90"_s, u"18=100"_s,
                                   u"1a=100"_s, u"8a=8"_s, u"72=140"_s}));
    for (const auto& [name, value] : values)
        QCOMPARE(desk.get(u"brightness."_s + name), value);
    QCOMPARE(desk.get(u"brightness.syncBaseline"_s), QJsonValue(12));
    QCOMPARE(desk.get(u"brightness.softwareDimming.state"_s), QJsonValue(false));
    const QStringList logs = desk.logs();
    QVERIFY(logs.contains(u"[LuBrightness] apply hardware brightness: 37"_s));
    QVERIFY(logs.contains(u"[LuBrightness] apply custom color temperature: 90 100 100"_s));
    QVERIFY(logs.contains(u"[LuBrightness] apply saturation: 8"_s));
}

void TestPictureValues::anUnsupportedMonitorKeepsItsValueApart()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"ACME24"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"isModelSupported"_s), QJsonValue(false));
    QCOMPARE(desk.get(u"brightness.softwareDimming.state"_s), QJsonValue(false));
    desk.forget();
    QVERIFY(desk.set(u"brightness.displayBrightness"_s, 42));
    QCOMPARE(desk.setting(u"LuBrightness/Unsupported/displayBrightness"_s), QJsonValue(42));
    QVERIFY(desk.logs().contains(u"[LuBrightness] set system brightness: 42"_s));
    QCOMPARE(desk.stop(), 0);
    QVERIFY2(desk.startWith(u"ACME24"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"brightness.displayBrightness"_s), QJsonValue(42));
    QVERIFY(desk.events().contains(u"35 \"\" 3 [42]"_s));
    // No other control reaches a monitor that nobody describes.
    desk.forget();
    QVERIFY(desk.set(u"brightness.displayContrast"_s, 12));
    QCOMPARE(desk.writes(), QStringList());
    QCOMPARE(desk.setting(u"LuBrightness/Unsupported/displayContrast"_s), QJsonValue(12));
}

void TestPictureValues::withoutSettingsALaunchWritesTheFirstValues()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.stop(), 0);
    QVERIFY2(desk.startWith(u"TK30Z"_s, {u"--no-load-settings"_s, u"--no-auto-sync"_s}),
             qPrintable(desk.errors()));
    desk.forget();
    QVERIFY(desk.apply());
    const QStringList writes = desk.writes();
    QCOMPARE(writes.filter(QRegularExpression(u"^10="_s)), QStringList{u"10=0"_s});
}

void TestPictureValues::aSettingOfTheWrongTypeIsNoValue()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    for (const char* key : {"displayBrightness", "displayContrast", "displayGamma"})
        QVERIFY(desk.client()
                    .call(u"settings.set"_s, {{u"monitor"_s, u"TK30Z"_s},
                                              {u"key"_s, u"LuBrightness/User/"_s + QString::fromLatin1(key)},
                                              {u"value"_s, u"nonsense"_s}})
                    .ok());
    QCOMPARE(desk.stop(), 0);
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.writes().filter(QRegularExpression(u"^(10|12|72)="_s)), QStringList());
    QCOMPARE(desk.get(u"brightness.displayBrightness"_s), QJsonValue(65));
}

void TestPictureValues::theBuiltInPanelFollowsTheSystem()
{
    PictureDesk desk;
    const QString world = desk.write(u"world.json"_s, R"({"services": {"systemBrightness": 0.62}})");
    QVERIFY2(desk.startWith(u"builtin"_s, {u"--state"_s, world}), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"brightness.displayBrightness"_s), QJsonValue(62));
    QCOMPARE(desk.get(u"brightness.brightnessSyncEnable"_s), QJsonValue(true));
    QVERIFY(desk.set(u"brightness.displayBrightness"_s, 31));
    QCOMPARE(desk.client().value(u"services.get"_s, {{u"path"_s, u"systemBrightness"_s}}).toDouble(), 0.31);
    desk.forget();
    // Half a percent is rounded away from zero.
    QVERIFY(desk.client()
                .call(u"services.set"_s, {{u"path"_s, u"systemBrightness"_s}, {u"value"_s, 0.545}})
                .ok());
    QTRY_COMPARE(desk.get(u"brightness.displayBrightness"_s), QJsonValue(55));
    QVERIFY(desk.logs().contains(u"[LuBrightness] sync system brightness changed: 55"_s));
    QCOMPARE(desk.events(), QStringList());
    QCOMPARE(desk.setting(u"LuBrightness/Unsupported/displayBrightness"_s), QJsonValue(55));
}

void TestPictureValues::resetBringsTheModeBack()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.mode(u"Cinema"_s));
    QVERIFY(desk.set(u"brightness.displayContrast"_s, 12));
    desk.forget();
    QVERIFY(desk.client().call(u"call"_s, {{u"path"_s, u"resetCurrentColorMode"_s}}).ok());
    QVERIFY(desk.idle());
    QCOMPARE(desk.writes(), QStringList{u"8=1"_s});
    QCOMPARE(desk.get(u"brightness.displayContrast"_s), QJsonValue(55));
    QCOMPARE(desk.setting(u"LuBrightness/Cinema/displayContrast"_s), QJsonValue(55));
}

void TestPictureValues::theHdrStateFollowsTheMode()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z,ACME24"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"isHDREnable"_s, u"TK30Z"_s), QJsonValue(true));
    QCOMPARE(desk.get(u"isHDREnable"_s, u"ACME24"_s), QJsonValue(false));
    QVERIFY(desk.set(u"colorMode"_s, u"Cinema"_s, u"TK30Z"_s));
    QVERIFY(desk.set(u"isHDR"_s, true, u"TK30Z"_s));
    QCOMPARE(desk.held(0xDC, u"TK30Z"_s), 0x23);
    QCOMPARE(desk.get(u"isHDR"_s, u"TK30Z"_s), QJsonValue(true));
    QVERIFY(desk.set(u"isHDR"_s, false, u"TK30Z"_s));
    QCOMPARE(desk.held(0xDC, u"TK30Z"_s), 0x32);
    QVERIFY(desk.set(u"isHDR"_s, true, u"ACME24"_s));
    QCOMPARE(desk.get(u"isHDR"_s, u"ACME24"_s), QJsonValue(false));
    // At the menu, with the signal.
    QVERIFY(desk.client()
                .call(u"watch"_s, {{u"monitor"_s, u"TK30Z"_s}, {u"paths"_s, QJsonArray{u"isHDR"_s}}})
                .ok());
    QVERIFY(desk.menu(0xDC, 0x23, u"TK30Z"_s));
    QVERIFY(desk.client().call(u"sync"_s, {{u"monitor"_s, u"TK30Z"_s}}).ok());
    QTRY_COMPARE(desk.client().messages().size(), 1);
    QCOMPARE(desk.get(u"isHDR"_s, u"TK30Z"_s), QJsonValue(true));
}

void TestPictureValues::bothFieldsOfTheFilterAreWrittenInTurn()
{
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"colorWeakness.weakness"_s, 7));
    QCOMPARE(desk.held(Weakness), 0x0700);
    desk.forget();
    QVERIFY(desk.set(u"colorWeakness.mode"_s, u"RedFilter"_s));
    QVERIFY(desk.set(u"colorWeakness.weakness"_s, 3));
    QCOMPARE(desk.writes(), (QStringList{u"fd=%1"_s.arg(0x0703), u"fd=%1"_s.arg(0x0303)}));
    QCOMPARE(desk.logs().filter(u"set "_s).size(), 2);
    QCOMPARE(desk.events(), QStringList());
    QCOMPARE(desk.setting(u"LuColorWeakness/mode"_s), QJsonValue(3));
    QCOMPARE(desk.setting(u"LuColorWeakness/weakness"_s), QJsonValue(3));
}

void TestPictureValues::theFilterIsReadBack_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("now");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("weakness");
    QTest::addColumn<QString>("event");
    QTest::newRow("green 5") << 0 << 0x0504 << 4 << 5 << u"25 on 1 [g5]"_s;
    QTest::newRow("red 3") << 0 << 0x0303 << 3 << 3 << u"25 on 1 [r3]"_s;
    QTest::newRow("on without strength") << 0 << 0x0004 << 4 << 0 << u"25 on 1 [g0]"_s;
    QTest::newRow("unknown filter counts as on") << 0 << 0x0209 << 9 << 2 << u"25 on 1 [g2]"_s;
    QTest::newRow("off") << 0x0303 << 0x0300 << 0 << 3 << u"25 off 1 []"_s;
    QTest::newRow("stronger") << 0x0303 << 0x0903 << 3 << 9 << u"25 \"on_update_setting\" 1 [r9]"_s;
    QTest::newRow("other filter") << 0x0303 << 0x0304 << 4 << 3 << u"25 \"on_update_setting\" 1 [g3]"_s;
    QTest::newRow("the same") << 0x0303 << 0x0303 << 3 << 3 << QString();
}

void TestPictureValues::theFilterIsReadBack()
{
    QFETCH(int, before);
    QFETCH(int, now);
    QFETCH(int, mode);
    QFETCH(int, weakness);
    QFETCH(QString, event);
    PictureDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.menu(Weakness, before));
    QVERIFY(desk.sync(u"LuColorWeakness"_s));
    desk.forget();
    QVERIFY(desk.menu(Weakness, now));
    QVERIFY(desk.sync(u"LuColorWeakness"_s));
    QCOMPARE(desk.get(u"colorWeakness.mode"_s), QJsonValue(mode));
    QCOMPARE(desk.get(u"colorWeakness.weakness"_s), QJsonValue(weakness));
    QCOMPARE(desk.events(), event.isEmpty() ? QStringList() : QStringList{event});
}

void TestPictureValues::theFilterIsRestored()
{
    PictureDesk desk;
    const QString world = desk.write(u"world.json"_s, R"({"vcp": {"TK30Z": {"0xFD": 1027}}})");
    QVERIFY2(desk.startWith(u"TK30Z"_s, {u"--state"_s, world}), qPrintable(desk.errors()));
    QVERIFY(desk.events().contains(u"25 on 5 [r4]"_s));
    QCOMPARE(desk.stop(), 0);
    const QString other = desk.write(u"other.json"_s, R"({"vcp": {"TK30Z": {"0xFD": 0}}})");
    QVERIFY2(desk.startWith(u"TK30Z"_s, {u"--state"_s, other}), qPrintable(desk.errors()));
    QVERIFY(desk.writes().contains(u"fd=1027"_s));
    QVERIFY(desk.events().contains(u"25 on 3 [r4]"_s));
    QCOMPARE(desk.held(Weakness), 1027);
}

QTEST_GUILESS_MAIN(TestPictureValues)
#include "tst_picture_values.moc"
