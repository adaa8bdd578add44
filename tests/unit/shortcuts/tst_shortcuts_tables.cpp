// SPDX-License-Identifier: Apache-2.0
#include "LuKeyText.h"
#include "LuShortcutTables.h"
#include "SimulatedBed.h"

#include <QFile>
#include <QMetaEnum>
#include <QTest>

using namespace Qt::StringLiterals;
using Action = LuShortcutAction;

/// What is fixed about shortcuts, and how a combination is written and read.
class TestShortcutsTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestBed::instance(); }
    void usageWords_data();
    void usageWords();
    void colourModes_data();
    void colourModes();
    void everyOtherNameHasNoColourMode();
    void reservedCombinations();
    void settingKeys_data();
    void settingKeys();
    void everySettingKeyIsItsOwn();
    void defaults_data();
    void defaults();
    void damagedDefaultsYieldWhatStandsBefore();
    void acceptedKeys_data();
    void acceptedKeys();
    void refusedKeysLeaveTheSequence();
    void textOfACombination_data();
    void textOfACombination();
    void parsing_data();
    void parsing();
    void ownersOfTitles_data();
    void ownersOfTitles();
};

namespace {

void names()
{
    QTest::addColumn<int>("name");
    QTest::addColumn<QString>("text");
}

} // namespace

void TestShortcutsTables::usageWords_data()
{
    names();
    const std::pair<int, const char*> rows[] = {
        {0, "input_usbc"},
        {1, "input_dp"},
        {2, "input_hdmi"},
        {3, "input_hdmi1"},
        {4, "input_hdmi2"},
        {27, "input_hdmi3"},
        {38, "input_thunderbolt3"},
        {5, "colorMode_loop"},
        {37, "colorMode_coding"},
        {6, "colorMode_codingLight"},
        {7, "colorMode_codingDark"},
        {8, "colorMode_standard"},
        {9, "colorMode_mBook"},
        {10, "colorMode_cinema"},
        {11, "colorMode_ePaper"},
        {12, "colorMode_user"},
        {13, "colorMode_sRGB"},
        {14, "colorMode_game"},
        {28, "colorMode_cinemaHdri"},
        {29, "colorMode_gameHdri"},
        {30, "colorMode_hdr"},
        {31, "colorMode_rec709"},
        {32, "colorMode_displayP3"},
        {33, "colorMode_dcip3"},
        {34, "colorMode_user1"},
        {35, "colorMode_user1"},
        {39, "colorMode_codingPaperColor"},
        {26, ""},
        {15, "brightness_decrease"},
        {16, "brightness_increase"},
        {17, "volume_decrease"},
        {18, "volume_increase"},
        {19, "volume_mute"},
        {20, "volume_loop"},
        {36, ""},
        {21, "nhp_decrease"},
        {22, "nhp_increase"},
        {23, "ecoPrivacy_switch"},
        {24, "extra_copy"},
        {25, "extra_paste"},
        {40, ""},
        {41, ""},
    };
    for (const auto& [name, word] : rows)
        QTest::addRow("%d %s", name, word) << name << QString::fromLatin1(word);
}

void TestShortcutsTables::usageWords()
{
    QFETCH(int, name);
    QFETCH(QString, text);
    QCOMPARE(LuShortcutTables::usageWord(Action::ActionName(name)), text);
}

void TestShortcutsTables::colourModes_data()
{
    names();
    const std::pair<int, const char*> rows[] = {
        {37, "Coding"},
        {6, "Coding - Light Theme"},
        {7, "Coding - Dark Theme"},
        {8, "Standard"},
        {9, "M-book"},
        {10, "Cinema"},
        {11, "ePaper"},
        {12, "User"},
        {13, "sRGB"},
        {14, "Game"},
        {28, "Cinema HDRi"},
        {29, "Game HDRi"},
        {30, "HDR"},
        {31, "Rec.709"},
        {32, "Display-P3"},
        {33, "DCI-P3"},
        {34, "User1"},
        {35, "User2"},
        {39, "Coding - Paper Color"},
    };
    for (const auto& [name, text] : rows)
        QTest::addRow("%s", text) << name << QString::fromLatin1(text);
}

void TestShortcutsTables::colourModes()
{
    QFETCH(int, name);
    QFETCH(QString, text);
    QCOMPARE(LuShortcutTables::colorModeOf(Action::ActionName(name)), text);
    QCOMPARE(int(LuShortcutTables::actionOfColorMode(text)), name);
}

