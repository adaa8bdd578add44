// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"
#include "MutterServer.h"
#include "OutputWitness.h"
#include "PlasmaSession.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <QScopeGuard>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int OrientationCode = 0xAA;

} // namespace

/// The whole program in a Wayland session: the sensor of a monitor turns the output that shows on it. The
/// session is Mutter's, or with the argument "--kwin" KWin's and KScreen's.
class tst_wayland_autopivot : public QObject
{
    Q_OBJECT

public:
    bool useKWin = false;

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void sensorTurnsTheOutput();
    void aPersonTurnsTheOutput();
    void theOtherMonitorTurnsItsOwnOutput();
    void hangingCompositorDoesNotHoldTheProgram();
    void endsCleanly();

private:
    QString startSession();
    QString monitorOf(int index)
    {
        return m_desk.client()
            .call(u"monitors"_s)
            .result.toArray()
            .at(index)
            .toObject()
            .value(u"id"_s)
            .toString();
    }
    bool set(const QString& path, const QJsonValue& value, int monitor = 0)
    {
        return m_desk.client()
            .call(u"set"_s, {{u"monitor"_s, monitorOf(monitor)}, {u"path"_s, path}, {u"value"_s, value}})
            .ok();
    }
    bool sense(int value, int monitor = 0)
    {
        return m_desk.client()
            .call(u"sim.set"_s,
                  {{u"monitor"_s, monitorOf(monitor)}, {u"code"_s, OrientationCode}, {u"value"_s, value}})
            .ok();
    }
    int degrees(int output) { return m_witness.output(output).degrees; }

    PlasmaSession m_session;
    MutterServer m_mutter;
    OutputWitness m_witness;
    DeskProcess m_desk;
};

QString tst_wayland_autopivot::startSession()
{
    QString problem = m_session.startBus();
    if (!problem.isEmpty())
        return problem;
    if (useKWin) {
        problem = m_session.startKWin();
        return problem.isEmpty() ? m_session.startKScreen() : problem;
    }
    return m_mutter.startOn(m_session.socket());
}

void tst_wayland_autopivot::initTestCase()
{
    QString problem = startSession();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    problem = m_witness.open(m_session.socket());
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    qputenv("WAYLAND_DISPLAY", KWinServer::display().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "wayland");
    QVERIFY2(m_desk.start({u"--headless"_s, u"--simulate"_s, u"TK30Z,TK40"_s, u"--services"_s, u"native"_s,
                           u"--ddc-timing"_s, u"fast"_s, u"--sync-period"_s, u"50"_s},
                          Patience),
             qPrintable(m_desk.errors()));
    QVERIFY(m_desk.client().call(u"idle"_s, {}, Patience).ok());
    QVERIFY2(m_desk.errors().contains(u"session wayland"_s), qPrintable(m_desk.errors()));
    for (const int monitor : {0, 1})
        QVERIFY(set(u"autoPivot.syncEnable"_s, true, monitor));
}

void tst_wayland_autopivot::cleanupTestCase()
{
    m_desk.stop();
    m_mutter.stop();
    m_session.stop();
}

void tst_wayland_autopivot::sensorTurnsTheOutput()
{
    QCOMPARE(degrees(0), 0);
    // Off, the sensor turns nothing.
    QVERIFY(sense(2));
    QVERIFY(m_desk.client()
                .call(u"sync"_s, {{u"monitor"_s, monitorOf(0)}, {u"module"_s, u"LuAutoPivot"_s}}, Patience)
                .ok());
    QVERIFY(m_desk.client().call(u"idle"_s, {}, Patience).ok());
    QCOMPARE(degrees(0), 0);

    QVERIFY(set(u"autoPivot.state"_s, true));
    QTRY_COMPARE_WITH_TIMEOUT(degrees(0), 90, Patience);
    QCOMPARE(degrees(1), 0);
    QTRY_COMPARE_WITH_TIMEOUT(m_desk.client().get(u"autoPivot.currentPivot"_s), QJsonValue(90), Patience);
    QCOMPARE(m_desk.client().get(u"autoPivot.isLandscape"_s), QJsonValue(false));
    QVERIFY(sense(3));
    QTRY_COMPARE_WITH_TIMEOUT(degrees(0), 270, Patience);
    QVERIFY(sense(1));
    QTRY_COMPARE_WITH_TIMEOUT(degrees(0), 0, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(m_desk.client().get(u"autoPivot.isLandscape"_s), QJsonValue(true), Patience);
    QVERIFY(set(u"autoPivot.state"_s, false));
}

void tst_wayland_autopivot::aPersonTurnsTheOutput()
{
    for (const int each : {180, 90, 0}) {
        QVERIFY(set(u"autoPivot.currentPivot"_s, each));
        QTRY_COMPARE_WITH_TIMEOUT(degrees(0), each, Patience);
        QCOMPARE(m_desk.client().get(u"autoPivot.currentPivot"_s), QJsonValue(each));
    }
}

void tst_wayland_autopivot::theOtherMonitorTurnsItsOwnOutput()
{
    QVERIFY(sense(2, 0));
    QVERIFY(sense(3, 1));
    QVERIFY(set(u"autoPivot.state"_s, true, 1));
    QTRY_COMPARE_WITH_TIMEOUT(degrees(1), 270, Patience);
    QCOMPARE(degrees(0), 0);
    QVERIFY(set(u"autoPivot.state"_s, true, 0));
    QTRY_COMPARE_WITH_TIMEOUT(degrees(0), 90, Patience);
    QCOMPARE(degrees(1), 270);
}

void tst_wayland_autopivot::hangingCompositorDoesNotHoldTheProgram()
{
    QCOMPARE(degrees(0), 90);
    ServerProcess& server = useKWin ? m_session.kscreen() : m_mutter;
    QVERIFY(server.pause(true));
    const auto goOn = qScopeGuard([&] { server.pause(false); });
    QVERIFY(sense(3));
    // The sensor's value comes in, and the program does what it is asked.
    QTRY_COMPARE_WITH_TIMEOUT(m_desk.client().get(u"autoPivot.currentPivot"_s), QJsonValue(270), Patience);
    QElapsedTimer elapsed;
    elapsed.start();
    QVERIFY(m_desk.client().set(u"brightness.displayBrightness"_s, 61).ok());
    QVERIFY(m_desk.client().call(u"monitors"_s).ok());
    QVERIFY2(elapsed.elapsed() < 2000, qPrintable(u"the program took %1 ms"_s.arg(elapsed.elapsed())));
    QVERIFY(server.pause(false));
    QTRY_COMPARE_WITH_TIMEOUT(degrees(0), 270, Patience);
}

void tst_wayland_autopivot::endsCleanly()
{
    QCOMPARE(m_desk.stop(), 0);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    tst_wayland_autopivot test;
    QStringList arguments = QCoreApplication::arguments();
    test.useKWin = arguments.removeAll(u"--kwin"_s) > 0;
    return QTest::qExec(&test, arguments);
}

#include "tst_wayland_autopivot.moc"
