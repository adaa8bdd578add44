// SPDX-License-Identifier: Apache-2.0
#include "FakeWire.h"

#include <QTest>

using ddc::BusStatus;
using ddc::Error;

class TestDdcWaits : public QObject
{
    Q_OBJECT

private slots:
    void theReplyIsReadAfterTheReplyDelay();
    void theFirstWriteAfterAPauseGoesOutAtOnce();
    void theNextAccessWaitsAfterASet_data();
    void theNextAccessWaitsAfterASet();
    void aGetLeavesNoWaitBehind();
    void savingHoldsTheBus();
    void theDelayTableHoldsBackEveryAccess_data();
    void theDelayTableHoldsBackEveryAccess();
    void theDelayTableReplacesTheUsualWait();
    void aFailedWriteIsNotInTheDelayTable();
    void setWithinGivesUpWhereTheHoldIsLonger();
    void setWithinWaitsForAShorterHold();
    void readinessIsTheEndOfAHoldOrALimit();
    void fragmentsKeepTheirDistance();
    void retriesComeAtGrowingDistances();
    void theStepsGrowToTheLimit();
    void nullAndDamagedRepliesLengthenTheReplyDelay_data();
    void nullAndDamagedRepliesLengthenTheReplyDelay();
    void otherFaultsTeachNothing_data();
    void otherFaultsTeachNothing();
    void aSlowMonitorIsLearntFromNothing();
    void aCodeThatIsAnsweredByNullOnlyDoesNotSlowTheRest();
    void aTooShortWaitAfterASetIsLearnt();
    void learntWaitsNeverShrink();
    void learntWaitsCanBeKeptAndRestored();
    void noWaitsMeansNone();
};

void TestDdcWaits::theReplyIsReadAfterTheReplyDelay()
{
    Bench bench;
    bench.wire->replies = {fifty()};
    QVERIFY(bench.monitor.getVcp(0x10));
    QCOMPARE(bench.wire->log[0].at, Ms(0));
    QCOMPARE(bench.wire->log[1].at, Ms(40));
}

void TestDdcWaits::theFirstWriteAfterAPauseGoesOutAtOnce()
{
    Bench bench;
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    QCOMPARE(bench.clock->now() - bench.wire->start, Ms(0)); // The setter itself does not wait either.
    bench.clock->advance(Ms(50));
    QCOMPARE(bench.monitor.setVcp(0x10, 2), Error::None);
    QCOMPARE(bench.monitor.setVcp(0x10, 3), Error::None);
    QVERIFY((bench.wire->times(true) == std::vector<Ms>{Ms(0), Ms(50), Ms(100)}));
}

void TestDdcWaits::theNextAccessWaitsAfterASet_data()
{
    QTest::addColumn<QString>("next");
    for (const char* next : {"set", "setWithin", "get", "save", "capabilities", "edid"})
        QTest::newRow(next) << QString::fromLatin1(next);
}

void TestDdcWaits::theNextAccessWaitsAfterASet()
{
    QFETCH(QString, next);
    Bench bench;
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    bench.clock->advance(Ms(20));
    if (next == u"set")
        bench.monitor.setVcp(0x10, 2);
    else if (next == u"setWithin")
        bench.monitor.setVcpWithin(0x10, 2, Ms(150));
    else if (next == u"get")
        bench.monitor.getVcp(0x10);
    else if (next == u"save")
        bench.monitor.saveSettings();
    else if (next == u"capabilities")
        bench.monitor.capabilities();
    else
        bench.monitor.readEdid();
    QVERIFY(bench.wire->log.size() > 1);
    QCOMPARE(bench.wire->log[1].at, Ms(50));
}

void TestDdcWaits::aGetLeavesNoWaitBehind()
{
    Bench bench;
    bench.wire->answer = [](const Bytes&) { return fifty(); };
    for (int i = 0; i < 3; ++i)
        QVERIFY(bench.monitor.getVcp(0x10));
    QVERIFY((bench.wire->times(true) == std::vector<Ms>{Ms(0), Ms(40), Ms(80)}));
}

void TestDdcWaits::savingHoldsTheBus()
{
    Bench bench;
    QCOMPARE(bench.monitor.saveSettings(), Error::None);
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    QCOMPARE(bench.wire->log[1].at, Ms(200));
}

void TestDdcWaits::theDelayTableHoldsBackEveryAccess_data()
{
    theNextAccessWaitsAfterASet_data();
}

