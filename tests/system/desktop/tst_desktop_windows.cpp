// SPDX-License-Identifier: Apache-2.0
#include "Client.h"

#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>
#include <LuShared/LuQuickWindow.h>
#include <lushared/services/ServiceRegistry.h>
#include <services/api/ApplicationWindows.h>
#include <services/api/DesktopEvents.h>
#include <services/x11/Connection.h>
#include <services/x11/X11Services.h>

#include <QQuickWindow>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// Counts the presses of buttons that reach a window.
class PressCounter : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::MouseButtonPress;
        return false;
    }
};

// The server's children of the root window, the highest first.
QStringList stacking()
{
    QStringList ids;
    static const QRegularExpression pattern(u"^ {5}(0x[0-9a-f]+) "_s, QRegularExpression::MultilineOption);
    auto matches = pattern.globalMatch(outputOf(u"xwininfo -root -children"_s));
    while (matches.hasNext())
        ids.append(matches.next().captured(1));
    return ids;
}

bool isAbove(quint32 higher, quint32 lower)
{
    const QStringList ids = stacking();
    const qsizetype first = ids.indexOf(u"0x"_s + QString::number(higher, 16));
    const qsizetype second = ids.indexOf(u"0x"_s + QString::number(lower, 16));
    return first >= 0 && second > first;
}

