// SPDX-License-Identifier: Apache-2.0
#include "ShortcutsBed.h"

#include <LuShared/LuPlatformNotifications.h>
#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrDispatch.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuSettings.h>

#include <QDateTime>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;
using Action = LuShortcutAction;

namespace {

constexpr int ColorModeCode = 0xDC;

/// While it lives, the monitor's modes are of high dynamic range as a test wants them.
class ModesOf
{
public:
    template <class IsHdr>
    ModesOf(ShortcutsBed& bed, IsHdr isHdr)
    {
        QFile file(m_folder.filePath(bed.model().modelName() + u".xml"_s));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no file");
        file.write("<VCPTree><VCPList>");
        for (const LuVCPNode* node : bed.model().colorModeList())
            file.write(u"<VCPcode Type=\"%1\" Name=\"%1\" Category=\"Picture Mode\" Code=\"0x%2\" "
                       "SHCode=\"0x00\" isHDR=\"%3\"/>"_s
                           .arg(node->displayName(), QString::number(node->code(), 16),
                                isHdr(node) ? u"on"_s : u"off"_s)
                           .toUtf8());
        file.write("</VCPList></VCPTree>");
        LuHostOptions::instance().schemaDirectory = m_folder.path();
    }
    ~ModesOf() { LuHostOptions::instance().schemaDirectory.clear(); }

private:
    QTemporaryDir m_folder;
};

} // namespace

/// What a press of a combination does.
class TestShortcutsPresses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ShortcutsBed::forgetStoredKeys(); }
    void cleanup()
    {
        ZrClock::instance().release();
        TestBed::instance().services().setKeyHandler({});
        ShortcutsBed::forgetStoredKeys();
    }
    void theOwningModuleDoesTheWork_data();
    void theOwningModuleDoesTheWork();
    void everyPressOfAnOwnedActionIsCounted();
    void colourModesSwitch_data();
    void colourModesSwitch();
    void theLoopGoesRoundWithoutHdr();
    void theLoopWithOnlyHdrBesideDoesNothing();
    void hdrStopsColourModeKeys_data();
    void hdrStopsColourModeKeys();
    void theLoopFromAnUnknownModeChangesNothing();
    void heldColourModeKeysDoNothing();
    void theSwitchDecides();
    void anotherMonitorsKeysDoNothing();
    void otherKeysLeaveNoTrace_data();
    void otherKeysLeaveNoTrace();
    void aPressIsTakenWhicheverPathComesFirst();
};

void TestShortcutsPresses::theOwningModuleDoesTheWork_data()
{
    QTest::addColumn<QString>("modifiers");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("write");
    QTest::addColumn<QString>("word");
    QTest::newRow("input") << u"Ctrl+Shift"_s << u"3"_s << u"set 0x60"_s << u"input_hdmi"_s;
    QTest::newRow("brightness") << u"Ctrl+Shift"_s << u"F4"_s << u"set 0x10"_s << u"brightness_decrease"_s;
    QTest::newRow("night protection") << u"Ctrl+Alt"_s << u"Right"_s << u"set 0xD0"_s << u"nhp_increase"_s;
    QTest::newRow("hub") << u"Ctrl+Alt"_s << u"K"_s << u"set 0xE4"_s << QString();
}

void TestShortcutsPresses::theOwningModuleDoesTheWork()
{
    QFETCH(QString, modifiers);
    QFETCH(QString, key);
    QFETCH(QString, write);
    QFETCH(QString, word);
    ShortcutsBed bed;
    bed.begin();
    bed.set("LuNightProtection", "state", 1);
    bed.set("LuNightProtection", "level", 4);
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(bed.press(modifiers, key));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(write).size(), 1);
    QCOMPARE(bed.events().filter(u"LuShortcuts"_s),
             QStringList{u"LuShortcuts 17 use_hotkey 0 [%1]"_s.arg(word)});
}

void TestShortcutsPresses::everyPressOfAnOwnedActionIsCounted()
{
    ShortcutsBed bed;
    bed.begin();
    QVERIFY(bed.press(u"Ctrl+Alt"_s, u"K"_s));
    QVERIFY(bed.idle());
    bed.press(u"Ctrl+Alt"_s, u"K"_s, true);
    bed.press(u"Ctrl+Alt"_s, u"K"_s, true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(u"use_hotkey"_s).size(), 3);
    QCOMPARE(bed.wire().filter(u"set 0xE4"_s).size(), 1);
}

