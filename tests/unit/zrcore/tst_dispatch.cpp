// SPDX-License-Identifier: Apache-2.0
#include "Gate.h"
#include "Record.h"

#include "ZrCore/ZrClock.h"
#include "ZrCore/ZrDispatch.h"
#include "ZrCore/ZrIdle.h"

#include "ZrCore/ZrQueueGate.h"

#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <array>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using DispatchPointer = QSharedPointer<ZrDispatch>;

DispatchPointer makeQueue(const QString& name = u"test"_s)
{
    return DispatchPointer::create(name);
}

} // namespace

class tst_dispatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void jobsRunInOrderOnOneThread();
    void frontGoesBeforeBackInOrderOfPosting();
    void uniqueReplacesAcrossLanes_data();
    void uniqueReplacesAcrossLanes();
    void replacedJobTakesTheNewPlace();
    void aJobBehindTheGateIsStillReplaced();
    void uniqueKeepsOtherContextsAndKeys();
    void runningJobIsNotReplaced();
    void jobOfAContextThatIsGoneDoesNotRun();
    void destructionWaitsForTheRunningJob();
    void destructionEndsAPauseOfItsJob();
    void aJobMayDestroyItsContext();
    void contextsOfManyThreads();
    void hasCountsWhatWaitsOnly();
    void removeDropsTheKeyOnly();
    void removeMayWaitForTheRunningJob();
    void removeFromTheJobDoesNotWait();
    void jobWaitsOrRunsUntilItHasEnded();
    void droppedFunctionsEndOutsideTheLock();
    void closeDropsAndWaits();
    void closeEndsAPause();
    void theLastReferenceMayEndInAJob();
    void destructorDropsWhatWaits();
    void waitingListsInOrderOfRunning();
    void sixtyFourQueuesRunSideBySide();
    void aHundredThousandJobs();
    void aHundredThousandUniqueJobs();
    void aJobMayPostAndRemove();
    void emptyJobDoesNothing();
    void mainQueueRunsOnTheMainThread();
    void mainQueueGoesOnAfterANestedLoop();
    void mainQueueTimers();
    void runInContextLaterRunsOnTheMainThread();
    void runInContextLaterNeedsItsContext();
};

void tst_dispatch::jobsRunInOrderOnOneThread()
{
    const auto queue = makeQueue();
    Record record;
    std::atomic<bool> sameThread = true;
    for (int i = 0; i < 100; ++i) {
        queue->post(nullptr, [&, i] {
            record.add(QString::number(i));
            if (!queue->isCurrentThread())
                sameThread = false;
        });
    }
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QStringList expected;
    for (int i = 0; i < 100; ++i)
        expected << QString::number(i);
    QCOMPARE(record.texts(), expected);
    QVERIFY(sameThread);
    QVERIFY(!queue->isCurrentThread());
}

void tst_dispatch::frontGoesBeforeBackInOrderOfPosting()
{
    const auto queue = makeQueue();
    Record record;
    Gate gate;
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    queue->post(nullptr, [&] { record.add(u"back1"_s); });
    queue->postUniqueAtFront(nullptr, u"a"_s, [&] { record.add(u"front1"_s); });
    queue->postUnique(nullptr, u"b"_s, [&] { record.add(u"back2"_s); });
    queue->postUniqueAtFront(nullptr, u"c"_s, [&] { record.add(u"front2"_s); });
    gate.open();
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QCOMPARE(record.joined(), u"front1 front2 back1 back2"_s);
}

void tst_dispatch::uniqueReplacesAcrossLanes_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    static constexpr std::array names{"back", "front", "later", "at time", "background later"};
    for (int first = 0; first < 5; ++first) {
        for (int second = 0; second < 5; ++second)
            QTest::addRow("%s then %s", names[std::size_t(first)], names[std::size_t(second)])
                << first << second;
    }
}

