// SPDX-License-Identifier: Apache-2.0
#include "wirehost.h"

#include <QTemporaryDir>

using ddc::BusStatus;

namespace {

/// A monitor in a room whose time a test moves.
struct Room
{
    explicit Room(const char* model) : monitor(identity(model), options()), host(monitor) {}

    sim::Options options()
    {
        sim::Options result;
        result.roomClock = clock.function();
        return result;
    }
    int brightness() { return host.get(0x10); }

    TestClock clock;
    sim::Monitor monitor;
    WireHost host;
};

constexpr double Long = 60'000;
constexpr double Step = 100;

} // namespace

/// What a monitor does with the light of the room and the person in front of it.
class TestSimRoom : public QObject
{
    Q_OBJECT

private slots:
    void theLightInTheRoomMovesTheBrightness_data();
    void theLightInTheRoomMovesTheBrightness();
    void theBrightnessMovesStepByStep();
    void aNewLightTurnsTheMoveWhereItIs();
    void aWriteEndsTheMove();
    void offGivesTheUsersValueBackAtOnce();
    void aStoredWorldIsAtRest();
    void anAbsentUserDimsThePanelButNotTheBrightness_data();
    void anAbsentUserDimsThePanelButNotTheBrightness();
    void nightProtectionTakesLightOff_data();
    void nightProtectionTakesLightOff();
    void theRearLightFollowsItsBytes_data();
    void theRearLightFollowsItsBytes();
    void theRearLightGoesAlongWhereItIsAsked();
};

void TestSimRoom::theLightInTheRoomMovesTheBrightness_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("on");
    QTest::newRow("switch") << QByteArray("TK10") << 0xE2 << 255;
    QTest::newRow("switch, any value") << QByteArray("TK40") << 0xE2 << 1;
    QTest::newRow("optimizer") << QByteArray("TK20") << 0x81 << 1;
    QTest::newRow("optimizer, brightness only") << QByteArray("TK30Z") << 0x81 << 2;
}

void TestSimRoom::theLightInTheRoomMovesTheBrightness()
{
    QFETCH(QByteArray, model);
    QFETCH(int, code);
    QFETCH(int, on);
    Room room(model.constData());
    room.monitor.setAmbientLight(0);
    QCOMPARE(room.brightness(), 50);
    QCOMPARE(room.host.set(code, on), BusStatus::Ok);
    room.clock.advance(Long);
    const int dark = room.brightness();
    QVERIFY(dark < 50);
    room.monitor.setAmbientLight(1000);
    room.clock.advance(Long);
    QVERIFY(room.brightness() > 50);
    QCOMPARE(room.host.set(0xE5, 10), BusStatus::Ok);
    room.monitor.setAmbientLight(0);
    room.clock.advance(Long);
    QVERIFY(room.brightness() < dark);
    QCOMPARE(room.host.set(code, 0), BusStatus::Ok);
    QCOMPARE(room.brightness(), 50);
}

void TestSimRoom::theBrightnessMovesStepByStep()
{
    Room room("TK30Z");
    room.monitor.setAmbientLight(0);
    QCOMPARE(room.host.set(0x81, 1), BusStatus::Ok);
    QCOMPARE(room.brightness(), 50);
    for (int step = 1; step <= 10; ++step) {
        room.clock.advance(Step);
        QCOMPARE(room.brightness(), 50 - step);
    }
    room.clock.advance(Long);
    const int end = room.brightness();
    room.clock.advance(Long);
    QCOMPARE(room.brightness(), end);
}

void TestSimRoom::aNewLightTurnsTheMoveWhereItIs()
{
    Room room("TK30Z");
    room.monitor.setAmbientLight(0);
    QCOMPARE(room.host.set(0x81, 1), BusStatus::Ok);
    room.clock.advance(5 * Step);
    room.monitor.setAmbientLight(1000);
    QCOMPARE(room.brightness(), 45);
    room.clock.advance(3 * Step);
    QCOMPARE(room.brightness(), 48);
}

void TestSimRoom::aWriteEndsTheMove()
{
    Room room("TK30Z");
    room.monitor.setAmbientLight(0);
    QCOMPARE(room.host.set(0x81, 1), BusStatus::Ok);
    room.clock.advance(3 * Step);
    QCOMPARE(room.host.set(0x10, 70), BusStatus::Ok);
    QCOMPARE(room.brightness(), 70);
    room.clock.advance(Long);
    QCOMPARE(room.brightness(), 70);
}

void TestSimRoom::offGivesTheUsersValueBackAtOnce()
{
    Room room("TK30Z");
    room.monitor.setAmbientLight(0);
    QCOMPARE(room.host.set(0x81, 1), BusStatus::Ok);
    room.clock.advance(Long);
    QCOMPARE(room.host.set(0x81, 0), BusStatus::Ok);
    QCOMPARE(room.brightness(), 50);
    QCOMPARE(room.host.set(0x81, 1), BusStatus::Ok);
    QCOMPARE(room.brightness(), 50);
    room.clock.advance(2 * Step);
    QCOMPARE(room.brightness(), 48);
}