void TestDdcWaits::theDelayTableHoldsBackEveryAccess()
{
    QFETCH(QString, next);
    Bench bench;
    bench.monitor.setWriteDelays({{0x60, Ms(5000)}, {0xDC, Ms(800)}});
    QCOMPARE(bench.monitor.setVcp(0xDC, 1), Error::None);
    bench.clock->advance(Ms(100));
    if (next == u"set")
        bench.monitor.setVcp(0x10, 2);
    else if (next == u"setWithin")
        bench.monitor.setVcpWithin(0x10, 2, Ms(1000));
    else if (next == u"get")
        bench.monitor.getVcp(0x10);
    else if (next == u"save")
        bench.monitor.saveSettings();
    else if (next == u"capabilities")
        bench.monitor.capabilities();
    else
        bench.monitor.readEdid();
    QVERIFY(bench.wire->log.size() > 1);
    QCOMPARE(bench.wire->log[1].at, Ms(800));
}

void TestDdcWaits::theDelayTableReplacesTheUsualWait()
{
    Bench bench;
    bench.monitor.setWriteDelays({{0x10, Ms(20)}, {0x12, Ms(-5)}});
    for (const int code : {0x10, 0x12, 0x14, 0x10})
        QCOMPARE(bench.monitor.setVcp(std::uint8_t(code), 1), Error::None);
    QVERIFY((bench.wire->times(true) == std::vector<Ms>{Ms(0), Ms(20), Ms(20), Ms(70)}));

    bench.clock->advance(Ms(1000));
    bench.monitor.setWriteDelays({});
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    const auto times = bench.wire->times(true);
    QCOMPARE(times[5] - times[4], Ms(50));
}

void TestDdcWaits::aFailedWriteIsNotInTheDelayTable()
{
    Bench bench;
    bench.monitor.setWriteDelays({{0x60, Ms(5000)}});
    bench.wire->writeResults.assign(4, BusStatus::Nack);
    QCOMPARE(bench.monitor.setVcp(0x60, 1), Error::NoReply);
    const auto last = bench.wire->log.back().at;
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    QCOMPARE(bench.wire->log.back().at - last, Ms(40));
}

void TestDdcWaits::setWithinGivesUpWhereTheHoldIsLonger()
{
    Bench bench;
    bench.monitor.setWriteDelays({{0x60, Ms(5000)}});
    QCOMPARE(bench.monitor.setVcp(0x60, 1), Error::None);
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 1, Ms(150)), Error::Busy);
    QCOMPARE(bench.wire->log.size(), 1u);
    QCOMPARE(bench.clock->now() - bench.wire->start, Ms(0)); // It is known at once.
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    QCOMPARE(bench.wire->log[1].at, Ms(5000)); // Giving up has shortened nothing.
}

void TestDdcWaits::setWithinWaitsForAShorterHold()
{
    Bench bench;
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 2, Ms(50)), Error::None);
    QCOMPARE(bench.wire->log[1].at, Ms(50));
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 3, Ms(49)), Error::Busy);

    bench.clock->advance(Ms(1000));
    bench.wire->writeResults.assign(1000, BusStatus::Busy);
    const auto before = bench.clock->now();
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 4, Ms(60)), Error::Busy);
    QVERIFY(bench.clock->now() - before <= Ms(60));
}

void TestDdcWaits::readinessIsTheEndOfAHoldOrALimit()
{
    Bench bench;
    const auto now = [&bench] {
        return std::chrono::duration_cast<Ms>(bench.clock->now() - bench.wire->start);
    };
    bench.monitor.awaitReady(Ms(100));
    QCOMPARE(now(), Ms(0));
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    bench.monitor.awaitReady(Ms(100));
    QCOMPARE(now(), Ms(50));
    bench.monitor.setWriteDelays({{0x08, Ms(5000)}});
    QCOMPARE(bench.monitor.setVcp(0x08, 1), Error::None);
    bench.monitor.awaitReady(Ms(100));
    QCOMPARE(now(), Ms(150));
    QCOMPARE(bench.wire->times(true).size(), std::size_t(2)); // It sends nothing itself.
}

void TestDdcWaits::fragmentsKeepTheirDistance()
{
    Bench bench;
    bench.wire->replies = {good({0x6E, 0x89, 0xE3, 0x00, 0x00, 0x28, 0x70, 0x72, 0x6F, 0x74, 0x28, 0x4D}),
                           good({0x6E, 0x83, 0xE3, 0x00, 0x06, 0x58})};
    QCOMPARE(bench.monitor.capabilities().value, "(prot(");
    QVERIFY((bench.wire->times(true) == std::vector<Ms>{Ms(0), Ms(90)}));
    QVERIFY((bench.wire->times(false) == std::vector<Ms>{Ms(40), Ms(130)}));
}

