// SPDX-License-Identifier: Apache-2.0
#include "DesktopTest.h"

#include <DeskProcess.h>

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QRasterWindow>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

/// A white window over a whole screen that counts what is clicked on it: another application.
class WhiteWindow : public QRasterWindow
{
public:
    explicit WhiteWindow(QScreen* screen, Qt::WindowFlags kind = {})
    {
        setFlags(Qt::FramelessWindowHint | kind);
        setScreen(screen);
        setGeometry(screen->geometry());
        show();
    }
    int clicks = 0;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(QRect(QPoint(), size()), Qt::white);
    }
    void mousePressEvent(QMouseEvent*) override { ++clicks; }
};

} // namespace

/// The overlay of the running program on a real X server with three screens, a window manager and a
/// compositor: what a person sees is read from the picture of the screens.
class TestDesktopOverlay : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktopOverlay(XServer& server) : m_server(server) {}

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void theMonitorsOwnScreenIsDarkened();
    void itStaysAboveOtherWindows();
    void menusAreDarkenedAndUsable();
    void clicksGoThroughIt();
    void itShowsOnEveryDesktop();
    void itIsTheSameAfterItWasClosed();
    void withoutACompositorItStaysClosed();

private:
    bool dim(int brightness);
    bool overlayShows();
    static bool goToDesktop(int number);
    QScreen* screenOf(const QString& name) const;
    /// Lightness of a screen, 0 to 255; -1 where it is not even all over its corners and its middle.
    int lightness(const QString& screen) const;

    XServer& m_server;
    Beside m_windowManager;
    std::unique_ptr<Beside> m_compositor;
    DeskProcess m_desk;
    std::vector<std::unique_ptr<WhiteWindow>> m_white;
};

QScreen* TestDesktopOverlay::screenOf(const QString& name) const
{
    for (QScreen* screen : QGuiApplication::screens()) {
        if (screen->name() == name)
            return screen;
    }
    return nullptr;
}

int TestDesktopOverlay::lightness(const QString& name) const
{
    QScreen* screen = screenOf(name);
    if (!screen)
        return -1;
    const QRect area = screen->geometry();
    const QImage picture = QGuiApplication::primaryScreen()
                               ->grabWindow(0, area.x() - QGuiApplication::primaryScreen()->geometry().x(),
                                            area.y(), area.width(), area.height())
                               .toImage();
    if (picture.size() != area.size())
        return -1;
    const int right = picture.width() - 1;
    const int bottom = picture.height() - 1;
    const int middle = qGray(picture.pixel(right / 2, bottom / 2));
    for (const QPoint& point : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)}) {
        if (qGray(picture.pixel(point)) != middle)
            return -1;
    }
    return middle;
}

bool TestDesktopOverlay::dim(int brightness)
{
    const QJsonObject monitor{{u"monitor"_s, u"TK30Z@B"_s}};
    QJsonObject write = monitor;
    write.insert(u"path"_s, u"brightness.displayBrightness"_s);
    write.insert(u"value"_s, brightness);
    return m_desk.client().call(u"set"_s, write).ok() && m_desk.client().call(u"idle"_s, monitor).ok();
}

bool TestDesktopOverlay::goToDesktop(int number)
{
    return std::system(qPrintable(u"xdotool set_num_desktops 2 set_desktop %1"_s.arg(number))) == 0 &&
           QTest::qWaitFor(
               [number] { return outputOf(u"xdotool get_desktop"_s).trimmed().toInt() == number; }, 20000);
}

bool TestDesktopOverlay::overlayShows()
{
    return m_desk.client()
        .call(u"sim.overlay"_s, {{u"monitor"_s, u"TK30Z@B"_s}})
        .result.toObject()
        .value(u"visible"_s)
        .toBool();
}

void TestDesktopOverlay::initTestCase()
{
    QVERIFY(m_windowManager.start(u"openbox"_s, {}));
    QTRY_VERIFY_WITH_TIMEOUT(outputOf(u"xprop -root _NET_SUPPORTING_WM_CHECK"_s).contains(u"window id"_s),
                             20000);
    m_compositor = std::make_unique<Beside>();
    QVERIFY(m_compositor->start(u"xcompmgr"_s, {u"-n"_s}));
    // Each monitor shows a screen, in turn.
    QVERIFY2(m_desk.start({u"--headless"_s, u"--simulate"_s, u"TK30Z@A,TK30Z@B,TK30Z@C"_s, u"--ddc-timing"_s,
                           u"fast"_s, u"--services"_s, u"native"_s},
                          90000),
             qPrintable(m_desk.errors()));
    for (QScreen* screen : QGuiApplication::screens())
        m_white.push_back(std::make_unique<WhiteWindow>(screen));
}

