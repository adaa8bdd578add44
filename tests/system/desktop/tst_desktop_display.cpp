// SPDX-License-Identifier: Apache-2.0
#include "DesktopTest.h"

#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>
#include <lushared/services/ServiceRegistry.h>
#include <services/api/DisplayService.h>
#include <services/x11/Connection.h>
#include <services/x11/Layout.h>
#include <services/x11/Outputs.h>
#include <services/x11/Resources.h>
#include <services/x11/X11Services.h>

#include <QSignalSpy>

#include <thread>

using namespace Qt::StringLiterals;

/// Display modes, rotation and scaling on a real X server; xrandr and xrdb are the witnesses.
class TestDesktopDisplay : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktopDisplay(XServer& server) : m_server(server) {}

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void pivotRotatesTheOutput_data();
    void pivotRotatesTheOutput();
    void neighboursFollow();
    void otherThreadsRotate();
    void aChangeIsToldOnce();
    void changesOfOthersAreTold();
    void resolutionsAreThoseOfTheRate();
    void resolutionIsSet_data();
    void resolutionIsSet();
    void turnedOutputTakesTurnedSizes();
    void hiDpiDoublesTheDesktop();
    void hiDpiWithoutRoomIsRefused();
    void hidpiMatchChoosesTheMode_data();
    void hidpiMatchChoosesTheMode();
    void scalingIsTheResources();
    void scalingsLeaveRoom();
    void nativeRectangles();
    void theKernelsConnectorIsTold_data();
    void theKernelsConnectorIsTold();
    void unknownMonitorsHaveNothing();
    void transformOfOthersStays();
    void layout_data();
    void layout();
    void resourcesText();
    void withoutRandrNothingIsThere();

private:
    void settle();
    static void setXftDpi(int dpi)
    {
        QCOMPARE(std::system(qPrintable(u"echo 'Xft.dpi: %1' | xrdb -merge"_s.arg(dpi))), 0);
    }
    static QString lineOf(const QString& output)
    {
        const QStringList lines = outputOf(u"xrandr"_s).split(u'\n');
        for (const QString& line : lines) {
            if (line.startsWith(output + u' '))
                return line;
        }
        return {};
    }
    static QString placeOf(const QString& output)
    {
        static const QRegularExpression pattern(
            u"([0-9]+x[0-9]+\\+[0-9]+\\+[0-9]+)( left| right| inverted)?"_s);
        return pattern.match(lineOf(output)).captured(0);
    }
    static QString desktop()
    {
        static const QRegularExpression pattern(u"current ([0-9]+ x [0-9]+)"_s);
        return pattern.match(outputOf(u"xrandr"_s)).captured(1);
    }

    XServer& m_server;
    services::ServiceSet m_set;
    const QSharedPointer<MonitorInfo> m_first = monitorOn(u"DUMMY0"_s);
    const QSharedPointer<MonitorInfo> m_second = monitorOn(u"DUMMY1"_s);
    const QSharedPointer<MonitorInfo> m_third = monitorOn(u"DUMMY2"_s);
};

void TestDesktopDisplay::initTestCase()
{
    QVERIFY(services::x11::addServices(&m_set));
    services::Registry::install(m_set);
}

void TestDesktopDisplay::init()
{
    QVERIFY(m_server.resetScreens());
    setXftDpi(96);
}

// Everything that the tests before changed has been told.
void TestDesktopDisplay::settle()
{
    int seen = 0;
    QObject context;
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged, &context,
            [&] { seen = LuPlatform::getMonitorDpiScaling(m_first); });
    for (const int dpi : {72, 96}) {
        setXftDpi(dpi);
        QTRY_COMPARE(seen, dpi * 100 / 96);
    }
}

void TestDesktopDisplay::cleanupTestCase()
{
    services::Registry::install({});
    m_set = {};
}

