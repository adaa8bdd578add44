// SPDX-License-Identifier: Apache-2.0
#include "Client.h"
#include "Content.h"
#include "DeskProcess.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace {

/// Key codes of the server's keyboard, those of evdev plus 8.
enum Code {
    Ctrl = 37,
    Shift = 50,
    Alt = 64,
    Digit5 = 14,
    KeyC = 54,
    KeyV = 55,
    KeyJ = 44,
    KeyK = 45,
    KeyS = 39,
    F4 = 70,
    F5 = 71
};

} // namespace

/// The whole program on a real X server, with other programs in the foreground.
class TestDesktopShortcuts : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktopShortcuts(XServer& server) : m_server(server) {}

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void pressReachesTheMonitorAndNotTheProgram();
    void heldKeysAreRecognised();
    void keysOfTheProgramLeaveNoTrace();
    void newKeysAreTyped();
    void contentGoesFromProgramToProgram_data();
    void contentGoesFromProgramToProgram();
    void nothingSelectedKeepsBoth();
    void pasteTwiceIsOnePaste();

private:
    ControlClient& client() { return m_desk.client(); }
    bool idle() { return client().call(u"idle"_s).ok(); }
    void chord(const QList<int>& modifiers, int key)
    {
        for (const int each : modifiers)
            m_server.key(each, true);
        m_server.tap(key);
        for (const int each : modifiers)
            m_server.key(each, false);
    }
    /// Values that went to a code of the monitor.
    QList<int> written(int code)
    {
        QList<int> values;
        for (const QJsonValue& row : client().call(u"sim.traffic"_s).result.toArray()) {
            const QJsonObject entry = row.toObject();
            if (entry.value(u"op"_s).toString() == u"set"_s && entry.value(u"code"_s).toInt() == code)
                values.append(entry.value(u"value"_s).toInt());
        }
        return values;
    }
    int used(const QString& word)
    {
        int count = 0;
        for (const QJsonValue& row : client().call(u"events"_s).result.toArray()) {
            const QJsonObject event = row.toObject();
            if (event.value(u"event"_s).toString() == u"use_hotkey"_s &&
                event.value(u"parameters"_s).toArray().at(0).toString() == word)
                ++count;
        }
        return count;
    }
    bool focus(quint32 window)
    {
        return std::system(qPrintable(u"xdotool windowfocus --sync %1"_s.arg(window))) == 0;
    }
    /// Pastes as usual in the program with the focus, until that gives the user's own content.
    template <class Program>
    bool usersContentIsBack(Program& program, const QString& content)
    {
        QElapsedTimer elapsed;
        elapsed.start();
        while (elapsed.elapsed() < PatienceMs) {
            const qsizetype before = program.lines(u"pasted "_s).size();
            chord({Ctrl}, KeyV);
            ++m_pastes;
            if (!QTest::qWaitFor([&] { return program.lines(u"pasted "_s).size() > before; }, PatienceMs))
                return false;
            if (program.lines(u"pasted "_s).last() == content)
                return true;
        }
        return false;
    }

    /// The second clipboard's paste gives that content, once. A program that is too slow to fetch it in its
    /// time gets something else; then it is tried again.
    template <class Program>
    bool pastes(Program& program, const QString& content, const QString& users)
    {
        for (int attempt = 0; attempt < 10; ++attempt) {
            const qsizetype before = program.lines(u"pasted "_s).size();
            chord({Ctrl, Shift}, KeyV);
            if (!QTest::qWaitFor([&] { return program.lines(u"pasted "_s).size() > before; }, PatienceMs))
                return false;
            if (program.lines(u"pasted "_s).mid(before) == QStringList{content})
                return true;
            if (!usersContentIsBack(program, users))
                return false;
        }
        return false;
    }

    XServer& m_server;
    DeskProcess m_desk;
    Client m_typist;
    int m_pastes = 0; ///< Ordinary ones.
};

