// SPDX-License-Identifier: Apache-2.0
#include "ShortcutsDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

enum Action {
    UsbC = 0,
    LoopColorMode = 5,
    Cinema = 10,
    Decrease = 15,
    Increase = 16,
    Copy = 24,
    Hdmi3 = 27,
    Paste = 25,
    LoopKvm = 40
};

} // namespace

/// Shortcuts as a script drives them.
class TestShortcutsDeskKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void actionsTellTheirKeys();
    void pressesReachTheMonitor();
    void aChosenCombinationSurvivesARestart();
    void keysAreSharedAndTheSwitchIsNot();
    void aRefusedCombinationWarns();
    void resetGivesTheDefaultsBack();
    void theSecondClipboardLeavesTheFirst();
    void otherKeysLeaveNoTrace();
};

void TestShortcutsDeskKeys::actionsTellTheirKeys()
{
    ShortcutsDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"shortcuts.shortcutsEnable"_s), QJsonValue(true));
    QCOMPARE(desk.action(UsbC), (QJsonObject{{u"title"_s, 1},
                                             {u"name"_s, 0},
                                             {u"key"_s, u"Ctrl+Shift+1"_s},
                                             {u"active"_s, false},
                                             {u"duplicated"_s, false}}));
    QVERIFY(desk.action(Hdmi3).isEmpty());
    QVERIFY(desk.set(u"shortcuts.active"_s, true));
    for (const int name : {UsbC, LoopColorMode, Cinema, Decrease, Increase, Copy, Paste, LoopKvm})
        QCOMPARE(desk.action(name).value(u"active"_s), QJsonValue(true));
    QVERIFY(
        desk.call(u"settings.set"_s, {{u"key"_s, u"Brightness/Increase"_s}, {u"value"_s, u"Ctrl+Alt+K"_s}})
            .ok());
    QVERIFY(desk.stop() == 0);
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.action(Increase).value(u"duplicated"_s), QJsonValue(true));
    QCOMPARE(desk.action(LoopKvm).value(u"duplicated"_s), QJsonValue(true));
    QCOMPARE(desk.action(UsbC).value(u"duplicated"_s), QJsonValue(false));
}

void TestShortcutsDeskKeys::pressesReachTheMonitor()
{
    ShortcutsDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(!desk.press(u"Ctrl+Shift"_s, u"F4"_s));
    QVERIFY(desk.set(u"shortcuts.active"_s, true));
    QVERIFY(desk.set(u"brightness.displayBrightness"_s, 72));
    QVERIFY(desk.press(u"Ctrl+Shift"_s, u"F5"_s));
    QCOMPARE(desk.get(u"brightness.displayBrightness"_s), QJsonValue(75));
    QVERIFY(desk.press(u"Ctrl+Shift"_s, u"F4"_s, true));
    QCOMPARE(desk.get(u"brightness.displayBrightness"_s), QJsonValue(70));
    QVERIFY(desk.press(u"Ctrl+Alt"_s, u"5"_s));
    QCOMPARE(desk.get(u"colorMode"_s), QJsonValue(u"Cinema"_s));
    QVERIFY(!desk.press(u"Ctrl+Alt"_s, u"7"_s, true));
    QCOMPARE(desk.get(u"colorMode"_s), QJsonValue(u"Cinema"_s));
    QCOMPARE(desk.used(),
             (QStringList{u"use_hotkey brightness_increase"_s, u"use_hotkey brightness_decrease"_s,
                          u"use_hotkey colorMode_cinema"_s}));
}