void TestDesktopDisplay::pivotRotatesTheOutput_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QString>("place");
    QTest::newRow("90") << 90 << u"1080x1920+0+0 left"_s;
    QTest::newRow("180") << 180 << u"1920x1080+0+0 inverted"_s;
    QTest::newRow("270") << 270 << u"1080x1920+0+0 right"_s;
    QTest::newRow("0") << 0 << u"1920x1080+0+0"_s;
}

void TestDesktopDisplay::pivotRotatesTheOutput()
{
    QFETCH(int, degrees);
    QFETCH(QString, place);
    LuPlatform::setMonitorPivot(m_first, degrees);
    QCOMPARE(placeOf(u"DUMMY0"_s), place);
    QCOMPARE(LuPlatform::getMonitorPivot(m_first), degrees);
    LuPlatform::setMonitorPivot(m_first, 0);
    QCOMPARE(placeOf(u"DUMMY0"_s), u"1920x1080+0+0"_s);
}

void TestDesktopDisplay::neighboursFollow()
{
    LuPlatform::setMonitorPivot(m_second, 90);
    QCOMPARE(placeOf(u"DUMMY0"_s), u"1920x1080+0+0"_s);
    QCOMPARE(placeOf(u"DUMMY1"_s), u"1024x1280+1920+0 left"_s);
    QCOMPARE(placeOf(u"DUMMY2"_s), u"1024x768+2944+0"_s);
    QCOMPARE(desktop(), u"3968 x 1280"_s);
    LuPlatform::setMonitorPivot(m_second, 0);
    QCOMPARE(placeOf(u"DUMMY2"_s), u"1024x768+3200+0"_s);
    QCOMPARE(desktop(), u"4224 x 1080"_s);
}

void TestDesktopDisplay::otherThreadsRotate()
{
    // As the read-backs of two monitors do.
    std::thread one([this] { LuPlatform::setMonitorPivot(m_first, 90); });
    std::thread other([this] { LuPlatform::setMonitorPivot(m_third, 270); });
    one.join();
    other.join();
    QCOMPARE(LuPlatform::getMonitorPivot(m_first), 90);
    QCOMPARE(LuPlatform::getMonitorPivot(m_third), 270);
    QCOMPARE(placeOf(u"DUMMY2"_s), u"768x1024+2360+0 right"_s);
}

void TestDesktopDisplay::aChangeIsToldOnce()
{
    settle();
    QSignalSpy told(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    int pivot = -1;
    const QObject scope; // a spy is no object in Qt 6.8
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged, &scope,
            [&] { pivot = LuPlatform::getMonitorPivot(m_first); });
    LuPlatform::setMonitorPivot(m_first, 90);
    QCOMPARE(told.count(), 0); // not within the call
    QTRY_COMPARE(told.count(), 1);
    QCOMPARE(pivot, 90);
    LuPlatform::setMonitorPivot(m_first, 90); // nothing changes
    LuPlatform::setMonitorPivot(m_first, 0);
    QTRY_COMPARE(told.count(), 2);
    QCOMPARE(pivot, 0);
    LuPlatform::setMonitorDpiScaling(m_first, 125);
    QTRY_COMPARE(told.count(), 3);
}

void TestDesktopDisplay::changesOfOthersAreTold()
{
    settle();
    QSignalSpy told(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    outputOf(u"xrandr --output DUMMY0 --rotate right"_s);
    QTRY_COMPARE(told.count(), 1);
    QCOMPARE(LuPlatform::getMonitorPivot(m_first), 270);
    outputOf(u"xrandr --output DUMMY2 --off"_s);
    QTRY_COMPARE(told.count(), 2);
    QVERIFY(!LuPlatform::getMonitorResolution(m_third).isValid());
}

void TestDesktopDisplay::resolutionsAreThoseOfTheRate()
{
    const QList<QSize> at75 = LuPlatform::availableMonitorResolutions(m_first, 75);
    QVERIFY(at75.contains(QSize(1280, 1024)));
    QVERIFY(!at75.contains(QSize(1920, 1080)));
    const QList<QSize> at60 = LuPlatform::availableMonitorResolutions(m_first, 60);
    QVERIFY(at60.contains(QSize(1920, 1080))); // 59.96 Hz
    const QList<QSize> all = LuPlatform::availableMonitorResolutions(m_first, 0);
    QVERIFY(all.size() > at60.size());
    for (const QSize& size : all)
        QCOMPARE(all.count(size), 1);
    QCOMPARE(LuPlatform::availableMonitorResolutions(m_first, 33), QList<QSize>());
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), QSize(1920, 1080));
}

