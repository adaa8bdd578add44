// SPDX-License-Identifier: Apache-2.0
#include "wirehost.h"

#include <QElapsedTimer>

#include <future>

using ddc::BusStatus;
using sim::FaultKind;
using sim::Op;

Q_DECLARE_METATYPE(sim::FaultKind)

class TestSimFaults : public QObject
{
    Q_OBJECT

private:
    sim::Options options()
    {
        sim::Options result;
        result.clock = m_clock.function();
        return result;
    }

    static sim::Fault fault(FaultKind kind, std::optional<std::uint8_t> code = {}, std::optional<Op> op = {},
                            std::optional<int> count = {})
    {
        sim::Fault result;
        result.kind = kind;
        result.code = code;
        result.op = op;
        result.count = count;
        result.blocks = std::chrono::milliseconds(1);
        return result;
    }

    TestClock m_clock;

private slots:
    void aFaultSpoilsTheGet_data();
    void aFaultSpoilsTheGet();
    void aFaultOfTheBusLosesTheSet_data();
    void aFaultOfTheBusLosesTheSet();
    void aFaultOfTheReplyMeetsSetsOnlyWhenAsked();
    void aFaultMeetsItsCodeAndDirectionOnly();
    void aFaultWithoutACodeMeetsCapabilitiesAndSaving();
    void aCountHoldsForAllTriesOfATransaction();
    void aTransactionEnds_data();
    void aTransactionEnds();
    void aSuccessEndsATransaction();
    void faultsActInTheOrderInWhichTheyWereArmed();
    void aCountOfZeroArmsNothing();
    void clearedFaultsSpoilNothing();
    void aProbabilityIsDrawnForEveryTry();
    void theSameSeedGivesTheSameFaults();
    void garbageIsNeverAReply();
    void aTimeoutHoldsTheBus();
    void unpluggingEndsATimeout();
    void anUnpluggedMonitorIsGone();
    void aBusOutlivesItsMonitor();
    void namesOfKindsAndDirections();
};

void TestSimFaults::aFaultSpoilsTheGet_data()
{
    QTest::addColumn<FaultKind>("kind");
    QTest::addColumn<BusStatus>("written");
    QTest::addColumn<QString>("reply");
    QTest::newRow("nack") << FaultKind::Nack << BusStatus::Nack << QString();
    QTest::newRow("timeout") << FaultKind::Timeout << BusStatus::Timeout << QString();
    QTest::newRow("null") << FaultKind::Null << BusStatus::Ok << "6E 80 BE 00 00 00 00 00 00 00 00";
    QTest::newRow("checksum") << FaultKind::Checksum << BusStatus::Ok << "6E 88 02 00 10 00 00 64 00 32 A7";
    QTest::newRow("garbage") << FaultKind::Garbage << BusStatus::Ok << QString();
}

void TestSimFaults::aFaultSpoilsTheGet()
{
    QFETCH(FaultKind, kind);
    QFETCH(BusStatus, written);
    QFETCH(QString, reply);
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    monitor.armFault(fault(kind, 0x10));
    QCOMPARE(host.write("51 82 01 10 AC"), written);
    if (written == BusStatus::Ok) {
        const QByteArray bytes = host.read(11);
        if (!reply.isEmpty())
            QCOMPARE(hex(bytes), reply);
    }
    QCOMPARE(host.get(0x10), -2);
    QCOMPARE(host.get(0x12), 50);
    const auto traffic = monitor.traffic();
    QCOMPARE(traffic.size(), 3);
    QVERIFY(!traffic[0].ok && !traffic[1].ok && traffic[2].ok);
    QCOMPARE(traffic[0].value, 0);
}

void TestSimFaults::aFaultOfTheBusLosesTheSet_data()
{
    QTest::addColumn<FaultKind>("kind");
    QTest::addColumn<BusStatus>("status");
    QTest::newRow("nack") << FaultKind::Nack << BusStatus::Nack;
    QTest::newRow("timeout") << FaultKind::Timeout << BusStatus::Timeout;
}

