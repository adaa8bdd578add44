// SPDX-License-Identifier: Apache-2.0
#include "wirehost.h"

using ddc::BusStatus;

class TestSimTiming : public QObject
{
    Q_OBJECT

private:
    sim::Options options(bool strict = true)
    {
        sim::Options result;
        result.strictTiming = strict;
        result.clock = m_clock.function();
        result.epoch = m_clock.epoch();
        return result;
    }

    TestClock m_clock;

private slots:
    void aReplyIsThereAfterFortyMilliseconds();
    void aReplyReadTooSoonIsLost();
    void theMonitorIsBusyAfterAWrite_data();
    void theMonitorIsBusyAfterAWrite();
    void aLostSetChangesNothing();
    void aReadDuringASetIsNotAcknowledged();
    void theEdidAndAProbeAreAnsweredWhileBusy();
    void aGetKeepsNothingBusy();
    void withoutStrictTimingNothingIsTooEarly();
};

void TestSimTiming::aReplyIsThereAfterFortyMilliseconds()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.get(0x12, [&] { m_clock.advance(40); }), 50);
    QCOMPARE(monitor.violations().total(), quint64(0));
    QVERIFY(monitor.violations().last.isEmpty());
}

void TestSimTiming::aReplyReadTooSoonIsLost()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.request(0x12), BusStatus::Ok);
    m_clock.advance(39.9);
    QCOMPARE(hex(host.read(11)), QStringLiteral("6E 80 BE 00 00 00 00 00 00 00 00"));
    m_clock.advance(100);
    QCOMPARE(hex(host.read(3)), QStringLiteral("6E 80 BE"));
    QCOMPARE(monitor.violations().earlyReplies, quint64(1));
    QCOMPARE(monitor.violations().last, QStringLiteral("a reply was read 39.9 ms after its request"));
    QCOMPARE(host.get(0x12, [&] { m_clock.advance(40); }), 50);
    QCOMPARE(monitor.violations().total(), quint64(1));
}

void TestSimTiming::theMonitorIsBusyAfterAWrite_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<int>("busy");
    QTest::newRow("set") << QByteArray("TK30Z") << WireHost::frame({3, 0x12, 0, 30}) << 50;
    QTest::newRow("set of an unsupported code")
        << QByteArray("TK30Z") << WireHost::frame({3, 0x01, 0, 1}) << 50;
    QTest::newRow("save") << QByteArray("TK30Z") << WireHost::frame({0x0C}) << 200;
    QTest::newRow("colour mode") << QByteArray("TK10") << WireHost::frame({3, 0xDC, 0, 0x32}) << 500;
    QTest::newRow("restore colour") << QByteArray("TK40X") << WireHost::frame({3, 0x08, 0, 1}) << 5000;
    QTest::newRow("factory reset, TK30Z") << QByteArray("TK30Z") << WireHost::frame({3, 0x04, 0, 1}) << 2000;
    QTest::newRow("factory reset, others") << QByteArray("TK30") << WireHost::frame({3, 0x04, 0, 1}) << 50;
    QTest::newRow("audio mode, TK30Z") << QByteArray("TK30Z") << WireHost::frame({3, 0x94, 0, 1}) << 700;
    QTest::newRow("audio mode, TK20") << QByteArray("TK20") << WireHost::frame({3, 0x94, 0, 1}) << 50;
    QTest::newRow("USB upstream") << QByteArray("TK30Z") << WireHost::frame({3, 0xE4, 0, 2}) << 1000;
    QTest::newRow("backlight control") << QByteArray("TK30Z") << WireHost::frame({3, 0x13, 0, 1}) << 500;
}

void TestSimTiming::theMonitorIsBusyAfterAWrite()
{
    QFETCH(QByteArray, model);
    QFETCH(QByteArray, frame);
    QFETCH(int, busy);
    sim::Monitor monitor(identity(model.constData()), options());
    WireHost host(monitor);
    QCOMPARE(host.write(frame), BusStatus::Ok);
    m_clock.advance(busy - 0.5);
    QCOMPARE(host.request(0x12), BusStatus::Nack);
    QCOMPARE(monitor.violations().earlyFrames, quint64(1));
    QCOMPARE(monitor.violations().last, QStringLiteral("a frame came 0.5 ms before the monitor was ready"));
    m_clock.advance(0.5);
    QCOMPARE(host.get(0xDF, [&] { m_clock.advance(40); }), 0x0202);
    QCOMPARE(monitor.violations().total(), quint64(1));
}

void TestSimTiming::aLostSetChangesNothing()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.set(0x12, 30), BusStatus::Ok);
    m_clock.advance(49);
    QCOMPARE(host.set(0x12, 31), BusStatus::Nack);
    QCOMPARE(*monitor.value(0x12), 30);
    QCOMPARE(monitor.violations().last,
             QStringLiteral("a set of 0x12 came 1 ms before the monitor was ready"));
    m_clock.advance(1);
    QCOMPARE(host.set(0x12, 31), BusStatus::Ok);
    QCOMPARE(*monitor.value(0x12), 31);
    const auto traffic = monitor.traffic();
    QCOMPARE(traffic.size(), 3);
    QVERIFY(traffic[0].ok && !traffic[1].ok && traffic[2].ok);
    QCOMPARE(traffic[1].value, 31);
}

void TestSimTiming::aReadDuringASetIsNotAcknowledged()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    BusStatus status = BusStatus::Ok;
    QCOMPARE(host.set(0x12, 30), BusStatus::Ok);
    host.read(3, &status);
    QCOMPARE(status, BusStatus::Nack);
    QCOMPARE(monitor.violations().earlyFrames, quint64(1));
}

void TestSimTiming::theEdidAndAProbeAreAnsweredWhileBusy()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.set(0x12, 30), BusStatus::Ok);
    QCOMPARE(host.readFrom(0x50, 128), monitor.edid());
    QCOMPARE(host.write("00"), BusStatus::Ok);
    QCOMPARE(monitor.violations().total(), quint64(0));
}

void TestSimTiming::aGetKeepsNothingBusy()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.get(0x12, [&] { m_clock.advance(40); }), 50);
    QCOMPARE(host.get(0x10, [&] { m_clock.advance(40); }), 50);
    QCOMPARE(host.set(0x12, 30), BusStatus::Ok);
    QCOMPARE(monitor.violations().total(), quint64(0));
}

void TestSimTiming::withoutStrictTimingNothingIsTooEarly()
{
    sim::Monitor monitor(identity("TK30Z"), options(false));
    WireHost host(monitor);
    QCOMPARE(host.set(0xDC, 0x32), BusStatus::Ok);
    QCOMPARE(host.set(0x12, 31), BusStatus::Ok);
    QCOMPARE(host.get(0x12), 31);
    QCOMPARE(monitor.violations().total(), quint64(0));
}

QTEST_GUILESS_MAIN(TestSimTiming)
#include "tst_sim_timing.moc"