void TestDesktopDisplay::resolutionIsSet_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rate");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("a size of the rate") << QSize(1280, 720) << 60 << true;
    QTest::newRow("another rate") << QSize(1280, 1024) << 75 << true;
    QTest::newRow("any rate") << QSize(1600, 1200) << 0 << true;
    QTest::newRow("kept from before a rotation") << QSize(720, 1280) << 60 << true;
    QTest::newRow("the present one") << QSize(1920, 1080) << 60 << true;
    QTest::newRow("no such size") << QSize(1000, 1000) << 60 << false;
    QTest::newRow("no such rate") << QSize(1920, 1080) << 144 << false;
    QTest::newRow("an invalid size") << QSize(-1, -1) << 60 << false;
}

void TestDesktopDisplay::resolutionIsSet()
{
    QFETCH(QSize, size);
    QFETCH(int, rate);
    QFETCH(bool, accepted);
    QCOMPARE(LuPlatform::setResolution(m_first, size, rate, true, LuPlatform::PreferSameHidpi), accepted);
    const QSize expected = !accepted                      ? QSize(1920, 1080)
                           : size.width() < size.height() ? size.transposed()
                                                          : size;
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), expected);
    QCOMPARE(placeOf(u"DUMMY0"_s), u"%1x%2+0+0"_s.arg(expected.width()).arg(expected.height()));
    QCOMPARE(placeOf(u"DUMMY1"_s), u"1280x1024+%1+0"_s.arg(expected.width()));
    if (accepted && rate > 0) {
        const QString active = outputOf(u"xrandr | sed -n '/^DUMMY0 /,/^DUMMY1 /p' | grep '\\*'"_s);
        const double found = QRegularExpression(u"([0-9.]+)\\*"_s).match(active).captured(1).toDouble();
        QCOMPARE(qRound(found), rate);
    }
}

void TestDesktopDisplay::turnedOutputTakesTurnedSizes()
{
    LuPlatform::setMonitorPivot(m_first, 90);
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), QSize(1080, 1920));
    QVERIFY(LuPlatform::availableMonitorResolutions(m_first, 60).contains(QSize(1280, 720)));
    QVERIFY(LuPlatform::setResolution(m_first, QSize(720, 1280), 60, true, LuPlatform::PreferSameHidpi));
    QCOMPARE(placeOf(u"DUMMY0"_s), u"720x1280+0+0 left"_s);
}

void TestDesktopDisplay::hiDpiDoublesTheDesktop()
{
    QVERIFY(!LuPlatform::getMonitorHiDPI(m_first));
    QVERIFY(LuPlatform::setMonitorHiDPI(m_first, true));
    QVERIFY(LuPlatform::getMonitorHiDPI(m_first));
    QCOMPARE(placeOf(u"DUMMY0"_s), u"3840x2160+0+0"_s);
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), QSize(1920, 1080));
    // Two other screens would show everything at twice the size.
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 100);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_second, true));
    QVERIFY(LuPlatform::setMonitorHiDPI(m_third, true));
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 200);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_first, false));
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 100);
    QCOMPARE(placeOf(u"DUMMY0"_s), u"1920x1080+0+0"_s);
    QCOMPARE(placeOf(u"DUMMY1"_s), u"2560x2048+1920+0"_s);
}