void TestSimFaults::aFaultOfTheBusLosesTheSet()
{
    QFETCH(FaultKind, kind);
    QFETCH(BusStatus, status);
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    monitor.armFault(fault(kind));
    QCOMPARE(host.set(0x12, 7), status);
    QCOMPARE(*monitor.value(0x12), 50);
    QCOMPARE(monitor.traffic().size(), 1);
    QVERIFY(!monitor.traffic().first().ok);
    QCOMPARE(monitor.traffic().first().value, 7);
}

void TestSimFaults::aFaultOfTheReplyMeetsSetsOnlyWhenAsked()
{
    for (FaultKind kind : {FaultKind::Null, FaultKind::Checksum, FaultKind::Garbage}) {
        sim::Monitor monitor(identity("TK30Z"), options());
        WireHost host(monitor);
        monitor.armFault(fault(kind));
        QCOMPARE(host.set(0x12, 7), BusStatus::Ok);
        QCOMPARE(*monitor.value(0x12), 7);
        monitor.armFault(fault(kind, {}, Op::Set));
        monitor.clearFaults();
        monitor.armFault(fault(kind, {}, Op::Set));
        QCOMPARE(host.set(0x12, 8), BusStatus::Ok);
        QCOMPARE(*monitor.value(0x12), 7);
        QVERIFY(!monitor.traffic().last().ok);
    }
}

void TestSimFaults::aFaultMeetsItsCodeAndDirectionOnly()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    monitor.armFault(fault(FaultKind::Nack, 0x12, Op::Set));
    QCOMPARE(host.get(0x12), 50);
    QCOMPARE(host.set(0x10, 5), BusStatus::Ok);
    QCOMPARE(host.set(0x12, 5), BusStatus::Nack);
    QCOMPARE(host.write("51 81 0C B2"), BusStatus::Ok);
}

void TestSimFaults::aFaultWithoutACodeMeetsCapabilitiesAndSaving()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    monitor.armFault(fault(FaultKind::Nack));
    QCOMPARE(host.write("51 83 F3 00 00 4F"), BusStatus::Nack);
    QCOMPARE(host.write("51 81 0C B2"), BusStatus::Nack);
    QCOMPARE(monitor.savedSettings(), quint64(0));
    QCOMPARE(host.write("00"), BusStatus::Ok);
    QCOMPARE(host.readFrom(0x50, 128), monitor.edid());
}

void TestSimFaults::aCountHoldsForAllTriesOfATransaction()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    monitor.armFault(fault(FaultKind::Nack, {}, {}, 2));
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(host.set(0x12, 7), BusStatus::Nack);
        m_clock.advance(1999);
    }
    for (int i = 0; i < 5; ++i)
        QCOMPARE(host.get(0x10), -2);
    QCOMPARE(host.get(0x12), 50);
    QCOMPARE(host.get(0x10), 50);
}

void TestSimFaults::aTransactionEnds_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("by a pause") << "pause";
    QTest::newRow("by another value") << "value";
    QTest::newRow("by another code") << "code";
    QTest::newRow("by the other direction") << "direction";
    QTest::newRow("by a broken frame") << "broken";
    QTest::newRow("by the host's word") << "told";
    QTest::newRow("by unplugging") << "unplug";
}

