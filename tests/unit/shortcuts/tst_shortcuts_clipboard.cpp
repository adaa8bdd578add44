// SPDX-License-Identifier: Apache-2.0
#include "LuClipboard.h"
#include "ShortcutsBed.h"

#include <ZrCore/ZrClock.h>
#include <lushared/services/ServiceRegistry.h>

#include <QBuffer>
#include <QClipboard>
#include <QDateTime>
#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>
#include <QMimeData>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

QJsonObject text(const QString& words)
{
    return {{u"text"_s, words}};
}

QJsonObject picture(const QColor& color)
{
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(color);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return {{u"image"_s, QString::fromLatin1(buffer.data().toBase64())}};
}

} // namespace

/// The second clipboard in the simulated session, on the movable clock.
class TestShortcutsClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestBed::instance(); }
    void init();
    void cleanup() { ZrClock::instance().release(); }
    void copyKeepsTheSelectionAndTheClipboard_data() { contents(); }
    void copyKeepsTheSelectionAndTheClipboard();
    void pasteGivesTheCopyAndTheClipboard_data() { contents(); }
    void pasteGivesTheCopyAndTheClipboard();
    void pasteBeforeACopyDoesNothing();
    void theSecondPasteWaitsForTheFirst();
    void nothingSelectedKeepsTheOldCopy();
    void theNextChangeIsTakenWhereNothingWasSelected();
    void copyTwiceTakesTheSecond();
    void pasteDuringTheRecoveryBringsTheUsersContentBack();
    void copyDuringAPasteBringsTheUsersContentBack();
    void anEmptyClipboardIsEmptyAgain();
    void anotherMonitorsClipboardTakesNoOwnChange();
    void aCopyThatFoundNothingGivesWayToAnotherMonitors();
    void copyDuringAnotherMonitorsPasteBringsTheUsersContentBack();
    void withoutTheKeysTheUsersNextCopyIsTheirs();
    void goingBringsTheUsersContentBack();
    void theShortcutsUseIt();

private:
    static void contents();
    QJsonObject get(const QString& path) { return session().get(path).toObject(); }
    QJsonArray pasted() { return session().get(u"pasted"_s).toArray(); }
    void put(const QString& path, const QJsonValue& value) { QVERIFY(session().set(path, value)); }
    void pass(qint64 ms) { ZrClock::instance().advance(ms); }
    services::SimulatedServices& session() { return TestBed::instance().services(); }
};

void TestShortcutsClipboard::init()
{
    ZrClock::instance().set(QDateTime(QDate(2024, 3, 4), QTime(8, 0)));
    put(u"selection"_s, QJsonValue());
    put(u"pasted"_s, QJsonArray());
    put(u"clipboard"_s, text(u"the user's"_s));
}

void TestShortcutsClipboard::contents()
{
    QTest::addColumn<QJsonObject>("selection");
    QTest::addColumn<QJsonObject>("users");
    const QJsonObject html{{u"html"_s, u"<b>bold</b>"_s}, {u"text"_s, u"bold"_s}};
    const QJsonObject files{{u"urls"_s, QJsonArray{u"file:///tmp/a b.txt"_s, u"file:///tmp/c.png"_s}}};
    const QJsonObject address{{u"urls"_s, QJsonArray{u"https://example.org/?q=1&r=a%2Bb"_s}}};
    QTest::newRow("text") << text(u"selected"_s) << text(u"the user's"_s);
    QTest::newRow("text of many lines") << text(u"a\nb\tc ü\u2028"_s) << text(u" "_s);
    QTest::newRow("HTML") << html << text(u"the user's"_s);
    QTest::newRow("files") << files << html;
    QTest::newRow("address") << address << files;
    QTest::newRow("picture") << picture(Qt::red) << address;
    QTest::newRow("over a picture") << text(u"selected"_s) << picture(Qt::blue);
}