void TestDesktopDisplay::hiDpiWithoutRoomIsRefused()
{
    outputOf(u"xrandr --fb 32000x1080 --output DUMMY2 --pos 30900x0"_s);
    QCOMPARE(placeOf(u"DUMMY2"_s), u"1024x768+30900+0"_s);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"larger than the X server allows"_s));
    QVERIFY(!LuPlatform::setMonitorHiDPI(m_third, true));
    QVERIFY(!LuPlatform::getMonitorHiDPI(m_third));
    QCOMPARE(placeOf(u"DUMMY2"_s), u"1024x768+30900+0"_s);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_third, false));
}

void TestDesktopDisplay::hidpiMatchChoosesTheMode_data()
{
    QTest::addColumn<bool>("hiDpi");
    QTest::addColumn<int>("match");
    QTest::addColumn<bool>("hiDpiAfter");
    QTest::newRow("any, off") << false << int(LuPlatform::AnyHidpi) << false;
    QTest::newRow("any, on") << true << int(LuPlatform::AnyHidpi) << false;
    QTest::newRow("prefer, off") << false << int(LuPlatform::PreferSameHidpi) << false;
    QTest::newRow("prefer, on") << true << int(LuPlatform::PreferSameHidpi) << true;
    QTest::newRow("require, off") << false << int(LuPlatform::RequireSameHidpi) << false;
    QTest::newRow("require, on") << true << int(LuPlatform::RequireSameHidpi) << true;
}

void TestDesktopDisplay::hidpiMatchChoosesTheMode()
{
    QFETCH(bool, hiDpi);
    QFETCH(int, match);
    QFETCH(bool, hiDpiAfter);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_first, hiDpi));
    QVERIFY(
        LuPlatform::setResolution(m_first, QSize(1280, 720), 60, true, LuPlatform::HidpiMatchMode(match)));
    QCOMPARE(LuPlatform::getMonitorHiDPI(m_first), hiDpiAfter);
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), QSize(1280, 720));
    QCOMPARE(placeOf(u"DUMMY0"_s), hiDpiAfter ? u"2560x1440+0+0"_s : u"1280x720+0+0"_s);
}

void TestDesktopDisplay::scalingIsTheResources()
{
    QCOMPARE(std::system("echo 'XTerm*faceName: Mono' | xrdb -merge"), 0);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 100);
    LuPlatform::setMonitorDpiScaling(m_first, 150);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 150);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_second), 150); // of the whole session
    const QString resources = outputOf(u"xrdb -query"_s);
    QVERIFY2(resources.contains(u"Xft.dpi:\t144\n"_s), qPrintable(resources));
    QVERIFY2(resources.contains(u"XTerm*faceName:\tMono\n"_s), qPrintable(resources));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no scaling of 5000 percent"_s));
    LuPlatform::setMonitorDpiScaling(m_first, 5000);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no scaling of 0 percent"_s));
    LuPlatform::setMonitorDpiScaling(m_first, 0);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 150);
}

void TestDesktopDisplay::scalingsLeaveRoom()
{
    QCOMPARE(LuPlatform::availableMonitorDpiScalings(m_first), QList<int>({100, 125, 150, 175}));
    QCOMPARE(LuPlatform::availableMonitorDpiScalings(m_third), QList<int>({100, 125}));
    QVERIFY(LuPlatform::setMonitorHiDPI(m_first, true));
    QCOMPARE(LuPlatform::availableMonitorDpiScalings(m_first),
             QList<int>({100, 125, 150, 175, 200, 225, 250, 300, 350}));
}

void TestDesktopDisplay::nativeRectangles()
{
    QCOMPARE(LuPlatform::getNativeScreenRect(u"DUMMY1"_s), QRect(1920, 0, 1280, 1024));
    LuPlatform::setMonitorPivot(m_second, 270);
    QCOMPARE(LuPlatform::getNativeScreenRect(u"DUMMY1"_s), QRect(1920, 0, 1024, 1280));
    QCOMPARE(LuPlatform::getNativeScreenRect(u"DUMMY9"_s), QRect());
    QCOMPARE(LuPlatform::getNativeScreenRect(QString()), QRect());
}