void TestSimFaults::aTransactionEnds()
{
    QFETCH(QString, what);
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    monitor.armFault(fault(FaultKind::Nack, {}, {}, 1));
    QCOMPARE(host.set(0x12, 7), BusStatus::Nack);
    if (what == QLatin1String("pause"))
        m_clock.advance(2000);
    else if (what == QLatin1String("value"))
        QCOMPARE(host.set(0x12, 8), BusStatus::Ok);
    else if (what == QLatin1String("code"))
        QCOMPARE(host.set(0x10, 7), BusStatus::Ok);
    else if (what == QLatin1String("direction"))
        QCOMPARE(host.get(0x12), 50);
    else if (what == QLatin1String("broken"))
        QCOMPARE(host.write("51 84 03 10 00 32 9B"), BusStatus::Ok);
    else if (what == QLatin1String("told"))
        monitor.endTransaction();
    else {
        monitor.unplug();
        monitor.plug();
    }
    QCOMPARE(host.set(0x12, 7), BusStatus::Ok);
    QCOMPARE(*monitor.value(0x12), 7);
}

void TestSimFaults::aSuccessEndsATransaction()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    QCOMPARE(host.set(0x12, 7), BusStatus::Ok);
    monitor.armFault(fault(FaultKind::Nack, {}, {}, 1));
    QCOMPARE(host.set(0x12, 7), BusStatus::Nack);
    monitor.clearFaults();
    QCOMPARE(host.set(0x12, 7), BusStatus::Ok);
    QCOMPARE(host.get(0x12), 7);
    monitor.armFault(fault(FaultKind::Null, {}, {}, 1));
    QCOMPARE(host.get(0x12), -2);
    monitor.endTransaction();
    QCOMPARE(host.get(0x12), 7);
    QCOMPARE(host.get(0x01), -1); // unsupported is an answer, too
    monitor.armFault(fault(FaultKind::Null, {}, {}, 1));
    QCOMPARE(host.get(0x01), -2);
}

void TestSimFaults::faultsActInTheOrderInWhichTheyWereArmed()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    monitor.armFault(fault(FaultKind::Nack, 0x12, {}, 1));
    monitor.armFault(fault(FaultKind::Null, {}, {}, 1));
    QCOMPARE(host.request(0x12), BusStatus::Nack);
    QCOMPARE(host.request(0x10), BusStatus::Ok);
    QCOMPARE(hex(host.read(3)), QStringLiteral("6E 80 BE"));
    QCOMPARE(host.get(0x12), 50);
}

void TestSimFaults::aCountOfZeroArmsNothing()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    monitor.armFault(fault(FaultKind::Nack, {}, {}, 0));
    QCOMPARE(host.get(0x12), 50);
}

void TestSimFaults::clearedFaultsSpoilNothing()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    monitor.armFault(fault(FaultKind::Nack));
    QCOMPARE(host.get(0x12), -2);
    monitor.clearFaults();
    QCOMPARE(host.get(0x12), 50);
}

void TestSimFaults::aProbabilityIsDrawnForEveryTry()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    auto rare = fault(FaultKind::Nack);
    rare.probability = 0.25;
    monitor.armFault(rare);
    int failed = 0;
    for (int i = 0; i < 4000; ++i)
        failed += host.get(0x12) == -2;
    QVERIFY2(failed > 850 && failed < 1150, qPrintable(QString::number(failed)));
    monitor.clearFaults();
    rare.probability = 0;
    monitor.armFault(rare);
    QCOMPARE(host.get(0x12), 50);
    monitor.clearFaults();
    rare.probability = 1;
    monitor.armFault(rare);
    QCOMPARE(host.get(0x12), -2);
}

void TestSimFaults::theSameSeedGivesTheSameFaults()
{
    const auto run = [&](quint32 seed) {
        auto o = options();
        o.seed = seed;
        sim::Monitor monitor(identity("TK30Z"), o);
        WireHost host(monitor);
        auto rare = fault(FaultKind::Nack);
        rare.probability = 0.5;
        monitor.armFault(rare);
        QByteArray result;
        for (int i = 0; i < 200; ++i)
            result.append(host.get(0x12) == 50 ? '+' : '-');
        return result;
    };
    QCOMPARE(run(7), run(7));
    QVERIFY(run(7) != run(8));
}