/// A menu of another application: a window that no window manager manages.
class Menu
{
public:
    explicit Menu(const QRect& rect) : m_connection(services::x11::Connection::open())
    {
        m_id = xcb_generate_id(*m_connection);
        const std::uint32_t values[] = {0xffffff, 1, XCB_EVENT_MASK_BUTTON_PRESS};
        xcb_create_window(*m_connection, XCB_COPY_FROM_PARENT, m_id, m_connection->root(),
                          std::int16_t(rect.x()), std::int16_t(rect.y()), std::uint16_t(rect.width()),
                          std::uint16_t(rect.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT,
                          XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    }
    quint32 id() const { return m_id; }
    void show()
    {
        xcb_map_window(*m_connection, m_id);
        raise();
    }
    void hide()
    {
        xcb_unmap_window(*m_connection, m_id);
        m_connection->sync();
    }
    void raise()
    {
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(*m_connection, m_id, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        m_connection->sync();
    }
    int presses()
    {
        while (const services::x11::Owned<xcb_generic_event_t> event{xcb_poll_for_event(*m_connection)})
            m_presses += (event->response_type & ~0x80) == XCB_BUTTON_PRESS;
        return m_presses;
    }

private:
    const std::shared_ptr<services::x11::Connection> m_connection;
    xcb_window_t m_id = XCB_WINDOW_NONE;
    int m_presses = 0;
};

void showOverlay(LuQuickWindow* overlay)
{
    overlay->setColor(QColor(0, 0, 0, 128));
    overlay->setWindowFlags(LuPlatform::windowFlags | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                            Qt::WindowTransparentForInput);
    LuPlatform::setWindowLayer(overlay, 3);
    overlay->enterFullScreen(true);
    QVERIFY(QTest::qWaitForWindowExposed(overlay, PatienceMs));
}

} // namespace

/// Windows of other applications and the program's own under a window manager, which WINDOW_MANAGER names.
class TestDesktopWindows : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktopWindows(XServer& server) : m_server(server) {}

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();

    void foregroundIsTold();
    void ownWindowsAreNotTold();
    void dragIsFollowed();
    void sizingIsNoDrag();
    void ownWindowsAreNotFollowed();
    void windowIsPlaced_data();
    void windowIsPlaced();
    void shadowLiesOutside();
    void draggedWindowIsPlaced();
    void processWithoutWindowIsLeftAlone();
    void namesOfWindows();
    void layerIsAboveFullScreen();
    void layerIsAboveMenus();
    void layerGivesWayToWhatInsists();
    void windowIsOnAllDesktops();
    void overlayLetsThePointerThrough();
    void nothingIsToldAfterStop();

private:
    static QString manager() { return qEnvironmentVariable("WINDOW_MANAGER", u"openbox"_s); }
    /// What the window and its frame cover, as xwininfo and xprop see it.
    static QRect outerRect(quint32 window);
    static QString frameOf(quint32 window);
    static QRect rectOf(const QString& window);
    static QString property(quint32 window, const QString& name)
    {
        return outputOf(u"xprop -id %1 %2"_s.arg(window).arg(name)).trimmed();
    }
    static void setStates(quint32 window, const QList<services::x11::Atom>& states, bool on);
    static bool run(const QString& command) { return std::system(qPrintable(command)) == 0; }
    void activate(Client& client);
    void settle();
    QPoint titleOf(Client& client);
    bool pull(quint32 window, QPoint start, QPoint step);
    bool carry(QPoint end, const std::function<bool()>& isThere);

    XServer& m_server;
    Beside m_manager;
    services::ServiceSet m_set;
    std::shared_ptr<services::ApplicationWindows> m_windows;
    Client m_one;
    Client m_two;
    Client m_shadowed;
    unsigned long m_foreground = 0; ///< The process that was told last.
};

// The frame is the outermost window around it.
QString TestDesktopWindows::frameOf(quint32 window)
{
    static const QRegularExpression pattern(
        u"Root window id: (0x[0-9a-f]+).*Parent window id: (0x[0-9a-f]+)"_s,
        QRegularExpression::DotMatchesEverythingOption);
    QString frame = u"0x"_s + QString::number(window, 16);
    for (;;) {
        const auto match = pattern.match(outputOf(u"xwininfo -children -id %1"_s.arg(frame)));
        if (!match.hasMatch() || match.captured(1) == match.captured(2))
            return frame;
        frame = match.captured(2);
    }
}

QRect TestDesktopWindows::rectOf(const QString& window)
{
    const QString text = outputOf(u"xwininfo -id %1"_s.arg(window));
    const auto number = [&](const QString& name) {
        return QRegularExpression(name + u":\\s+(-?[0-9]+)"_s).match(text).captured(1).toInt();
    };
    return QRect(number(u"Absolute upper-left X"_s), number(u"Absolute upper-left Y"_s), number(u"Width"_s),
                 number(u"Height"_s));
}

QRect TestDesktopWindows::outerRect(quint32 window)
{
    const QRect inner = rectOf(QString::number(window));
    const QStringList edges = property(window, u"_NET_FRAME_EXTENTS"_s).section(u'=', 1).split(u',');
    if (edges.size() != 4)
        return inner;
    return inner.marginsAdded(
        QMargins(edges[0].toInt(), edges[2].toInt(), edges[1].toInt(), edges[3].toInt()));
}

// One or two of them, as a pager does.
void TestDesktopWindows::setStates(quint32 window, const QList<services::x11::Atom>& states, bool on)
{
    const auto connection = services::x11::Connection::open();
    QVERIFY(connection);
    connection->tellWindowManager(
        window, services::x11::NetWmState,
        {on, connection->atom(states.first()), states.size() > 1 ? connection->atom(states.last()) : 0, 2});
    connection->sync();
}

void TestDesktopWindows::activate(Client& client)
{
    QVERIFY(run(u"xdotool windowactivate --sync %1"_s.arg(client.window())));
}

// Returns when the program has been told everything so far: that the second client has come after the first.
void TestDesktopWindows::settle()
{
    for (Client* client : {&m_one, &m_two}) {
        activate(*client);
        QTRY_COMPARE(m_foreground, client->pid());
    }
}

// A point of the title bar where no button is.
QPoint TestDesktopWindows::titleOf(Client& client)
{
    const QRect outer = outerRect(client.window());
    return outer.topLeft() + QPoint(outer.width() / 2, 8);
}

// Presses the button and moves on until the window manager has taken hold of the window. Mutter overlooks a
// press on a window that has only just come, so it is pressed again, much later than a double click is.
bool TestDesktopWindows::pull(quint32 window, QPoint start, QPoint step)
{
    constexpr int StepsOfAPress = 100;
    const QRect before = outerRect(window);
    int steps = 0;
    return QTest::qWaitFor(
        [&] {
            if (steps % StepsOfAPress == 0) {
                m_server.button(1, false);
                m_server.moveTo(start.x(), start.y());
                m_server.button(1, true);
            }
            const QPoint next = start + step * (++steps % 40);
            m_server.moveTo(next.x(), next.y());
            return outerRect(window) != before;
        },
        PatienceMs);
}

// A hand is never still: kwin drops what comes within 33 ms of the last size and looks again at the next
// motion.
bool TestDesktopWindows::carry(QPoint end, const std::function<bool()>& isThere)
{
    bool aside = false;
    return QTest::qWaitFor(
        [&] {
            aside = !aside;
            m_server.moveTo(end.x() + aside, end.y());
            m_server.moveTo(end.x(), end.y());
            return isThere();
        },
        PatienceMs);
}

void TestDesktopWindows::initTestCase()
{
    static const QHash<QString, QStringList> arguments = {
        {u"openbox"_s, {u"--sm-disable"_s}},
        {u"xfwm4"_s, {u"--compositor=off"_s, u"--sm-client-disable"_s}},
        {u"mutter"_s, {u"--x11"_s, u"--sm-disable"_s}},
    };
    QVERIFY2(m_manager.start(manager(), arguments.value(manager())),
             qPrintable(manager() + u" does not start"_s));
    QTRY_VERIFY(outputOf(u"xprop -root _NET_SUPPORTING_WM_CHECK"_s).contains(u"0x"_s));
    m_windows = services::x11::addServices(&m_set);
    QVERIFY(m_windows);
    services::Registry::install(m_set);
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged, this,
            [this](unsigned long pid) { m_foreground = pid; });
    m_set.events->start();
    QVERIFY(m_one.start(u"client-one"_s, QRect(100, 100, 400, 300)));
    QVERIFY(m_two.start(u"client-two"_s, QRect(700, 200, 400, 300)));
    settle();
}