void TestSimRoom::aStoredWorldIsAtRest()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("monitor.json"));
    int end = 0;
    {
        Room room("TK30Z");
        QCOMPARE(room.host.set(0x81, 1), BusStatus::Ok);
        room.clock.advance(Long);
        end = room.brightness();
        QVERIFY(room.monitor.save(file));
    }
    Room again("TK30Z");
    QVERIFY(again.monitor.load(file));
    QCOMPARE(again.brightness(), end);
}

void TestSimRoom::anAbsentUserDimsThePanelButNotTheBrightness_data()
{
    QTest::addColumn<int>("time");
    QTest::addColumn<int>("seconds");
    QTest::newRow("5 s") << 5 << 5;
    QTest::newRow("a minute") << 60 << 60;
    QTest::newRow("five minutes") << 80 << 300;
    QTest::newRow("ten minutes") << 160 << 600;
}

void TestSimRoom::anAbsentUserDimsThePanelButNotTheBrightness()
{
    QFETCH(int, time);
    QFETCH(int, seconds);
    Room room("TK30Z");
    room.monitor.setPresence(false);
    room.clock.advance(3'600'000);
    QCOMPARE(room.monitor.lightOutput(), 50);
    room.monitor.setPresence(true);
    QCOMPARE(room.host.set(0xE7, time), BusStatus::Ok);
    room.monitor.setPresence(false);
    room.clock.advance(seconds * 1000 - 1);
    room.monitor.setPresence(false);
    QCOMPARE(room.monitor.lightOutput(), 50);
    room.clock.advance(1);
    QCOMPARE(room.monitor.lightOutput(), 10);
    QCOMPARE(room.brightness(), 50);
    room.monitor.setPresence(true);
    QCOMPARE(room.monitor.lightOutput(), 50);
}

void TestSimRoom::nightProtectionTakesLightOff_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("lux");
    QTest::addColumn<bool>("softened");
    QTest::newRow("off in the dark") << 0 << 0 << false;
    QTest::newRow("on in daylight") << 1 << 900 << true;
    QTest::newRow("by the sensor in daylight") << 2 << 900 << false;
    QTest::newRow("by the sensor at the edge") << 2 << 50 << false;
    QTest::newRow("by the sensor in the dark") << 2 << 49 << true;
}

void TestSimRoom::nightProtectionTakesLightOff()
{
    QFETCH(int, state);
    QFETCH(int, lux);
    QFETCH(bool, softened);
    Room room("TK20");
    room.monitor.setAmbientLight(lux);
    QCOMPARE(room.host.set(0xD1, state), BusStatus::Ok);
    QCOMPARE(room.host.set(0xD0, 4), BusStatus::Ok);
    QCOMPARE(room.monitor.lightOutput(), softened ? 40 : 50);
    QCOMPARE(room.brightness(), 50);
    QCOMPARE(room.host.get(0xD1), state);
}

void TestSimRoom::theRearLightFollowsItsBytes_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("lux");
    QTest::addColumn<int>("light");
    QTest::newRow("off") << 0x0110 << 300 << 0;
    QTest::newRow("off, non-stop") << 0x0111 << 300 << 0;
    QTest::newRow("on") << 0x0120 << 0 << 30;
    QTest::newRow("on, the other angle, non-stop") << 0x0221 << 1000 << 30;
    QTest::newRow("by the sensor in the dark") << 0x0130 << 0 << 10;
    QTest::newRow("by the sensor") << 0x0130 << 300 << 60;
    QTest::newRow("by the sensor in bright light") << 0x0130 << 1000 << 100;
}

void TestSimRoom::theRearLightFollowsItsBytes()
{
    QFETCH(int, state);
    QFETCH(int, lux);
    QFETCH(int, light);
    Room room("TK40X");
    room.monitor.setAmbientLight(lux);
    QCOMPARE(room.host.set(0xD9, 0x0703), BusStatus::Ok);
    QCOMPARE(room.host.set(0xD7, state), BusStatus::Ok);
    QCOMPARE(room.monitor.rearLightOutput(), light);
    QCOMPARE(sim::Monitor(identity("TK20")).rearLightOutput(), 0);
}

void TestSimRoom::theRearLightGoesAlongWhereItIsAsked()
{
    for (const int mode : {1, 2}) {
        Room room("TK30Z");
        QCOMPARE(room.host.set(0xD7, 0x0120), BusStatus::Ok);
        QCOMPARE(room.host.set(0xE7, 5), BusStatus::Ok);
        QCOMPARE(room.host.set(0xE8, mode), BusStatus::Ok);
        room.monitor.setPresence(false);
        room.clock.advance(5'000);
        QCOMPARE(room.monitor.lightOutput(), 10);
        QCOMPARE(room.monitor.rearLightOutput(), mode == 1 ? 10 : 50);
    }
}

QTEST_GUILESS_MAIN(TestSimRoom)
#include "tst_sim_room.moc"