void tst_dispatch::uniqueReplacesAcrossLanes()
{
    QFETCH(int, first);
    QFETCH(int, second);
    const auto queue = makeQueue();
    QObject context;
    Record record;
    Gate gate;
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    const auto post = [&](int kind, const QString& text) {
        auto job = [&record, text] { record.add(text); };
        const QString key = u"key"_s;
        switch (kind) {
        case 0:
            queue->postUnique(&context, key, job);
            break;
        case 1:
            queue->postUniqueAtFront(&context, key, job);
            break;
        case 2:
            queue->postUniqueLater(&context, key, 1, job);
            break;
        case 3:
            queue->postUniqueAtTime(&context, key, QDateTime::currentDateTime(), job);
            break;
        default:
            queue->postUniqueBackgroundLater(&context, key, 1, job);
        }
    };
    post(first, u"first"_s);
    post(second, u"second"_s);
    QCOMPARE(queue->waiting().size(), 1);
    gate.open();
    QTRY_COMPARE(record.joined(), u"second"_s);
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QCOMPARE(record.joined(), u"second"_s);
}

void tst_dispatch::replacedJobTakesTheNewPlace()
{
    const auto queue = makeQueue();
    Record record;
    Gate gate;
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    queue->postUnique(nullptr, u"a"_s, [&] { record.add(u"a1"_s); });
    queue->postUnique(nullptr, u"b"_s, [&] { record.add(u"b"_s); });
    queue->postUnique(nullptr, u"a"_s, [&] { record.add(u"a2"_s); });
    gate.open();
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QCOMPARE(record.joined(), u"b a2"_s);
}

void tst_dispatch::uniqueKeepsOtherContextsAndKeys()
{
    const auto queue = makeQueue();
    QObject one;
    QObject two;
    Record record;
    Gate gate;
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    queue->postUnique(&one, u"a"_s, [&] { record.add(u"one.a"_s); });
    queue->postUnique(&two, u"a"_s, [&] { record.add(u"two.a"_s); });
    queue->postUnique(&one, u"b"_s, [&] { record.add(u"one.b"_s); });
    queue->postUnique(nullptr, u"a"_s, [&] { record.add(u"null.a"_s); });
    gate.open();
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QCOMPARE(record.joined(), u"one.a two.a one.b null.a"_s);
}

void tst_dispatch::runningJobIsNotReplaced()
{
    const auto queue = makeQueue();
    Record record;
    Gate gate;
    queue->postUnique(nullptr, u"a"_s, [&] {
        gate.pass();
        record.add(u"first"_s);
    });
    QVERIFY(gate.waitUntilReached());
    QVERIFY(!queue->has(nullptr, u"a"_s));
    QVERIFY(queue->isRunning(nullptr, u"a"_s));
    queue->postUnique(nullptr, u"a"_s, [&] { record.add(u"second"_s); });
    queue->postUnique(nullptr, u"b"_s, [] {});
    QVERIFY(queue->has(nullptr, u"a"_s));
    QVERIFY(!queue->isRunning(nullptr, u"b"_s));
    QObject other;
    QVERIFY(!queue->isRunning(&other, u"a"_s));
    gate.open();
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QVERIFY(!queue->isRunning(nullptr, u"a"_s));
    QCOMPARE(record.joined(), u"first second"_s);
}

void tst_dispatch::jobOfAContextThatIsGoneDoesNotRun()
{
    const auto queue = makeQueue();
    auto context = std::make_unique<QObject>();
    Record record;
    Gate gate;
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    queue->post(context.get(), [&] { record.add(u"post"_s); });
    queue->postUniqueAtFront(context.get(), u"front"_s, [&] { record.add(u"front"_s); });
    queue->postUniqueLater(context.get(), u"later"_s, 0, [&] { record.add(u"later"_s); });
    queue->postUniqueAtTime(context.get(), u"time"_s, QDateTime::currentDateTime(),
                            [&] { record.add(u"time"_s); });
    queue->post(nullptr, [&] { record.add(u"other"_s); });
    context.reset();
    QCOMPARE(queue->waiting().size(), 1);
    gate.open();
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QCOMPARE(record.joined(), u"other"_s);
}

void tst_dispatch::destructionWaitsForTheRunningJob()
{
    const auto queue = makeQueue();
    auto context = std::make_unique<QObject>();
    Gate gate;
    std::atomic<bool> ended = false;
    queue->post(context.get(), [&] {
        gate.pass();
        ended = true;
    });
    QVERIFY(gate.waitUntilReached());
    std::atomic<bool> destroyed = false;
    std::thread destroyer([&] {
        context.reset();
        destroyed = ended.load();
    });
    gate.open();
    destroyer.join();
    QVERIFY(destroyed);
}