void TestShortcutsPresses::colourModesSwitch_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("word");
    QTest::newRow("Cinema") << u"5"_s << u"Cinema"_s << u"colorMode_cinema"_s;
    QTest::newRow("User") << u"7"_s << u"User"_s << u"colorMode_user"_s;
    QTest::newRow("Game") << u"9"_s << u"Game"_s << u"colorMode_game"_s;
}

void TestShortcutsPresses::colourModesSwitch()
{
    QFETCH(QString, key);
    QFETCH(QString, mode);
    QFETCH(QString, word);
    ShortcutsBed bed;
    bed.begin();
    LuVCPNode* const wanted = bed.model().getColorModeByName(mode);
    QVERIFY(wanted && !wanted->isHdr());
    QVERIFY(bed.press(u"Ctrl+Alt"_s, key));
    QVERIFY(bed.idle());
    QCOMPARE(bed.model().colorMode(), wanted);
    QCOMPARE(int(bed.monitor().value(ColorModeCode).value()), wanted->code());
    QCOMPARE(bed.events().filter(u"LuShortcuts"_s),
             QStringList{u"LuShortcuts 17 use_hotkey 0 [%1]"_s.arg(word)});
}

void TestShortcutsPresses::theLoopGoesRoundWithoutHdr()
{
    ShortcutsBed bed;
    bed.begin();
    QList<LuVCPNode*> plain = bed.model().colorModeList();
    QVERIFY(std::any_of(plain.begin(), plain.end(), [](const LuVCPNode* node) { return node->isHdr(); }));
    plain.removeIf([](const LuVCPNode* node) { return node->isHdr(); });
    bed.model().setColorMode(plain.first());
    QVERIFY(bed.idle());
    bed.forget();
    for (qsizetype i = 1; i <= plain.size(); ++i) {
        QVERIFY(bed.press(u"Ctrl+Alt"_s, u"C"_s));
        QVERIFY(bed.idle());
        QCOMPARE(bed.model().colorMode(), plain[i % plain.size()]);
    }
    QCOMPARE(bed.events().filter(u"[colorMode_loop]"_s).size(), plain.size());
}

void TestShortcutsPresses::theLoopWithOnlyHdrBesideDoesNothing()
{
    ShortcutsBed bed;
    bed.begin();
    const QString present = bed.model().colorMode()->displayName();
    const ModesOf onlyOne(bed, [&](const LuVCPNode* node) { return node->displayName() != present; });
    bed.destroy();
    bed.begin();
    LuVCPNode* const current = bed.model().colorMode();
    QCOMPARE(current->displayName(), present);
    QVERIFY(!current->isHdr() && bed.model().colorModeList().size() > 3);
    QVERIFY(bed.press(u"Ctrl+Alt"_s, u"C"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.model().colorMode(), current);
    QCOMPARE(bed.wire().filter(u"set"_s), QStringList());
    QCOMPARE(bed.events(), QStringList());
}

void TestShortcutsPresses::hdrStopsColourModeKeys_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("loop") << u"C"_s;
    QTest::newRow("Cinema") << u"5"_s;
}