void TestDesktopOverlay::cleanupTestCase()
{
    m_white.clear();
    QCOMPARE(m_desk.stop(), 0);
}

void TestDesktopOverlay::init()
{
    QVERIFY(dim(80));
    for (const char* screen : {"DUMMY0", "DUMMY1", "DUMMY2"})
        QTRY_COMPARE_WITH_TIMEOUT(lightness(QString::fromLatin1(screen)), 255, 20000);
}

void TestDesktopOverlay::theMonitorsOwnScreenIsDarkened()
{
    QVERIFY(dim(10));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
    QCOMPARE(lightness(u"DUMMY0"_s), 255);
    QCOMPARE(lightness(u"DUMMY2"_s), 255);
    // Less where less is asked for, and nothing at the end of the range.
    QVERIFY(dim(20));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 166) <= 2, 20000);
    QVERIFY(dim(30));
    QTRY_COMPARE_WITH_TIMEOUT(lightness(u"DUMMY1"_s), 255, 20000);
    QVERIFY(!overlayShows());
}

void TestDesktopOverlay::itStaysAboveOtherWindows()
{
    QVERIFY(dim(10));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
    WhiteWindow above(screenOf(u"DUMMY1"_s));
    QVERIFY(QTest::qWaitForWindowExposed(&above, 20000));
    above.raise();
    above.requestActivate();
    QTRY_COMPARE_WITH_TIMEOUT(QGuiApplication::focusWindow(), &above, 20000);
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
    // A window of the whole screen as a film player has it.
    above.showFullScreen();
    QTRY_VERIFY_WITH_TIMEOUT(above.windowStates() & Qt::WindowFullScreen, 20000);
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
}

void TestDesktopOverlay::menusAreDarkenedAndUsable()
{
    QVERIFY(dim(10));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
    // As menus and tool tips are, it is none of the window manager's.
    WhiteWindow menu(screenOf(u"DUMMY1"_s), Qt::BypassWindowManagerHint);
    QVERIFY(QTest::qWaitForWindowExposed(&menu, 20000));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
    const QPoint middle = screenOf(u"DUMMY1"_s)->geometry().center();
    m_server.moveTo(middle.x(), middle.y());
    m_server.button(1, true);
    m_server.button(1, false);
    QTRY_COMPARE_WITH_TIMEOUT(menu.clicks, 1, 20000);
    menu.raise();
    WhiteWindow tip(screenOf(u"DUMMY1"_s), Qt::ToolTip);
    QVERIFY(QTest::qWaitForWindowExposed(&tip, 20000));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
}

void TestDesktopOverlay::clicksGoThroughIt()
{
    QVERIFY(dim(10));
    QTRY_VERIFY_WITH_TIMEOUT(overlayShows(), 20000);
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
    WhiteWindow below(screenOf(u"DUMMY1"_s));
    QVERIFY(QTest::qWaitForWindowExposed(&below, 20000));
    const QPoint middle = screenOf(u"DUMMY1"_s)->geometry().center();
    m_server.moveTo(middle.x(), middle.y());
    m_server.button(1, true);
    m_server.button(1, false);
    QTRY_COMPARE_WITH_TIMEOUT(below.clicks, 1, 20000);
}

void TestDesktopOverlay::itShowsOnEveryDesktop()
{
    QVERIFY(dim(10));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
    QVERIFY(goToDesktop(1));
    const WhiteWindow other(screenOf(u"DUMMY1"_s));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
    QVERIFY(goToDesktop(0));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
}

void TestDesktopOverlay::itIsTheSameAfterItWasClosed()
{
    for (int round = 0; round < 2; ++round) {
        QVERIFY(dim(10));
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
        QVERIFY(dim(60));
        QTRY_COMPARE_WITH_TIMEOUT(lightness(u"DUMMY1"_s), 255, 20000);
    }
    QVERIFY(dim(10));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
    QVERIFY(goToDesktop(1));
    const WhiteWindow other(screenOf(u"DUMMY1"_s));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(lightness(u"DUMMY1"_s) - 76) <= 2, 20000);
    QVERIFY(goToDesktop(0));
}

void TestDesktopOverlay::withoutACompositorItStaysClosed()
{
    m_compositor.reset();
    // It would be black altogether.
    QVERIFY(dim(80));
    QVERIFY(dim(5));
    QVERIFY(!overlayShows());
    QCOMPARE(lightness(u"DUMMY1"_s), 255);
}

DESKTOP_MAIN(TestDesktopOverlay)
#include "tst_desktop_overlay.moc"
