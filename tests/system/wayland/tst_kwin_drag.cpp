// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatformNotifications.h>

#include "FakeInput.h"
#include "PlasmaSession.h"
#include "services/wayland/KWinEvents.h"

#include <QPointF>
#include <QRect>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <linux/input-event-codes.h>
#include <memory>

using namespace Qt::StringLiterals;
using services::wayland::KWinEvents;

namespace {

QRect rectOf(const QString& text)
{
    const QRegularExpressionMatch match =
        QRegularExpression(u"^(-?[0-9]+),(-?[0-9]+) ([0-9]+)x([0-9]+)$"_s).match(text);
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
            match.captured(4).toInt()};
}

QString textOf(const QRect& rect)
{
    return u"%1,%2 %3x%4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

unsigned long pidIn(const QList<QVariant>& signal)
{
    return signal[0].value<unsigned long>();
}

} // namespace

/// A person drags windows of other applications in a Plasma session, with the mouse and with the keyboard.
class tst_kwin_drag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void draggedWindowIsToldAndPlaced_data();
    void draggedWindowIsToldAndPlaced();
    void windowOfTheKeyboardIsToldToo();
    void aClickDragsNothing();
    void sizingIsNotDragging();
    void windowThatClosesIsReleased();
    void theDraggedWindowOfAProgramIsPlaced();
    void ownWindowsAreNotTold();
    void nothingIsToldAfterTheEnd();

private:
    QRect startWindow(WindowProgram& program, const QRect& place = {200, 200, 300, 200});
    /// Presses in the program's window, moves there in steps, and waits until that was told.
    void drag(const WindowProgram& program, const QPoint& from, const QPoint& to);

    PlasmaSession m_session;
    FakeInput m_input;
    std::shared_ptr<KWinEvents> m_events;
    std::unique_ptr<QSignalSpy> m_dragged;
    std::unique_ptr<QSignalSpy> m_released;
};

