// SPDX-License-Identifier: Apache-2.0
#include "ShortcutsBed.h"

#include <ZrCore/ZrEnvironment.h>

#include <QFile>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Action = LuShortcutAction;

/// Which keys belong to which action: defaults, stored ones, reset, and the switch.
class TestShortcutsKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ShortcutsBed::forgetStoredKeys(); }
    void cleanup() { ShortcutsBed::forgetStoredKeys(); }
    void theMonitorsActionsGetTheirDefaults();
    void anActionThatTheMonitorLacksChangesNothing();
    void onlyTheCurrentMonitorGetsKeys();
    void storedKeysGoBeforeDefaults();
    void badStoredKeysAreDropped_data();
    void badStoredKeysAreDropped();
    void keysAreSharedAndTheSwitchIsNot();
    void equalKeysAreDuplicated();
    void resetBringsTheDefaultsBack();
    void resetRemovesKeysWithoutADefault();
    void resetOfAnotherMonitorChangesNothing();
    void theSwitchTurnsAllActions();
    void theSwitchIsStoredAndReported();
    void exitReportsOffWhileActive();
    void aNewMonitorReportsWhatIsActive();
    void withoutTheFeatureNothingActs_data();
    void withoutTheFeatureNothingActs();
    void keysAreShownInParts_data();
    void keysAreShownInParts();
    void lookUpsOfUnknownActionsAreEmpty();
};

void TestShortcutsKeys::theMonitorsActionsGetTheirDefaults()
{
    ShortcutsBed bed;
    bed.begin();
    QCOMPARE(bed.keysOf(Action::Input_SwitchtoUSBC), u"Ctrl+Shift+1"_s);
    QCOMPARE(bed.keysOf(Action::Input_SwitchtoDisplayport), u"Ctrl+Shift+2"_s);
    QCOMPARE(bed.keysOf(Action::Input_SwitchtoHDMI), u"Ctrl+Shift+3"_s);
    QCOMPARE(bed.keysOf(Action::ColorMode_LoopAllColorMode), u"Ctrl+Alt+C"_s);
    QCOMPARE(bed.keysOf(Action::Brightness_Decrease), u"Ctrl+Shift+F4"_s);
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), u"Ctrl+Shift+F5"_s);
    QCOMPARE(bed.keysOf(Action::NightProtection_Decrease), u"Ctrl+Alt+Left"_s);
    QCOMPARE(bed.keysOf(Action::NightProtection_Increase), u"Ctrl+Alt+Right"_s);
    QCOMPARE(bed.keysOf(Action::ExtraCopyPaste_Copy), u"Ctrl+Shift+C"_s);
    QCOMPARE(bed.keysOf(Action::ExtraCopyPaste_Paste), u"Ctrl+Shift+V"_s);
    QCOMPARE(bed.keysOf(Action::Kvm_LoopAllKvmSwitch), u"Ctrl+Alt+K"_s);
    for (const LuVCPNode* mode : bed.model().colorModeList()) {
        const auto name = bed.call<Action::ActionName>("stringToColorMode", mode->displayName());
        QCOMPARE(bed.keysOf(name).isEmpty(), name == Action::ColorMode_NotSupported);
    }
    QCOMPARE(bed.stored(u"Input/SwitchtoUSBC"_s).toString(), u"Ctrl+Shift+1"_s);
    QCOMPARE(bed.stored(u"KvmSwitch/Kvm_LoopAllKvmSwitch"_s).toString(), u"Ctrl+Alt+K"_s);
    QCOMPARE(bed.stored(u"ExtraCopyPaste/Paste"_s).toString(), u"Ctrl+Shift+V"_s);
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::anActionThatTheMonitorLacksChangesNothing()
{
    TestBed::instance();
    ShortcutsBed::store(u"Input/SwitchtoHDMI3"_s, u"Ctrl+Alt+F9"_s);
    ShortcutsBed bed;
    bed.begin();
    QCOMPARE(bed.keysOf(Action::Input_SwitchtoHDMI3), u"none"_s);
    QCOMPARE(bed.stored(u"Input/SwitchtoHDMI3"_s).toString(), u"Ctrl+Alt+F9"_s);
    QVERIFY(!bed.storedKeys().contains(u"Input/SwitchtoHDMI1"_s));
    bed.call("resetToDefaultSetting");
    QCOMPARE(bed.stored(u"Input/SwitchtoHDMI3"_s).toString(), u"Ctrl+Alt+F9"_s);
    bed.beginCapture(Action::Input_SwitchtoHDMI3);
    QVERIFY(!bed.flag("modifyShortcuts"));
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::onlyTheCurrentMonitorGetsKeys()
{
    ShortcutsBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), QString());
    QCOMPARE(bed.keysOf(Action::ExtraCopyPaste_Copy), u"none"_s);
    QCOMPARE(bed.storedKeys(), QStringList());
    bed.makeCurrent();
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), u"Ctrl+Shift+F5"_s);
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::storedKeysGoBeforeDefaults()
{
    TestBed::instance();
    ShortcutsBed::store(u"Brightness/Increase"_s, u"shift+ALT+f9"_s);
    ShortcutsBed bed;
    bed.begin();
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), u"Alt+Shift+F9"_s);
    QCOMPARE(bed.combo(Action::Brightness_Increase), u"Alt+Shift+F9"_s);
    // Written in the one form.
    QCOMPARE(bed.stored(u"Brightness/Increase"_s).toString(), u"Alt+Shift+F9"_s);
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::badStoredKeysAreDropped_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("no modifier") << QVariant(u"K"_s);
    QTest::newRow("modifiers alone") << QVariant(u"Ctrl+Alt"_s);
    QTest::newRow("refused key") << QVariant(u"Ctrl+Tab"_s);
    QTest::newRow("no text") << QVariant(QVariantMap{{u"a"_s, 1}});
    QTest::newRow("anything") << QVariant(u"++%$ \n\x00fc"_s);
    QTest::newRow("number") << QVariant(12);
}