void TestDdcWaits::retriesComeAtGrowingDistances()
{
    Bench bench;
    bench.wire->writeResults.assign(4, BusStatus::Nack);
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::NoReply);
    QVERIFY((bench.wire->times(true) == std::vector<Ms>{Ms(0), Ms(40), Ms(120), Ms(280)}));
}

void TestDdcWaits::theStepsGrowToTheLimit()
{
    std::vector<Ms> steps{Ms(40)};
    while (steps.size() < 9)
        steps.push_back(ddc::longerWait(steps.back()));
    QVERIFY((steps ==
             std::vector<Ms>{Ms(40), Ms(50), Ms(65), Ms(85), Ms(110), Ms(140), Ms(175), Ms(200), Ms(200)}));
}

void TestDdcWaits::nullAndDamagedRepliesLengthenTheReplyDelay_data()
{
    QTest::addColumn<bool>("null");
    QTest::addColumn<int>("times");
    QTest::addColumn<int>("wait");
    for (const bool null : {true, false}) {
        QTest::addRow("%s once", null ? "null" : "damaged") << null << 1 << 50;
        QTest::addRow("%s twice", null ? "null" : "damaged") << null << 2 << 65;
        QTest::addRow("%s three times", null ? "null" : "damaged") << null << 3 << 85;
    }
}

void TestDdcWaits::nullAndDamagedRepliesLengthenTheReplyDelay()
{
    QFETCH(bool, null);
    QFETCH(int, times);
    Bench bench;
    bench.wire->answer = [](const Bytes&) { return fifty(); };
    QVERIFY(bench.monitor.getVcp(0x10));
    QVERIFY(bench.monitor.learnt() == ddc::LearntWaits{});
    bench.wire->replies.assign(std::size_t(times), null ? nullMessage() : badChecksum());
    QVERIFY(bench.monitor.getVcp(0x10));
    QTEST(int(bench.monitor.learnt().replyDelay.count()), "wait");
    QCOMPARE(bench.monitor.learnt().afterSet, Ms(0));

    bench.wire->log.clear();
    QVERIFY(bench.monitor.getVcp(0x10));
    QCOMPARE(bench.wire->log[1].at - bench.wire->log[0].at, bench.monitor.learnt().replyDelay);
}

void TestDdcWaits::otherFaultsTeachNothing_data()
{
    QTest::addColumn<bool>("garbage");
    QTest::newRow("garbage") << true;
    QTest::newRow("NACK") << false;
}

void TestDdcWaits::otherFaultsTeachNothing()
{
    QFETCH(bool, garbage);
    Bench bench;
    bench.wire->replies = {garbage ? good({1, 2, 3}) : Wire::Reply{BusStatus::Nack, {}}, fifty()};
    QVERIFY(bench.monitor.getVcp(0x10));
    QVERIFY(bench.monitor.learnt() == ddc::LearntWaits{});
}

void TestDdcWaits::aSlowMonitorIsLearntFromNothing()
{
    // A monitor that needs 130 ms for every reply, more than one call's steps reach.
    Bench bench;
    bench.wire->answer = [&](const Bytes&) {
        const auto asked = bench.wire->times(true).back();
        const auto now = std::chrono::duration_cast<Ms>(bench.clock->now() - bench.wire->start);
        return now - asked >= Ms(130) ? fifty() : nullMessage();
    };
    QCOMPARE(bench.monitor.getVcp(0x10).error, Error::NullReply);
    QCOMPARE(bench.monitor.getVcp(0x10).error, Error::None);
    QCOMPARE(bench.monitor.learnt().replyDelay, Ms(140));
    const auto retries = bench.monitor.statistics().retries;
    QCOMPARE(bench.monitor.getVcp(0x10).error, Error::None);
    QCOMPARE(bench.monitor.statistics().retries, retries);
}

void TestDdcWaits::aCodeThatIsAnsweredByNullOnlyDoesNotSlowTheRest()
{
    Bench bench;
    bench.wire->answer = [](const Bytes& request) { return request.at(3) == 0x10 ? fifty() : nullMessage(); };
    QVERIFY(bench.monitor.getVcp(0x10));
    for (int i = 0; i < 5; ++i)
        QCOMPARE(bench.monitor.getVcp(0x99).error, Error::NullReply);
    QVERIFY(bench.monitor.learnt() == ddc::LearntWaits{});
}

