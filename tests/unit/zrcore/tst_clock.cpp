// SPDX-License-Identifier: Apache-2.0
#include "Gate.h"
#include "Record.h"

#include "zrcore/ClockReading.h"

#include "ZrCore/ZrClock.h"
#include "ZrCore/ZrDispatch.h"
#include "ZrCore/ZrIdle.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QDateTime Monday(QDate(2026, 3, 2), QTime(8, 0));

ZrClock& theClock()
{
    return ZrClock::instance();
}

QString timeNow()
{
    return theClock().now().toString(u"HH:mm:ss.zzz"_s);
}

std::atomic<qint64> g_wall = 0;

} // namespace

class tst_clock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void runningClockIsTheSystems();
    void firstSetStops();
    void badTimesAreRefused();
    void advanceMovesWallAndTimersTogether();
    void timersWaitTheirTime();
    void postingAgainRestartsTheWait();
    void wallClockJobRunsOneMillisecondLater();
    void wallClockJobOfThePastRunsAtOnce();
    void jumpForwardRunsWallClockJobs();
    void jumpBackwardKeepsThemWaiting();
    void jumpKeepsWhatRemainsOfTimers();
    void dueJobsRunInOrderEachAtItsTime();
    void jobsOfManyQueuesRunInOrder();
    void jobsMayPostNewTimedJobs();
    void pausesEndInOrder();
    void aJobBehindAPauseRunsAfterIt();
    void pauseOfAnotherThread();
    void advanceFromAnotherThread();
    void advanceInsideAJobMovesTheOthers();
    void advanceServesTheMainQueue();
    void advanceByNothingRunsWhatIsDue();
    void advanceStopsARunningClock();
    void backgroundStandsStill();
    void backgroundMovesWhereWanted();
    void releaseKeepsWhatRemains();
    void stopTurnsARealPauseIntoAStoppedOne();
    void runningTimersKeepTheirTime();
    void runningClockFollowsAJumpOfTheSystem();
};

void tst_clock::cleanup()
{
    theClock().setBackgroundMoves(false);
    theClock().release();
    zr::setWallSource(nullptr);
}

void tst_clock::runningClockIsTheSystems()
{
    QVERIFY(!theClock().isStopped());
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime now = theClock().now();
    QVERIFY(before <= now && now <= QDateTime::currentDateTime());
    QCOMPARE(now.timeSpec(), Qt::LocalTime);
    const qint64 first = theClock().monotonicMs();
    QTRY_VERIFY(theClock().monotonicMs() > first);
}

void tst_clock::firstSetStops()
{
    const qint64 before = theClock().monotonicMs();
    theClock().set(Monday);
    QVERIFY(theClock().isStopped());
    QCOMPARE(theClock().now(), Monday);
    QVERIFY(theClock().monotonicMs() >= before);
    const qint64 stopped = theClock().monotonicMs();
    theClock().set(Monday.addYears(-3));
    QCOMPARE(theClock().now(), Monday.addYears(-3));
    QCOMPARE(theClock().monotonicMs(), stopped);
}

void tst_clock::badTimesAreRefused()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"time refused"_s));
    theClock().set(QDateTime());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"time refused"_s));
    theClock().set(QDateTime(QDate(9999, 1, 1), QTime(0, 0)));
    QVERIFY(!theClock().isStopped());
}

