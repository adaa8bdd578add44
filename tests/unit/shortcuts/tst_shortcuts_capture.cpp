// SPDX-License-Identifier: Apache-2.0
#include "ShortcutsBed.h"

#include <ZrCore/ZrClock.h>

#include <QDateTime>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Action = LuShortcutAction;

/// The choice of other keys for an action.
class TestShortcutsCapture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ShortcutsBed::forgetStoredKeys(); }
    void cleanup()
    {
        ZrClock::instance().release();
        ShortcutsBed::forgetStoredKeys();
    }
    void aPressDecides_data();
    void aPressDecides();
    void theTextFollowsTheKeys();
    void whatIsUsedOrReservedIsRefused_data();
    void whatIsUsedOrReservedIsRefused();
    void theNextRowClearsTheWarning();
    void anotherRowTakesTheCaptureOver();
    void leavingKeepsThePlaceForTheNextClick();
    void theKeysRestMeanwhile();
    void keysThatEndTheCaptureDoNothingElse();
    void captureWithoutAnActionEnds();
    void onlyTheCurrentMonitorCaptures();
    void aModelThatGoesInTheMeantime();
};

void TestShortcutsCapture::aPressDecides_data()
{
    QTest::addColumn<QString>("modifiers");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("active");
    QTest::addColumn<QString>("keys");  // of the action afterwards
    QTest::addColumn<QString>("typed"); // what the row shows
    QTest::addColumn<bool>("capturing");
    QTest::addColumn<bool>("refused");
    const QString old = u"Ctrl+Shift+F5"_s;
    const auto row = [](const char* what, const QString& modifiers, const QString& key, bool active,
                        const QString& keys, const QString& typed, bool capturing, bool refused) {
        QTest::newRow(what) << modifiers << key << active << keys << typed << capturing << refused;
    };
    // clang-format off
    row("new combination",        u"Ctrl+Alt"_s,       u"F11"_s,     true,  u"Ctrl+Alt+F11"_s,       QString(),         false, false);
    row("three modifiers",        u"Shift+Alt+Ctrl"_s, u"J"_s,       true,  u"Ctrl+Alt+Shift+J"_s,   QString(),         false, false);
    row("arrow",                  u"Ctrl+Alt"_s,       u"Up"_s,      true,  u"Ctrl+Alt+Up"_s,        QString(),         false, false);
    row("space bar",              u"Shift"_s,          u"Space"_s,   true,  u"Shift+Space"_s,        QString(),         false, false);
    row("digit",                  u"Alt"_s,            u"7"_s,       true,  u"Alt+7"_s,              QString(),         false, false);
    row("Meta does not count",    u"Ctrl+Meta"_s,      u"J"_s,       true,  u"Ctrl+J"_s,             QString(),         false, false);
    row("modifiers only",         u"Alt+Ctrl"_s,       QString(),    true,  old,                     u"Ctrl+Alt"_s,     true,  false);
    row("letter only",            QString(),           u"J"_s,       true,  old,                     u"J"_s,            true,  false);
    row("refused key",            u"Ctrl"_s,           u"Tab"_s,     true,  old,                     u"Ctrl+Tab"_s,     true,  false);
    row("Meta alone",             u"Meta"_s,           u"J"_s,       true,  old,                     u"J"_s,            true,  false);
    row("its own combination",    u"Ctrl+Shift"_s,     u"F5"_s,      true,  old,                     old,               false, true);
    row("that of another action", u"Ctrl+Alt"_s,       u"C"_s,       true,  old,                     old,               false, true);
    row("a reserved one",         u"Ctrl"_s,           u"C"_s,       true,  old,                     old,               false, true);
    row("switched off",           u"Ctrl+Alt"_s,       u"F11"_s,     false, old,                     u"Ctrl+Alt+F11"_s, true,  false);
    // clang-format on
}