void TestDesktopWindows::cleanupTestCase()
{
    services::Registry::install({});
    m_windows.reset();
    m_set = {};
}

// What fails leaves the next test a mouse without a pressed button.
void TestDesktopWindows::cleanup()
{
    if (QTest::currentTestFailed())
        m_server.button(1, false);
}

void TestDesktopWindows::foregroundIsTold()
{
    settle();
    QSignalSpy told(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged);
    activate(m_one);
    QTRY_COMPARE(told.count(), 1);
    QCOMPARE(told.last().first().value<unsigned long>(), m_one.pid());
    activate(m_two);
    QTRY_COMPARE(told.count(), 2);
    QCOMPARE(told.last().first().value<unsigned long>(), m_two.pid());
}

void TestDesktopWindows::ownWindowsAreNotTold()
{
    settle();
    QSignalSpy told(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged);
    QQuickWindow own;
    own.setGeometry(300, 300, 200, 200);
    own.show();
    QVERIFY(QTest::qWaitForWindowExposed(&own, PatienceMs));
    QVERIFY(run(u"xdotool windowactivate --sync %1"_s.arg(own.winId())));
    QTRY_VERIFY(own.isActive());
    QCoreApplication::processEvents();
    QCOMPARE(told.count(), 0);
    // Coming back to the same application is news.
    activate(m_two);
    QTRY_COMPARE(told.count(), 1);
    QCOMPARE(told.last().first().value<unsigned long>(), m_two.pid());
}

void TestDesktopWindows::dragIsFollowed()
{
    QSignalSpy dragged(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppDragged);
    QSignalSpy released(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppReleased);
    activate(m_one);
    const QRect before = outerRect(m_one.window());
    const QPoint start = titleOf(m_one);
    QVERIFY(pull(m_one.window(), start, QPoint(5, 3)));
    const QPoint end = start + QPoint(200, 120);
    QVERIFY(
        carry(end, [&] { return !dragged.isEmpty() && dragged.last().at(1).toPointF() == QPointF(end); }));
    for (const QList<QVariant>& each : dragged)
        QCOMPARE(each.first().value<unsigned long>(), m_one.pid());
    QCOMPARE(released.count(), 0);
    m_server.button(1, false);
    QTRY_COMPARE(released.count(), 1);
    QCOMPARE(released.last().at(0).value<unsigned long>(), m_one.pid());
    QCOMPARE(released.last().at(1).toPointF(), QPointF(end));
    QTRY_COMPARE(outerRect(m_one.window()).size(), before.size());
    QVERIFY(outerRect(m_one.window()).topLeft() != before.topLeft());

    // A click without a movement of the window is none.
    const qsizetype count = dragged.count();
    m_server.button(1, true);
    m_server.button(1, false);
    // Nor is another button.
    m_server.button(2, true);
    m_server.moveTo(end.x() + 30, end.y() + 30);
    m_server.button(2, false);
    activate(m_two);
    QCOMPARE(dragged.count(), count);
    QCOMPARE(released.count(), 1);
}

