// SPDX-License-Identifier: Apache-2.0
#include "FakeWire.h"

#include <QDeadlineTimer>
#include <QTest>

#include <atomic>
#include <condition_variable>

using ddc::BusStatus;
using ddc::Error;

namespace {

/// Lets a transfer hang until it is opened.
class Gate
{
public:
    void pass()
    {
        std::unique_lock lock(m_mutex);
        ++m_arrived;
        m_changed.wait(lock, [this] { return m_open; });
    }
    void open()
    {
        const std::lock_guard lock(m_mutex);
        m_open = true;
        m_changed.notify_all();
    }
    int arrived() const
    {
        const std::lock_guard lock(m_mutex);
        return m_arrived;
    }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_open = false;
    int m_arrived = 0;
};

} // namespace

Q_DECLARE_METATYPE(ddc::Error)

class TestDdcThreads : public QObject
{
    Q_OBJECT

private slots:
    void cancelEndsAWait_data();
    void cancelEndsAWait();
    void cancelEndsARealWait();
    void cancelEndsThoseInTheQueue();
    void cancelDuringATransferEndsTheCallAfterIt();
    void aBusThatIsGoneEndsThoseInTheQueue();
    void callsOfBeforeARevivalStayEnded();
    void setWithinGivesUpWhileABusHangs();
    void setWithinIsServedWhenTheBusGetsFree();
    void callsAreServedInTheirOrder();
    void aWriteIsServedBetweenTwoFragments();
    void oneTransactionAtATime();
    void settingsAndCountersMayBeTouchedMeanwhile();
};

void TestDdcThreads::cancelEndsAWait_data()
{
    QTest::addColumn<QString>("wait");
    for (const char* wait : {"reply", "after a set", "delay table", "retry", "busy", "fragments"})
        QTest::newRow(wait) << QString::fromLatin1(wait);
}

void TestDdcThreads::cancelEndsAWait()
{
    QFETCH(QString, wait);
    Bench bench;
    if (wait == u"delay table")
        bench.monitor.setWriteDelays({{0x60, Ms(5000)}});
    if (wait == u"delay table" || wait == u"after a set")
        QCOMPARE(bench.monitor.setVcp(0x60, 1), Error::None);
    if (wait == u"retry")
        bench.wire->writeResults.assign(4, BusStatus::Nack);
    if (wait == u"busy")
        bench.wire->writeResults.assign(100, BusStatus::Busy);
    bench.clock->standStill(true);
    std::atomic<Error> error{Error::None};
    std::thread caller([&] {
        if (wait == u"reply")
            error = bench.monitor.getVcp(0x10).error;
        else if (wait == u"fragments")
            error = bench.monitor.capabilities().error;
        else
            error = bench.monitor.setVcp(0x10, 1);
    });
    QTRY_COMPARE(bench.clock->asleep(), 1);
    bench.monitor.cancel();
    caller.join();
    QCOMPARE(error.load(), Error::Cancelled);
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::Cancelled);
    QCOMPARE(bench.monitor.statistics().errorsOf(Error::Cancelled), 2u);
}

void TestDdcThreads::cancelEndsARealWait()
{
    const auto wire = std::make_shared<Wire>(std::make_shared<FakeClock>());
    ddc::Transactor monitor(std::make_unique<FakeBus>(wire));
    monitor.setWriteDelays({{0x60, std::chrono::minutes(10)}});
    QCOMPARE(monitor.setVcp(0x60, 1), Error::None);
    std::atomic<Error> error{Error::None};
    std::thread caller([&] { error = monitor.getVcp(0x10).error; });
    std::atomic<Error> second{Error::None};
    std::thread waiter([&] { second = monitor.getVcp(0x10).error; });
    QTRY_COMPARE(monitor.waiting(), 1);
    monitor.cancel();
    caller.join();
    waiter.join();
    QCOMPARE(error.load(), Error::Cancelled);
    QCOMPARE(second.load(), Error::Cancelled);
}

