// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"
#include "DesktopTest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int OrientationCode = 0xAA;

} // namespace

/// The whole program on a real X server: the sensor of a monitor turns the output that shows on it.
class TestDesktopAutoPivot : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktopAutoPivot(XServer& server) : m_server(server) {}

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void sensorTurnsTheOutput();
    void aPersonTurnsTheOutput();
    void theDesktopsOwnTurnIsFollowed();
    void twoMonitorsTurnTheirOwnOutputs();
    void endsCleanly();

private:
    static QString placeOf(const QString& output)
    {
        const QString text = outputOf(u"xrandr"_s);
        return QRegularExpression(
                   u"^%1 connected (?:primary )?([0-9]+x[0-9]+\\+[0-9]+\\+[0-9]+(?: left| right| "
                   "inverted)?)"_s.arg(output),
                   QRegularExpression::MultilineOption)
            .match(text)
            .captured(1);
    }
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
    void sense(int value, int monitor = 0)
    {
        QVERIFY(
            m_desk.client()
                .call(u"sim.set"_s,
                      {{u"monitor"_s, monitorOf(monitor)}, {u"code"_s, OrientationCode}, {u"value"_s, value}})
                .ok());
    }

    XServer& m_server;
    DeskProcess m_desk;
};

void TestDesktopAutoPivot::initTestCase()
{
    QVERIFY2(m_desk.start({u"--headless"_s, u"--simulate"_s, u"TK30Z,TK40"_s, u"--services"_s, u"native"_s,
                           u"--ddc-timing"_s, u"fast"_s, u"--sync-period"_s, u"50"_s}),
             qPrintable(m_desk.errors()));
    QVERIFY(m_desk.client().call(u"idle"_s).ok());
    QVERIFY2(m_desk.errors().contains(u"session x11"_s), qPrintable(m_desk.errors()));
    for (int monitor : {0, 1}) {
        const QJsonObject state{
            {u"monitor"_s, monitorOf(monitor)}, {u"path"_s, u"autoPivot.syncEnable"_s}, {u"value"_s, true}};
        QVERIFY(m_desk.client().call(u"set"_s, state).ok());
    }
}

void TestDesktopAutoPivot::cleanupTestCase()
{
    m_desk.stop();
}

void TestDesktopAutoPivot::sensorTurnsTheOutput()
{
    QCOMPARE(placeOf(u"DUMMY0"_s), u"1920x1080+0+0"_s);
    // Off, the sensor turns nothing.
    sense(2);
    QVERIFY(m_desk.client()
                .call(u"sync"_s, {{u"monitor"_s, monitorOf(0)}, {u"module"_s, u"LuAutoPivot"_s}})
                .ok());
    QCOMPARE(placeOf(u"DUMMY0"_s), u"1920x1080+0+0"_s);

    QVERIFY(m_desk.client().set(u"autoPivot.state"_s, true).ok());
    QTRY_COMPARE(placeOf(u"DUMMY0"_s), u"1080x1920+0+0 left"_s);
    QCOMPARE(placeOf(u"DUMMY1"_s), u"1280x1024+1080+0"_s);
    QCOMPARE(m_desk.client().get(u"autoPivot.currentPivot"_s), QJsonValue(90));
    QCOMPARE(m_desk.client().get(u"autoPivot.isLandscape"_s), QJsonValue(false));
    sense(3);
    QTRY_COMPARE(placeOf(u"DUMMY0"_s), u"1080x1920+0+0 right"_s);
    sense(1);
    QTRY_COMPARE(placeOf(u"DUMMY0"_s), u"1920x1080+0+0"_s);
    QTRY_COMPARE(m_desk.client().get(u"autoPivot.isLandscape"_s), QJsonValue(true));
    QVERIFY(m_desk.client().set(u"autoPivot.state"_s, false).ok());
}

void TestDesktopAutoPivot::aPersonTurnsTheOutput()
{
    QVERIFY(m_desk.client().set(u"autoPivot.currentPivot"_s, 180).ok());
    QCOMPARE(placeOf(u"DUMMY0"_s), u"1920x1080+0+0 inverted"_s);
    QVERIFY(m_desk.client().set(u"autoPivot.currentPivot"_s, 0).ok());
    QCOMPARE(placeOf(u"DUMMY0"_s), u"1920x1080+0+0"_s);
}

void TestDesktopAutoPivot::theDesktopsOwnTurnIsFollowed()
{
    outputOf(u"xrandr --output DUMMY0 --rotate right"_s);
    QTRY_COMPARE(m_desk.client().get(u"autoPivot.currentPivot"_s), QJsonValue(270));
    QVERIFY(m_server.resetScreens());
    QTRY_COMPARE(m_desk.client().get(u"autoPivot.currentPivot"_s), QJsonValue(0));
}

void TestDesktopAutoPivot::twoMonitorsTurnTheirOwnOutputs()
{
    const QJsonObject second{{u"monitor"_s, monitorOf(1)}};
    const auto set = [&](const QString& path, const QJsonValue& value) {
        QJsonObject parameters = second;
        parameters.insert(u"path"_s, path);
        parameters.insert(u"value"_s, value);
        return m_desk.client().call(u"set"_s, parameters).ok();
    };
    sense(2, 0);
    sense(3, 1);
    QVERIFY(set(u"autoPivot.state"_s, true));
    QTRY_COMPARE(placeOf(u"DUMMY1"_s), u"1024x1280+1920+0 right"_s);
    QCOMPARE(placeOf(u"DUMMY0"_s), u"1920x1080+0+0"_s);
    QVERIFY(m_desk.client().set(u"autoPivot.state"_s, true).ok());
    QTRY_COMPARE(placeOf(u"DUMMY0"_s), u"1080x1920+0+0 left"_s);
    QTRY_COMPARE(placeOf(u"DUMMY1"_s), u"1024x1280+1080+0 right"_s);
    QCOMPARE(placeOf(u"DUMMY2"_s), u"1024x768+2104+0"_s);
}

void TestDesktopAutoPivot::endsCleanly()
{
    QCOMPARE(m_desk.stop(), 0);
    QVERIFY2(!m_desk.errors().contains(u"[X11]"_s), qPrintable(m_desk.errors()));
}

DESKTOP_MAIN(TestDesktopAutoPivot)
#include "tst_desktop_autopivot.moc"