/// A program with a selection.
class EditorProgram
{
public:
    bool start(const QString& name, const QString& content)
    {
        return m_beside.start(QStringLiteral(DESKTOP_EDITOR), {name, content}) &&
               QTest::qWaitFor([this] { return window() != 0; }, 30'000);
    }
    quint32 window() { return lines(u"window "_s).value(0).toUInt(); }
    /// What follows that word on the lines so far.
    QStringList lines(const QString& word)
    {
        m_beside.process().waitForReadyRead(0);
        m_text += QString::fromUtf8(m_beside.process().readAllStandardOutput());
        QStringList found;
        for (const QString& line : m_text.split(u'\n')) {
            if (line.startsWith(word))
                found.append(line.mid(word.size()));
        }
        return found;
    }

private:
    Beside m_beside;
    QString m_text;
};

void TestDesktopShortcuts::initTestCase()
{
    QCOMPARE(std::system("setxkbmap -rules evdev -model pc105 -layout us"), 0);
    QVERIFY2(m_desk.start({u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"fast"_s}),
             qPrintable(m_desk.errors()));
    QVERIFY(idle());
    QVERIFY(client().set(u"shortcuts.active"_s, true).ok());
    QVERIFY(m_typist.start(u"typist"_s, QRect(400, 100, 300, 200)));
    // The keys are heard on a thread that has begun when the first one comes.
    QVERIFY(focus(m_typist.window()));
    QTRY_VERIFY_WITH_TIMEOUT(
        (chord({Ctrl, Alt}, KeyK), QTest::qWaitFor([this] { return used({}) > 0; }, 500)), 30'000);
}

void TestDesktopShortcuts::init()
{
    QVERIFY(focus(m_typist.window()));
    m_typist.forget();
    QVERIFY(idle());
}

void TestDesktopShortcuts::cleanupTestCase()
{
    if (m_desk.isRunning())
        QCOMPARE(m_desk.stop(), 0);
}

void TestDesktopShortcuts::pressReachesTheMonitorAndNotTheProgram()
{
    QVERIFY(client().set(u"brightness.displayBrightness"_s, 72).ok());
    QVERIFY(idle());
    const qsizetype before = written(0x10).size();
    chord({Ctrl, Shift}, F5);
    QTRY_COMPARE(client().get(u"brightness.displayBrightness"_s), QJsonValue(75));
    QVERIFY(idle());
    QCOMPARE(written(0x10).size(), before + 1);
    chord({Ctrl, Alt}, Digit5);
    QTRY_COMPARE(client().get(u"colorMode"_s), QJsonValue(u"Cinema"_s));
    m_server.tap(KeyS);
    QTRY_COMPARE(m_typist.keys().filter(u"press %1 "_s.arg(KeyS)).size(), 1);
    QCOMPARE(m_typist.keys().filter(u"press %1 "_s.arg(F5)), QStringList());
    QCOMPARE(m_typist.keys().filter(u"press %1 "_s.arg(Digit5)), QStringList());
}

void TestDesktopShortcuts::heldKeysAreRecognised()
{
    const int before = used({});
    const qsizetype writes = written(0xE4).size();
    QCOMPARE(std::system("xset r on r rate 200 25"), 0);
    m_server.key(Ctrl, true);
    m_server.key(Alt, true);
    m_server.key(KeyK, true);
    QTRY_VERIFY(used({}) >= before + 4);
    m_server.key(KeyK, false);
    m_server.key(Alt, false);
    m_server.key(Ctrl, false);
    QCOMPARE(std::system("xset r off"), 0);
    QVERIFY(idle());
    QCOMPARE(written(0xE4).size(), writes + 1);
}

void TestDesktopShortcuts::keysOfTheProgramLeaveNoTrace()
{
    QVERIFY(client().set(u"brightness.displayBrightness"_s, 50).ok());
    QVERIFY(idle());
    // Reading back goes on meanwhile; what a key could leave is a line, an event or a setting.
    const auto all = [this] {
        return QJsonArray{client().call(u"events"_s).result, client().call(u"settings"_s).result,
                          client().get(u"shortcuts.pressKeyName"_s)};
    };
    const QJsonArray before = all();
    const QString errors = m_desk.errors();
    const QList<int> secret{39, 26, 54, 27, 26, 28, Digit5, F5};
    for (const int key : secret)
        m_server.tap(key);
    chord({Ctrl}, KeyJ);
    QTRY_COMPARE(m_typist.keys().filter(u"release %1 "_s.arg(KeyJ)).size(), 1);
    // The last key has been heard once the next combination has worked.
    chord({Ctrl, Shift}, F4);
    QTRY_COMPARE(client().get(u"brightness.displayBrightness"_s), QJsonValue(45));
    QVERIFY(client().set(u"brightness.displayBrightness"_s, 50).ok());
    QVERIFY(idle());
    QJsonArray after = all();
    // That one alone is told.
    QJsonArray events = after[0].toArray();
    QVERIFY(!events.isEmpty());
    while (events.size() > before[0].toArray().size())
        events.removeLast();
    after[0] = events;
    QCOMPARE(after, before);
    const QString log = m_desk.errors().mid(errors.size());
    QVERIFY2(!log.contains(u"key"_s, Qt::CaseInsensitive), qPrintable(log));
    QCOMPARE(m_typist.keys().filter(u"press"_s).size(), secret.size() + 2 + 2);
}

void TestDesktopShortcuts::newKeysAreTyped()
{
    const auto begin = [this] {
        return client()
            .call(u"call"_s,
                  {{u"path"_s, u"shortcuts.registerShortcuts"_s}, {u"args"_s, QJsonArray{13, 40, true}}})
            .ok();
    };
    QVERIFY(begin());
    m_server.key(Ctrl, true);
    m_server.key(Alt, true);
    QTRY_COMPARE(client().get(u"shortcuts.pressKeyName"_s), QJsonValue(u"Ctrl+Alt"_s));
    m_server.tap(KeyJ);
    m_server.key(Alt, false);
    m_server.key(Ctrl, false);
    QTRY_COMPARE(client().get(u"shortcuts.modifyShortcuts"_s), QJsonValue(false));
    const int before = used({});
    QTRY_VERIFY((chord({Ctrl, Alt}, KeyJ), QTest::qWaitFor([&] { return used({}) > before; }, 500)));
    // It is this program's from now on, and the old one is nobody's. It works a little before others lose it.
    const auto reachesTheTypist = [this] {
        m_typist.forget();
        chord({Ctrl, Alt}, KeyJ);
        m_server.tap(KeyS);
        const QString last = u"release %1 "_s.arg(KeyS);
        (void)QTest::qWaitFor([&] { return !m_typist.keys().filter(last).isEmpty(); }, PatienceMs);
        return !m_typist.keys().filter(u"press %1 "_s.arg(KeyJ)).isEmpty();
    };
    QElapsedTimer elapsed;
    elapsed.start();
    while (reachesTheTypist())
        QVERIFY(elapsed.elapsed() < PatienceMs);
    m_typist.forget();
    chord({Ctrl, Alt}, KeyJ);
    chord({Ctrl, Alt}, KeyK);
    QTRY_COMPARE(m_typist.keys().filter(u"press %1 "_s.arg(KeyK)).size(), 1);
    QCOMPARE(m_typist.keys().filter(u"press %1 "_s.arg(KeyJ)), QStringList());
    QVERIFY(client().call(u"call"_s, {{u"path"_s, u"shortcuts.resetToDefaultSetting"_s}}).ok());
}

void TestDesktopShortcuts::contentGoesFromProgramToProgram_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("users");
    QTest::newRow("text") << u"some words"_s << u"mine"_s;
    QTest::newRow("HTML") << u"html"_s << u"image"_s;
    QTest::newRow("files") << u"files"_s << u"html"_s;
    QTest::newRow("address") << u"url"_s << u"files"_s;
    QTest::newRow("picture") << u"image"_s << u"url"_s;
}

void TestDesktopShortcuts::contentGoesFromProgramToProgram()
{
    QFETCH(QString, kind);
    QFETCH(QString, users);
    const std::unique_ptr<QMimeData> expected(contentOf(kind));
    const std::unique_ptr<QMimeData> own(contentOf(users));
    QGuiApplication::clipboard()->setMimeData(contentOf(users));
    EditorProgram source;
    EditorProgram target;
    QVERIFY(source.start(u"source"_s, kind));
    QVERIFY(target.start(u"target"_s, u"nothing"_s));

    QVERIFY(focus(source.window()));
    chord({Ctrl, Shift}, KeyC);
    QTRY_COMPARE(source.lines(u"copied"_s).size(), 1);

    QVERIFY(focus(target.window()));
    QVERIFY(usersContentIsBack(target, describe(own.get())));
    QVERIFY(pastes(target, describe(expected.get()), describe(own.get())));
    QVERIFY(usersContentIsBack(target, describe(own.get())));
    QCOMPARE((source.lines(u"key "_s) + target.lines(u"key "_s)).join(u' '), QString());
}

void TestDesktopShortcuts::nothingSelectedKeepsBoth()
{
    EditorProgram program;
    QVERIFY(program.start(u"full"_s, u"first"_s));
    QGuiApplication::clipboard()->setMimeData(contentOf(u"mine"_s));
    QVERIFY(focus(program.window()));
    chord({Ctrl, Shift}, KeyC);
    QTRY_COMPARE(program.lines(u"copied"_s).size(), 1);
    QVERIFY(usersContentIsBack(program, u"text=mine"_s));
    EditorProgram empty;
    QVERIFY(empty.start(u"empty"_s, u"nothing"_s));
    QVERIFY(focus(empty.window()));
    const int copies = used(u"extra_copy"_s);
    chord({Ctrl, Shift}, KeyC);
    QTRY_COMPARE(used(u"extra_copy"_s), copies + 1);
    QVERIFY(pastes(empty, u"text=first"_s, u"text=mine"_s));
    QVERIFY(usersContentIsBack(empty, u"text=mine"_s));
}

void TestDesktopShortcuts::pasteTwiceIsOnePaste()
{
    QGuiApplication::clipboard()->setMimeData(contentOf(u"mine"_s));
    EditorProgram program;
    QVERIFY(program.start(u"both"_s, u"html"_s));
    QVERIFY(focus(program.window()));
    chord({Ctrl, Shift}, KeyC);
    QTRY_COMPARE(program.lines(u"copied"_s).size(), 1);
    QVERIFY(usersContentIsBack(program, u"text=mine"_s));
    for (bool atOnce = false; !atOnce;) {
        const qsizetype before = program.lines(u"pasted "_s).size();
        const int ordinary = m_pastes;
        const int presses = used(u"extra_paste"_s);
        QElapsedTimer elapsed;
        elapsed.start();
        chord({Ctrl, Shift}, KeyV);
        chord({Ctrl, Shift}, KeyV);
        // On a busy computer they may lie further apart than a paste takes.
        atOnce = elapsed.elapsed() < 100;
        QTRY_COMPARE(used(u"extra_paste"_s), presses + 2);
        QTRY_VERIFY(program.lines(u"pasted "_s).size() > before);
        QVERIFY(usersContentIsBack(program, u"text=mine"_s));
        // A second extra paste would have come before it.
        if (atOnce)
            QCOMPARE(program.lines(u"pasted "_s).size(), before + 1 + m_pastes - ordinary);
    }
}

DESKTOP_MAIN(TestDesktopShortcuts)
#include "tst_desktop_shortcuts.moc"