void TestDdcWaits::aTooShortWaitAfterASetIsLearnt()
{
    // A monitor that loses what comes within 80 ms of a set.
    Bench bench;
    Ms busyUntil{0};
    bench.wire->answer = [&](const Bytes& request) {
        const auto asked = bench.wire->times(true).back();
        return request.at(2) == 0x01 && asked >= busyUntil ? fifty() : nullMessage();
    };
    for (int i = 0; i < 4; ++i) {
        bench.clock->advance(Ms(1000));
        QCOMPARE(bench.monitor.setVcp(0x10, 50), Error::None);
        busyUntil = bench.wire->log.back().at + Ms(80);
        QCOMPARE(bench.monitor.getVcp(0x10).error, Error::None);
    }
    QCOMPARE(bench.monitor.learnt().afterSet, Ms(85));
    QCOMPARE(bench.monitor.learnt().replyDelay, Ms(0));
    QCOMPARE(bench.monitor.statistics().retries, 2u); // 50 and 65 ms were too short, 85 is enough.
}

void TestDdcWaits::learntWaitsNeverShrink()
{
    Bench bench;
    bench.wire->replies = {nullMessage()};
    bench.wire->answer = [](const Bytes&) { return fifty(); };
    for (int i = 0; i < 100; ++i)
        QVERIFY(bench.monitor.getVcp(0x10));
    QCOMPARE(bench.monitor.learnt().replyDelay, Ms(50));
    bench.monitor.setLearnt({Ms(45), Ms(0)});
    QCOMPARE(bench.monitor.learnt().replyDelay, Ms(50));
    for (int i = 0; i < 100; ++i) {
        bench.wire->replies.assign(3, badChecksum());
        QVERIFY(bench.monitor.getVcp(0x10));
    }
    QCOMPARE(bench.monitor.learnt().replyDelay, ddc::LongestLearntWait);
}

void TestDdcWaits::learntWaitsCanBeKeptAndRestored()
{
    Bench bench;
    bench.monitor.setLearnt({Ms(85), Ms(110)});
    QVERIFY((bench.monitor.learnt() == ddc::LearntWaits{Ms(85), Ms(110)}));
    QCOMPARE(bench.monitor.statistics().replyDelay, Ms(85));
    bench.wire->answer = [](const Bytes&) { return fifty(); };
    QCOMPARE(bench.monitor.setVcp(0x10, 50), Error::None);
    QVERIFY(bench.monitor.getVcp(0x10));
    QCOMPARE(bench.wire->log[1].at, Ms(110));
    QCOMPARE(bench.wire->log[2].at, Ms(195));

    Bench damaged; // Kept values may come from a damaged file.
    damaged.monitor.setLearnt({Ms(-7), Ms(10)});
    QVERIFY(damaged.monitor.learnt() == ddc::LearntWaits{});
    damaged.monitor.setLearnt({Ms(std::numeric_limits<std::int64_t>::max()), Ms(900000)});
    QVERIFY((damaged.monitor.learnt() == ddc::LearntWaits{Ms(200), Ms(200)}));
}

void TestDdcWaits::noWaitsMeansNone()
{
    Bench bench(ddc::Timing::none());
    bench.monitor.setWriteDelays({{0x60, Ms(5000)}});
    bench.monitor.setLearnt({Ms(85), Ms(110)});
    bench.wire->writeResults = {BusStatus::Ok, BusStatus::Nack, BusStatus::Busy, BusStatus::Busy};
    bench.wire->replies = {nullMessage(), badChecksum(), nullMessage(), fifty()};
    QCOMPARE(bench.monitor.setVcp(0x60, 1), Error::None);
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::None);
    QVERIFY(bench.monitor.getVcp(0x10));
    QCOMPARE(bench.monitor.saveSettings(), Error::None);
    QCOMPARE(bench.monitor.setVcpWithin(0x10, 1, Ms(0)), Error::None);
    bench.wire->writeResults.assign(1000, BusStatus::Busy);
    QCOMPARE(bench.monitor.setVcp(0x10, 1), Error::Busy);
    QCOMPARE(bench.clock->now() - bench.wire->start, Ms(0));
    QVERIFY(bench.monitor.learnt() == ddc::LearntWaits{});
}

QTEST_APPLESS_MAIN(TestDdcWaits)
#include "tst_ddc_waits.moc"