void TestShortcutsKeys::badStoredKeysAreDropped()
{
    QFETCH(QVariant, value);
    TestBed::instance();
    ShortcutsBed::store(u"Brightness/Increase"_s, value);
    ShortcutsBed bed;
    bed.begin();
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), QString());
    QCOMPARE(bed.combo(Action::Brightness_Increase), QString());
    QCOMPARE(bed.keysOf(Action::Brightness_Decrease), u"Ctrl+Shift+F4"_s);
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::keysAreSharedAndTheSwitchIsNot()
{
    ShortcutsBed one;
    one.begin();
    ShortcutsBed two;
    two.begin(false);
    LuModelHost::setCurrent(&two.model(), false);
    one.makeCurrent();
    one.beginCapture(Action::Brightness_Increase);
    one.press(u"Ctrl+Alt"_s, u"F11"_s);
    QCOMPARE(one.keysOf(Action::Brightness_Increase), u"Ctrl+Alt+F11"_s);
    LuModelHost::setCurrent(&one.model(), false);
    two.makeCurrent();
    QCOMPARE(two.keysOf(Action::Brightness_Increase), u"Ctrl+Alt+F11"_s);
    QVERIFY(one.flag("active"));
    QVERIFY(!two.flag("active"));
    QVERIFY(one.idle());
}