void TestShortcutsTables::everyOtherNameHasNoColourMode()
{
    QCOMPARE(LuShortcutTables::actionOfColorMode(u"No Such Mode"_s), Action::ColorMode_NotSupported);
    QCOMPARE(LuShortcutTables::actionOfColorMode(u"cinema"_s), Action::ColorMode_NotSupported);
    QCOMPARE(LuShortcutTables::actionOfColorMode({}), Action::ColorMode_NotSupported);
    QCOMPARE(LuShortcutTables::colorModeOf(Action::ColorMode_LoopAllColorMode), QString());
    QCOMPARE(LuShortcutTables::colorModeOf(Action::Brightness_Decrease), QString());
}

void TestShortcutsTables::reservedCombinations()
{
    const QStringList wanted{u"Ctrl+X"_s,          u"Ctrl+C"_s,           u"Ctrl+V"_s,
                             u"Ctrl+Z"_s,          u"Alt+F4"_s,           u"Alt+A"_s,
                             u"Alt+F8"_s,          u"Alt+Space"_s,        u"Alt+Right"_s,
                             u"Alt+Left"_s,        u"Ctrl+F4"_s,          u"Ctrl+A"_s,
                             u"Ctrl+D"_s,          u"Ctrl+E"_s,           u"Ctrl+R"_s,
                             u"Ctrl+F5"_s,         u"Ctrl+Y"_s,           u"Ctrl+Right"_s,
                             u"Ctrl+Left"_s,       u"Ctrl+Up"_s,          u"Ctrl+Down"_s,
                             u"Alt+Shift+Right"_s, u"Alt+Shift+Left"_s,   u"Alt+Shift+Up"_s,
                             u"Alt+Shift+Down"_s,  u"Ctrl+Shift+Right"_s, u"Ctrl+Shift+Left"_s,
                             u"Ctrl+Shift+Up"_s,   u"Ctrl+Shift+Down"_s,  u"Ctrl+Space+Right"_s,
                             u"Ctrl+Space+Left"_s, u"Ctrl+Space+Up"_s,    u"Ctrl+Space+Down"_s,
                             u"Ctrl+Space"_s,      u"Shift+F10"_s,        u"Shift+Right"_s,
                             u"Shift+Left"_s,      u"Shift+Up"_s,         u"Shift+Down"_s};
    QCOMPARE(wanted.size(), 39);
    const QList<QKeySequence>& reserved = LuShortcutTables::reserved();
    QCOMPARE(reserved.size(), 39);
    for (qsizetype i = 0; i < wanted.size(); ++i)
        QCOMPARE(reserved[i], QKeySequence(wanted[i]));
    QCOMPARE(&LuShortcutTables::reserved(), &reserved);
}

void TestShortcutsTables::settingKeys_data()
{
    names();
    QTest::newRow("input") << int(Action::Input_SwitchtoUSBC) << u"Input/SwitchtoUSBC"_s;
    QTest::newRow("colour mode") << int(Action::ColorMode_LoopAllColorMode)
                                 << u"ColorMode/LoopAllColorMode"_s;
    QTest::newRow("brightness") << int(Action::Brightness_Decrease) << u"Brightness/Decrease"_s;
    QTest::newRow("volume") << int(Action::Volume_Mute) << u"Volume/Mute"_s;
    QTest::newRow("night") << int(Action::NightProtection_Increase) << u"NightProtection/Increase"_s;
    QTest::newRow("eco") << int(Action::EcoPrivacy_TurnOnOff) << u"EcoPrivacy/TurnOnOff"_s;
    QTest::newRow("copy") << int(Action::ExtraCopyPaste_Copy) << u"ExtraCopyPaste/Copy"_s;
    QTest::newRow("kvm keeps the whole name")
        << int(Action::Kvm_LoopAllKvmSwitch) << u"KvmSwitch/Kvm_LoopAllKvmSwitch"_s;
}

void TestShortcutsTables::settingKeys()
{
    QFETCH(int, name);
    QFETCH(QString, text);
    const auto action = Action::ActionName(name);
    QCOMPARE(LuShortcutTables::settingKey(Action::titleOf(action), action), text);
}

void TestShortcutsTables::everySettingKeyIsItsOwn()
{
    const auto names = QMetaEnum::fromType<Action::ActionName>();
    QSet<QString> keys;
    for (int i = 0; i < names.keyCount(); ++i) {
        const auto name = Action::ActionName(names.value(i));
        keys.insert(LuShortcutTables::settingKey(Action::titleOf(name), name));
    }
    QCOMPARE(keys.size(), names.keyCount());
    QCOMPARE(names.keyCount(), 41);
}