void tst_dispatch::destructionEndsAPauseOfItsJob()
{
    const auto queue = makeQueue();
    auto context = std::make_unique<QObject>();
    Gate gate;
    gate.open();
    std::atomic<bool> ended = false;
    queue->post(context.get(), [&] {
        gate.pass();
        ZrClock::instance().pause(3'600'000);
        ended = true;
    });
    QVERIFY(gate.waitUntilReached());
    context.reset();
    QVERIFY(ended);
}

void tst_dispatch::aJobMayDestroyItsContext()
{
    const auto queue = makeQueue();
    auto* context = new QObject;
    Record record;
    Gate gate;
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    queue->post(context, [&, context] {
        delete context;
        record.add(u"destroyed"_s);
    });
    queue->post(context, [&] { record.add(u"never"_s); });
    gate.open();
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QCOMPARE(record.joined(), u"destroyed"_s);
}

void tst_dispatch::contextsOfManyThreads()
{
    // Posting, running and destroying meet in every order; a job that runs after its context's end reads
    // freed memory.
    std::atomic<int> late = 0;
    std::vector<DispatchPointer> queues;
    for (int i = 0; i < 4; ++i)
        queues.push_back(makeQueue());
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 300; ++i) {
                auto context = std::make_unique<QObject>();
                const auto alive = std::make_shared<std::atomic<bool>>(true);
                for (const auto& queue : queues) {
                    queue->post(context.get(), [alive, &late] {
                        if (!*alive)
                            ++late;
                    });
                    queue->postUniqueLater(context.get(), u"k"_s, i % 2, [alive, &late] {
                        if (!*alive)
                            ++late;
                    });
                }
                context.reset();
                *alive = false;
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
    for (const auto& queue : queues)
        QCOMPARE(queue->waiting().size(), 0);
    QCOMPARE(late.load(), 0);
}

void tst_dispatch::hasCountsWhatWaitsOnly()
{
    const auto queue = makeQueue();
    QObject context;
    QVERIFY(!queue->has(&context, u"a"_s));
    queue->postUniqueLater(&context, u"a"_s, 3'600'000, [] {});
    QVERIFY(queue->has(&context, u"a"_s));
    QVERIFY(!queue->has(nullptr, u"a"_s));
    QVERIFY(!queue->has(&context, u"b"_s));
    queue->postLater(u"p"_s, 3'600'000, [] {});
    QVERIFY(queue->has(nullptr, u"p"_s));
}

void tst_dispatch::removeDropsTheKeyOnly()
{
    const auto queue = makeQueue();
    QObject context;
    Record record;
    Gate gate;
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    queue->postUnique(&context, u"a"_s, [&] { record.add(u"a"_s); });
    queue->postUnique(&context, u"b"_s, [&] { record.add(u"b"_s); });
    queue->postLater(u"a"_s, 0, [&] { record.add(u"null.a"_s); });
    queue->remove(&context, u"a"_s, false);
    QVERIFY(!queue->has(&context, u"a"_s));
    gate.open();
    QTRY_COMPARE(record.joined(), u"b null.a"_s);
}

void tst_dispatch::removeMayWaitForTheRunningJob()
{
    const auto queue = makeQueue();
    Gate gate;
    std::atomic<bool> ended = false;
    queue->postUnique(nullptr, u"a"_s, [&] {
        gate.pass();
        ended = true;
    });
    QVERIFY(gate.waitUntilReached());
    QVERIFY(queue->isRunning(nullptr, u"a"_s));
    QVERIFY(!queue->isRunning(nullptr, u"other"_s));
    QVERIFY(!queue->isRunning(this, u"a"_s));
    queue->remove(nullptr, u"a"_s, false);
    QVERIFY(!ended);
    queue->remove(nullptr, u"other"_s, true);
    QVERIFY(!ended);
    std::atomic<bool> endedBefore = false;
    std::thread remover([&] {
        queue->remove(nullptr, u"a"_s, true);
        endedBefore = ended.load();
    });
    gate.open();
    remover.join();
    QVERIFY(endedBefore);
}

