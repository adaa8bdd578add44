// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>

#include "KWinServer.h"
#include "PrivateBus.h"
#include "ddc/Bus.h"
#include "lushared/services/ServiceRegistry.h"
#include "panelcore/MonitorLink.h"
#include "services/wayland/WaylandServices.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

bool isOnBus(const QString& name)
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(name);
}

QSharedPointer<MonitorInfo> monitorOn(const QString& connector)
{
    MonitorDescription description;
    description.id = connector;
    description.nativeHandle = connector;
    return MonitorLink::create(description, nullptr, MonitorLink::Waits::None);
}

} // namespace

/// A compositor without a screen, with two outputs side by side: Mutter, or with the argument "--kwin" KWin.
class tst_compositor : public QObject
{
    Q_OBJECT

public:
    bool useKWin = false;

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void outputsAreKnown();
    void unknownOutputIsAbsent();
    void outputTurns_data();
    void outputTurns();
    void outputScales();
    void modeIsSetAgain();
    void unknownModeIsRefused();
    void whatWaylandKeepsIsAbsent();

private:
    QString startMutter();
    QString startKWin();
    /// The outputs' rectangles touch each other and nothing else.
    void checkNeighbours();

    QTemporaryDir m_home;
    PrivateBus m_bus;
    ServerProcess m_compositor;
    KWinServer m_kwin;
    ServerProcess m_kscreen;
    QString m_firstName;
    QString m_secondName;
    QSize m_size;
    QSharedPointer<MonitorInfo> m_first;
    QSharedPointer<MonitorInfo> m_second;
};

QString tst_compositor::startMutter()
{
    m_firstName = u"Meta-0"_s;
    m_secondName = u"Meta-1"_s;
    m_size = QSize(1920, 1080);
    return m_compositor.start(
        u"mutter"_s,
        {u"--headless"_s, u"--wayland"_s, u"--no-x11"_s, u"--virtual-monitor"_s, u"1920x1080"_s,
         u"--virtual-monitor"_s, u"1280x1024"_s},
        [] { return isOnBus(u"org.gnome.Mutter.DisplayConfig"_s); }, 60'000);
}

QString tst_compositor::startKWin()
{
    m_firstName = u"Virtual-0"_s;
    m_secondName = u"Virtual-1"_s;
    m_size = QSize(1024, 768);
    const QString problem = m_kwin.start(m_home.path());
    if (!problem.isEmpty())
        return problem;
    // What Plasma starts by the bus, with the session's environment.
    const QStringList places = QDir(u"/usr/lib"_s).entryList({u"*-linux-gnu*"_s}, QDir::Dirs);
    QString launcher;
    for (const QString& place : places) {
        for (const QString& folder : {u"libexec/kf5"_s, u"libexec/kf6"_s}) {
            const QString candidate = u"/usr/lib/"_s + place + u'/' + folder + u"/kscreen_backend_launcher"_s;
            if (QFile::exists(candidate))
                launcher = candidate;
        }
    }
    if (launcher.isEmpty())
        return u"KScreen's back end is not installed"_s;
    m_kscreen.environment.insert(u"WAYLAND_DISPLAY"_s, KWinServer::display());
    m_kscreen.environment.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
    return m_kscreen.start(
        launcher, {}, [] { return isOnBus(u"org.kde.KScreen"_s); }, 60'000);
}

void tst_compositor::initTestCase()
{
    for (const char* const variable : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(variable, m_home.path().toLocal8Bit());
    qunsetenv("WAYLAND_DISPLAY");
    qunsetenv("DISPLAY");
    QString problem = m_bus.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
    for (ServerProcess* const server : {&m_compositor, &m_kscreen})
        server->environment = QProcessEnvironment::systemEnvironment();
    problem = useKWin ? startKWin() : startMutter();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    m_first = monitorOn(m_firstName);
    m_second = monitorOn(m_secondName);
    services::ServiceSet set;
    services::wayland::addServices(&set);
    QVERIFY(set.display);
    services::Registry::install(set);
}

void tst_compositor::cleanupTestCase()
{
    services::Registry::install({});
    m_kscreen.stop();
    m_kwin.stop();
    m_compositor.stop();
}

void tst_compositor::checkNeighbours()
{
    const QRect first = LuPlatform::getNativeScreenRect(m_firstName);
    const QRect second = LuPlatform::getNativeScreenRect(m_secondName);
    QVERIFY(!first.isEmpty() && !second.isEmpty());
    QCOMPARE(second.x(), first.x() + first.width());
}

void tst_compositor::outputsAreKnown()
{
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), m_size);
    QCOMPARE(LuPlatform::availableMonitorResolutions(m_first, 60), QList<QSize>{m_size});
    QCOMPARE(LuPlatform::getMonitorPivot(m_first), 0);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 100);
    QVERIFY(LuPlatform::availableMonitorDpiScalings(m_first).contains(200));
    QVERIFY(LuPlatform::getMonitorResolution(m_second).isValid());
    checkNeighbours();
}

