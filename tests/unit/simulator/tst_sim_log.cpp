// SPDX-License-Identifier: Apache-2.0
#include "wirehost.h"

using ddc::BusStatus;
using sim::Op;

class TestSimLog : public QObject
{
    Q_OBJECT

private:
    sim::Options options()
    {
        sim::Options result;
        result.clock = m_clock.function();
        result.epoch = m_clock.epoch();
        return result;
    }

    static QString line(const sim::TrafficEntry& e)
    {
        QString text = QStringLiteral("%1 %2 0x%3 %4 %5")
                           .arg(e.ms)
                           .arg(sim::opName(e.op))
                           .arg(e.code, 2, 16, QLatin1Char('0'))
                           .arg(e.value)
                           .arg(e.ok ? QStringLiteral("ok") : QStringLiteral("failed"));
        if (e.window)
            text += QStringLiteral(" @%1").arg(*e.window);
        return text;
    }

    TestClock m_clock;

private slots:
    void init() { m_clock = TestClock(); }
    void everyTryIsAnEntryInOrder();
    void aReplyThatWasNeverReadIsAFailedGet();
    void aReplyThatWasReadInPartIsAFailedGet();
    void otherCommandsAreNoVcpTraffic();
    void aSelectedSourceTellsItsWindow();
    void numbersComeFromTheProgram();
    void sinceLeavesOutWhatIsKnown();
    void theLastHundredThousandStay();
    void theRawLogHoldsEveryByte();
};

void TestSimLog::everyTryIsAnEntryInOrder()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    m_clock.advance(10);
    QCOMPARE(host.set(0x12, 40), BusStatus::Ok);
    m_clock.advance(50.5);
    QCOMPARE(host.get(0x12, [&] { m_clock.advance(40); }), 40);
    sim::Fault once;
    once.count = 1;
    monitor.armFault(once);
    QCOMPARE(host.set(0x10, 33), BusStatus::Nack);
    m_clock.advance(5);
    QCOMPARE(host.set(0x10, 33), BusStatus::Nack);
    QCOMPARE(host.get(0x01), -1);
    QStringList lines;
    for (const auto& entry : monitor.traffic())
        lines.append(line(entry));
    QCOMPARE(lines, QStringList({QStringLiteral("10 set 0x12 40 ok"), QStringLiteral("60.5 get 0x12 40 ok"),
                                 QStringLiteral("100.5 set 0x10 33 failed"),
                                 QStringLiteral("105.5 set 0x10 33 failed"),
                                 QStringLiteral("105.5 get 0x01 0 failed")}));
}

void TestSimLog::aReplyThatWasNeverReadIsAFailedGet()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.request(0x12), BusStatus::Ok);
    QCOMPARE(monitor.traffic().size(), 0);
    m_clock.advance(7);
    QCOMPARE(host.set(0x10, 1), BusStatus::Ok);
    const auto traffic = monitor.traffic();
    QCOMPARE(traffic.size(), 2);
    QCOMPARE(line(traffic[0]), QStringLiteral("0 get 0x12 0 failed"));
    QCOMPARE(line(traffic[1]), QStringLiteral("7 set 0x10 1 ok"));
    QCOMPARE(host.request(0x12), BusStatus::Ok);
    monitor.unplug();
    QCOMPARE(monitor.traffic().size(), 3);
}

void TestSimLog::aReplyThatWasReadInPartIsAFailedGet()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.request(0x12), BusStatus::Ok);
    host.read(10);
    QVERIFY(!monitor.traffic().first().ok);
}

void TestSimLog::otherCommandsAreNoVcpTraffic()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.write("51 81 0C B2"), BusStatus::Ok);
    QCOMPARE(host.write("51 83 F3 00 00 4F"), BusStatus::Ok);
    host.read(38);
    QCOMPARE(host.write("51 84 03 10 00 32 9B"), BusStatus::Ok);
    host.readFrom(0x50, 128);
    QCOMPARE(monitor.traffic().size(), 0);
}

void TestSimLog::aSelectedSourceTellsItsWindow()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.set(0xA5, 512), BusStatus::Ok);
    QCOMPARE(host.set(0x7E, 15), BusStatus::Ok);
    QCOMPARE(host.set(0xA5, 2048), BusStatus::Ok);
    QCOMPARE(host.get(0x7E), 17);
    QStringList lines;
    for (const auto& entry : monitor.traffic())
        lines.append(line(entry));
    QCOMPARE(lines,
             QStringList({QStringLiteral("0 set 0xa5 512 ok"), QStringLiteral("0 set 0x7e 15 ok @512"),
                          QStringLiteral("0 set 0xa5 2048 ok"), QStringLiteral("0 get 0x7e 17 ok @2048")}));
}

void TestSimLog::numbersComeFromTheProgram()
{
    quint64 counter = 100;
    auto o = options();
    o.sequence = [&counter] { return counter += 10; };
    sim::Monitor monitor(identity("TK30Z"), o);
    WireHost host(monitor);
    QCOMPARE(host.set(0x12, 1), BusStatus::Ok);
    QCOMPARE(host.get(0x12), 1);
    QCOMPARE(monitor.traffic()[0].seq, quint64(110));
    QCOMPARE(monitor.traffic()[1].seq, quint64(120));
}

void TestSimLog::sinceLeavesOutWhatIsKnown()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    for (int i = 1; i <= 5; ++i)
        QCOMPARE(host.set(0x12, i), BusStatus::Ok);
    QCOMPARE(monitor.traffic(0).size(), 5);
    QCOMPARE(monitor.traffic(3).size(), 2);
    QCOMPARE(monitor.traffic(3).first().value, 4);
    QCOMPARE(monitor.traffic(5).size(), 0);
    QCOMPARE(monitor.traffic(1000).size(), 0);
}

void TestSimLog::theLastHundredThousandStay()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    const QByteArray frame = WireHost::frame({3, 0x12, 0, 30});
    for (int i = 0; i < 100'005; ++i)
        host.write(frame);
    const auto traffic = monitor.traffic();
    QCOMPARE(traffic.size(), 100'000);
    QCOMPARE(traffic.first().seq, quint64(6));
    QCOMPARE(traffic.last().seq, quint64(100'005));
}

void TestSimLog::theRawLogHoldsEveryByte()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.get(0x10), 50);
    QCOMPARE(monitor.rawLog().size(), 0);
    monitor.setRawLogEnabled(true);
    QCOMPARE(host.get(0x10), 50);
    host.write("00");
    host.writeTo(0x30, QByteArray(1, 1));
    const auto raw = monitor.rawLog();
    QCOMPARE(raw.size(), 4);
    QCOMPARE(hex(raw[0].bytes), QStringLiteral("51 82 01 10 AC"));
    QVERIFY(!raw[0].read);
    QCOMPARE(hex(raw[1].bytes), QStringLiteral("6E 88 02 00 10 00 00 64 00 32 F2"));
    QVERIFY(raw[1].read);
    QCOMPARE(hex(raw[2].bytes), QStringLiteral("00"));
    QCOMPARE(raw[3].address, 0x30);
    QCOMPARE(raw[3].status, BusStatus::Nack);
    monitor.setRawLogEnabled(false);
    QCOMPARE(monitor.rawLog().size(), 0);
}

QTEST_GUILESS_MAIN(TestSimLog)
#include "tst_sim_log.moc"