void TestShortcutsTables::defaults_data()
{
    QTest::addColumn<QString>("series");
    names();
    QTest::newRow("TK first") << u"TK"_s << 0 << u"Ctrl+Shift+1"_s;
    QTest::newRow("TK last, behind entries that stay open") << u"TK"_s << 40 << u"Ctrl+Alt+K"_s;
    QTest::newRow("TK without keys here") << u"TK"_s << 20 << QString();
    QTest::newRow("TK without an entry") << u"TK"_s << 27 << QString();
    QTest::newRow("ZQ") << u"ZQ"_s << 36 << u"Shift+Ctrl+A"_s;
    QTest::newRow("FN") << u"FN"_s << 38 << u"Ctrl+Shift+4"_s;
    QTest::newRow("YH, one of a pair") << u"YH"_s << 3 << u"Ctrl+Shift+2"_s;
    QTest::newRow("YH, the other") << u"YH"_s << 2 << u"Ctrl+Shift+2"_s;
    QTest::newRow("no such series") << u"QQ"_s << 0 << QString();
}

void TestShortcutsTables::defaults()
{
    QFETCH(QString, series);
    QFETCH(int, name);
    QFETCH(QString, text);
    QCOMPARE(LuShortcutTables::defaultKeys(u":/TKPackage/schema/%1DefaultShortcuts.xml"_s.arg(series),
                                           Action::ActionName(name)),
             text);
}

void TestShortcutsTables::damagedDefaultsYieldWhatStandsBefore()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"damaged.xml"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<OsdSetting><Entry Name=\"Input_SwitchtoUSBC\" WinKeys=\"Ctrl+Shift+7\">"
               "<Entry Name=\"Bogus\" WinKeys=\"Ctrl+Shift+8\"><Entry Name=\"Volume_Mute\" WinKeys=<");
    file.close();
    QCOMPARE(LuShortcutTables::defaultKeys(path, Action::Input_SwitchtoUSBC), u"Ctrl+Shift+7"_s);
    QCOMPARE(LuShortcutTables::defaultKeys(path, Action::Volume_Mute), QString());
    // Read once.
    QVERIFY(QFile::remove(path));
    QCOMPARE(LuShortcutTables::defaultKeys(path, Action::Input_SwitchtoUSBC), u"Ctrl+Shift+7"_s);
}

void TestShortcutsTables::acceptedKeys_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("accepted");
    const int control = int(Qt::ControlModifier);
    const auto row = [](const char* what, int modifiers, int key, bool accepted) {
        QTest::newRow(what) << modifiers << key << accepted;
    };
    row("no modifier", 0, Qt::Key_A, false);
    row("Meta alone", int(Qt::MetaModifier), Qt::Key_A, false);
    row("number pad alone", int(Qt::KeypadModifier), Qt::Key_1, false);
    row("Ctrl", control, Qt::Key_A, true);
    row("Alt", int(Qt::AltModifier), Qt::Key_A, true);
    row("Shift", int(Qt::ShiftModifier), Qt::Key_A, true);
    row("Ctrl and Meta", control | int(Qt::MetaModifier), Qt::Key_A, true);
    row("unknown key", control, Qt::Key_unknown, false);
    row("no key", control, 0, false);
    row("modifier itself", control, Qt::Key_Control, false);
    row("Tab", control, Qt::Key_Tab, false);
    row("Escape", control, Qt::Key_Escape, false);
    row("Home, before the arrows", control, Qt::Key_End, false);
    row("Left", control, Qt::Key_Left, true);
    row("Up", control, Qt::Key_Up, true);
    row("Right", control, Qt::Key_Right, true);
    row("Down", control, Qt::Key_Down, true);
    row("Page up, behind the arrows", control, Qt::Key_PageUp, false);
    row("before F1", control, int(Qt::Key_F1) - 1, false);
    row("F1", control, Qt::Key_F1, true);
    row("F12", control, Qt::Key_F12, true);
    row("F13", control, Qt::Key_F13, false);
    row("slash, before 0", control, Qt::Key_Slash, false);
    row("0", control, Qt::Key_0, true);
    row("9", control, Qt::Key_9, true);
    row("colon, behind 9", control, Qt::Key_Colon, false);
    row("at, before A", control, Qt::Key_At, false);
    row("A", control, Qt::Key_A, true);
    row("Z", control, Qt::Key_Z, true);
    row("bracket, behind Z", control, Qt::Key_BracketLeft, false);
    row("space", control, Qt::Key_Space, true);
    row("Plus", control, Qt::Key_Plus, false);
}