void TestShortcutsClipboard::copyKeepsTheSelectionAndTheClipboard()
{
    QFETCH(QJsonObject, selection);
    QFETCH(QJsonObject, users);
    put(u"selection"_s, selection);
    put(u"clipboard"_s, users);
    LuClipboard clipboard;
    QSignalSpy taken(&clipboard, &LuClipboard::independentCopyChanged);
    clipboard.independentCopy();
    QCOMPARE(taken.count(), 0);
    // The keys of the shortcut come up first.
    pass(99);
    QCOMPARE(taken.count(), 0);
    QCOMPARE(get(u"clipboard"_s), users);
    pass(1);
    QCOMPARE(taken.count(), 1);
    QCOMPARE(get(u"clipboard"_s), selection);
    pass(99);
    QCOMPARE(get(u"clipboard"_s), selection);
    pass(1);
    QCOMPARE(get(u"clipboard"_s), users);
    pass(10'000);
    QCOMPARE(get(u"clipboard"_s), users);
    QCOMPARE(taken.count(), 1);
}

void TestShortcutsClipboard::pasteGivesTheCopyAndTheClipboard()
{
    QFETCH(QJsonObject, selection);
    QFETCH(QJsonObject, users);
    put(u"selection"_s, selection);
    LuClipboard clipboard;
    clipboard.independentCopy();
    pass(1000);
    put(u"clipboard"_s, users);
    clipboard.independentPaste();
    QCOMPARE(get(u"clipboard"_s), selection);
    pass(99);
    QCOMPARE(pasted(), QJsonArray());
    pass(1);
    QCOMPARE(pasted(), QJsonArray{selection});
    pass(299);
    QCOMPARE(get(u"clipboard"_s), selection);
    pass(1);
    QCOMPARE(get(u"clipboard"_s), users);
    // Again and again.
    clipboard.independentPaste();
    pass(1000);
    QCOMPARE(pasted(), (QJsonArray{selection, selection}));
    QCOMPARE(get(u"clipboard"_s), users);
}

void TestShortcutsClipboard::pasteBeforeACopyDoesNothing()
{
    LuClipboard clipboard;
    QSignalSpy changes(QGuiApplication::clipboard(), &QClipboard::dataChanged);
    clipboard.independentPaste();
    pass(10'000);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(pasted(), QJsonArray());
}

void TestShortcutsClipboard::theSecondPasteWaitsForTheFirst()
{
    put(u"selection"_s, text(u"selected"_s));
    LuClipboard clipboard;
    clipboard.independentCopy();
    pass(1000);
    clipboard.independentPaste();
    pass(50);
    clipboard.independentPaste();
    pass(349);
    clipboard.independentPaste();
    QCOMPARE(pasted().size(), 1);
    pass(1);
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
    clipboard.independentPaste();
    pass(1000);
    QCOMPARE(pasted().size(), 2);
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
}

void TestShortcutsClipboard::nothingSelectedKeepsTheOldCopy()
{
    put(u"selection"_s, text(u"first"_s));
    LuClipboard clipboard;
    clipboard.independentCopy();
    pass(1000);
    put(u"selection"_s, QJsonValue());
    clipboard.independentCopy();
    pass(10'000);
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
    // Its own changes are not what the copy waits for.
    clipboard.independentPaste();
    pass(1000);
    clipboard.independentPaste();
    pass(1000);
    QCOMPARE(pasted(), (QJsonArray{text(u"first"_s), text(u"first"_s)}));
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
}

void TestShortcutsClipboard::theNextChangeIsTakenWhereNothingWasSelected()
{
    LuClipboard clipboard;
    QSignalSpy taken(&clipboard, &LuClipboard::independentCopyChanged);
    clipboard.independentCopy();
    pass(10'000);
    QCOMPARE(taken.count(), 0);
    put(u"clipboard"_s, text(u"later"_s));
    QCOMPARE(taken.count(), 1);
    pass(100);
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
}

void TestShortcutsClipboard::copyTwiceTakesTheSecond()
{
    put(u"selection"_s, text(u"first"_s));
    LuClipboard clipboard;
    clipboard.independentCopy();
    pass(150);
    QCOMPARE(get(u"clipboard"_s), text(u"first"_s));
    put(u"selection"_s, text(u"second"_s));
    clipboard.independentCopy();
    pass(1000);
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
    clipboard.independentPaste();
    pass(1000);
    QCOMPARE(pasted(), QJsonArray{text(u"second"_s)});
    // A quick repetition replaces what waits.
    QSignalSpy taken(&clipboard, &LuClipboard::independentCopyChanged);
    clipboard.independentCopy();
    pass(60);
    clipboard.independentCopy();
    pass(60);
    QCOMPARE(taken.count(), 0);
    pass(1000);
    QCOMPARE(taken.count(), 1);
}

void TestShortcutsClipboard::pasteDuringTheRecoveryBringsTheUsersContentBack()
{
    put(u"selection"_s, text(u"selected"_s));
    LuClipboard clipboard;
    clipboard.independentCopy();
    pass(150);
    QCOMPARE(get(u"clipboard"_s), text(u"selected"_s));
    clipboard.independentPaste();
    pass(1000);
    QCOMPARE(pasted(), QJsonArray{text(u"selected"_s)});
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
}

void TestShortcutsClipboard::copyDuringAPasteBringsTheUsersContentBack()
{
    put(u"selection"_s, text(u"first"_s));
    LuClipboard clipboard;
    clipboard.independentCopy();
    pass(1000);
    put(u"selection"_s, text(u"second"_s));
    clipboard.independentPaste();
    pass(50);
    clipboard.independentCopy();
    pass(1000);
    QCOMPARE(pasted(), QJsonArray{text(u"first"_s)});
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
    clipboard.independentPaste();
    pass(1000);
    QCOMPARE(pasted().last().toObject(), text(u"second"_s));
}

void TestShortcutsClipboard::anEmptyClipboardIsEmptyAgain()
{
    put(u"clipboard"_s, QJsonValue());
    put(u"selection"_s, text(u"selected"_s));
    LuClipboard clipboard;
    clipboard.independentCopy();
    pass(1000);
    QCOMPARE(get(u"clipboard"_s), QJsonObject());
}

void TestShortcutsClipboard::anotherMonitorsClipboardTakesNoOwnChange()
{
    put(u"selection"_s, text(u"selected"_s));
    LuClipboard one;
    one.independentCopy();
    pass(1000);
    LuClipboard two;
    put(u"selection"_s, QJsonValue());
    two.independentCopy(); // nothing is selected: it goes on waiting
    pass(1000);
    one.independentPaste();
    pass(1000);
    two.independentPaste();
    pass(1000);
    QCOMPARE(pasted().size(), 1);
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
}

void TestShortcutsClipboard::aCopyThatFoundNothingGivesWayToAnotherMonitors()
{
    LuClipboard one;
    LuClipboard two;
    put(u"selection"_s, text(u"for the second"_s));
    two.independentCopy();
    pass(1000);
    put(u"selection"_s, QJsonValue());
    two.independentCopy(); // nothing is selected
    pass(1000);
    put(u"selection"_s, text(u"for the first"_s));
    one.independentCopy();
    pass(1000);
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
    one.independentPaste();
    pass(1000);
    two.independentPaste();
    pass(1000);
    QCOMPARE(pasted(), (QJsonArray{text(u"for the first"_s), text(u"for the second"_s)}));
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
}

void TestShortcutsClipboard::copyDuringAnotherMonitorsPasteBringsTheUsersContentBack()
{
    put(u"selection"_s, text(u"first"_s));
    LuClipboard one;
    LuClipboard two;
    one.independentCopy();
    pass(1000);
    put(u"selection"_s, text(u"second"_s));
    one.independentPaste();
    pass(350);
    two.independentCopy();
    pass(1000);
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
    two.independentPaste();
    pass(1000);
    QCOMPARE(pasted(), (QJsonArray{text(u"first"_s), text(u"second"_s)}));
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
}

void TestShortcutsClipboard::withoutTheKeysTheUsersNextCopyIsTheirs()
{
    const services::ServiceSet all = services::Registry::current();
    services::ServiceSet without = all;
    without.clipboardKeys.reset();
    services::Registry::install(without);
    const auto back = qScopeGuard([&all] { services::Registry::install(all); });
    LuClipboard clipboard;
    clipboard.independentCopy();
    pass(1000);
    put(u"clipboard"_s, text(u"the next"_s));
    pass(1000);
    QCOMPARE(get(u"clipboard"_s), text(u"the next"_s));
}

void TestShortcutsClipboard::goingBringsTheUsersContentBack()
{
    put(u"selection"_s, text(u"selected"_s));
    {
        LuClipboard clipboard;
        clipboard.independentCopy();
        pass(1000);
        clipboard.independentPaste();
        pass(50);
        QCOMPARE(get(u"clipboard"_s), text(u"selected"_s));
    }
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
    pass(10'000);
    QCOMPARE(pasted(), QJsonArray());
    QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
}

void TestShortcutsClipboard::theShortcutsUseIt()
{
    ShortcutsBed::forgetStoredKeys();
    put(u"selection"_s, text(u"selected"_s));
    {
        ShortcutsBed bed;
        bed.begin();
        QVERIFY(bed.press(u"Ctrl+Shift"_s, u"C"_s));
        pass(1000);
        QVERIFY(bed.press(u"Ctrl+Shift"_s, u"V"_s));
        pass(50);
        // Held, it is one paste.
        QVERIFY(!bed.press(u"Ctrl+Shift"_s, u"V"_s, true));
        pass(1000);
        QCOMPARE(pasted(), QJsonArray{text(u"selected"_s)});
        QCOMPARE(get(u"clipboard"_s), text(u"the user's"_s));
        QCOMPARE(bed.events(), (QStringList{u"LuShortcuts 17 use_hotkey 0 [extra_copy]"_s,
                                            u"LuShortcuts 17 use_hotkey 0 [extra_paste]"_s}));
        QCOMPARE(bed.wire(), QStringList());
        session().setKeyHandler({});
    }
    ShortcutsBed::forgetStoredKeys();
}

QTEST_MAIN(TestShortcutsClipboard)
#include "tst_shortcuts_clipboard.moc"