void TestDesktopDisplay::theKernelsConnectorIsTold_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<int>("format");
    QTest::addColumn<QList<int>>("values");
    QTest::addColumn<int>("number");
    QTest::newRow("none") << u"DUMMY0"_s << 0 << QList<int>() << -1;
    QTest::newRow("one") << u"DUMMY0"_s << 32 << QList<int>{117} << 117;
    QTest::newRow("another output's") << u"DUMMY1"_s << 32 << QList<int>{118} << 118;
    QTest::newRow("no number of a connector") << u"DUMMY0"_s << 32 << QList<int>{0} << -1;
    QTest::newRow("two of them") << u"DUMMY0"_s << 32 << QList<int>{117, 118} << -1;
    QTest::newRow("of another size") << u"DUMMY0"_s << 8 << QList<int>{117} << -1;
    QTest::newRow("an output that is not there") << u"DP-9"_s << 0 << QList<int>() << -1;
}

void TestDesktopDisplay::theKernelsConnectorIsTold()
{
    QFETCH(QString, output);
    QFETCH(int, format);
    QFETCH(QList<int>, values);
    QFETCH(int, number);
    const auto connection = services::x11::Connection::open();
    QVERIFY(connection);
    const auto all = services::x11::Outputs::read(*connection);
    QVERIFY(all);
    const services::x11::Output* known = all->output(output);
    const xcb_atom_t property = connection->atom(services::x11::ConnectorId);
    if (format != 0) {
        QVERIFY(known);
        // As a driver does it when it makes its outputs.
        xcb_randr_change_output_property(*connection, known->id, property, XCB_ATOM_INTEGER,
                                         std::uint8_t(format), XCB_PROP_MODE_REPLACE,
                                         std::uint32_t(values.size()), values.constData());
        connection->sync();
    }
    const auto display = services::Registry::current().display;
    QVERIFY(display);
    QCOMPARE(display->connectorId(output).value_or(-1), number);
    if (format != 0) {
        xcb_randr_delete_output_property(*connection, known->id, property);
        connection->sync();
    }
}

void TestDesktopDisplay::unknownMonitorsHaveNothing()
{
    const auto nowhere = monitorOn(u"HDMI-7"_s);
    QCOMPARE(LuPlatform::getMonitorPivot(nowhere), 0);
    QCOMPARE(LuPlatform::availableMonitorResolutions(nowhere, 60), QList<QSize>());
    QVERIFY(!LuPlatform::getMonitorResolution(nowhere).isValid());
    QCOMPARE(LuPlatform::availableMonitorDpiScalings(nowhere), QList<int>());
    QCOMPARE(LuPlatform::getMonitorDpiScaling(nowhere), 0);
    QVERIFY(!LuPlatform::getMonitorHiDPI(nowhere));
    QVERIFY(!LuPlatform::setMonitorHiDPI(nowhere, true));
    QVERIFY(!LuPlatform::setResolution(nowhere, QSize(1280, 720), 60, true, LuPlatform::AnyHidpi));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no output to rotate for M@HDMI-7"_s));
    LuPlatform::setMonitorPivot(nowhere, 90);
    LuPlatform::setMonitorDpiScaling(nowhere, 125);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 100);
}

void TestDesktopDisplay::transformOfOthersStays()
{
    outputOf(u"xrandr --output DUMMY0 --transform 1,0.2,0,0,1,0,0,0,1"_s);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"left alone"_s));
    LuPlatform::setMonitorPivot(m_first, 90);
    QCOMPARE(LuPlatform::getMonitorPivot(m_first), 0);
}