void TestShortcutsTables::acceptedKeys()
{
    QFETCH(int, modifiers);
    QFETCH(int, key);
    QFETCH(bool, accepted);
    QKeySequence sequence;
    QCOMPARE(LuKeyText::accept(Qt::KeyboardModifiers(modifiers), Qt::Key(key), &sequence), accepted);
    QCOMPARE(!sequence.isEmpty(), accepted);
    if (accepted)
        QCOMPARE(sequence[0],
                 QKeyCombination(Qt::KeyboardModifiers(modifiers) & LuKeyText::Counting, Qt::Key(key)));
}

void TestShortcutsTables::refusedKeysLeaveTheSequence()
{
    QKeySequence sequence(u"Ctrl+Shift+1"_s);
    QVERIFY(!LuKeyText::accept(Qt::ControlModifier, Qt::Key_Tab, &sequence));
    QCOMPARE(sequence, QKeySequence(u"Ctrl+Shift+1"_s));
}

void TestShortcutsTables::textOfACombination_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    const int all = int(Qt::ShiftModifier) | int(Qt::AltModifier) | int(Qt::ControlModifier);
    QTest::newRow("fixed order") << all << int(Qt::Key_K) << u"Ctrl+Alt+Shift+K"_s;
    QTest::newRow("modifiers alone") << int(Qt::AltModifier | Qt::ControlModifier) << int(Qt::Key_unknown)
                                     << u"Ctrl+Alt"_s;
    QTest::newRow("Meta is not shown")
        << int(Qt::MetaModifier | Qt::ShiftModifier) << int(Qt::Key_F2) << u"Shift+F2"_s;
    QTest::newRow("arrow") << int(Qt::ControlModifier) << int(Qt::Key_Left) << u"Ctrl+Left"_s;
    QTest::newRow("letter alone") << 0 << int(Qt::Key_A) << u"A"_s;
    QTest::newRow("refused key") << int(Qt::ControlModifier) << int(Qt::Key_Tab) << u"Ctrl+Tab"_s;
    QTest::newRow("nothing") << 0 << int(Qt::Key_unknown) << QString();
}

void TestShortcutsTables::textOfACombination()
{
    QFETCH(int, modifiers);
    QFETCH(int, key);
    QFETCH(QString, text);
    QCOMPARE(LuKeyText::comboString(Qt::KeyboardModifiers(modifiers), Qt::Key(key)), text);
}

void TestShortcutsTables::parsing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("key");
    const int control = int(Qt::ControlModifier);
    const int shift = int(Qt::ShiftModifier);
    QTest::newRow("usual") << u"Ctrl+Shift+1"_s << (control | shift) << int(Qt::Key_1);
    QTest::newRow("another order") << u"Shift+Ctrl+A"_s << (control | shift) << int(Qt::Key_A);
    QTest::newRow("another case") << u"CTRL+alt+f5"_s << (control | int(Qt::AltModifier)) << int(Qt::Key_F5);
    QTest::newRow("arrow") << u"Ctrl+Alt+Left"_s << (control | int(Qt::AltModifier)) << int(Qt::Key_Left);
    QTest::newRow("foreign modifiers are no keys") << u"Opt+Cmd+Meta+K"_s << 0 << int(Qt::Key_K);
    QTest::newRow("first of two keys") << u"Ctrl+K+L"_s << control << int(Qt::Key_K);
    QTest::newRow("modifiers alone") << u"Ctrl+Alt"_s << (control | int(Qt::AltModifier))
                                     << int(Qt::Key_unknown);
    QTest::newRow("nothing") << QString() << 0 << int(Qt::Key_unknown);
}

void TestShortcutsTables::parsing()
{
    QFETCH(QString, text);
    QFETCH(int, modifiers);
    QFETCH(int, key);
    QCOMPARE(int(LuKeyText::modifiersOf(text)), modifiers);
    QCOMPARE(int(LuKeyText::keyOf(text)), key);
}

void TestShortcutsTables::ownersOfTitles_data()
{
    QTest::addColumn<bool>("owned");
    const auto titles = QMetaEnum::fromType<LuActionInterface::ActionTitle>();
    for (int title = 0; title <= 13; ++title)
        QTest::addRow("%s", titles.valueToKey(title)) << QList<int>{1, 3, 4, 5, 6, 13}.contains(title);
}

void TestShortcutsTables::ownersOfTitles()
{
    QFETCH(bool, owned);
    const int title =
        QMetaEnum::fromType<LuActionInterface::ActionTitle>().keyToValue(QTest::currentDataTag());
    QCOMPARE(LuShortcutTables::hasOwner(LuActionInterface::ActionTitle(title)), owned);
}

QTEST_MAIN(TestShortcutsTables)
#include "tst_shortcuts_tables.moc"