void TestShortcutsKeys::equalKeysAreDuplicated()
{
    TestBed::instance();
    ShortcutsBed::store(u"Brightness/Increase"_s, u"Ctrl+Alt+K"_s);
    ShortcutsBed bed;
    bed.begin();
    const auto duplicated = [&](Action::ActionName name) {
        return bed.call<bool>("isShortcutDuplicated", Action::titleOf(name), name);
    };
    QVERIFY(duplicated(Action::Brightness_Increase));
    QVERIFY(duplicated(Action::Kvm_LoopAllKvmSwitch));
    QVERIFY(!duplicated(Action::Brightness_Decrease));
    bed.call("resetToDefaultSetting");
    QVERIFY(!duplicated(Action::Kvm_LoopAllKvmSwitch));
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::resetBringsTheDefaultsBack()
{
    TestBed::instance();
    ShortcutsBed::store(u"Brightness/Increase"_s, u"Alt+F9"_s);
    ShortcutsBed::store(u"ExtraCopyPaste/Copy"_s, u"Alt+F8"_s);
    ShortcutsBed bed;
    bed.begin();
    QSignalSpy spy(bed.module("LuShortcuts"), SIGNAL(modifyShortcutsChanged()));
    bed.call("resetToDefaultSetting");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), u"Ctrl+Shift+F5"_s);
    QCOMPARE(bed.keysOf(Action::ExtraCopyPaste_Copy), u"Ctrl+Shift+C"_s);
    QCOMPARE(bed.stored(u"Brightness/Increase"_s).toString(), u"Ctrl+Shift+F5"_s);
    QCOMPARE(bed.stored(u"ExtraCopyPaste/Copy"_s).toString(), u"Ctrl+Shift+C"_s);
    QVERIFY(bed.action(Action::Brightness_Increase)->isActive());
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::resetRemovesKeysWithoutADefault()
{
    TestBed::instance();
    ShortcutsBed::store(u"Volume/LoopAllAudioMode"_s, u"Ctrl+Alt+M"_s);
    ShortcutsBed bed;
    bed.launch();
    // The action as the sound of a monitor registers it.
    bed.module("LuKvmSwitch")->registerShortcutAction(Action::Volume_LoopAllAudioMode, [](const QKeyEvent&) {
        return true;
    });
    bed.makeCurrent();
    QCOMPARE(bed.keysOf(Action::Volume_LoopAllAudioMode), u"Ctrl+Alt+M"_s);
    QVERIFY(bed.call<bool>("hasShortcut", Action::Volume_LoopAllAudioMode));
    bed.call("resetToDefaultSetting");
    QCOMPARE(bed.keysOf(Action::Volume_LoopAllAudioMode), QString());
    QVERIFY(!bed.storedKeys().contains(u"Volume/LoopAllAudioMode"_s));
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::resetOfAnotherMonitorChangesNothing()
{
    TestBed::instance();
    ShortcutsBed::store(u"Brightness/Increase"_s, u"Alt+F9"_s);
    ShortcutsBed bed;
    bed.begin();
    LuModelHost::setCurrent(&bed.model(), false);
    bed.call("resetToDefaultSetting");
    QCOMPARE(bed.keysOf(Action::Brightness_Increase), u"Alt+F9"_s);
    QCOMPARE(bed.stored(u"Brightness/Increase"_s).toString(), u"Alt+F9"_s);
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::theSwitchTurnsAllActions()
{
    ShortcutsBed bed;
    bed.begin(false);
    QVERIFY(bed.model().shortcutActions().size() > 15);
    for (const LuShortcutAction* action : bed.model().shortcutActions())
        QVERIFY(!action->isActive());
    bed.set("LuShortcuts", "active", true);
    for (const LuShortcutAction* action : bed.model().shortcutActions())
        QVERIFY(action->isActive());
    bed.set("LuShortcuts", "active", false);
    for (const LuShortcutAction* action : bed.model().shortcutActions())
        QVERIFY(!action->isActive());
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::theSwitchIsStoredAndReported()
{
    ShortcutsBed bed;
    bed.begin(false);
    QSignalSpy spy(bed.module("LuShortcuts"), SIGNAL(activeChanged()));
    bed.set("LuShortcuts", "active", true);
    bed.set("LuShortcuts", "active", true);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.setting(u"LuShortcuts/active"_s), QVariant(true));
    QCOMPARE(bed.events(), QStringList{u"LuShortcuts 17 on 0 []"_s});
    bed.relaunch();
    QVERIFY(bed.idle());
    QVERIFY(bed.flag("active"));
    bed.forget();
    bed.set("LuShortcuts", "active", false);
    QCOMPARE(bed.events(), QStringList{u"LuShortcuts 17 off 0 []"_s});
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(u"set"_s), QStringList());
}

void TestShortcutsKeys::exitReportsOffWhileActive()
{
    ShortcutsBed bed;
    bed.begin();
    LuModelHost::fireExitEvents(&bed.model());
    QCOMPARE(bed.events().filter(u"LuShortcuts"_s), QStringList{u"LuShortcuts 17 off 2 []"_s});
    bed.set("LuShortcuts", "active", false);
    bed.forget();
    LuModelHost::fireExitEvents(&bed.model());
    QCOMPARE(bed.events().filter(u"LuShortcuts"_s), QStringList());
    QVERIFY(bed.idle());
}

void TestShortcutsKeys::aNewMonitorReportsWhatIsActive()
{
    ShortcutsBed bed;
    bed.storeSetting(u"LuShortcuts/active"_s, true);
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(u"LuShortcuts"_s), QStringList{u"LuShortcuts 17 on 5 []"_s});
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(u"LuShortcuts"_s), QStringList());
}

