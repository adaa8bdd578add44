// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"
#include "FakeInput.h"
#include "PlasmaSession.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

/// The whole program in a Plasma session, with another program in the foreground: real keys pass through KWin
/// and its KGlobalAccel.
class tst_kwin_shortcuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void pressReachesTheMonitorAndNotTheProgram();
    void feedbackLeavesTheFocus_data();
    void feedbackLeavesTheFocus();
    void overlayLeavesTheFocus();
    void otherKeysAreTheProgramsOwn();
    void ownKeysAreFreeWhileKeysAreChosen();
    void newKeysAreTyped();
    void endedProgramLeavesItsKeysToOthers();
    void killedProgramLeavesNothingBehind();

private:
    ControlClient& client() { return m_desk.client(); }
    bool idle() { return client().call(u"idle"_s, {}, Patience).ok(); }
    bool start();
    void chord(const QList<unsigned>& held, unsigned key)
    {
        for (const unsigned each : held)
            m_input.key(each, true);
        m_input.tap(key);
        for (const unsigned each : held)
            m_input.key(each, false);
    }
    /// Gives a process's window the focus.
    bool focus(qint64 pid);
    /// Place, size and kind of the window that shows a step of the brightness; empty without one.
    QString feedback();
    /// What the desktop says of a combination.
    static bool isTaken(QKeyCombination keys)
    {
        QDBusMessage question =
            QDBusMessage::createMethodCall(u"org.kde.kglobalaccel"_s, u"/kglobalaccel"_s,
                                           u"org.kde.KGlobalAccel"_s, u"isGlobalShortcutAvailable"_s);
        question << keys.toCombined() << u"test"_s;
        const QDBusReply<bool> free = QDBusConnection::sessionBus().call(question);
        return free.isValid() && !free.value();
    }
    QJsonValue brightness() { return client().get(u"brightness.displayBrightness"_s); }

    PlasmaSession m_session;
    FakeInput m_input;
    WindowProgram m_typist;
    DeskProcess m_desk;
};

constexpr QKeyCombination Brighter(Qt::CTRL | Qt::SHIFT, Qt::Key_F5);
constexpr QKeyCombination Chosen(Qt::CTRL | Qt::ALT, Qt::Key_J);

bool tst_kwin_shortcuts::start()
{
    return m_desk.start(
               {u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"fast"_s, u"--services"_s, u"native"_s},
               Patience) &&
           idle() && client().set(u"shortcuts.active"_s, true).ok() &&
           QTest::qWaitFor([] { return isTaken(Brighter); }, Patience);
}

void tst_kwin_shortcuts::initTestCase()
{
    QString problem = m_session.startBus();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    problem = m_session.startKWin();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    problem = m_input.open(m_session.socket());
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    qputenv("WAYLAND_DISPLAY", KWinServer::display().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "wayland");
    qputenv("QT_QUICK_BACKEND", "software");
    QVERIFY2(start(), qPrintable(m_desk.errors()));
    QCOMPARE(m_typist.start(), QString());
    QVERIFY(focus(m_typist.pid()));
    // The program listens some time after the desktop has given it the keys. A press that comes late changes
    // nothing again.
    const auto isCinema = [this] { return client().get(u"colorMode"_s) == QJsonValue(u"Cinema"_s); };
    QTRY_VERIFY_WITH_TIMEOUT((chord({KEY_LEFTCTRL, KEY_LEFTALT}, KEY_5), QTest::qWaitFor(isCinema, 2000)),
                             Patience);
}

void tst_kwin_shortcuts::cleanupTestCase()
{
    m_desk.stop();
    m_typist.stop();
    m_session.stop();
}

bool tst_kwin_shortcuts::focus(qint64 pid)
{
    const QString script = uR"(    for (var i = 0; i < windows.length; ++i) {
        if (windows[i].pid != %1)
            continue;
        if (workspace.activeWindow === undefined)
            workspace.activeClient = windows[i];
        else
            workspace.activeWindow = windows[i];
    }
    var active = workspace.activeWindow || workspace.activeClient;
    answer(active ? active.pid : 0);)"_s.arg(pid);
    return QTest::qWaitFor([&] { return m_session.ask(script) == QString::number(pid); }, Patience);
}

QString tst_kwin_shortcuts::feedback()
{
    return m_session.ask(uR"(    for (var i = 0; i < windows.length; ++i) {
        var window = windows[i];
        if (window.pid != %1 || window.caption.indexOf("Brightness") != 0)
            continue;
        var g = window.frameGeometry;
        return answer(g.x + "," + g.y + " " + g.width + "x" + g.height +
                      (window.onScreenDisplay ? " on-screen display" : " window") +
                      (window.skipTaskbar ? ", not in the taskbar" : ""));
    }
    answer("");)"_s.arg(m_desk.process().processId()));
}