void TestSimFaults::garbageIsNeverAReply()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    monitor.armFault(fault(FaultKind::Garbage));
    QSet<QByteArray> seen;
    for (int i = 0; i < 2000; ++i) {
        QCOMPARE(host.request(0x12), BusStatus::Ok);
        const QByteArray bytes = host.read(11);
        QVERIFY(static_cast<unsigned char>(bytes[0]) != 0x6E);
        seen.insert(bytes);
    }
    QVERIFY(seen.size() > 1000);
}

void TestSimFaults::aTimeoutHoldsTheBus()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    auto slow = fault(FaultKind::Timeout);
    slow.blocks = std::chrono::milliseconds(30);
    monitor.armFault(slow);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(host.request(0x12), BusStatus::Timeout);
    QVERIFY(timer.nsecsElapsed() >= 29'000'000);
    QCOMPARE(sim::Fault().blocks, std::chrono::milliseconds(1000));
}

void TestSimFaults::unpluggingEndsATimeout()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    auto endless = fault(FaultKind::Timeout);
    endless.blocks = std::chrono::hours(1);
    monitor.armFault(endless);
    auto transfer = std::async(std::launch::async, [&] { return WireHost(monitor).request(0x12); });
    // Pulled again and again, as nobody sees from outside when the transfer hangs.
    QTRY_VERIFY((monitor.unplug(), monitor.plug(),
                 transfer.wait_for(std::chrono::milliseconds(1)) == std::future_status::ready));
    QCOMPARE(transfer.get(), BusStatus::Gone);
}

void TestSimFaults::anUnpluggedMonitorIsGone()
{
    sim::Monitor monitor(identity("TK30Z"), options());
    WireHost host(monitor);
    BusStatus status = BusStatus::Ok;
    QCOMPARE(host.set(0x12, 9), BusStatus::Ok);
    QCOMPARE(host.request(0x12), BusStatus::Ok);
    monitor.unplug();
    QVERIFY(!monitor.isPlugged());
    QCOMPARE(host.request(0x12), BusStatus::Gone);
    host.read(11, &status);
    QCOMPARE(status, BusStatus::Gone);
    host.readFrom(0x50, 128, &status);
    QCOMPARE(status, BusStatus::Gone);
    QCOMPARE(*monitor.value(0x12), 9);
    monitor.plug();
    QVERIFY(monitor.isPlugged());
    QCOMPARE(hex(host.read(3)), QStringLiteral("6E 80 BE"));
    QCOMPARE(host.get(0x12), 9);
}

void TestSimFaults::aBusOutlivesItsMonitor()
{
    auto monitor = std::make_unique<sim::Monitor>(identity("TK30Z@7"), options());
    WireHost host(*monitor);
    QCOMPARE(QString::fromStdString(host.bus().name()), QStringLiteral("sim:TK30Z@7"));
    monitor.reset();
    QCOMPARE(host.request(0x12), BusStatus::Gone);
}

void TestSimFaults::namesOfKindsAndDirections()
{
    QCOMPARE(sim::faultKindFromName(QStringLiteral("nack")), FaultKind::Nack);
    QCOMPARE(sim::faultKindFromName(QStringLiteral("null")), FaultKind::Null);
    QCOMPARE(sim::faultKindFromName(QStringLiteral("checksum")), FaultKind::Checksum);
    QCOMPARE(sim::faultKindFromName(QStringLiteral("garbage")), FaultKind::Garbage);
    QCOMPARE(sim::faultKindFromName(QStringLiteral("timeout")), FaultKind::Timeout);
    QVERIFY(!sim::faultKindFromName(QStringLiteral("Nack")));
    QCOMPARE(sim::opFromName(QStringLiteral("get")), Op::Get);
    QCOMPARE(sim::opFromName(sim::opName(Op::Set)), Op::Set);
    QVERIFY(!sim::opFromName(QString()));
}

QTEST_GUILESS_MAIN(TestSimFaults)
#include "tst_sim_faults.moc"
