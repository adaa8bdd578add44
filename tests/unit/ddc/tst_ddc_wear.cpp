// SPDX-License-Identifier: Apache-2.0
#include "FakeWire.h"

#include <ddc/Breaker.h>
#include <ddc/Ledger.h>

#include <QTest>

using ddc::Breaker;
using ddc::Ledger;
using Verdict = ddc::Breaker::Verdict;

/// The guards against wear: the ledger of writes and the breaker.
class TestDdcWear : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fortyWritesPassAndNoMore();
    void writesInTheirOwnTimePassForEver();
    void codesAreCountedApart();
    void theClosedTimePasses();
    void aFaultThatGoesOnNeverWritesMoreThanTheLimit();
    void refusalsAreCounted();
    void theLedgerCountsByDay();
    void theLedgerKeepsThirtyDays();
    void theLedgerStaysSmallWhenTheClockJumps();
    void numbersOfEarlierRunsGoOn();
};

void TestDdcWear::fortyWritesPassAndNoMore()
{
    Breaker breaker;
    for (int i = 0; i < Breaker::Limit; ++i)
        QCOMPARE(int(breaker.admit(0x10, 1000)), int(Verdict::Pass));
    QVERIFY(breaker.closed(1000).empty());
    QCOMPARE(int(breaker.admit(0x10, 1000)), int(Verdict::Trip));
    QCOMPARE(int(breaker.admit(0x10, 1000)), int(Verdict::Refuse));
    QCOMPARE(breaker.closed(1000).size(), 1u);
    QCOMPARE(int(breaker.closed(1000).front().code), 0x10);
}

void TestDdcWear::writesInTheirOwnTimePassForEver()
{
    Breaker breaker;
    for (std::int64_t now = 0; now < 3'600'000; now += Breaker::WindowMs / Breaker::Limit)
        QCOMPARE(int(breaker.admit(0x10, now)), int(Verdict::Pass));
}

void TestDdcWear::codesAreCountedApart()
{
    Breaker breaker;
    for (int i = 0; i <= Breaker::Limit; ++i)
        (void)breaker.admit(0x10, 0);
    QCOMPARE(int(breaker.admit(0x12, 0)), int(Verdict::Pass));
    QCOMPARE(int(breaker.admit(0x10, 0)), int(Verdict::Refuse));
}

void TestDdcWear::theClosedTimePasses()
{
    Breaker breaker;
    for (int i = 0; i <= Breaker::Limit; ++i)
        (void)breaker.admit(0x10, 500);
    QCOMPARE(int(breaker.admit(0x10, 500 + Breaker::WindowMs - 1)), int(Verdict::Refuse));
    QCOMPARE(int(breaker.admit(0x10, 500 + Breaker::WindowMs)), int(Verdict::PassAgain));
    QCOMPARE(int(breaker.admit(0x10, 500 + Breaker::WindowMs)), int(Verdict::Pass));
    QVERIFY(breaker.closed(500 + Breaker::WindowMs).empty());
}

void TestDdcWear::aFaultThatGoesOnNeverWritesMoreThanTheLimit()
{
    Breaker breaker;
    std::deque<std::int64_t> passed;
    for (std::int64_t now = 0; now < 120'000; now += 7) {
        const Verdict verdict = breaker.admit(0x10, now);
        if (verdict == Verdict::Pass || verdict == Verdict::PassAgain)
            passed.push_back(now);
        while (!passed.empty() && passed.front() <= now - Breaker::WindowMs)
            passed.pop_front();
        QVERIFY2(passed.size() <= std::size_t(Breaker::Limit), qPrintable(QString::number(now)));
    }
    QVERIFY(breaker.trips() >= 5);
}

void TestDdcWear::refusalsAreCounted()
{
    Breaker breaker;
    for (int i = 0; i < Breaker::Limit + 5; ++i)
        (void)breaker.admit(0x10, 0);
    QCOMPARE(breaker.trips(), 1u);
    QCOMPARE(breaker.refused(), 5u);
    QCOMPARE(breaker.refusedOf(0x10), 5u);
    QCOMPARE(breaker.refusedOf(0x12), 0u);
}

void TestDdcWear::theLedgerCountsByDay()
{
    Ledger ledger;
    ledger.book(0x10, 100);
    ledger.book(0x10, 100);
    ledger.book(0x12, 101);
    QCOMPARE(ledger.on(100, 0x10), 2u);
    QCOMPARE(ledger.on(101, 0x10), 0u);
    QCOMPARE(ledger.on(101, 0x12), 1u);
    QCOMPARE(ledger.totals().at(0x10), 2u);
}

void TestDdcWear::theLedgerKeepsThirtyDays()
{
    Ledger ledger;
    for (std::int64_t day = 1; day <= 100; ++day)
        ledger.book(0x10, day);
    QCOMPARE(ledger.days().size(), std::size_t(Ledger::KeptDays));
    QCOMPARE(ledger.days().begin()->first, std::int64_t(71));
    QCOMPARE(ledger.totals().at(0x10), 100u);
    // A day without a write makes others old as well.
    ledger.trim(110);
    QCOMPARE(ledger.days().begin()->first, std::int64_t(81));
}

void TestDdcWear::theLedgerStaysSmallWhenTheClockJumps()
{
    Ledger ledger;
    for (std::int64_t day = 10'000; day > 0; --day)
        ledger.book(0x10, day);
    QVERIFY(ledger.days().size() <= std::size_t(2 * Ledger::KeptDays));
    QCOMPARE(ledger.on(1, 0x10), 1u);
    QCOMPARE(ledger.totals().at(0x10), 10'000u);
}

void TestDdcWear::numbersOfEarlierRunsGoOn()
{
    Ledger ledger;
    ledger.restore({{0x10, 7}}, {{20'000, {{0x10, 2}}}});
    ddc::Statistics kept;
    kept.transfers = 100;
    kept.errors[std::size_t(ddc::Error::NoReply)] = 3;
    kept.ledger = ledger;

    Bench bench;
    ddc::Transactor& monitor = bench.monitor;
    monitor.setDayOf([] { return 20'000; });
    monitor.restore(kept);
    QCOMPARE(monitor.setVcp(0x10, 1), ddc::Error::None);
    const ddc::Statistics now = monitor.statistics();
    QCOMPARE(now.transfers, 101u);
    QCOMPARE(now.errorsOf(ddc::Error::NoReply), 3u);
    QCOMPARE(now.writes.size(), 1u);
    QCOMPARE(now.writes[0].total, 8u);
    QCOMPARE(now.writes[0].today, 3u);
    QCOMPARE(now.replyDelay, ddc::Timing::real().replyDelay);
}

QTEST_APPLESS_MAIN(TestDdcWear)
#include "tst_ddc_wear.moc"