void TestShortcutsDeskKeys::aChosenCombinationSurvivesARestart()
{
    ShortcutsDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"shortcuts.active"_s, true));
    desk.invoke(u"shortcuts.registerShortcuts"_s, {3, Increase, true});
    desk.invoke(u"shortcuts.clearSetShortcutsName"_s, {});
    QCOMPARE(desk.get(u"shortcuts.modifyShortcuts"_s), QJsonValue(true));
    QCOMPARE(desk.invoke(u"shortcuts.checkModifyShortcuts"_s, {3, Increase}), QJsonValue(true));
    desk.press(u"Ctrl+Alt"_s, QString());
    QCOMPARE(desk.get(u"shortcuts.pressKeyName"_s), QJsonValue(u"Ctrl+Alt"_s));
    desk.press(u"Ctrl+Alt"_s, u"Up"_s);
    QCOMPARE(desk.get(u"shortcuts.modifyShortcuts"_s), QJsonValue(false));
    QCOMPARE(desk.keysOf(Increase), u"Ctrl+Alt+Up"_s);
    QCOMPARE(desk.invoke(u"shortcuts.shortcutCombo"_s, {3, Increase}), QJsonValue(u"Ctrl+Alt+Up"_s));
    QCOMPARE(desk.invoke(u"shortcuts.displayKeyList"_s, {u"Ctrl+Alt+Up"_s}),
             QJsonValue(QJsonArray{u"Ctrl"_s, u"Alt"_s, u"↑"_s}));
    QCOMPARE(desk.used(), QStringList{u"customize_hotkey brightness_increase"_s});
    QCOMPARE(desk.stop(), 0);
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QCOMPARE(desk.get(u"shortcuts.active"_s), QJsonValue(true));
    QCOMPARE(desk.keysOf(Increase), u"Ctrl+Alt+Up"_s);
    QVERIFY(desk.press(u"Ctrl+Alt"_s, u"Up"_s));
    QVERIFY(!desk.press(u"Ctrl+Shift"_s, u"F5"_s));
}

void TestShortcutsDeskKeys::keysAreSharedAndTheSwitchIsNot()
{
    ShortcutsDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z,TK20"_s), qPrintable(desk.errors()));
    QVERIFY(desk.call(u"select"_s, {{u"monitor"_s, u"TK30Z"_s}}).ok());
    QVERIFY(desk.set(u"shortcuts.active"_s, true));
    desk.invoke(u"shortcuts.registerShortcuts"_s, {2, LoopColorMode, true});
    desk.press(u"Alt"_s, u"M"_s);
    QCOMPARE(desk.keysOf(LoopColorMode), u"Alt+M"_s);
    QVERIFY(desk.call(u"select"_s, {{u"monitor"_s, u"TK20"_s}}).ok());
    QVERIFY(desk.idle());
    QCOMPARE(desk.keysOf(LoopColorMode), u"Alt+M"_s);
    QCOMPARE(desk.get(u"shortcuts.active"_s), QJsonValue(false));
    // The monitor that is not the current one does not react.
    QVERIFY(!desk.press(u"Alt"_s, u"M"_s));
    QCOMPARE(desk.used(), QStringList{u"customize_hotkey colorMode_loop"_s});
}

void TestShortcutsDeskKeys::aRefusedCombinationWarns()
{
    ShortcutsDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"shortcuts.active"_s, true));
    for (const QString& key : {u"Ctrl+Z"_s, u"Ctrl+Shift+F5"_s, u"Ctrl+Alt+K"_s}) {
        desk.invoke(u"shortcuts.registerShortcuts"_s, {3, Increase, true});
        QCOMPARE(desk.get(u"shortcuts.repeatShortcuts"_s), QJsonValue(false));
        desk.press(key.section(u'+', 0, -2), key.section(u'+', -1));
        QCOMPARE(desk.get(u"shortcuts.repeatShortcuts"_s), QJsonValue(true));
        QCOMPARE(desk.get(u"shortcuts.modifyShortcuts"_s), QJsonValue(false));
        QCOMPARE(desk.get(u"shortcuts.pressKeyName"_s), QJsonValue(u"Ctrl+Shift+F5"_s));
    }
    QCOMPARE(desk.keysOf(Increase), u"Ctrl+Shift+F5"_s);
}