void TestShortcutsPresses::hdrStopsColourModeKeys()
{
    QFETCH(QString, key);
    ShortcutsBed bed;
    bed.begin();
    const QList<LuVCPNode*> modes = bed.model().colorModeList();
    const auto hdr =
        std::find_if(modes.begin(), modes.end(), [](const LuVCPNode* node) { return node->isHdr(); });
    QVERIFY(hdr != modes.end());
    bed.model().setColorMode(*hdr);
    QVERIFY(bed.idle());
    QCOMPARE(bed.model().colorMode(), *hdr);
    bed.forget();
    bed.press(u"Ctrl+Alt"_s, key);
    QVERIFY(bed.idle());
    QCOMPARE(bed.model().colorMode(), *hdr);
    QCOMPARE(bed.wire().filter(u"set"_s), QStringList());
    QCOMPARE(bed.events(), QStringList());
    // Other keys work in these modes, too.
    QVERIFY(bed.press(u"Ctrl+Alt"_s, u"K"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(u"use_hotkey"_s).size(), 1);
}

void TestShortcutsPresses::theLoopFromAnUnknownModeChangesNothing()
{
    ShortcutsBed bed;
    QVERIFY(bed.monitor().setByMenu(ColorModeCode, 0x77));
    bed.begin();
    QVERIFY(!bed.model().colorMode());
    QVERIFY(bed.press(u"Ctrl+Alt"_s, u"C"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(u"set"_s), QStringList());
    QCOMPARE(bed.events(), QStringList{u"LuShortcuts 17 use_hotkey 0 [colorMode_loop]"_s});
    QVERIFY(bed.press(u"Ctrl+Alt"_s, u"5"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.model().colorMode(), bed.model().getColorModeByName(u"Cinema"_s));
}

void TestShortcutsPresses::heldColourModeKeysDoNothing()
{
    ShortcutsBed bed;
    bed.begin();
    QVERIFY(!bed.press(u"Ctrl+Alt"_s, u"C"_s, true));
    QVERIFY(!bed.press(u"Ctrl+Shift"_s, u"C"_s, true));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(u"set"_s), QStringList());
    QCOMPARE(bed.events(), QStringList());
}

void TestShortcutsPresses::theSwitchDecides()
{
    ShortcutsBed bed;
    bed.begin(false);
    for (const QString& key : {u"C"_s, u"K"_s, u"5"_s})
        QVERIFY(!bed.press(u"Ctrl+Alt"_s, key));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(u"set"_s), QStringList());
    QCOMPARE(bed.events(), QStringList());
}

void TestShortcutsPresses::anotherMonitorsKeysDoNothing()
{
    ShortcutsBed aside;
    aside.begin();
    LuModelHost::setCurrent(&aside.model(), false);
    ShortcutsBed bed;
    bed.begin();
    aside.forget();
    QVERIFY(bed.press(u"Ctrl+Alt"_s, u"5"_s));
    QVERIFY(bed.press(u"Ctrl+Shift"_s, u"F4"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(u"set"_s).isEmpty(), false);
    QCOMPARE(aside.wire().filter(u"set"_s), QStringList());
    QCOMPARE(aside.events(), QStringList());
}

void TestShortcutsPresses::otherKeysLeaveNoTrace_data()
{
    QTest::addColumn<QString>("modifiers");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("repeated");
    QTest::newRow("letter") << QString() << u"S"_s << false;
    QTest::newRow("capital") << u"Shift"_s << u"S"_s << false;
    QTest::newRow("digit") << QString() << u"4"_s << false;
    QTest::newRow("held") << QString() << u"A"_s << true;
    QTest::newRow("modifier") << u"Ctrl"_s << QString() << false;
    QTest::newRow("return") << QString() << u"Return"_s << false;
    QTest::newRow("a program's own") << u"Ctrl"_s << u"C"_s << false;
    QTest::newRow("combination of nobody") << u"Ctrl+Alt"_s << u"Q"_s << false;
    QTest::newRow("refused key") << u"Ctrl+Alt"_s << u"Tab"_s << false;
}

void TestShortcutsPresses::otherKeysLeaveNoTrace()
{
    QFETCH(QString, modifiers);
    QFETCH(QString, key);
    QFETCH(bool, repeated);
    ShortcutsBed bed;
    bed.begin();
    const auto contents = [] {
        QVariantMap all;
        for (const QString& name : LuSettings::instance().allKeys())
            all.insert(name, LuSettings::instance().value(name));
        return all;
    };
    const auto jobs = [&bed] {
        QStringList keys;
        for (const auto& queue : {bed.model().dispatch(), ZrDispatch::main()}) {
            for (const ZrDispatch::Waiting& job : queue->waiting())
                keys.append(job.context + u' ' + job.key);
        }
        return keys;
    };
    // The periodic read-back stands still.
    ZrClock::instance().set(QDateTime(QDate(2024, 3, 4), QTime(8, 0)));
    QVERIFY(bed.idle());
    bed.forget();
    const QVariantMap before = contents();
    const QStringList waiting = jobs();
    QVERIFY(!bed.press(modifiers, key, repeated));
    QCOMPARE(jobs(), waiting);
    QVERIFY(bed.idle());
    QCOMPARE(bed.log(), QStringList());
    QCOMPARE(bed.events(), QStringList());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(contents(), before);
    QCOMPARE(bed.typed(), QString());
}

void TestShortcutsPresses::aPressIsTakenWhicheverPathComesFirst()
{
    ShortcutsBed bed;
    bed.begin();
    LuPlatformNotifications* const session = LuPlatformNotifications::instance();
    const Qt::KeyboardModifiers modifiers = Qt::ControlModifier | Qt::AltModifier;
    Q_EMIT session->activeKeyEvent(Qt::NoModifier, Qt::Key_X, false);
    QVERIFY(LuModelHost::handleKey(&bed.model(), modifiers, Qt::Key_5, false));
    Q_EMIT session->activeKeyEvent(modifiers, Qt::Key_5, false);
    QVERIFY(LuModelHost::handleKey(&bed.model(), modifiers, Qt::Key_5, false));
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(u"colorMode_cinema"_s).size(), 1);
}

QTEST_MAIN(TestShortcutsPresses)
#include "tst_shortcuts_presses.moc"
