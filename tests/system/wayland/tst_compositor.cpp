// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>

#include "OutputWitness.h"
#include "PlasmaSession.h"
#include "ddc/Bus.h"
#include "lushared/services/ServiceRegistry.h"
#include "panelcore/MonitorLink.h"
#include "services/api/DesktopEvents.h"
#include "services/api/DisplayService.h"
#include "services/api/WindowService.h"
#include "services/wayland/WaylandServices.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <algorithm>
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
    void hangingCompositorStopsNobody();
    void hangingCompositorDoesNotHoldTheStart();

private:
    QString startMutter();
    QString startKWin();
    void checkNeighbours();
    /// Who answers for the displays on the bus.
    ServerProcess& displayServer() { return useKWin ? m_session.kscreen() : m_compositor; }
    OutputWitness::Output witnessed() { return m_witness.output(0); }

    PlasmaSession m_session;
    ServerProcess m_compositor;
    OutputWitness m_witness;
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
    m_compositor.environment = QProcessEnvironment::systemEnvironment();
    const QString socket = m_session.folder() + u"/test-wayland"_s;
    const QString problem = m_compositor.start(
        u"mutter"_s,
        {u"--headless"_s, u"--wayland"_s, u"--no-x11"_s, u"--wayland-display"_s, u"test-wayland"_s,
         u"--virtual-monitor"_s, u"1920x1080"_s, u"--virtual-monitor"_s, u"1280x1024"_s},
        [socket] { return isOnBus(u"org.gnome.Mutter.DisplayConfig"_s) && QFile::exists(socket); },
        2 * Patience);
    return problem.isEmpty() ? m_witness.open(socket) : problem;
}

QString tst_compositor::startKWin()
{
    m_firstName = u"Virtual-0"_s;
    m_secondName = u"Virtual-1"_s;
    m_size = QSize(1024, 768);
    QString problem = m_session.startKWin();
    if (problem.isEmpty())
        problem = m_session.startKScreen();
    return problem.isEmpty() ? m_witness.open(m_session.socket()) : problem;
}

void tst_compositor::initTestCase()
{
    QString problem = m_session.startBus();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    problem = useKWin ? startKWin() : startMutter();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    m_first = monitorOn(m_firstName);
    m_second = monitorOn(m_secondName);
    services::ServiceSet set;
    services::wayland::addServices(&set);
    QVERIFY(set.display);
    services::Registry::install(set);
    // A busy compositor gives its first answer later.
    QTRY_VERIFY_WITH_TIMEOUT(set.display->isAvailable(), Patience);
}

void tst_compositor::cleanupTestCase()
{
    services::Registry::install({});
    m_compositor.stop();
    m_session.stop();
}

// What programs see: the outputs touch each other and nothing else.
void tst_compositor::checkNeighbours()
{
    const auto edges = [&] {
        const QRect first = LuPlatform::getNativeScreenRect(m_firstName);
        const QRect second = LuPlatform::getNativeScreenRect(m_secondName);
        const OutputWitness::Output left = m_witness.output(0);
        const OutputWitness::Output right = m_witness.output(1);
        const QSize turned = left.degrees % 180 ? left.mode.transposed() : left.mode;
        return QList<int>{second.x(), right.position.x(), first.x() + first.width(),
                          left.position.x() + turned.width()};
    };
    QTRY_COMPARE_WITH_TIMEOUT(edges(), QList<int>(4, edges().last()), Patience);
    QVERIFY(edges().last() > 0);
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
    QCOMPARE(LuPlatform::getMonitorPivot(m_first), degrees);
    QTRY_COMPARE_WITH_TIMEOUT(witnessed().degrees, degrees, Patience);
    QCOMPARE(witnessed().mode, m_size);
    QTRY_VERIFY_WITH_TIMEOUT(changed.count() >= 1, Patience);
    QCOMPARE(LuPlatform::getMonitorPivot(m_first), degrees);
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), degrees % 180 ? m_size.transposed() : m_size);
    QCOMPARE(LuPlatform::getMonitorPivot(m_second), 0);
    checkNeighbours();
}