void TestShortcutsCapture::aPressDecides()
{
    QFETCH(QString, modifiers);
    QFETCH(QString, key);
    QFETCH(bool, active);
    QFETCH(QString, keys);
    QFETCH(QString, typed);
    QFETCH(bool, capturing);
    QFETCH(bool, refused);
    ShortcutsBed bed;
    bed.begin(active);
    ZrClock::instance().set(QDateTime(QDate(2024, 3, 4), QTime(8, 0)));
    bed.beginCapture(Action::Brightness_Increase);
    QVERIFY(bed.flag("modifyShortcuts"));
    QVERIFY(bed.isCaptured(Action::Brightness_Increase));
    QVERIFY(!bed.isCaptured(Action::Brightness_Decrease));
    QCOMPARE(bed.typed(), QString());
    // Before that the keys are live.
    ZrClock::instance().advance(50);
    bed.forget();
    QVERIFY(!bed.press(modifiers, key));
    QVERIFY(bed.idle());
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), keys);
    QCOMPARE(bed.stored(u"Brightness/Increase"_s).toString(), keys);
    QCOMPARE(bed.typed(), typed);
    QCOMPARE(bed.flag("modifyShortcuts"), capturing);
    QCOMPARE(bed.isCaptured(Action::Brightness_Increase), capturing);
    QCOMPARE(bed.flag("repeatShortcuts"), refused);
    QCOMPARE(bed.events(), capturing || refused
                               ? QStringList()
                               : QStringList{u"LuShortcuts 17 customize_hotkey 0 [brightness_increase]"_s});
    QCOMPARE(bed.wire(), QStringList());
}

void TestShortcutsCapture::theTextFollowsTheKeys()
{
    ShortcutsBed bed;
    bed.begin();
    bed.beginCapture(Action::ExtraCopyPaste_Copy);
    QSignalSpy spy(bed.module("LuShortcuts"), SIGNAL(pressKeyNameChanged()));
    bed.press(u"Alt"_s, QString());
    QCOMPARE(bed.typed(), u"Alt"_s);
    bed.press(u"Alt+Ctrl"_s, QString());
    QCOMPARE(bed.typed(), u"Ctrl+Alt"_s);
    bed.press(u"Alt+Ctrl+Shift"_s, QString());
    QCOMPARE(bed.typed(), u"Ctrl+Alt+Shift"_s);
    bed.press(u"Alt+Ctrl"_s, u"Escape"_s);
    QCOMPARE(bed.typed(), u"Ctrl+Alt+Esc"_s);
    QCOMPARE(spy.count(), 4);
    bed.press(u"Alt+Ctrl"_s, u"J"_s);
    QCOMPARE(spy.count(), 5);
    QCOMPARE(bed.typed(), QString());
    QCOMPARE(bed.combo(Action::ExtraCopyPaste_Copy), u"Ctrl+Alt+J"_s);
    QCOMPARE(bed.stored(u"ExtraCopyPaste/Copy"_s).toString(), u"Ctrl+Alt+J"_s);
    QVERIFY(bed.idle());
}