void TestDdcThreads::cancelEndsThoseInTheQueue()
{
    Bench bench;
    Gate gate;
    bench.wire->onWrite = [&] { gate.pass(); };
    std::atomic<Error> holder{Error::None};
    std::thread first([&] { holder = bench.monitor.setVcp(0x10, 1); });
    QTRY_COMPARE(gate.arrived(), 1);
    std::vector<std::thread> threads;
    std::atomic<int> cancelled{0};
    for (int i = 0; i < 5; ++i)
        threads.emplace_back([&] { cancelled += bench.monitor.getVcp(0x10).error == Error::Cancelled; });
    QTRY_COMPARE(bench.monitor.waiting(), 5);
    bench.monitor.cancel();
    for (auto& thread : threads)
        thread.join(); // Although the first transfer still hangs.
    QCOMPARE(cancelled.load(), 5);
    gate.open();
    first.join();
    QCOMPARE(holder.load(), Error::None); // What is on the wire is told as it was.
}

void TestDdcThreads::cancelDuringATransferEndsTheCallAfterIt()
{
    Bench bench;
    Gate gate;
    bench.wire->onWrite = [&] { gate.pass(); };
    std::atomic<Error> error{Error::None};
    std::thread caller([&] { error = bench.monitor.getVcp(0x10).error; });
    QTRY_COMPARE(gate.arrived(), 1);
    bench.monitor.cancel();
    gate.open();
    caller.join();
    QCOMPARE(error.load(), Error::Cancelled);
    QCOMPARE(bench.wire->log.size(), 1u);
}

void TestDdcThreads::aBusThatIsGoneEndsThoseInTheQueue()
{
    Bench bench;
    Gate gate;
    bench.wire->onWrite = [&] { gate.pass(); };
    bench.wire->writeResults = {BusStatus::Gone};
    std::vector<std::thread> threads;
    std::atomic<int> gone{0};
    for (int i = 0; i < 3; ++i)
        threads.emplace_back([&] { gone += bench.monitor.setVcp(0x10, 1) == Error::Gone; });
    QTRY_COMPARE(bench.monitor.waiting(), 2);
    QTRY_COMPARE(gate.arrived(), 1);
    gate.open();
    for (auto& thread : threads)
        thread.join();
    QCOMPARE(gone.load(), 3);
    QCOMPARE(bench.wire->log.size(), 1u);
}

void TestDdcThreads::callsOfBeforeARevivalStayEnded()
{
    Bench bench;
    Gate gate;
    bench.wire->onWrite = [&] { gate.pass(); };
    bench.wire->answer = [](const Bytes&) { return fifty(); };
    std::atomic<Error> error{Error::None};
    std::thread caller([&] { error = bench.monitor.getVcp(0x10).error; });
    QTRY_COMPARE(gate.arrived(), 1);
    bench.monitor.cancel();
    bench.monitor.revive();
    gate.open();
    caller.join();
    QCOMPARE(error.load(), Error::Cancelled);
    QVERIFY(bench.monitor.getVcp(0x10));
}

void TestDdcThreads::setWithinGivesUpWhileABusHangs()
{
    Bench bench;
    Gate gate;
    bench.wire->onWrite = [&] { gate.pass(); };
    std::thread holder([&] { bench.monitor.setVcp(0x10, 1); });
    QTRY_COMPARE(gate.arrived(), 1);
    const auto started = std::chrono::steady_clock::now();
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 2, Ms(150)), Error::Busy);
    QVERIFY(std::chrono::steady_clock::now() - started >= Ms(150));
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 2, Ms(-1)), Error::Busy);
    gate.open();
    holder.join();
    QCOMPARE(bench.wire->log.size(), 1u);
}

void TestDdcThreads::setWithinIsServedWhenTheBusGetsFree()
{
    Bench bench;
    Gate gate;
    bench.wire->onWrite = [&] { gate.pass(); };
    std::thread holder([&] { bench.monitor.setVcp(0x10, 1); });
    QTRY_COMPARE(gate.arrived(), 1);
    std::atomic<Error> error{Error::Gone};
    std::thread caller([&] { error = bench.monitor.setVcpWithin(0x10, 2, std::chrono::minutes(1)); });
    QTRY_COMPARE(bench.monitor.waiting(), 1);
    gate.open();
    holder.join();
    caller.join();
    QCOMPARE(error.load(), Error::None);
    QCOMPARE(bench.wire->log.size(), 2u);
}