void tst_compositor::unknownOutputIsAbsent()
{
    QVERIFY(!LuPlatform::getMonitorResolution(monitorOn(u"DP-9"_s)).isValid());
    QVERIFY(!LuPlatform::setResolution(monitorOn(u"DP-9"_s), m_size, 60, false, LuPlatform::AnyHidpi));
}

void tst_compositor::outputTurns_data()
{
    QTest::addColumn<int>("degrees");
    for (const int degrees : {90, 180, 270, 0})
        QTest::addRow("%d", degrees) << degrees;
}

void tst_compositor::outputTurns()
{
    QFETCH(int, degrees);
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    LuPlatform::setMonitorPivot(m_first, degrees);
    QTRY_COMPARE(LuPlatform::getMonitorPivot(m_first), degrees);
    QTRY_COMPARE(LuPlatform::getMonitorResolution(m_first), degrees % 180 ? m_size.transposed() : m_size);
    QTRY_VERIFY(changed.count() >= 1);
    QCOMPARE(LuPlatform::getMonitorPivot(m_second), 0);
    checkNeighbours();
}

void tst_compositor::outputScales()
{
    QVERIFY(LuPlatform::setMonitorHiDPI(m_first, true));
    QTRY_COMPARE(LuPlatform::getMonitorDpiScaling(m_first), 200);
    QVERIFY(LuPlatform::getMonitorHiDPI(m_first));
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), m_size);
    LuPlatform::setMonitorDpiScaling(m_first, 100);
    QTRY_COMPARE(LuPlatform::getMonitorDpiScaling(m_first), 100);
    LuPlatform::setMonitorDpiScaling(m_first, 1000); // not offered
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 100);
}

// The compositors' virtual outputs have one mode each.
void tst_compositor::modeIsSetAgain()
{
    QVERIFY(LuPlatform::setResolution(m_first, m_size, 60, false, LuPlatform::RequireSameHidpi));
    QTRY_COMPARE(LuPlatform::getMonitorResolution(m_first), m_size);
}

void tst_compositor::unknownModeIsRefused()
{
    QVERIFY(!LuPlatform::setResolution(m_first, QSize(123, 45), 60, false, LuPlatform::AnyHidpi));
    QVERIFY(!LuPlatform::setResolution(m_first, m_size, 77, false, LuPlatform::AnyHidpi));
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), m_size);
}

void tst_compositor::whatWaylandKeepsIsAbsent()
{
    const services::ServiceSet set = services::Registry::current();
    QVERIFY(!set.windows && !set.clipboardKeys && !set.pointer && !set.kvm);
    QCOMPARE(bool(set.events), useKWin);
    LuPlatform::simulateCopy();
    LuPlatform::simulatePaste();
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    tst_compositor test;
    QStringList arguments = QCoreApplication::arguments();
    test.useKWin = arguments.removeAll(u"--kwin"_s) > 0;
    return QTest::qExec(&test, arguments);
}

#include "tst_compositor.moc"