void tst_kwin_shortcuts::pressReachesTheMonitorAndNotTheProgram()
{
    QVERIFY(client().set(u"brightness.displayBrightness"_s, 72).ok());
    QVERIFY(idle());
    chord({KEY_LEFTCTRL, KEY_LEFTSHIFT}, KEY_F5);
    QTRY_COMPARE_WITH_TIMEOUT(brightness(), QJsonValue(75), Patience);
    // The other program gets its own keys in order: what comes before this one has come.
    m_input.tap(KEY_S);
    QTRY_VERIFY_WITH_TIMEOUT(m_typist.lines(u"key "_s).contains(u"S"_s), Patience);
    QVERIFY(!m_typist.lines(u"key "_s).contains(u"Ctrl+Shift+F5"_s));
}

void tst_kwin_shortcuts::feedbackLeavesTheFocus_data()
{
    QTest::addColumn<unsigned>("key");
    QTest::addColumn<unsigned>("next");
    QTest::addColumn<QString>("typed");
    QTest::newRow("brightness") << unsigned(KEY_F5) << unsigned(KEY_A) << u"A"_s;
    QTest::newRow("brightness again") << unsigned(KEY_F4) << unsigned(KEY_D) << u"D"_s;
}

void tst_kwin_shortcuts::feedbackLeavesTheFocus()
{
    QFETCH(unsigned, key);
    QFETCH(unsigned, next);
    QFETCH(QString, typed);
    QTRY_COMPARE_WITH_TIMEOUT(feedback(), QString(), Patience);
    QVERIFY(focus(m_typist.pid()));
    const qsizetype lost = m_typist.lines(u"focus lost"_s).size();
    // A busy computer may see it only after it has gone: then the next step shows it again.
    QString shown;
    const auto shows = [&] { return !(shown = feedback()).isEmpty(); };
    QTRY_VERIFY_WITH_TIMEOUT((chord({KEY_LEFTCTRL, KEY_LEFTSHIFT}, key), QTest::qWaitFor(shows, 2000)),
                             Patience);
    // In the middle of the first output of 1024 by 768, five sixths down.
    QCOMPARE(shown, u"426,493 172x177 on-screen display, not in the taskbar"_s);
    m_input.tap(next);
    QTRY_VERIFY_WITH_TIMEOUT(m_typist.lines(u"key "_s).contains(typed), Patience);
    // Nor does its end take or give it.
    QTRY_COMPARE_WITH_TIMEOUT(feedback(), QString(), Patience);
    QCOMPARE(m_typist.lines(u"focus lost"_s).size(), lost);
}

void tst_kwin_shortcuts::overlayLeavesTheFocus()
{
    // The other of the program's windows: the main window is smaller, and feedback has gone.
    const QString overlay = uR"(    for (var i = 0; i < windows.length; ++i) {
        var window = windows[i];
        var g = window.frameGeometry;
        if (window.pid == %1 && g.width > 1000)
            return answer(g.x + "," + g.y + " " + g.width + "x" + g.height +
                          (window.onScreenDisplay ? " on-screen display" : " window"));
    }
    answer("");)"_s.arg(m_desk.process().processId());
    const QJsonObject absent =
        client().call(u"get"_s, {{u"path"_s, u"context.absences"_s}}).result[u"value"].toObject();
    QVERIFY(absent.contains(u"pointerEdge"_s));
    QVERIFY(!absent.contains(u"overlayOnTop"_s));
    QTRY_COMPARE_WITH_TIMEOUT(feedback(), QString(), Patience);
    QVERIFY(focus(m_typist.pid()));
    QVERIFY(client().set(u"brightness.softwareDimming.state"_s, true).ok());
    for (int round = 0; round < 2; ++round) {
        const qsizetype lost = m_typist.lines(u"focus lost"_s).size();
        QVERIFY(client().set(u"brightness.displayBrightness"_s, 5).ok());
        QTRY_COMPARE_WITH_TIMEOUT(m_session.ask(overlay), u"0,0 1024x768 on-screen display"_s, Patience);
        m_input.tap(KEY_Q);
        QTRY_COMPARE_WITH_TIMEOUT(m_typist.lines(u"key Q"_s).size(), round + 1, Patience);
        QVERIFY(client().set(u"brightness.displayBrightness"_s, 60).ok());
        QTRY_COMPARE_WITH_TIMEOUT(m_session.ask(overlay), QString(), Patience);
        QCOMPARE(m_typist.lines(u"focus lost"_s).size(), lost);
    }
    QVERIFY(client().set(u"brightness.softwareDimming.state"_s, false).ok());
}

void tst_kwin_shortcuts::otherKeysAreTheProgramsOwn()
{
    QVERIFY(client().set(u"brightness.displayBrightness"_s, 40).ok());
    chord({KEY_LEFTCTRL, KEY_LEFTSHIFT}, KEY_F9);
    QTRY_VERIFY_WITH_TIMEOUT(m_typist.lines(u"key "_s).contains(u"Ctrl+Shift+F9"_s), Patience);
    QCOMPARE(client().get(u"shortcuts.pressKeyName"_s), QJsonValue(QString()));
    QCOMPARE(brightness(), QJsonValue(40));
}

