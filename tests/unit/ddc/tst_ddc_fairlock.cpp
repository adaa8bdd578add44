// SPDX-License-Identifier: Apache-2.0
#include <ddc/FairLock.h>

#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

using ddc::Error;

class TestDdcFairLock : public QObject
{
    Q_OBJECT

private slots:
    void theLockIsHandedOnInTheOrderOfArrival();
    void aWaiterLeavesAtItsDeadline();
    void aWaiterThatLeftIsNotServed();
    void aWaiterLeavesWhenCancelled();
    void aCancelledTokenGetsNoLock();
    void onlyOneHoldsIt();
    void tokensOfBeforeARevivalStayEnded();
    void theFirstReasonStays();
};

void TestDdcFairLock::theLockIsHandedOnInTheOrderOfArrival()
{
    constexpr int Count = 12;
    ddc::FairLock lock;
    ddc::CancelSource source;
    QCOMPARE(lock.acquire(source.token()), Error::None);
    std::vector<int> order; // Guarded by the lock under test.
    std::vector<std::thread> threads;
    for (int i = 0; i < Count; ++i) {
        threads.emplace_back([&, i] {
            if (lock.acquire(source.token()) == Error::None) {
                order.push_back(i);
                lock.release();
            }
        });
        QTRY_COMPARE(lock.waiting(), i + 1);
    }
    lock.release();
    for (auto& thread : threads)
        thread.join();
    QCOMPARE(order.size(), std::size_t(Count));
    for (int i = 0; i < Count; ++i)
        QCOMPARE(order[std::size_t(i)], i);
}

void TestDdcFairLock::aWaiterLeavesAtItsDeadline()
{
    ddc::FairLock lock;
    ddc::CancelSource source;
    QCOMPARE(lock.acquire(source.token()), Error::None);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(20);
    QCOMPARE(lock.acquire(source.token(), deadline), Error::Busy);
    QVERIFY(std::chrono::steady_clock::now() >= deadline);
    QCOMPARE(lock.waiting(), 0);
    lock.release();
    QCOMPARE(lock.acquire(source.token(), std::chrono::steady_clock::now()), Error::None);
    lock.release();
}

void TestDdcFairLock::aWaiterThatLeftIsNotServed()
{
    ddc::FairLock lock;
    ddc::CancelSource source;
    QCOMPARE(lock.acquire(source.token()), Error::None);
    std::vector<int> served;
    const auto wait = [&](int id) {
        if (lock.acquire(source.token()) == Error::None) {
            served.push_back(id);
            lock.release();
        }
    };
    std::thread first(wait, 1);
    QTRY_COMPARE(lock.waiting(), 1);
    QCOMPARE(lock.acquire(source.token(), std::chrono::steady_clock::now()), Error::Busy);
    std::thread second(wait, 2);
    QTRY_COMPARE(lock.waiting(), 2);
    lock.release();
    first.join();
    second.join();
    QVERIFY((served == std::vector<int>{1, 2}));
}

void TestDdcFairLock::aWaiterLeavesWhenCancelled()
{
    ddc::FairLock lock;
    ddc::CancelSource source;
    QCOMPARE(lock.acquire(source.token()), Error::None);
    std::atomic<Error> result{Error::None};
    std::thread waiter([&] { result = lock.acquire(source.token()); });
    QTRY_COMPARE(lock.waiting(), 1);
    source.end(Error::Gone);
    lock.wakeAll();
    waiter.join();
    QCOMPARE(result.load(), Error::Gone);
    lock.release();
}

void TestDdcFairLock::aCancelledTokenGetsNoLock()
{
    ddc::FairLock lock;
    ddc::CancelSource source;
    source.end(Error::Cancelled);
    QCOMPARE(lock.acquire(source.token()), Error::Cancelled);
    source.revive();
    QCOMPARE(lock.acquire(source.token()), Error::None);
    lock.release();
}

void TestDdcFairLock::onlyOneHoldsIt()
{
    ddc::FairLock lock;
    ddc::CancelSource source;
    int plain = 0; // A race here is what ThreadSanitizer would report.
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int k = 0; k < 2000; ++k) {
                if (lock.acquire(source.token()) == Error::None) {
                    ++plain;
                    lock.release();
                }
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
    QCOMPARE(plain, 8000);
}

void TestDdcFairLock::tokensOfBeforeARevivalStayEnded()
{
    ddc::CancelSource source;
    const ddc::CancelToken old = source.token();
    QCOMPARE(old.error(), Error::None);
    source.end(Error::Gone);
    QCOMPARE(old.error(), Error::Gone);
    source.revive();
    QCOMPARE(old.error(), Error::Cancelled);
    QCOMPARE(source.token().error(), Error::None);
    source.end(old, Error::Gone); // The bus of before tells nothing about the one of now.
    QCOMPARE(source.token().error(), Error::None);
}

void TestDdcFairLock::theFirstReasonStays()
{
    ddc::CancelSource source;
    source.end(Error::Gone);
    source.end(Error::Cancelled);
    QCOMPARE(source.token().error(), Error::Gone);
}

QTEST_APPLESS_MAIN(TestDdcFairLock)
#include "tst_ddc_fairlock.moc"