void TestDesktopDisplay::layout_data()
{
    QTest::addColumn<QList<QRect>>("before");
    QTest::addColumn<int>("changed");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QList<QRect>>("after");
    const QRect left(0, 0, 1920, 1080);
    QTest::newRow("alone") << QList<QRect>{left} << 0 << QSize(1080, 1920)
                           << QList<QRect>{{0, 0, 1080, 1920}};
    QTest::newRow("beside") << QList<QRect>{left, {1920, 0, 1280, 1024}} << 0 << QSize(1080, 1920)
                            << QList<QRect>{{0, 0, 1080, 1920}, {1080, 0, 1280, 1024}};
    QTest::newRow("below") << QList<QRect>{left, {0, 1080, 1920, 1080}} << 0 << QSize(1080, 1920)
                           << QList<QRect>{{0, 0, 1080, 1920}, {0, 1920, 1920, 1080}};
    QTest::newRow("the right one") << QList<QRect>{left, {1920, 0, 1280, 1024}} << 1 << QSize(1024, 1280)
                                   << QList<QRect>{left, {1920, 0, 1024, 1280}};
    QTest::newRow("mirrored") << QList<QRect>{left, left} << 0 << QSize(1080, 1920)
                              << QList<QRect>{{0, 0, 1080, 1920}, left};
    // The lower screen reaches further to the right than the upper one: what stood beside it must not lie
    // over it.
    QTest::newRow("in the way") << QList<QRect>{left, {1920, 500, 800, 600}, {0, 1080, 1900, 900}} << 0
                                << QSize(1280, 720)
                                << QList<QRect>{
                                       {0, 0, 1280, 720}, {1900, 500, 800, 600}, {0, 720, 1900, 900}};
    QTest::newRow("left of the origin")
        << QList<QRect>{{100, 50, 1920, 1080}} << 0 << QSize(800, 600) << QList<QRect>{{0, 0, 800, 600}};
}

void TestDesktopDisplay::layout()
{
    QFETCH(QList<QRect>, before);
    QFETCH(int, changed);
    QFETCH(QSize, size);
    QTEST(services::x11::relaidOut(before, changed, size), "after");
}

void TestDesktopDisplay::resourcesText()
{
    using namespace services::x11;
    QCOMPARE(xftDpiOf("Xft.dpi:\t120\n"), 120.0);
    QCOMPARE(xftDpiOf("Xft.antialias: 1\nXft.dpi : 96.5\n"), 96.5);
    QCOMPARE(xftDpiOf("XXft.dpi: 7\n"), 0.0);
    QCOMPARE(xftDpiOf("Xft.dpi: many"), 0.0);
    QCOMPARE(xftDpiOf(""), 0.0);
    QCOMPARE(withXftDpi("", 96), QByteArray("Xft.dpi:\t96\n"));
    QCOMPARE(withXftDpi("Xft.dpi: 1\nA.b:\tc\nXft.dpi: 2", 96), QByteArray("A.b:\tc\nXft.dpi:\t96\n"));
}

void TestDesktopDisplay::withoutRandrNothingIsThere()
{
    XServer bare;
    const QByteArray display = qgetenv("DISPLAY");
    QVERIFY2(bare.start({{"-extension", "RANDR"}}) || bare.error().find("xrandr") != std::string::npos,
             bare.error().c_str());
    services::ServiceSet set;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"lacks RandR"_s));
    QVERIFY(services::x11::addServices(&set));
    services::Registry::install(set);
    QCOMPARE(LuPlatform::getMonitorPivot(m_first), 0);
    QVERIFY(!LuPlatform::getMonitorResolution(m_first).isValid());
    QVERIFY(!LuPlatform::setMonitorHiDPI(m_first, true));
    QCOMPARE(LuPlatform::getNativeScreenRect(u"DUMMY0"_s), QRect());
    // Nor when the whole server goes.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"the connection to the X server is lost"_s));
    bare.stop();
    QCOMPARE(LuPlatform::getMonitorPivot(m_first), 0);
    QCoreApplication::processEvents();
    services::Registry::install(m_set);
    qputenv("DISPLAY", display);
}

DESKTOP_MAIN(TestDesktopDisplay)
#include "tst_desktop_display.moc"
