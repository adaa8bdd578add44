// SPDX-License-Identifier: Apache-2.0
#include "AccessibleTree.h"
#include "ShortcutsDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString Widget = u"LuShortcutsWidget"_s;

/// Names of all texts and buttons below an object, in their order.
QStringList wordsIn(const QJsonValue& tree)
{
    QStringList words;
    if (tree.isArray()) {
        for (const QJsonValue& each : tree.toArray())
            words += wordsIn(each);
        return words;
    }
    const QJsonObject object = tree.toObject();
    const QString name = object.value(u"name"_s).toString();
    if (!name.isEmpty())
        words.append(name);
    return words + wordsIn(object.value(u"children"_s));
}

} // namespace

/// The page of the shortcuts, pressed and read through the accessible tree.
class TestShortcutsDeskPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void topicsAndRowsStandInTheirOrder();
    void rowsAreOffWithTheSwitch();
    void theSwitchSwitches();
    void aRowTakesAnotherCombination();
    void aRefusedCombinationOpensTheWarning();
    void duplicatedKeysAreMarked();
    void resetAsksFirst();
    void leavingThePageEndsTheChoice();
    void switchingOffEndsTheChoice();
    void escapeGivesUp();
    void aStepShowsTheBrightnessOnTheMonitor();

private:
    QJsonObject find(const QString& role, const QString& name, bool onPage = true)
    {
        const QJsonObject page = onPage ? QJsonObject{{u"widget"_s, Widget}} : QJsonObject();
        return findInTree(m_desk->call(u"ui.tree"_s, page).result, role, name);
    }
    bool press(const QString& name)
    {
        return m_desk->call(u"ui.press"_s, {{u"name"_s, name}, {u"role"_s, u"button"_s}}).ok() &&
               m_desk->idle();
    }
    bool open() { return m_desk->call(u"ui.open"_s, {{u"widget"_s, Widget}}).ok(); }
    void beginOn(const QString& monitor);

    std::unique_ptr<ShortcutsDesk> m_desk;
};

void TestShortcutsDeskPage::init()
{
    m_desk = std::make_unique<ShortcutsDesk>();
}

void TestShortcutsDeskPage::cleanup()
{
    if (m_desk && m_desk->isRunning()) {
        QCOMPARE(m_desk->call(u"ui.warnings"_s).result.toArray(), QJsonArray());
        QCOMPARE(m_desk->stop(), 0);
    }
    m_desk.reset();
}

void TestShortcutsDeskPage::beginOn(const QString& monitor)
{
    QVERIFY2(m_desk->startWith(monitor, true), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->set(u"shortcuts.active"_s, true));
    QVERIFY(open());
}

void TestShortcutsDeskPage::topicsAndRowsStandInTheirOrder()
{
    beginOn(u"TK30Z"_s);
    const QStringList words = wordsIn(m_desk->call(u"ui.tree"_s, {{u"widget"_s, Widget}}).result);
    const QStringList wanted{u"Input"_s,
                             u"Switch to USB-C"_s,
                             u"Switch to DisplayPort"_s,
                             u"Switch to HDMI"_s,
                             u"Color mode"_s,
                             u"Loop all color mode"_s,
                             u"Switch to Cinema"_s,
                             u"Brightness"_s,
                             u"Decrease"_s,
                             u"Increase"_s,
                             u"Night Hours Protection"_s,
                             u"KVM"_s,
                             u"Loop all KVM switch"_s,
                             u"Extra Copy/Paste"_s,
                             u"Copy"_s,
                             u"Paste"_s,
                             u"Reset All Shortcuts"_s};
    qsizetype place = -1;
    for (const QString& word : wanted) {
        const qsizetype next = words.indexOf(word, place + 1);
        QVERIFY2(next > place, qPrintable(word + u" in "_s + words.join(u'|')));
        place = next;
    }
    QVERIFY(!words.contains(u"Switch to HDMI3"_s));
    QVERIFY(!words.contains(u"Switch to HDR"_s));
    QVERIFY(
        words.contains(u"This function supports image, text, file, and URL formats. Copying other types of "
                       "content may impact the content of the clipboard."_s));
}

void TestShortcutsDeskPage::rowsAreOffWithTheSwitch()
{
    beginOn(u"TK30Z"_s);
    QTRY_VERIFY(find(u"button"_s, u"Copy"_s).value(u"enabled"_s).toBool());
    QVERIFY(m_desk->set(u"shortcuts.active"_s, false));
    QTRY_VERIFY(!find(u"button"_s, u"Copy"_s).value(u"enabled"_s).toBool());
}