void tst_kwin_drag::initTestCase()
{
    QString problem = m_session.startBus();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    problem = m_session.startKWin();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    problem = m_input.open(m_session.socket());
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void tst_kwin_drag::init()
{
    auto* const notifications = LuPlatformNotifications::instance();
    m_dragged = std::make_unique<QSignalSpy>(notifications, &LuPlatformNotifications::activeAppDragged);
    m_released = std::make_unique<QSignalSpy>(notifications, &LuPlatformNotifications::activeAppReleased);
    m_events = KWinEvents::make(QDBusConnection::sessionBus());
    QVERIFY(m_events);
    m_events->start();
    // The script runs once KWin has told who is in the foreground.
    WindowProgram program;
    QSignalSpy active(notifications, &LuPlatformNotifications::activeAppChanged);
    QCOMPARE(program.start(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(!active.isEmpty() && pidIn(active.last()) == program.processId(), Patience);
}

void tst_kwin_drag::cleanup()
{
    m_input.button(BTN_LEFT, false);
    m_input.button(BTN_RIGHT, false);
    m_input.key(KEY_LEFTMETA, false);
    m_events.reset();
}

void tst_kwin_drag::cleanupTestCase()
{
    m_session.stop();
}

QRect tst_kwin_drag::startWindow(WindowProgram& program, const QRect& place)
{
    const QString problem = program.start();
    if (!problem.isEmpty())
        qWarning().noquote() << problem;
    const QString placing =
        u"window.frameGeometry = { x: %1, y: %2, width: %3, height: %4 };"_s.arg(place.x())
            .arg(place.y())
            .arg(place.width())
            .arg(place.height());
    const bool placed =
        m_session.hasFocus(program.pid()) &&
        QTest::qWaitFor([&] { return rectOf(m_session.placeOf(program.pid(), placing)) == place; }, Patience);
    return placed ? place : QRect();
}

void tst_kwin_drag::drag(const WindowProgram& program, const QPoint& from, const QPoint& to)
{
    m_input.moveTo(from);
    m_input.button(BTN_LEFT, true);
    // A program with a title bar of its own has to ask for it first.
    const QString moves =
        u"    for (var i = 0; i < windows.length; ++i) {\n"
        "        if (windows[i].pid == %1 && windows[i].move)\n            return answer(1);\n    }\n"
        "    answer(0);"_s.arg(program.pid());
    QTRY_COMPARE_WITH_TIMEOUT(m_session.ask(moves), u"1"_s, Patience);
    constexpr int Steps = 8;
    for (int step = 1; step <= Steps; ++step)
        m_input.moveTo(from + (to - from) * step / Steps);
    QTRY_VERIFY_WITH_TIMEOUT(!m_dragged->isEmpty() && m_dragged->last()[1].toPointF() == to, Patience);
}

void tst_kwin_drag::draggedWindowIsToldAndPlaced_data()
{
    QTest::addColumn<bool>("meta");
    QTest::addColumn<QPoint>("grip"); // within the window
    QTest::addColumn<QPoint>("way");
    QTest::newRow("by its title bar") << false << QPoint(150, 20) << QPoint(120, 160);
    QTest::newRow("anywhere with the desktop's key") << true << QPoint(150, 120) << QPoint(160, -80);
    QTest::newRow("to the other monitor") << true << QPoint(150, 120) << QPoint(960, 96);
}

void tst_kwin_drag::draggedWindowIsToldAndPlaced()
{
    QFETCH(bool, meta);
    QFETCH(QPoint, grip);
    QFETCH(QPoint, way);
    WindowProgram program;
    const QRect before = startWindow(program);
    QVERIFY(before.isValid());
    const QPoint from = before.topLeft() + grip;
    const QPoint to = from + way;
    if (meta)
        m_input.key(KEY_LEFTMETA, true);
    drag(program, from, to);
    QVERIFY(m_released->isEmpty());
    for (const QList<QVariant>& each : std::as_const(*m_dragged)) {
        QCOMPARE(pidIn(each), program.processId());
        // On the straight way of the pointer, up to the rounding of the steps.
        const QPointF done = each[1].toPointF() - from;
        QVERIFY(qAbs(done.x() * way.y() - done.y() * way.x()) <= qAbs(way.x()) + qAbs(way.y()));
    }
    const qsizetype told = m_dragged->count();
    m_input.button(BTN_LEFT, false);
    if (meta)
        m_input.key(KEY_LEFTMETA, false);
    QTRY_COMPARE_WITH_TIMEOUT(m_released->count(), 1, Patience);
    QCOMPARE(pidIn(m_released->first()), program.processId());
    QCOMPARE(m_released->first()[1].toPointF(), QPointF(to));
    QCOMPARE(m_dragged->count(), told);
    QCOMPARE(m_session.placeOf(program.pid()), textOf(before.translated(way)));
    // As a zone does with what falls on it.
    const QRect zone(1100, 40, 500, 360);
    m_events->setGeometry(program.processId(), zone);
    QTRY_COMPARE_WITH_TIMEOUT(m_session.placeOf(program.pid()), textOf(zone), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(program.lines(u"size "_s).last(), u"500x360"_s, Patience);
    QCOMPARE(m_released->count(), 1);
}

void tst_kwin_drag::windowOfTheKeyboardIsToldToo()
{
    WindowProgram program;
    const QRect before = startWindow(program);
    QVERIFY(before.isValid());
    // What the window menu's "Move" does.
    m_session.ask(u"    workspace.slotWindowMove();\n    answer(\"\");"_s);
    QTRY_VERIFY_WITH_TIMEOUT((m_input.tap(KEY_RIGHT), !m_dragged->isEmpty()), Patience);
    m_input.tap(KEY_ENTER);
    QTRY_COMPARE_WITH_TIMEOUT(m_released->count(), 1, Patience);
    QCOMPARE(pidIn(m_released->first()), program.processId());
    const QRect after = rectOf(m_session.placeOf(program.pid()));
    QCOMPARE(after.y(), before.y());
    QVERIFY(after.x() > before.x());
}

void tst_kwin_drag::aClickDragsNothing()
{
    WindowProgram program;
    const QRect place = startWindow(program);
    QVERIFY(place.isValid());
    m_input.moveTo(place.center());
    m_input.button(BTN_LEFT, true);
    m_input.moveTo(place.center() + QPoint(60, 40));
    m_input.button(BTN_LEFT, false);
    // Whatever KWin has to tell of that comes before what it answers now.
    QCOMPARE(m_session.placeOf(program.pid()), textOf(place));
    QVERIFY(m_dragged->isEmpty());
    QVERIFY(m_released->isEmpty());
}

void tst_kwin_drag::sizingIsNotDragging()
{
    WindowProgram program;
    const QRect place = startWindow(program);
    QVERIFY(place.isValid());
    m_input.key(KEY_LEFTMETA, true);
    m_input.moveTo(place.bottomRight() - QPoint(10, 10));
    m_input.button(BTN_RIGHT, true);
    QTRY_VERIFY_WITH_TIMEOUT((m_input.moveTo(place.bottomRight() + QPoint(70, 50)),
                              m_input.moveTo(place.bottomRight() + QPoint(80, 60)),
                              rectOf(m_session.placeOf(program.pid())).width() > place.width()),
                             Patience);
    m_input.button(BTN_RIGHT, false);
    m_input.key(KEY_LEFTMETA, false);
    QVERIFY(m_session.placeOf(program.pid()) != u"nothing"_s);
    QVERIFY(m_dragged->isEmpty());
    QVERIFY(m_released->isEmpty());
}

void tst_kwin_drag::windowThatClosesIsReleased()
{
    WindowProgram program;
    const QRect place = startWindow(program);
    QVERIFY(place.isValid());
    const unsigned long pid = program.processId();
    m_input.key(KEY_LEFTMETA, true);
    drag(program, place.center(), place.center() + QPoint(80, 80));
    program.stop();
    QTRY_COMPARE_WITH_TIMEOUT(m_released->count(), 1, Patience);
    QCOMPARE(pidIn(m_released->first()), pid);
}

void tst_kwin_drag::theDraggedWindowOfAProgramIsPlaced()
{
    WindowProgram program;
    QCOMPARE(program.start({u"--two"_s}), QString());
    QVERIFY(m_session.hasFocus(program.pid()));
    const auto places = [&] {
        return m_session.ask(uR"(    var places = [];
    for (var i = 0; i < windows.length; ++i) {
        if (windows[i].pid == %1)
            places.push(windows[i].frameGeometry.x + " " + windows[i].frameGeometry.width);
    }
    answer(places.sort().join(","));)"_s.arg(program.pid()));
    };
    // Side by side; the right one gets the focus, the left one is dragged.
    QTRY_COMPARE_WITH_TIMEOUT(m_session.ask(uR"(    var x = 100;
    var count = 0;
    for (var i = 0; i < windows.length; ++i) {
        if (windows[i].pid != %1)
            continue;
        windows[i].frameGeometry = { x: x, y: 300, width: 300, height: 200 };
        if (workspace.activeWindow === undefined)
            workspace.activeClient = windows[i];
        else
            workspace.activeWindow = windows[i];
        x += 400;
        ++count;
    }
    answer(count);)"_s.arg(program.pid())),
                              u"2"_s, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(places(), u"100 300,500 300"_s, Patience);
    m_input.key(KEY_LEFTMETA, true);
    drag(program, QPoint(250, 400), QPoint(330, 330));
    m_input.button(BTN_LEFT, false);
    m_input.key(KEY_LEFTMETA, false);
    QTRY_COMPARE_WITH_TIMEOUT(m_released->count(), 1, Patience);
    // The other one gets the focus before the zone has its window.
    m_session.ask(uR"(    for (var i = 0; i < windows.length; ++i) {
        if (windows[i].pid != %1 || windows[i].frameGeometry.x != 500)
            continue;
        if (workspace.activeWindow === undefined)
            workspace.activeClient = windows[i];
        else
            workspace.activeWindow = windows[i];
    }
    answer("");)"_s.arg(program.pid()));
    m_events->setGeometry(program.processId(), QRectF(60, 40, 410, 220));
    QTRY_COMPARE_WITH_TIMEOUT(places(), u"500 300,60 410"_s, Patience);
}

void tst_kwin_drag::ownWindowsAreNotTold()
{
    QSignalSpy active(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged);
    const QString own = QString::number(QCoreApplication::applicationPid());
    m_events->activated(own);
    m_events->dragged(own + u" 10 10 {id}"_s);
    m_events->released(own + u" 10 10 {id}"_s);
    QVERIFY(active.isEmpty());
    QVERIFY(m_dragged->isEmpty());
    QVERIFY(m_released->isEmpty());
}

void tst_kwin_drag::nothingIsToldAfterTheEnd()
{
    WindowProgram program;
    const QRect place = startWindow(program);
    QVERIFY(place.isValid());
    m_events->stop();
    m_input.key(KEY_LEFTMETA, true);
    m_input.moveTo(place.center());
    m_input.button(BTN_LEFT, true);
    m_input.moveTo(place.center() + QPoint(40, 40));
    m_input.moveTo(place.center() + QPoint(80, 80));
    m_input.button(BTN_LEFT, false);
    m_input.key(KEY_LEFTMETA, false);
    QTRY_COMPARE_WITH_TIMEOUT(m_session.placeOf(program.pid()), textOf(place.translated(80, 80)), Patience);
    QVERIFY(m_dragged->isEmpty());
    QVERIFY(m_released->isEmpty());
}

QTEST_GUILESS_MAIN(tst_kwin_drag)
#include "tst_kwin_drag.moc"