void TestDesktopWindows::sizingIsNoDrag()
{
    QSignalSpy dragged(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppDragged);
    QSignalSpy released(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppReleased);
    activate(m_two);
    const QRect before = outerRect(m_two.window());
    // The lower left corner, where it can be taken hold of: the window changes its place and its size.
    const QPoint corner = rectOf(frameOf(m_two.window())).bottomLeft() + QPoint(1, -1);
    QVERIFY(pull(m_two.window(), corner, QPoint(-4, 3)));
    QVERIFY(carry(corner + QPoint(-80, 60), [&] {
        const QRect now = outerRect(m_two.window());
        return now.width() > before.width() && now.left() < before.left();
    }));
    m_server.button(1, false);
    QCoreApplication::processEvents();
    QCOMPARE(dragged.count(), 0);
    QCOMPARE(released.count(), 0);
}

void TestDesktopWindows::ownWindowsAreNotFollowed()
{
    QSignalSpy dragged(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppDragged);
    QQuickWindow own;
    own.setTitle(u"own"_s);
    own.setGeometry(1000, 500, 300, 200);
    own.show();
    QVERIFY(QTest::qWaitForWindowExposed(&own, PatienceMs));
    // Its title bar has come, too.
    const QString id = QString::number(own.winId());
    QTRY_VERIFY(outerRect(quint32(own.winId())).top() < rectOf(id).top());
    const QRect before = outerRect(quint32(own.winId()));
    const QPoint start = before.topLeft() + QPoint(before.width() / 2, 8);
    QVERIFY(pull(quint32(own.winId()), start, QPoint(5, 3)));
    QVERIFY(carry(start + QPoint(100, 60),
                  [&] { return outerRect(quint32(own.winId())).left() > before.left(); }));
    m_server.button(1, false);
    QCOMPARE(dragged.count(), 0);
}

void TestDesktopWindows::windowIsPlaced_data()
{
    using namespace services::x11;
    QTest::addColumn<QList<Atom>>("states");
    QTest::addColumn<QRectF>("target");
    QTest::newRow("as it is") << QList<Atom>() << QRectF(0, 0, 960, 540);
    QTest::newRow("unrounded") << QList<Atom>() << QRectF(640, 0, 1920 / 3.0, 1080);
    QTest::newRow("maximised") << QList<Atom>{NetWmStateMaximizedVert, NetWmStateMaximizedHorz}
                               << QRectF(960, 0, 960, 1080);
    QTest::newRow("maximised upright") << QList<Atom>{NetWmStateMaximizedVert} << QRectF(100, 50, 700, 500);
    QTest::newRow("full-screen") << QList<Atom>{NetWmStateFullscreen} << QRectF(200, 100, 600, 400);
    // xfwm4 knows this server's first screen only and lets no window leave it.
    if (manager() != QLatin1String("xfwm4"))
        QTest::newRow("on another screen") << QList<Atom>() << QRectF(1920, 0, 640, 1024);
}

void TestDesktopWindows::windowIsPlaced()
{
    QFETCH(QList<services::x11::Atom>, states);
    QFETCH(QRectF, target);
    activate(m_one);
    const quint32 window = m_one.window();
    m_windows->setGeometry(m_one.pid(), QRectF(150, 150, 400, 300));
    QTRY_COMPARE(outerRect(window), QRect(150, 150, 400, 300));
    if (!states.isEmpty()) {
        setStates(window, states, true);
        QTRY_VERIFY(property(window, u"_NET_WM_STATE"_s)
                        .contains(states.contains(services::x11::NetWmStateFullscreen) ? u"FULLSCREEN"_s
                                                                                       : u"MAXIMIZED"_s));
    }
    m_windows->setGeometry(m_one.pid(), target);
    QTRY_COMPARE(outerRect(window), target.toRect());
    QVERIFY(!property(window, u"_NET_WM_STATE"_s).contains(u"MAXIMIZED"_s));
    // That of mutter has an invisible edge around it, to take hold of.
    const QRect frame = rectOf(frameOf(window));
    QVERIFY(manager() == QLatin1String("mutter") ? frame.contains(target.toRect())
                                                 : frame == target.toRect());
}

// As applications have it that draw their own title bar and its shadow.
void TestDesktopWindows::shadowLiesOutside()
{
    constexpr QMargins shadow(20, 15, 25, 30);
    QVERIFY(m_shadowed.start(u"client-shadowed"_s, QRect(300, 300, 500, 400), shadow));
    activate(m_shadowed);
    m_windows->setGeometry(m_shadowed.pid(), QRectF(960, 0, 960, 540));
    QTRY_COMPARE(outerRect(m_shadowed.window()).marginsRemoved(shadow), QRect(960, 0, 960, 540));
    m_shadowed.stop();
    activate(m_two);
}