void TestShortcutsDeskPage::theSwitchSwitches()
{
    QVERIFY2(m_desk->startWith(u"TK30Z"_s, true), qPrintable(m_desk->errors()));
    QVERIFY(open());
    QVERIFY(m_desk
                ->call(u"ui.setValue"_s,
                       {{u"name"_s, u"Shortcuts"_s}, {u"role"_s, u"switch"_s}, {u"value"_s, true}})
                .ok());
    QTRY_COMPARE(m_desk->get(u"shortcuts.active"_s), QJsonValue(true));
}

void TestShortcutsDeskPage::aRowTakesAnotherCombination()
{
    beginOn(u"TK30Z"_s);
    QVERIFY(press(u"Copy"_s));
    QCOMPARE(m_desk->get(u"shortcuts.modifyShortcuts"_s), QJsonValue(true));
    QTRY_VERIFY(find(u"button"_s, u"Copy"_s).value(u"checked"_s).toBool());
    m_desk->press(u"Ctrl+Alt"_s, QString());
    QTRY_COMPARE(find(u"button"_s, u"Copy"_s).value(u"description"_s).toString(), u"Ctrl+Alt"_s);
    m_desk->press(u"Ctrl+Alt"_s, u"Up"_s);
    QTRY_VERIFY(!find(u"button"_s, u"Copy"_s).value(u"checked"_s).toBool());
    QCOMPARE(m_desk->keysOf(24), u"Ctrl+Alt+Up"_s);
    // Another one takes over while the first is still waiting.
    QVERIFY(press(u"Copy"_s));
    QVERIFY(press(u"Paste"_s));
    QTRY_VERIFY(find(u"button"_s, u"Paste"_s).value(u"checked"_s).toBool());
    QTRY_VERIFY(!find(u"button"_s, u"Copy"_s).value(u"checked"_s).toBool());
}

void TestShortcutsDeskPage::aRefusedCombinationOpensTheWarning()
{
    beginOn(u"TK30Z"_s);
    QVERIFY(press(u"Copy"_s));
    m_desk->press(u"Ctrl"_s, u"C"_s);
    QTRY_VERIFY(!find(u"window"_s, u"The key combination can not be used."_s, false).isEmpty());
    QVERIFY(
        wordsIn(find(u"window"_s, u"The key combination can not be used."_s, false))
            .contains(u"This shortcut cannot be used as it is currently being used by another function."_s));
    QCOMPARE(m_desk->get(u"shortcuts.repeatShortcuts"_s), QJsonValue(true));
    QVERIFY(press(u"OK"_s));
    QTRY_VERIFY(find(u"window"_s, u"The key combination can not be used."_s, false).isEmpty());
    QTRY_COMPARE(m_desk->get(u"shortcuts.repeatShortcuts"_s), QJsonValue(false));
    QCOMPARE(m_desk->keysOf(24), u"Ctrl+Shift+C"_s);
}

void TestShortcutsDeskPage::duplicatedKeysAreMarked()
{
    QVERIFY2(m_desk->startWith(u"TK30Z"_s, true), qPrintable(m_desk->errors()));
    QVERIFY(
        m_desk
            ->call(u"settings.set"_s, {{u"key"_s, u"ExtraCopyPaste/Copy"_s}, {u"value"_s, u"Ctrl+Shift+V"_s}})
            .ok());
    QCOMPARE(m_desk->stop(), 0);
    beginOn(u"TK30Z"_s);
    const auto description = [this](const QString& name) {
        return find(u"button"_s, name).value(u"description"_s).toString();
    };
    QTRY_COMPARE(description(u"Copy"_s), u"Ctrl+Shift+V+ ! "_s);
    QTRY_COMPARE(description(u"Paste"_s), u"Ctrl+Shift+V+ ! "_s);
    QTRY_COMPARE(description(u"Loop all color mode"_s), u"Ctrl+Alt+C"_s);
}