void tst_kwin_shortcuts::ownKeysAreFreeWhileKeysAreChosen()
{
    QVERIFY(client().set(u"brightness.displayBrightness"_s, 30).ok());
    QVERIFY(focus(m_desk.process().processId()));
    const auto choose = [this] {
        return client()
            .call(u"call"_s,
                  {{u"path"_s, u"shortcuts.registerShortcuts"_s}, {u"args"_s, QJsonArray{13, 40, true}}})
            .ok();
    };
    QVERIFY(choose());
    QTRY_VERIFY_WITH_TIMEOUT(!isTaken(Brighter), Patience);
    // What is typed shows as it comes.
    m_input.key(KEY_LEFTCTRL, true);
    QTRY_COMPARE_WITH_TIMEOUT(client().get(u"shortcuts.pressKeyName"_s), QJsonValue(u"Ctrl"_s), Patience);
    m_input.key(KEY_LEFTSHIFT, true);
    QTRY_COMPARE_WITH_TIMEOUT(client().get(u"shortcuts.pressKeyName"_s), QJsonValue(u"Ctrl+Shift"_s),
                              Patience);
    // Keys of another action are refused, and do nothing else.
    m_input.tap(KEY_F5);
    QTRY_COMPARE_WITH_TIMEOUT(client().get(u"shortcuts.repeatShortcuts"_s), QJsonValue(true), Patience);
    m_input.key(KEY_LEFTSHIFT, false);
    m_input.key(KEY_LEFTCTRL, false);
    QCOMPARE(client().get(u"shortcuts.modifyShortcuts"_s), QJsonValue(false));
    QCOMPARE(brightness(), QJsonValue(30));
    QTRY_VERIFY_WITH_TIMEOUT(isTaken(Brighter), Patience);
}

void tst_kwin_shortcuts::newKeysAreTyped()
{
    QVERIFY(focus(m_desk.process().processId()));
    // Of the action that makes the monitor brighter.
    QVERIFY(client()
                .call(u"call"_s,
                      {{u"path"_s, u"shortcuts.registerShortcuts"_s}, {u"args"_s, QJsonArray{3, 16, true}}})
                .ok());
    QTRY_VERIFY_WITH_TIMEOUT(!isTaken(Brighter), Patience);
    chord({KEY_LEFTCTRL, KEY_LEFTALT}, KEY_J);
    QTRY_COMPARE_WITH_TIMEOUT(client().get(u"shortcuts.modifyShortcuts"_s), QJsonValue(false), Patience);
    QTRY_VERIFY_WITH_TIMEOUT(isTaken(Chosen), Patience);
    QVERIFY(!isTaken(Brighter));
    QVERIFY(focus(m_typist.pid()));
    QVERIFY(client().set(u"brightness.displayBrightness"_s, 50).ok());
    chord({KEY_LEFTCTRL, KEY_LEFTALT}, KEY_J);
    QTRY_COMPARE_WITH_TIMEOUT(brightness(), QJsonValue(55), Patience);
    // The old ones are the other program's.
    QVERIFY(focus(m_typist.pid()));
    chord({KEY_LEFTCTRL, KEY_LEFTSHIFT}, KEY_F5);
    QTRY_VERIFY_WITH_TIMEOUT(m_typist.lines(u"key "_s).contains(u"Ctrl+Shift+F5"_s), Patience);
    QVERIFY(!m_typist.lines(u"key "_s).contains(u"Ctrl+Alt+J"_s));
    QCOMPARE(brightness(), QJsonValue(55));
}

void tst_kwin_shortcuts::endedProgramLeavesItsKeysToOthers()
{
    QCOMPARE(m_desk.stop(), 0);
    QVERIFY(focus(m_typist.pid()));
    QTRY_VERIFY_WITH_TIMEOUT(!isTaken(Chosen), Patience);
    chord({KEY_LEFTCTRL, KEY_LEFTALT}, KEY_J);
    QTRY_VERIFY_WITH_TIMEOUT(m_typist.lines(u"key "_s).contains(u"Ctrl+Alt+J"_s), Patience);
}

void tst_kwin_shortcuts::killedProgramLeavesNothingBehind()
{
    QVERIFY2(m_desk.start(
                 {u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"fast"_s, u"--services"_s, u"native"_s},
                 Patience),
             qPrintable(m_desk.errors()));
    QTRY_VERIFY_WITH_TIMEOUT(isTaken(Chosen), Patience);
    m_desk.process().kill();
    QVERIFY(m_desk.waitForEnd(Patience));
    QVERIFY(isTaken(Chosen));
    // Another run, which has no shortcuts.
    DeskProcess other;
    QVERIFY2(
        other.start({u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"fast"_s, u"--services"_s, u"native"_s},
                    Patience),
        qPrintable(other.errors()));
    QTRY_VERIFY_WITH_TIMEOUT(!isTaken(Chosen), Patience);
    QCOMPARE(other.client().get(u"shortcuts.active"_s), QJsonValue(false));
}

QTEST_GUILESS_MAIN(tst_kwin_shortcuts)
#include "tst_kwin_shortcuts.moc"