void TestDesktopWindows::draggedWindowIsPlaced()
{
    // As the partition view does at the end of a drag.
    const QRectF target(0, 540, 960, 540);
    QObject context;
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppReleased, &context,
            [&](unsigned long pid, QPointF) { m_windows->setGeometry(pid, target); });
    activate(m_one);
    QSignalSpy dragged(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppDragged);
    const QPoint start = titleOf(m_one);
    QVERIFY(pull(m_one.window(), start, QPoint(5, 3)));
    QVERIFY(carry(start + QPoint(200, 120), [&] { return !dragged.isEmpty(); }));
    m_server.button(1, false);
    QTRY_COMPARE(outerRect(m_one.window()), target.toRect());
}

void TestDesktopWindows::processWithoutWindowIsLeftAlone()
{
    const QRect one = outerRect(m_one.window());
    const QRect two = outerRect(m_two.window());
    QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"process 1 has no window to move"_s));
    m_windows->setGeometry(1, QRectF(0, 0, 500, 500));
    m_windows->setGeometry(m_two.pid(), QRectF(20, 30, 500, 400));
    QTRY_COMPARE(outerRect(m_two.window()), QRect(20, 30, 500, 400));
    QVERIFY(two != outerRect(m_two.window()));
    QCOMPARE(outerRect(m_one.window()), one);
}

void TestDesktopWindows::namesOfWindows()
{
    QCOMPARE(m_windows->applicationNames(m_one.pid()), QStringList{u"client-one"_s});
    QCOMPARE(m_windows->applicationNames(1), QStringList());
    QCOMPARE(m_windows->applicationNames(0), QStringList());
}

void TestDesktopWindows::layerIsAboveFullScreen()
{
    m_windows->setGeometry(m_one.pid(), QRectF(100, 100, 500, 400));
    QTRY_COMPARE(outerRect(m_one.window()), QRect(100, 100, 500, 400));
    LuQuickWindow overlay;
    overlay.setWindowFlags(LuPlatform::windowFlags | Qt::FramelessWindowHint | Qt::WindowTransparentForInput);
    LuPlatform::setWindowLayer(&overlay, 3); // before it was ever shown
    overlay.setGeometry(50, 50, 300, 300);
    overlay.show();
    QVERIFY(QTest::qWaitForWindowExposed(&overlay, PatienceMs));
    const QString id = u"0x"_s + QString::number(overlay.winId(), 16);
    QTRY_COMPARE(stacking().first(), id);
    activate(m_one);
    setStates(m_one.window(), {services::x11::NetWmStateFullscreen}, true);
    QTRY_COMPARE(outerRect(m_one.window()), QRect(0, 0, 1920, 1080));
    const quint32 frame = frameOf(m_one.window()).toUInt(nullptr, 16);
    QTRY_VERIFY(isAbove(quint32(overlay.winId()), frame));
    // Nor does it take the focus or a place on the task bar.
    QVERIFY(!outputOf(u"xprop -root _NET_CLIENT_LIST"_s).contains(id));
    overlay.hide();
    overlay.show();
    QVERIFY(QTest::qWaitForWindowExposed(&overlay, PatienceMs));
    QTRY_VERIFY(isAbove(quint32(overlay.winId()), frame));
    // As an ordinary window it is the window manager's again.
    LuPlatform::setWindowLayer(&overlay, 0);
    // Looked at once each time: mutter takes it, lets it go with the news that it was hidden, and takes it
    // again.
    QVERIFY(QTest::qWaitFor([&] { return outputOf(u"xprop -root _NET_CLIENT_LIST"_s).contains(id); },
                            PatienceMs));
    setStates(m_one.window(), {services::x11::NetWmStateFullscreen}, false);
}