void TestShortcutsKeys::withoutTheFeatureNothingActs_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("environment");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("on") << u"TK30Z"_s << true << true;
    QTest::newRow("off in the schema") << u"Other"_s << true << false;
    QTest::newRow("off on this computer") << u"TK30Z"_s << false << false;
}

void TestShortcutsKeys::withoutTheFeatureNothingActs()
{
    QFETCH(QString, model);
    QFETCH(bool, environment);
    QFETCH(bool, enabled);
    QTemporaryDir folder;
    if (!environment) {
        QFile file(folder.filePath(u"environment.json"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\"using.shortcuts\": false}");
        file.close();
        QVERIFY(ZrEnvironment::addLayer(file.fileName()));
    }
    ShortcutsBed bed(model);
    bed.begin();
    QCOMPARE(bed.flag("shortcutsEnable"), enabled);
    QCOMPARE(bed.press(u"Ctrl+Shift"_s, u"F5"_s), enabled);
    bed.beginCapture(Action::Brightness_Increase);
    bed.press(u"Ctrl+Alt"_s, u"F11"_s);
    QVERIFY(bed.idle());
    QCOMPARE(bed.keysOf(Action::Brightness_Increase) == u"Ctrl+Alt+F11"_s, enabled);
    QCOMPARE(bed.events().filter(u"LuShortcuts"_s).isEmpty(), !enabled);
    ZrEnvironment::clear();
}

void TestShortcutsKeys::keysAreShownInParts_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("parts");
    QTest::newRow("usual") << u"Ctrl+Shift+1"_s << QStringList{u"Ctrl"_s, u"Shift"_s, u"1"_s};
    QTest::newRow("left") << u"Ctrl+Left"_s << QStringList{u"Ctrl"_s, u"←"_s};
    QTest::newRow("right") << u"Ctrl+Right"_s << QStringList{u"Ctrl"_s, u"→"_s};
    QTest::newRow("up") << u"Ctrl+Up"_s << QStringList{u"Ctrl"_s, u"↑"_s};
    QTest::newRow("down") << u"Ctrl+Down"_s << QStringList{u"Ctrl"_s, u"↓"_s};
    QTest::newRow("duplicated") << u"Alt+K+ ! "_s << QStringList{u"Alt"_s, u"K"_s, u" ! "_s};
    QTest::newRow("empty parts stay") << u"Ctrl++"_s << QStringList{u"Ctrl"_s, QString(), QString()};
    QTest::newRow("nothing") << QString() << QStringList{QString()};
}

void TestShortcutsKeys::keysAreShownInParts()
{
    QFETCH(QString, keys);
    QFETCH(QStringList, parts);
    ShortcutsBed bed;
    bed.begin();
    QCOMPARE(bed.call<QStringList>("displayKeyList", keys), parts);
}

void TestShortcutsKeys::lookUpsOfUnknownActionsAreEmpty()
{
    ShortcutsBed bed;
    bed.begin();
    QCOMPARE(bed.combo(Action::Input_SwitchtoThunderbolt3), QString());
    QVERIFY(!bed.call<bool>("isShortcutDuplicated", LuActionInterface::Input,
                            Action::Input_SwitchtoThunderbolt3));
    QVERIFY(!bed.call<bool>("hasShortcut", Action::Input_SwitchtoThunderbolt3));
    // The name alone decides.
    QCOMPARE(bed.call<QString>("shortcutCombo", LuActionInterface::Volume, Action::Brightness_Increase),
             u"Ctrl+Shift+F5"_s);
    QCOMPARE(bed.call<Action::ActionName>("stringToColorMode", u"Nothing"_s), Action::ColorMode_NotSupported);
}

QTEST_MAIN(TestShortcutsKeys)
#include "tst_shortcuts_keys.moc"