void TestShortcutsDeskKeys::resetGivesTheDefaultsBack()
{
    ShortcutsDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"shortcuts.active"_s, true));
    desk.invoke(u"shortcuts.registerShortcuts"_s, {7, Copy, true});
    desk.press(u"Alt"_s, u"F9"_s);
    QCOMPARE(desk.applicationSettings().value(u"ExtraCopyPaste/Copy"_s), QJsonValue(u"Alt+F9"_s));
    desk.invoke(u"shortcuts.resetToDefaultSetting"_s, {});
    QCOMPARE(desk.keysOf(Copy), u"Ctrl+Shift+C"_s);
    QCOMPARE(desk.applicationSettings().value(u"ExtraCopyPaste/Copy"_s), QJsonValue(u"Ctrl+Shift+C"_s));
}

void TestShortcutsDeskKeys::theSecondClipboardLeavesTheFirst()
{
    ShortcutsDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"shortcuts.active"_s, true));
    const auto services = [&desk](const QString& path) {
        return desk.client().value(u"services.get"_s, {{u"path"_s, path}});
    };
    const auto put = [&desk](const QString& path, const QJsonValue& value) {
        return desk.call(u"services.set"_s, {{u"path"_s, path}, {u"value"_s, value}}).ok();
    };
    const auto pass = [&desk](int ms) { return desk.call(u"clock.advance"_s, {{u"ms"_s, ms}}).ok(); };
    const QJsonObject users{{u"text"_s, u"the user's"_s}};
    const QJsonObject selected{{u"html"_s, u"<i>a</i>"_s}, {u"text"_s, u"a"_s}};
    QVERIFY(desk.call(u"clock.set"_s, {{u"time"_s, u"2024-03-04T07:30:00"_s}}).ok());
    QVERIFY(put(u"clipboard"_s, users));
    QVERIFY(put(u"selection"_s, selected));
    QVERIFY(desk.press(u"Ctrl+Shift"_s, u"V"_s)); // nothing has been copied
    QVERIFY(pass(1000));
    QCOMPARE(services(u"pasted"_s), QJsonValue(QJsonArray()));
    QVERIFY(desk.press(u"Ctrl+Shift"_s, u"C"_s));
    QVERIFY(pass(100));
    QCOMPARE(services(u"clipboard"_s), QJsonValue(selected));
    QVERIFY(pass(100));
    QCOMPARE(services(u"clipboard"_s), QJsonValue(users));
    QVERIFY(desk.press(u"Ctrl+Shift"_s, u"V"_s));
    QCOMPARE(services(u"clipboard"_s), QJsonValue(selected));
    QVERIFY(pass(100));
    QCOMPARE(services(u"pasted"_s), QJsonValue(QJsonArray{selected}));
    QVERIFY(pass(300));
    QCOMPARE(services(u"clipboard"_s), QJsonValue(users));
}

void TestShortcutsDeskKeys::otherKeysLeaveNoTrace()
{
    ShortcutsDesk desk;
    QVERIFY2(desk.startWith(u"TK30Z"_s), qPrintable(desk.errors()));
    QVERIFY(desk.set(u"shortcuts.active"_s, true));
    QVERIFY(desk.call(u"clock.set"_s, {{u"time"_s, u"2024-03-04T07:30:00"_s}}).ok());
    QVERIFY(desk.idle());
    const auto all = [&desk] {
        return QJsonArray{desk.call(u"log"_s).result, desk.call(u"events"_s).result,
                          desk.call(u"settings"_s).result, desk.call(u"queue"_s).result,
                          desk.call(u"sim.traffic"_s).result};
    };
    const QJsonArray before = all();
    for (const QString& letter : {u"S"_s, u"E"_s, u"C"_s, u"R"_s, u"E"_s, u"T"_s, u"Return"_s, u"F5"_s}) {
        QVERIFY(!desk.press(QString(), letter));
        QVERIFY(!desk.press(u"Shift"_s, letter));
        QVERIFY(!desk.press(u"Ctrl"_s, letter, true));
    }
    QCOMPARE(all(), before);
    QCOMPARE(desk.get(u"shortcuts.pressKeyName"_s), QJsonValue(QString()));
}

QTEST_GUILESS_MAIN(TestShortcutsDeskKeys)
#include "tst_shortcuts_desk_keys.moc"