void tst_clock::advanceMovesWallAndTimersTogether()
{
    theClock().set(Monday);
    const qint64 before = theClock().monotonicMs();
    theClock().advance(1'500);
    QCOMPARE(theClock().now(), Monday.addMSecs(1'500));
    QCOMPARE(theClock().monotonicMs(), before + 1'500);
    theClock().advance(-5);
    QCOMPARE(theClock().now(), Monday.addMSecs(1'500));
}

void tst_clock::timersWaitTheirTime()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postLater(u"a"_s, 1'000, [&] { record.add(timeNow()); });
    theClock().advance(999);
    QCOMPARE(record.size(), 0);
    QVERIFY(queue.has(nullptr, u"a"_s));
    theClock().advance(1);
    QCOMPARE(record.joined(), u"08:00:01.000"_s);
    QVERIFY(!queue.has(nullptr, u"a"_s));
}

void tst_clock::postingAgainRestartsTheWait()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    const auto post = [&] { queue.postUniqueLater(this, u"a"_s, 100, [&] { record.add(timeNow()); }); };
    post();
    theClock().advance(60);
    post();
    theClock().advance(60);
    QCOMPARE(record.size(), 0);
    theClock().advance(60);
    QCOMPARE(record.joined(), u"08:00:00.160"_s);
}

void tst_clock::wallClockJobRunsOneMillisecondLater()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postUniqueAtTime(this, u"a"_s, Monday.addSecs(3600), [&] { record.add(timeNow()); });
    theClock().advance(3'600'000);
    QCOMPARE(record.size(), 0);
    theClock().advance(1);
    QCOMPARE(record.joined(), u"09:00:00.001"_s);
}

void tst_clock::wallClockJobOfThePastRunsAtOnce()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postUniqueAtTime(this, u"a"_s, Monday.addMSecs(-1), [&] { record.add(timeNow()); });
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(record.joined(), u"08:00:00.000"_s);
}

void tst_clock::jumpForwardRunsWallClockJobs()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postUniqueAtTime(this, u"a"_s, Monday.addSecs(3600), [&] { record.add(timeNow()); });
    theClock().set(Monday.addSecs(7200));
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(record.joined(), u"10:00:00.000"_s);
}

void tst_clock::jumpBackwardKeepsThemWaiting()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postUniqueAtTime(this, u"a"_s, Monday.addMSecs(1'000), [&] { record.add(timeNow()); });
    theClock().set(Monday.addSecs(-3600));
    theClock().advance(1'001);
    QCOMPARE(record.size(), 0);
    theClock().advance(3'600'000);
    QCOMPARE(record.joined(), u"08:00:01.001"_s);
}

void tst_clock::jumpKeepsWhatRemainsOfTimers()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postLater(u"a"_s, 1'000, [&] { record.add(timeNow()); });
    theClock().advance(400);
    theClock().set(Monday.addDays(1));
    theClock().advance(599);
    QCOMPARE(record.size(), 0);
    theClock().advance(1);
    QCOMPARE(record.joined(), u"08:00:00.600"_s);
}

void tst_clock::dueJobsRunInOrderEachAtItsTime()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postLater(u"c"_s, 300, [&] { record.add(u"c@"_s + timeNow()); });
    queue.postUniqueAtTime(this, u"b"_s, Monday.addMSecs(199), [&] { record.add(u"b@"_s + timeNow()); });
    queue.postLater(u"a"_s, 100, [&] { record.add(u"a@"_s + timeNow()); });
    queue.postLater(u"same"_s, 300, [&] { record.add(u"d@"_s + timeNow()); });
    theClock().advance(10'000);
    QCOMPARE(record.joined(), u"a@08:00:00.100 b@08:00:00.200 c@08:00:00.300 d@08:00:00.300"_s);
    QCOMPARE(timeNow(), u"08:00:10.000"_s);
}

void tst_clock::jobsOfManyQueuesRunInOrder()
{
    theClock().set(Monday);
    std::vector<std::unique_ptr<ZrDispatch>> queues;
    Record record;
    QStringList expected;
    for (int i = 0; i < 16; ++i)
        queues.push_back(std::make_unique<ZrDispatch>(u"q"_s));
    for (int i = 0; i < 64; ++i) {
        queues[std::size_t(i * 7 % 16)]->postLater(u"k"_s, 1'000 + i * 10,
                                                   [&record, i] { record.add(QString::number(i)); });
        expected << QString::number(i);
    }
    theClock().advance(5'000);
    QCOMPARE(record.texts(), expected);
}

void tst_clock::jobsMayPostNewTimedJobs()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    int rounds = 0;
    std::function<void()> round = [&] {
        record.add(timeNow());
        if (++rounds < 4)
            queue.postUniqueLater(this, u"a"_s, 1'000, [&] { round(); });
    };
    queue.postUniqueLater(this, u"a"_s, 500, [&] { round(); });
    theClock().advance(2'600);
    QCOMPARE(record.joined(), u"08:00:00.500 08:00:01.500 08:00:02.500"_s);
    theClock().advance(60'000);
    QCOMPARE(record.texts().last(), u"08:00:03.500"_s);
    QCOMPARE(rounds, 4);
}

void tst_clock::pausesEndInOrder()
{
    theClock().set(Monday);
    ZrDispatch one(u"one"_s);
    ZrDispatch two(u"two"_s);
    Record record;
    const auto pause = [&](const QString& name, qint64 ms) {
        return [&record, name, ms] {
            for (int i = 0; i < 3; ++i) {
                theClock().pause(ms);
                record.add(name + timeNow().right(3));
            }
        };
    };
    one.post(nullptr, pause(u"a"_s, 200));
    two.post(nullptr, pause(u"b"_s, 150));
    theClock().advance(420);
    QCOMPARE(record.joined(), u"b150 a200 b300 a400"_s);
    theClock().advance(1'000);
    QCOMPARE(record.joined(), u"b150 a200 b300 a400 b450 a600"_s);
}

void tst_clock::aJobBehindAPauseRunsAfterIt()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.post(nullptr, [&] {
        theClock().pause(500);
        record.add(u"paused@"_s + timeNow().right(3));
    });
    queue.post(nullptr, [&] { record.add(u"behind@"_s + timeNow().right(3)); });
    queue.postLater(u"t"_s, 100, [&] { record.add(u"timed@"_s + timeNow().right(3)); });
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(record.size(), 0);
    theClock().advance(499);
    QCOMPARE(record.size(), 0);
    theClock().advance(1);
    QCOMPARE(record.joined(), u"paused@500 behind@500 timed@500"_s);
}

void tst_clock::pauseOfAnotherThread()
{
    theClock().set(Monday);
    Gate gate;
    gate.open();
    Record record;
    std::atomic<bool> ended = false;
    std::thread sleeper([&] {
        gate.pass();
        theClock().pause(1'000);
        ended = true;
    });
    QVERIFY(gate.waitUntilReached());
    // Where the thread has not begun to pause yet, the next step of the clock is in time for it.
    QTRY_VERIFY((theClock().advance(1'000), ended.load()));
    sleeper.join();
}

void tst_clock::advanceFromAnotherThread()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postLater(u"a"_s, 100, [&] {
        record.add(timeNow().right(3));
        ZrDispatch::main()->post(nullptr, [&] { record.add(u"main"_s); });
    });
    std::atomic<bool> ended = false;
    std::thread mover([&] {
        theClock().advance(1'000);
        ended = true;
    });
    QTRY_VERIFY(ended);
    mover.join();
    QCOMPARE(record.joined(), u"100 main"_s);
}

void tst_clock::advanceInsideAJobMovesTheOthers()
{
    theClock().set(Monday);
    ZrDispatch own(u"own"_s);
    ZrDispatch other(u"other"_s);
    Record record;
    own.postLater(u"own"_s, 10, [&] { record.add(u"own@"_s + timeNow().right(3)); });
    other.postLater(u"other"_s, 20, [&] { record.add(u"other@"_s + timeNow().right(3)); });
    own.post(nullptr, [&] {
        theClock().advance(30);
        record.add(u"moved@"_s + timeNow().right(3));
    });
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(record.joined(), u"other@020 moved@030 own@030"_s);
}

void tst_clock::advanceServesTheMainQueue()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    ZrDispatch::main()->postUniqueLater(this, u"m"_s, 100, [&] {
        record.add(u"main@"_s + timeNow().right(3));
        queue.postUniqueLater(this, u"q"_s, 100, [&] { record.add(u"queue@"_s + timeNow().right(3)); });
    });
    ZrDispatch::runInContextLater(this, 300, [&] { record.add(u"later@"_s + timeNow().right(3)); });
    theClock().advance(1'000);
    QCOMPARE(record.joined(), u"main@100 queue@200 later@300"_s);
}

void tst_clock::advanceByNothingRunsWhatIsDue()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postLater(u"a"_s, 0, [&] { record.add(u"a"_s); });
    queue.post(nullptr, [&] { record.add(u"b"_s); });
    theClock().advance(0);
    QCOMPARE(record.size(), 2);
}

void tst_clock::advanceStopsARunningClock()
{
    theClock().advance(10);
    QVERIFY(theClock().isStopped());
}

void tst_clock::backgroundStandsStill()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postUniqueBackgroundLater(this, u"round"_s, 10, [&] { record.add(u"round"_s); });
    theClock().advance(60'000);
    QCOMPARE(record.size(), 0);
    QVERIFY(queue.has(this, u"round"_s));
    theClock().release();
    QTRY_COMPARE(record.size(), 1);
}

void tst_clock::backgroundMovesWhereWanted()
{
    theClock().set(Monday);
    theClock().setBackgroundMoves(true);
    ZrDispatch queue(u"q"_s);
    Record record;
    std::function<void()> round = [&] {
        record.add(timeNow().right(6));
        queue.postUniqueBackgroundLater(this, u"round"_s, 2'000, [&] { round(); });
    };
    queue.postUniqueBackgroundLater(this, u"round"_s, 2'000, [&] { round(); });
    theClock().advance(7'000);
    QCOMPARE(record.joined(), u"02.000 04.000 06.000"_s);
}

void tst_clock::releaseKeepsWhatRemains()
{
    theClock().set(Monday);
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postLater(u"far"_s, 3'600'000, [&] { record.add(u"far"_s); });
    queue.postLater(u"near"_s, 3'600'000 - 50, [&] { record.add(u"near"_s); });
    theClock().advance(3'600'000 - 60);
    const qint64 before = theClock().monotonicMs();
    theClock().release();
    QVERIFY(!theClock().isStopped());
    QVERIFY(theClock().monotonicMs() >= before);
    QTRY_COMPARE(record.joined(), u"near far"_s);
    QVERIFY(theClock().monotonicMs() >= before + 60);
}

void tst_clock::stopTurnsARealPauseIntoAStoppedOne()
{
    ZrDispatch queue(u"q"_s);
    Gate gate;
    gate.open();
    std::atomic<bool> ended = false;
    queue.post(nullptr, [&] {
        gate.pass();
        theClock().pause(3'600'000);
        ended = true;
    });
    QVERIFY(gate.waitUntilReached());
    theClock().set(Monday);
    QVERIFY(ZrIdle::wait(10'000));
    QVERIFY(!ended);
    theClock().advance(3'600'000);
    QVERIFY(ended);
}

void tst_clock::runningTimersKeepTheirTime()
{
    ZrDispatch queue(u"q"_s);
    QElapsedTimer timer;
    timer.start();
    std::atomic<qint64> elapsed = -1;
    queue.postLater(u"a"_s, 50, [&] { elapsed = timer.elapsed(); });
    QTRY_VERIFY(elapsed >= 0);
    QVERIFY2(elapsed >= 50, qPrintable(QString::number(elapsed)));
    std::atomic<qint64> paused = -1;
    queue.post(nullptr, [&] {
        QElapsedTimer inside;
        inside.start();
        theClock().pause(30);
        paused = inside.elapsed();
    });
    QTRY_VERIFY(paused >= 0);
    QVERIFY2(paused >= 30, qPrintable(QString::number(paused)));
    const QDateTime time = QDateTime::currentDateTime().addMSecs(40);
    std::atomic<bool> passed = false;
    std::atomic<bool> ran = false;
    queue.postUniqueAtTime(this, u"t"_s, time, [&] {
        passed = QDateTime::currentDateTime() > time;
        ran = true;
    });
    QTRY_VERIFY(ran);
    QVERIFY(passed);
}

void tst_clock::runningClockFollowsAJumpOfTheSystem()
{
    g_wall = Monday.toMSecsSinceEpoch();
    zr::setWallSource([] { return g_wall.load(); });
    ZrDispatch queue(u"q"_s);
    Record record;
    queue.postUniqueAtTime(this, u"a"_s, Monday.addSecs(3600), [&] { record.add(timeNow()); });
    queue.postLater(u"t"_s, 3'600'000, [&] { record.add(u"timer"_s); });
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(record.size(), 0);
    g_wall = Monday.addSecs(3601).toMSecsSinceEpoch();
    queue.post(nullptr, [] {}); // any wake-up of the queue will do
    QTRY_COMPARE(record.joined(), u"09:00:01.000"_s);
}

QTEST_GUILESS_MAIN(tst_clock)
#include "tst_clock.moc"