void tst_dispatch::jobWaitsOrRunsUntilItHasEnded()
{
    const auto queue = makeQueue();
    for (int round = 0; round < 200; ++round) {
        std::atomic<bool> ended = false;
        queue->postUnique(this, u"a"_s, [&] { ended = true; });
        while (!ended) {
            // Asked in the order of its life, so that it cannot slip past.
            const bool known = queue->has(this, u"a"_s) || queue->isRunning(this, u"a"_s);
            QVERIFY(known || ended);
        }
        QTRY_VERIFY(!queue->isRunning(this, u"a"_s));
    }
}

void tst_dispatch::removeFromTheJobDoesNotWait()
{
    const auto queue = makeQueue();
    std::atomic<bool> ended = false;
    queue->postUnique(nullptr, u"a"_s, [&] {
        queue->remove(nullptr, u"a"_s, true);
        ended = true;
    });
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QVERIFY(ended);
}

void tst_dispatch::droppedFunctionsEndOutsideTheLock()
{
    // The destructor of what a job holds uses the queue: under its lock that would hang.
    const auto queue = makeQueue();
    struct Holder
    {
        ZrDispatch* queue;
        ~Holder() { queue->has(nullptr, QStringLiteral("any")); }
    };
    Gate gate;
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    QObject context;
    const auto post = [&](const QString& key, QObject* of) {
        queue->postUnique(of, key,
                          [holder = std::make_shared<Holder>(Holder{queue.data()})] { Q_UNUSED(holder) });
    };
    post(u"a"_s, nullptr);
    post(u"a"_s, nullptr);
    queue->remove(nullptr, u"a"_s, false);
    {
        QObject gone;
        post(u"a"_s, &gone);
    }
    post(u"run"_s, nullptr);
    gate.open();
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    queue->postUniqueLater(nullptr, u"z"_s, 3'600'000,
                           [holder = std::make_shared<Holder>(Holder{queue.data()})] { Q_UNUSED(holder) });
    queue->close();
}

void tst_dispatch::closeDropsAndWaits()
{
    const auto queue = makeQueue();
    Record record;
    Gate gate;
    queue->post(nullptr, [&] {
        gate.pass();
        record.add(u"running"_s);
    });
    QVERIFY(gate.waitUntilReached());
    queue->post(nullptr, [&] { record.add(u"waiting"_s); });
    std::atomic<qsizetype> seen = 0;
    std::thread closer([&] {
        queue->close();
        seen = record.size();
    });
    QTRY_VERIFY(queue->waiting().isEmpty());
    gate.open();
    closer.join();
    QCOMPARE(seen.load(), 1);
    queue->post(nullptr, [&] { record.add(u"late"_s); });
    QCOMPARE(queue->waiting().size(), 0);
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QCOMPARE(record.joined(), u"running"_s);
}

void tst_dispatch::closeEndsAPause()
{
    const auto queue = makeQueue();
    Gate gate;
    gate.open();
    std::atomic<bool> ended = false;
    queue->post(nullptr, [&] {
        gate.pass();
        ZrClock::instance().pause(3'600'000);
        ended = true;
    });
    QVERIFY(gate.waitUntilReached());
    queue->close();
    QVERIFY(ended);
}

void tst_dispatch::theLastReferenceMayEndInAJob()
{
    auto queue = makeQueue();
    ZrDispatch* const plain = queue.data();
    std::atomic<bool> ended = false;
    Gate gate;
    plain->post(nullptr, [&ended, &gate, held = queue]() mutable {
        gate.pass();
        held.reset();
        ended = true;
    });
    QVERIFY(gate.waitUntilReached());
    queue.reset();
    gate.open();
    QTRY_VERIFY(ended);
}