void TestShortcutsCapture::whatIsUsedOrReservedIsRefused_data()
{
    QTest::addColumn<QString>("modifiers");
    QTest::addColumn<QString>("key");
    // Those of three keys cannot be typed at once.
    const char* const combinations[] = {
        "Ctrl+X",          "Ctrl+C",           "Ctrl+V",
        "Ctrl+Z",          "Alt+F4",           "Alt+A",
        "Alt+F8",          "Alt+Space",        "Alt+Right",
        "Alt+Left",        "Ctrl+F4",          "Ctrl+A",
        "Ctrl+D",          "Ctrl+E",           "Ctrl+R",
        "Ctrl+F5",         "Ctrl+Y",           "Ctrl+Right",
        "Ctrl+Left",       "Ctrl+Up",          "Ctrl+Down",
        "Alt+Shift+Right", "Alt+Shift+Left",   "Alt+Shift+Up",
        "Alt+Shift+Down",  "Ctrl+Shift+Right", "Ctrl+Shift+Left",
        "Ctrl+Shift+Up",   "Ctrl+Shift+Down",  "Ctrl+Space",
        "Shift+F10",       "Shift+Right",      "Shift+Left",
        "Shift+Up",        "Shift+Down",
    };
    for (const char* text : combinations) {
        const QString all = QString::fromLatin1(text);
        QTest::newRow(text) << all.section(u'+', 0, -2) << all.section(u'+', -1);
    }
    QTest::newRow("another action's") << u"Ctrl+Alt"_s << u"K"_s;
    QTest::newRow("a colour mode's") << u"Ctrl+Alt"_s << u"5"_s;
    QTest::newRow("paste's") << u"Ctrl+Shift"_s << u"V"_s;
}

void TestShortcutsCapture::whatIsUsedOrReservedIsRefused()
{
    QFETCH(QString, modifiers);
    QFETCH(QString, key);
    ShortcutsBed bed;
    bed.begin();
    QVERIFY(bed.action(Action::ColorMode_SwitchtoCinema));
    bed.beginCapture(Action::ExtraCopyPaste_Copy);
    ZrClock::instance().set(QDateTime(QDate(2024, 3, 4), QTime(8, 0)));
    ZrClock::instance().advance(50);
    QSignalSpy warned(bed.module("LuShortcuts"), SIGNAL(repeatShortcutsChanged()));
    bed.press(modifiers, key);
    QVERIFY(bed.flag("repeatShortcuts"));
    QCOMPARE(warned.count(), 1);
    QVERIFY(!bed.flag("modifyShortcuts"));
    QCOMPARE(bed.typed(), u"Ctrl+Shift+C"_s);
    QCOMPARE(bed.keysOf(Action::ExtraCopyPaste_Copy), u"Ctrl+Shift+C"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.events(), QStringList());
}

void TestShortcutsCapture::theNextRowClearsTheWarning()
{
    ShortcutsBed bed;
    bed.begin();
    bed.beginCapture(Action::Brightness_Increase);
    bed.press(u"Ctrl"_s, u"C"_s);
    QVERIFY(bed.flag("repeatShortcuts"));
    bed.beginCapture(Action::Brightness_Decrease);
    QVERIFY(!bed.flag("repeatShortcuts"));
    QVERIFY(bed.flag("modifyShortcuts"));
    // As the warning's button does.
    bed.set("LuShortcuts", "repeatShortcuts", true);
    bed.set("LuShortcuts", "repeatShortcuts", false);
    QVERIFY(!bed.flag("repeatShortcuts"));
    QVERIFY(bed.idle());
}

void TestShortcutsCapture::anotherRowTakesTheCaptureOver()
{
    ShortcutsBed bed;
    bed.begin();
    bed.beginCapture(Action::Brightness_Increase);
    bed.press(u"Ctrl+Alt"_s, QString());
    bed.beginCapture(Action::Brightness_Decrease);
    QCOMPARE(bed.typed(), QString());
    QVERIFY(!bed.isCaptured(Action::Brightness_Increase));
    bed.press(u"Ctrl+Alt"_s, u"F11"_s);
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), u"Ctrl+Shift+F5"_s);
    QCOMPARE(bed.keysOf(Action::Brightness_Decrease), u"Ctrl+Alt+F11"_s);
    QVERIFY(bed.idle());
}

void TestShortcutsCapture::leavingKeepsThePlaceForTheNextClick()
{
    ShortcutsBed bed;
    bed.begin();
    bed.beginCapture(Action::Brightness_Increase);
    bed.set("LuShortcuts", "modifyShortcuts", false);
    QVERIFY(bed.isCaptured(Action::Brightness_Increase));
    bed.press(u"Ctrl+Alt"_s, u"F11"_s);
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), u"Ctrl+Shift+F5"_s);
    // The same row can be clicked again.
    bed.beginCapture(Action::Brightness_Increase);
    QVERIFY(bed.flag("modifyShortcuts"));
    bed.press(u"Ctrl+Alt"_s, u"F11"_s);
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), u"Ctrl+Alt+F11"_s);
    QVERIFY(bed.idle());
}