void tst_compositor::outputScales()
{
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_first, true));
    QTRY_COMPARE_WITH_TIMEOUT(witnessed().scale, 2, Patience);
    QTRY_VERIFY_WITH_TIMEOUT(!changed.isEmpty(), Patience);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 200);
    QVERIFY(LuPlatform::getMonitorHiDPI(m_first));
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), m_size);
    changed.clear();
    LuPlatform::setMonitorDpiScaling(m_first, 100);
    QTRY_COMPARE_WITH_TIMEOUT(witnessed().scale, 1, Patience);
    QTRY_VERIFY_WITH_TIMEOUT(!changed.isEmpty(), Patience);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 100);
    LuPlatform::setMonitorDpiScaling(m_first, 1000); // not offered
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 100);
}

// The compositors' virtual outputs have one mode each.
void tst_compositor::modeIsSetAgain()
{
    QVERIFY(LuPlatform::setResolution(m_first, m_size, 60, false, LuPlatform::RequireSameHidpi));
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), m_size);
    QTRY_COMPARE_WITH_TIMEOUT(witnessed().mode, m_size, Patience);
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
    QVERIFY(!set.clipboardKeys && !set.pointer && !set.kvm);
    QVERIFY(set.windows && !set.windows->keepsAbove());
    QVERIFY(set.events && !set.events->hearsEveryKey());
    QCOMPARE(set.events->takesActionKeys(), useKWin); // there is no portal
    QCOMPARE(set.events->seesWindows(), useKWin);
    LuPlatform::simulateCopy();
    LuPlatform::simulatePaste();
}

// One answer that somebody waited for takes 3 s or, without a limit, the bus's own 25 s.
constexpr int StallMs = 2000;

void tst_compositor::hangingCompositorStopsNobody()
{
    QCOMPARE(witnessed().degrees, 0);
    QVERIFY(displayServer().pause(true));
    const auto goOn = qScopeGuard([this] { displayServer().pause(false); });
    QElapsedTimer since;
    qint64 longest = 0;
    int turns = 0;
    QTimer turn;
    connect(&turn, &QTimer::timeout, this, [&] {
        longest = std::max(longest, since.restart());
        ++turns;
    });
    turn.start(10);
    since.start();
    LuPlatform::setMonitorPivot(m_first, 90);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_first, true));
    QVERIFY(LuPlatform::setResolution(m_first, m_size, 60, false, LuPlatform::RequireSameHidpi));
    LuPlatform::setMonitorPivot(m_second, 180);
    // What is on its way counts.
    QCOMPARE(LuPlatform::getMonitorPivot(m_first), 90);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_first), 200);
    QCOMPARE(LuPlatform::getMonitorResolution(m_first), m_size.transposed());
    QVERIFY(!LuPlatform::setResolution(m_first, QSize(123, 45), 60, false, LuPlatform::AnyHidpi));
    QTRY_VERIFY_WITH_TIMEOUT(turns >= 50, Patience);
    QVERIFY2(longest < StallMs, qPrintable(u"the event loop stood for %1 ms"_s.arg(longest)));
    QVERIFY(displayServer().pause(false));
    QTRY_COMPARE_WITH_TIMEOUT(witnessed().degrees, 90, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(witnessed().scale, 2, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(m_witness.output(1).degrees, 180, Patience);
    LuPlatform::setMonitorPivot(m_first, 0);
    LuPlatform::setMonitorDpiScaling(m_first, 100);
    LuPlatform::setMonitorPivot(m_second, 0);
    QTRY_COMPARE_WITH_TIMEOUT(witnessed().degrees, 0, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(witnessed().scale, 1, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(m_witness.output(1).degrees, 0, Patience);
    QVERIFY2(longest < StallMs, qPrintable(u"the event loop stood for %1 ms"_s.arg(longest)));
}

void tst_compositor::hangingCompositorDoesNotHoldTheStart()
{
    QVERIFY(displayServer().pause(true));
    const auto goOn = qScopeGuard([this] { displayServer().pause(false); });
    QElapsedTimer elapsed;
    elapsed.start();
    services::ServiceSet set;
    services::wayland::addServices(&set);
    QVERIFY2(elapsed.elapsed() < StallMs, qPrintable(u"the start stood for %1 ms"_s.arg(elapsed.elapsed())));
    QVERIFY(!set.display->isAvailable());
    QVERIFY(!set.display->resolution(*m_first).isValid());
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    QVERIFY(displayServer().pause(false));
    QTRY_VERIFY_WITH_TIMEOUT(set.display->isAvailable(), Patience);
    QVERIFY(!changed.isEmpty());
    QCOMPARE(set.display->resolution(*m_first), m_size);
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