void TestDesktopWindows::layerIsAboveMenus()
{
    LuQuickWindow overlay;
    showOverlay(&overlay);
    Menu menu(QRect(200, 200, 300, 200));
    menu.show();
    QTRY_VERIFY(isAbove(quint32(overlay.winId()), menu.id()));
    // It is used as ever.
    m_server.moveTo(250, 250);
    m_server.button(1, true);
    m_server.button(1, false);
    QTRY_COMPARE(menu.presses(), 1);
    Menu second(QRect(400, 250, 300, 200));
    second.show();
    QTRY_VERIFY(isAbove(quint32(overlay.winId()), second.id()));
    QVERIFY(isAbove(quint32(overlay.winId()), menu.id()));
    // One that comes to the front again.
    menu.raise();
    QTRY_VERIFY(isAbove(menu.id(), second.id()));
    QTRY_VERIFY(isAbove(quint32(overlay.winId()), menu.id()));
    // The overlays of two monitors leave each other alone.
    LuQuickWindow other;
    showOverlay(&other);
    second.hide();
    second.show();
    QTRY_VERIFY(isAbove(quint32(overlay.winId()), second.id()) &&
                isAbove(quint32(other.winId()), second.id()));
}

void TestDesktopWindows::layerGivesWayToWhatInsists()
{
    LuQuickWindow overlay;
    showOverlay(&overlay);
    Menu locker(QRect(200, 200, 300, 200));
    locker.show();
    int raises = 0;
    const auto fights = [&] {
        if (!isAbove(quint32(overlay.winId()), locker.id()))
            return raises < 4;
        locker.raise();
        ++raises;
        return true;
    };
    QTRY_VERIFY(!fights());
    // The next window comes below the overlay, and the overlay stays below the one that insists.
    Menu menu(QRect(300, 300, 300, 200));
    menu.show();
    QTRY_VERIFY(isAbove(quint32(overlay.winId()), menu.id()));
}

void TestDesktopWindows::windowIsOnAllDesktops()
{
    LuQuickWindow overlay;
    overlay.setWindowFlags(LuPlatform::windowFlags | Qt::FramelessWindowHint);
    LuPlatform::setWindowJoinActiveSpaces(&overlay, true);
    overlay.setGeometry(50, 50, 300, 300);
    overlay.show();
    const auto desktop = [&] { return property(quint32(overlay.winId()), u"_NET_WM_DESKTOP"_s); };
    QTRY_COMPARE(desktop(), u"_NET_WM_DESKTOP(CARDINAL) = 4294967295"_s);
    LuPlatform::setWindowJoinActiveSpaces(&overlay, false);
    QTRY_COMPARE(desktop(), u"_NET_WM_DESKTOP(CARDINAL) = 0"_s);
    LuPlatform::setWindowJoinActiveSpaces(&overlay, true);
    QTRY_COMPARE(desktop(), u"_NET_WM_DESKTOP(CARDINAL) = 4294967295"_s);
    overlay.hide();
    overlay.show();
    // What the window manager does with the next window it does after it has let go of this one and taken it
    // again.
    QQuickWindow next;
    next.setGeometry(500, 50, 100, 100);
    next.show();
    QTRY_VERIFY(property(quint32(next.winId()), u"_NET_WM_DESKTOP"_s).contains(u'='));
    QTRY_COMPARE(desktop(), u"_NET_WM_DESKTOP(CARDINAL) = 4294967295"_s);
}

void TestDesktopWindows::overlayLetsThePointerThrough()
{
    m_windows->setGeometry(m_two.pid(), QRectF(100, 100, 500, 400));
    QTRY_COMPARE(outerRect(m_two.window()), QRect(100, 100, 500, 400));
    activate(m_two);
    LuQuickWindow overlay;
    showOverlay(&overlay);
    m_two.forget();
    m_server.moveTo(350, 300);
    m_server.button(1, true);
    m_server.button(1, false);
    QTRY_VERIFY(m_two.lines().contains(u"button 1"_s));
    // A window that is not transparent for input takes the click.
    PressCounter presses;
    overlay.installEventFilter(&presses);
    overlay.setWindowFlag(Qt::WindowTransparentForInput, false);
    overlay.enterFullScreen(true);
    QVERIFY(QTest::qWaitForWindowExposed(&overlay, PatienceMs));
    m_two.forget();
    m_server.button(1, true);
    m_server.button(1, false);
    QTRY_COMPARE(presses.count, 1);
    QVERIFY(!m_two.lines().contains(u"button 1"_s));
}

void TestDesktopWindows::nothingIsToldAfterStop()
{
    settle();
    QSignalSpy told(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged);
    m_set.events->stop();
    activate(m_one);
    activate(m_two);
    QCoreApplication::processEvents();
    m_set.events->start();
    activate(m_one);
    QTRY_COMPARE(told.count(), 1);
    QCOMPARE(told.last().first().value<unsigned long>(), m_one.pid());
}

DESKTOP_MAIN(TestDesktopWindows)
#include "tst_desktop_windows.moc"