void TestDdcThreads::callsAreServedInTheirOrder()
{
    constexpr int Count = 8;
    Bench bench;
    Gate gate;
    bench.wire->onWrite = [&] { gate.pass(); };
    std::vector<std::thread> threads;
    for (int i = 0; i < Count; ++i) {
        threads.emplace_back([&, i] { bench.monitor.setVcp(std::uint8_t(i), 0); });
        QTRY_COMPARE(gate.arrived(), 1);
        QTRY_COMPARE(bench.monitor.waiting(), i);
    }
    gate.open();
    for (auto& thread : threads)
        thread.join();
    QCOMPARE(bench.wire->log.size(), std::size_t(Count));
    for (int i = 0; i < Count; ++i)
        QCOMPARE(int(bench.wire->log[std::size_t(i)].bytes[3]), i);
}

void TestDdcThreads::aWriteIsServedBetweenTwoFragments()
{
    Bench bench;
    Gate gate;
    bench.wire->onWrite = [&] { gate.pass(); };
    bench.wire->replies = {good({0x6E, 0x89, 0xE3, 0x00, 0x00, 0x28, 0x70, 0x72, 0x6F, 0x74, 0x28, 0x4D}),
                           good({0x6E, 0x83, 0xE3, 0x00, 0x06, 0x58})};
    std::thread reader([&] { bench.monitor.capabilities(); });
    QTRY_COMPARE(gate.arrived(), 1);
    std::thread writer([&] { bench.monitor.setVcp(0x10, 1); });
    QTRY_COMPARE(bench.monitor.waiting(), 1);
    gate.open();
    reader.join();
    writer.join();
    QCOMPARE(bench.wire->log.size(), 5u);
    QCOMPARE(bench.wire->log[2].bytes.at(2), 0x03);
}

void TestDdcThreads::oneTransactionAtATime()
{
    Bench bench(ddc::Timing::none());
    bench.wire->answer = [](const Bytes& request) {
        return good(vcpFrame(request.at(3), request.at(3), 255));
    };
    std::vector<std::thread> threads;
    std::atomic<int> wrong{0};
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, i] {
            for (int k = 0; k < 500; ++k) {
                const auto code = std::uint8_t(i * 50 + k % 50);
                const auto result = bench.monitor.getVcp(code);
                wrong += !result || result.value.current != code;
                wrong += bench.monitor.setVcp(code, 1) != Error::None;
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
    QCOMPARE(bench.wire->log.size(), 4u * 500 * 3);
}

void TestDdcThreads::settingsAndCountersMayBeTouchedMeanwhile()
{
    Bench bench;
    bench.wire->answer = [](const Bytes&) { return fifty(); };
    std::atomic<bool> stop{false};
    std::atomic<int> answered{0};
    std::thread worker([&] {
        while (!stop) {
            answered += bench.monitor.getVcp(0x10).error == Error::None;
            bench.monitor.setVcp(0x10, 1);
        }
    });
    std::thread reader([&] {
        while (!stop)
            bench.monitor.statistics();
    });
    // Both sides go on until ThreadSanitizer has had the chance to see them side by side.
    const QDeadlineTimer patience(std::chrono::seconds(30));
    for (int i = 0; (i < 300 || answered < 1500) && !patience.hasExpired(); ++i) {
        bench.monitor.setWriteDelays({{0x10, Ms(i)}});
        bench.monitor.setLearnt({Ms(41), Ms(51)});
        bench.monitor.setObserver(nullptr);
        bench.monitor.setDayOf([i] { return std::int64_t(i); });
        if (bench.monitor.learnt().afterSet != Ms(51) || bench.monitor.statistics().day != i)
            break;
        if (i % 20 == 0) {
            bench.monitor.cancel();
            bench.monitor.revive();
        }
    }
    stop = true;
    worker.join();
    reader.join();
    QVERIFY(answered >= 1500);
    QCOMPARE(bench.monitor.learnt().afterSet, Ms(51));
    QVERIFY(bench.monitor.getVcp(0x10));
}

QTEST_APPLESS_MAIN(TestDdcThreads)
#include "tst_ddc_threads.moc"