void TestShortcutsCapture::theKeysRestMeanwhile()
{
    ShortcutsBed bed;
    bed.begin();
    ZrClock::instance().set(QDateTime(QDate(2024, 3, 4), QTime(8, 0)));
    const LuShortcutAction* other = bed.action(Action::Brightness_Decrease);
    bed.beginCapture(Action::Brightness_Increase);
    ZrClock::instance().advance(49);
    QVERIFY(other->isActive());
    ZrClock::instance().advance(1);
    QVERIFY(!other->isActive());
    bed.press(u"Ctrl+Alt"_s, u"F11"_s);
    ZrClock::instance().advance(49);
    QVERIFY(!other->isActive());
    ZrClock::instance().advance(1);
    QVERIFY(other->isActive());
    QVERIFY(bed.idle());
}

void TestShortcutsCapture::keysThatEndTheCaptureDoNothingElse()
{
    ShortcutsBed bed;
    bed.begin();
    ZrClock::instance().set(QDateTime(QDate(2024, 3, 4), QTime(8, 0)));
    bed.beginCapture(Action::ColorMode_LoopAllColorMode);
    ZrClock::instance().advance(50);
    bed.forget();
    QVERIFY(!bed.press(u"Ctrl+Alt"_s, u"F11"_s));
    // Still held.
    QVERIFY(!bed.press(u"Ctrl+Alt"_s, u"F11"_s, true));
    ZrClock::instance().advance(1000);
    QVERIFY(!bed.press(u"Ctrl+Alt"_s, u"F11"_s, true));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(u"set"_s), QStringList());
    QCOMPARE(bed.events().size(), 1);
}

void TestShortcutsCapture::captureWithoutAnActionEnds()
{
    ShortcutsBed bed;
    bed.begin();
    bed.set("LuShortcuts", "modifyShortcuts", true);
    bed.press(u"Ctrl"_s, QString());
    QCOMPARE(bed.typed(), u"Ctrl"_s);
    bed.press(u"Ctrl+Alt"_s, u"F11"_s);
    QVERIFY(!bed.flag("modifyShortcuts"));
    bed.beginCapture(Action::Brightness_Increase);
    // A title that is not the action's own is none.
    bed.call("registerShortcuts", LuActionInterface::Volume, Action::Brightness_Increase, true);
    QVERIFY(!bed.flag("modifyShortcuts"));
    QVERIFY(bed.idle());
}

void TestShortcutsCapture::onlyTheCurrentMonitorCaptures()
{
    ShortcutsBed bed;
    bed.begin();
    bed.beginCapture(Action::Brightness_Increase);
    LuModelHost::setCurrent(&bed.model(), false);
    bed.press(u"Ctrl"_s, QString());
    bed.press(u"Ctrl+Alt"_s, u"F11"_s);
    QCOMPARE(bed.typed(), QString());
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), u"Ctrl+Shift+F5"_s);
    QVERIFY(bed.idle());
}

void TestShortcutsCapture::aModelThatGoesInTheMeantime()
{
    ZrClock::instance().set(QDateTime(QDate(2024, 3, 4), QTime(8, 0)));
    {
        ShortcutsBed bed;
        bed.begin();
        bed.beginCapture(Action::Brightness_Increase);
        TestBed::instance().services().setKeyHandler({});
    }
    ZrClock::instance().advance(1000);
    QVERIFY(waitForRest());
}

QTEST_MAIN(TestShortcutsCapture)
#include "tst_shortcuts_capture.moc"