void tst_dispatch::destructorDropsWhatWaits()
{
    Record record;
    Gate gate;
    const auto token = std::make_shared<int>(1);
    {
        auto queue = makeQueue();
        queue->post(nullptr, [&] {
            gate.pass();
            record.add(u"running"_s);
        });
        QVERIFY(gate.waitUntilReached());
        queue->postUniqueLater(nullptr, u"a"_s, 3'600'000, [token] {});
        queue->postUniqueAtTime(nullptr, u"b"_s, QDateTime::currentDateTime().addDays(1), [token] {});
        gate.open();
    }
    QCOMPARE(record.joined(), u"running"_s);
    QCOMPARE(token.use_count(), 1);
}

void tst_dispatch::waitingListsInOrderOfRunning()
{
    const auto queue = makeQueue();
    Gate gate;
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    QObject context;
    const QDateTime soon = QDateTime::currentDateTime().addSecs(60);
    queue->postUniqueLater(nullptr, u"hour"_s, 3'600'000, [] {});
    queue->postUniqueAtTime(nullptr, u"minute"_s, soon, [] {});
    queue->postBackground(&context, u"read"_s, [] {});
    queue->postUnique(this, u"back"_s, [] {});
    queue->postUniqueAtFront(&context, u"front"_s, [] {});
    const auto waiting = queue->waiting();
    gate.open();
    QStringList keys;
    for (const auto& job : waiting)
        keys << job.key;
    QCOMPARE(keys.join(u' '), u"front read back minute hour"_s);
    QCOMPARE(waiting.at(0).context, u"QObject"_s);
    QCOMPARE(waiting.at(2).context, u"tst_dispatch"_s);
    QVERIFY(waiting.at(1).background && !waiting.at(2).background);
    QVERIFY(!waiting.at(0).due && waiting.at(3).context.isEmpty());
    QCOMPARE(*waiting.at(3).due, soon.addMSecs(1));
    QVERIFY(qAbs(QDateTime::currentDateTime().addSecs(3600).msecsTo(*waiting.at(4).due)) < 60'000);
    queue->close();
}

void tst_dispatch::sixtyFourQueuesRunSideBySide()
{
    // Every job waits until one of each queue has come: one after the other they would never all arrive.
    constexpr int Count = 64;
    std::vector<DispatchPointer> queues;
    std::mutex mutex;
    std::condition_variable condition;
    int arrived = 0;
    for (int i = 0; i < Count; ++i) {
        queues.push_back(makeQueue(u"q%1"_s.arg(i)));
        queues.back()->post(nullptr, [&] {
            std::unique_lock lock(mutex);
            ++arrived;
            condition.notify_all();
            condition.wait(lock, [&] { return arrived == Count; });
        });
    }
    QVERIFY(ZrIdle::wait(30'000));
    QCOMPARE(arrived, Count);
}

void tst_dispatch::aHundredThousandJobs()
{
    const auto queue = makeQueue();
    int counter = 0; // one thread counts; the wait publishes it
    bool ordered = true;
    for (int i = 0; i < 100'000; ++i) {
        queue->post(nullptr, [&, i] {
            ordered = ordered && counter == i;
            ++counter;
        });
    }
    QVERIFY(ZrIdle::wait({queue}, 60'000));
    QCOMPARE(counter, 100'000);
    QVERIFY(ordered);
}

void tst_dispatch::aHundredThousandUniqueJobs()
{
    const auto queue = makeQueue();
    QObject context;
    Gate gate;
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    int counter = 0;
    for (int i = 0; i < 100'000; ++i)
        queue->postUnique(&context, QString::number(i / 2), [&] { ++counter; });
    gate.open();
    QVERIFY(ZrIdle::wait({queue}, 60'000));
    QCOMPARE(counter, 50'000);
}

void tst_dispatch::aJobMayPostAndRemove()
{
    const auto queue = makeQueue();
    Record record;
    queue->post(nullptr, [&] {
        queue->postUnique(nullptr, u"a"_s, [&] { record.add(u"a"_s); });
        queue->postUnique(nullptr, u"b"_s, [&] {
            record.add(u"b"_s);
            queue->postUniqueAtFront(nullptr, u"c"_s, [&] { record.add(u"c"_s); });
        });
        queue->remove(nullptr, u"a"_s, false);
    });
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QCOMPARE(record.joined(), u"b c"_s);
}

void tst_dispatch::emptyJobDoesNothing()
{
    const auto queue = makeQueue();
    queue->post(nullptr, nullptr);
    queue->postUnique(nullptr, u"a"_s, {});
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    QTest::ignoreMessage(QtWarningMsg, "[ZrDispatch] job a refused: its time is invalid");
    queue->postUniqueAtTime(nullptr, u"a"_s, QDateTime(), [] {});
    QVERIFY(!queue->has(nullptr, u"a"_s));
}

void tst_dispatch::mainQueueRunsOnTheMainThread()
{
    const auto queue = makeQueue();
    Record record;
    queue->post(nullptr, [&] {
        for (int i = 0; i < 3; ++i) {
            ZrDispatch::main()->post(nullptr, [&record, i] {
                if (ZrDispatch::main()->isCurrentThread())
                    record.add(QString::number(i));
            });
        }
        ZrDispatch::main()->postUniqueAtFront(nullptr, u"f"_s, [&] { record.add(u"f"_s); });
    });
    QVERIFY(ZrIdle::wait({queue}, 10'000));
    // The front job may come after one that had begun before it was posted.
    QStringList rest = record.texts();
    QVERIFY(rest.removeOne(u"f"_s));
    QCOMPARE(rest.join(u' '), u"0 1 2"_s);
}

void tst_dispatch::mainQueueGoesOnAfterANestedLoop()
{
    Record record;
    ZrDispatch::main()->post(nullptr, [&] {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
        ZrDispatch::main()->post(nullptr, [&] { record.add(u"second"_s); });
        loop.exec();
        record.add(u"first"_s);
    });
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(record.joined(), u"first second"_s);
}

void tst_dispatch::mainQueueTimers()
{
    Record record;
    QObject context;
    ZrDispatch::main()->postUniqueLater(&context, u"b"_s, 40, [&] { record.add(u"b"_s); });
    ZrDispatch::main()->postUniqueLater(&context, u"a"_s, 1, [&] { record.add(u"a"_s); });
    ZrDispatch::main()->postUniqueAtTime(&context, u"t"_s, QDateTime::currentDateTime().addMSecs(20),
                                         [&] { record.add(u"t"_s); });
    QTRY_COMPARE(record.joined(), u"a t b"_s);
}

void tst_dispatch::runInContextLaterRunsOnTheMainThread()
{
    QObject context;
    std::atomic<int> onMain = 0;
    std::thread poster([&] {
        const auto job = [&] { onMain += ZrDispatch::main()->isCurrentThread() ? 1 : 100; };
        ZrDispatch::runInContextLater(&context, 5, job);
        ZrDispatch::runInContextLater(&context, 5, job);
    });
    poster.join();
    QTRY_COMPARE(onMain.load(), 2);
}

void tst_dispatch::runInContextLaterNeedsItsContext()
{
    Record record;
    {
        QObject context;
        ZrDispatch::runInContextLater(&context, 0, [&] { record.add(u"gone"_s); });
    }
    ZrDispatch::runInContextLater(this, 0, [&] { record.add(u"here"_s); });
    QTRY_COMPARE(record.joined(), u"here"_s);
}

void tst_dispatch::aJobBehindTheGateIsStillReplaced()
{
    const DispatchPointer queue = makeQueue(u"gated"_s);
    QObject context;
    Gate gate;
    zr::setQueueGate(u"gated"_s, [&gate] { gate.pass(); });
    std::atomic<int> first = 0;
    std::atomic<int> second = 0;
    queue->postUniqueAtFront(&context, u"slider"_s, [&first] { ++first; });
    QVERIFY(gate.waitUntilReached());
    QVERIFY(queue->has(&context, u"slider"_s));
    queue->postUniqueAtFront(&context, u"slider"_s, [&second] { ++second; });
    gate.open();
    QTRY_COMPARE(second.load(), 1);
    QCOMPARE(first.load(), 0);
    // Work of the back lane needs no gate, and without one nothing waits.
    zr::setQueueGate(u"gated"_s, {});
    queue->postUniqueAtFront(&context, u"slider"_s, [&first] { ++first; });
    QTRY_COMPARE(first.load(), 1);
}

QTEST_GUILESS_MAIN(tst_dispatch)
#include "tst_dispatch.moc"