void TestShortcutsDeskPage::resetAsksFirst()
{
    beginOn(u"TK30Z"_s);
    QVERIFY(press(u"Copy"_s));
    m_desk->press(u"Alt"_s, u"F9"_s);
    QCOMPARE(m_desk->keysOf(24), u"Alt+F9"_s);
    QVERIFY(press(u"Reset All Shortcuts"_s));
    QTRY_VERIFY(!find(u"window"_s, u"Reset All Shortcuts"_s, false).isEmpty());
    QVERIFY(press(u"Cancel"_s));
    QCOMPARE(m_desk->keysOf(24), u"Alt+F9"_s);
    QTRY_VERIFY(find(u"window"_s, u"Reset All Shortcuts"_s, false).isEmpty());
    QVERIFY(press(u"Copy"_s));
    QVERIFY(press(u"Reset All Shortcuts"_s));
    QTRY_VERIFY(!find(u"window"_s, u"Reset All Shortcuts"_s, false).isEmpty());
    QVERIFY(press(u"Reset"_s));
    QTRY_COMPARE(m_desk->keysOf(24), u"Ctrl+Shift+C"_s);
    QTRY_COMPARE(m_desk->get(u"shortcuts.modifyShortcuts"_s), QJsonValue(false));
}

void TestShortcutsDeskPage::leavingThePageEndsTheChoice()
{
    beginOn(u"TK30Z"_s);
    QVERIFY(press(u"Copy"_s));
    QCOMPARE(m_desk->get(u"shortcuts.modifyShortcuts"_s), QJsonValue(true));
    QVERIFY(m_desk->call(u"ui.close"_s, {{u"widget"_s, Widget}}).ok());
    QTRY_COMPARE(m_desk->get(u"shortcuts.modifyShortcuts"_s), QJsonValue(false));
    // The same row can be pressed again.
    QVERIFY(open());
    QVERIFY(press(u"Copy"_s));
    QTRY_VERIFY(find(u"button"_s, u"Copy"_s).value(u"checked"_s).toBool());
}

void TestShortcutsDeskPage::switchingOffEndsTheChoice()
{
    beginOn(u"TK30Z"_s);
    QVERIFY(press(u"Copy"_s));
    QVERIFY(m_desk
                ->call(u"ui.setValue"_s,
                       {{u"name"_s, u"Shortcuts"_s}, {u"role"_s, u"switch"_s}, {u"value"_s, false}})
                .ok());
    QTRY_COMPARE(m_desk->get(u"shortcuts.active"_s), QJsonValue(false));
    QTRY_COMPARE(m_desk->get(u"shortcuts.modifyShortcuts"_s), QJsonValue(false));
}

void TestShortcutsDeskPage::escapeGivesUp()
{
    beginOn(u"TK30Z"_s);
    QVERIFY(press(u"Copy"_s));
    const auto key = [this](const QString& what) {
        return m_desk->call(u"ui.key"_s, {{u"name"_s, u"Copy"_s}, {u"key"_s, what}}).ok();
    };
    // No key means anything else meanwhile.
    for (const QString& other : {u"Space"_s, u"Return"_s, u"Tab"_s})
        QVERIFY(key(other));
    QCOMPARE(m_desk->get(u"shortcuts.modifyShortcuts"_s), QJsonValue(true));
    QCOMPARE(m_desk->keysOf(24), u"Ctrl+Shift+C"_s);
    QVERIFY(key(u"Escape"_s));
    QTRY_COMPARE(m_desk->get(u"shortcuts.modifyShortcuts"_s), QJsonValue(false));
    QVERIFY(!find(u"button"_s, u"Copy"_s).isEmpty()); // the page is still there
}

void TestShortcutsDeskPage::aStepShowsTheBrightnessOnTheMonitor()
{
    QVERIFY2(m_desk->startWith(u"TK30Z"_s, true), qPrintable(m_desk->errors()));
    QVERIFY(m_desk->set(u"shortcuts.active"_s, true));
    const auto shown = [this] {
        for (const QJsonValue& each : m_desk->call(u"ui.windows"_s).result.toArray()) {
            const QJsonObject window = each.toObject();
            const QJsonObject rect = window.value(u"rect"_s).toObject();
            if (window.value(u"visible"_s).toBool() && rect.value(u"width"_s).toInt() == 172 &&
                rect.value(u"height"_s).toInt() == 177)
                return true;
        }
        return false;
    };
    QVERIFY(m_desk->press(u"Ctrl+Alt"_s, u"K"_s));
    QVERIFY(!shown());
    QVERIFY(m_desk->press(u"Ctrl+Shift"_s, u"F5"_s));
    QTRY_VERIFY(shown());
    // It goes by itself.
    QTRY_VERIFY_WITH_TIMEOUT(!shown(), 20'000);
    QVERIFY(m_desk->call(u"ui.hide"_s).ok());
    QVERIFY(m_desk->press(u"Ctrl+Shift"_s, u"F4"_s));
    QTRY_VERIFY(shown());
}

QTEST_GUILESS_MAIN(TestShortcutsDeskPage)
#include "tst_shortcuts_desk_page.moc"
