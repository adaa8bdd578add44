// SPDX-License-Identifier: Apache-2.0
#include "Gate.h"
#include "Record.h"

#include "ZrCore/ZrClock.h"
#include "ZrCore/ZrDispatch.h"
#include "ZrCore/ZrIdle.h"

#include <QCoreApplication>
#include <QTest>
#include <QThread>

#include <atomic>
#include <functional>
#include <thread>

using namespace Qt::StringLiterals;

class tst_idle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ZrClock::instance().release(); }
    void waitsForRunningAndWaitingJobs();
    void timesOut();
    void backgroundJobsDoNotCount();
    void jobsBehindABackgroundJobCount();
    void timedJobsDoNotCount();
    void workThatWandersCounts();
    void postedEventsCount();
    void givenQueuesOnly();
    void anotherThreadWaitsToo();
    void insideAJobTheOwnQueueIsLeftOut();
    void notifyCallsOnceOnTheMainThread();
    void notifyNeedsItsContext();
    void aPauseOnTheStoppedClockRests();
    void aRealPauseDoesNotRest();
    void aClosedQueueRests();
    void whatWaitsIsListedByGroup();
};

void tst_idle::waitsForRunningAndWaitingJobs()
{
    ZrDispatch queue(u"q"_s);
    Gate gate;
    std::atomic<int> ended = 0;
    queue.post(nullptr, [&] {
        gate.pass();
        ++ended;
    });
    queue.post(nullptr, [&] { ++ended; });
    QVERIFY(!ZrIdle::wait(20));
    QCOMPARE(ended.load(), 0);
    gate.open();
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(ended.load(), 2);
}

void tst_idle::timesOut()
{
    ZrDispatch queue(u"q"_s);
    Gate gate;
    queue.post(nullptr, [&] { gate.pass(); });
    QVERIFY(!ZrIdle::wait(0));
    QVERIFY(!ZrIdle::wait(10));
    std::atomic<int> answer = -1;
    std::thread other([&] { answer = ZrIdle::wait(10) ? 1 : 0; });
    other.join();
    QCOMPARE(answer.load(), 0);
    gate.open();
}

void tst_idle::backgroundJobsDoNotCount()
{
    ZrDispatch queue(u"q"_s);
    Gate gate;
    queue.postBackground(nullptr, u"read"_s, [&] { gate.pass(); });
    queue.postBackground(nullptr, u"read"_s, [] {});
    QVERIFY(gate.waitUntilReached());
    QVERIFY(ZrIdle::wait(10'000));
    QVERIFY(queue.has(nullptr, u"read"_s));
    gate.open();
}

void tst_idle::jobsBehindABackgroundJobCount()
{
    ZrDispatch queue(u"q"_s);
    Gate gate;
    queue.postBackground(nullptr, u"read"_s, [&] { gate.pass(); });
    queue.post(nullptr, [] {});
    QVERIFY(!ZrIdle::wait(20));
    gate.open();
    QVERIFY(ZrIdle::wait(10'000));
}

void tst_idle::timedJobsDoNotCount()
{
    ZrDispatch queue(u"q"_s);
    queue.postLater(u"a"_s, 3'600'000, [] {});
    queue.postUniqueAtTime(this, u"b"_s, QDateTime::currentDateTime().addDays(1), [] {});
    ZrDispatch::main()->postUniqueLater(this, u"c"_s, 3'600'000, [] {});
    QVERIFY(ZrIdle::wait(10'000));
    ZrDispatch::main()->remove(this, u"c"_s, false);
}

void tst_idle::workThatWandersCounts()
{
    // Every step is posted by the one before on another queue, the main queue and a queued signal among them:
    // at each moment only one of them is busy.
    ZrDispatch one(u"one"_s);
    ZrDispatch two(u"two"_s);
    int steps = 0;
    std::function<void()> step = [&] {
        if (++steps == 200)
            return;
        if (steps % 4 == 0)
            one.post(nullptr, [&] { step(); });
        else if (steps % 4 == 1)
            ZrDispatch::main()->post(nullptr, [&] { step(); });
        else if (steps % 4 == 2)
            two.post(nullptr, [&] { step(); });
        else
            QMetaObject::invokeMethod(this, "objectNameChanged", Qt::QueuedConnection,
                                      Q_ARG(QString, QString()));
    };
    QObject receiver;
    connect(
        this, &QObject::objectNameChanged, &receiver, [&] { step(); }, Qt::DirectConnection);
    one.post(nullptr, [&] { step(); });
    QVERIFY(ZrIdle::wait(30'000));
    QCOMPARE(steps, 200);
}

void tst_idle::postedEventsCount()
{
    int delivered = 0;
    QObject receiver;
    connect(
        this, &QObject::objectNameChanged, &receiver,
        [&] {
            if (++delivered < 50)
                QMetaObject::invokeMethod(this, "objectNameChanged", Qt::QueuedConnection,
                                          Q_ARG(QString, QString()));
        },
        Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, "objectNameChanged", Q_ARG(QString, QString()));
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(delivered, 50);
}

void tst_idle::givenQueuesOnly()
{
    const auto busy = QSharedPointer<ZrDispatch>::create(u"busy"_s);
    const auto free = QSharedPointer<ZrDispatch>::create(u"free"_s);
    Gate gate;
    busy->post(nullptr, [&] { gate.pass(); });
    QVERIFY(ZrIdle::wait({free}, 10'000));
    QVERIFY(!ZrIdle::wait({free, busy}, 20));
    gate.open();
    QVERIFY(ZrIdle::wait({free, busy}, 10'000));
}

void tst_idle::anotherThreadWaitsToo()
{
    ZrDispatch queue(u"q"_s);
    std::atomic<int> ended = 0;
    std::atomic<int> answer = -1;
    for (int i = 0; i < 100; ++i) {
        queue.post(nullptr, [&] {
            ++ended;
            ZrDispatch::main()->post(nullptr, [&] { ++ended; });
        });
    }
    std::thread other([&] { answer = ZrIdle::wait(30'000) ? ended.load() : 0; });
    QTRY_VERIFY_WITH_TIMEOUT(answer >= 0, 30'000);
    other.join();
    QCOMPARE(answer.load(), 200);
}

void tst_idle::insideAJobTheOwnQueueIsLeftOut()
{
    ZrDispatch own(u"own"_s);
    ZrDispatch other(u"other"_s);
    std::atomic<int> ended = 0;
    std::atomic<int> seen = -1;
    own.post(nullptr, [&] {
        for (int i = 0; i < 10; ++i)
            other.post(nullptr, [&] { ++ended; });
        seen = ZrIdle::wait(10'000) ? ended.load() : -2;
    });
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(seen.load(), 10);
    ZrDispatch::main()->post(nullptr, [&] {
        other.post(nullptr, [&] { ++ended; });
        seen = ZrIdle::wait(10'000) ? ended.load() : -2;
    });
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(seen.load(), 11);
}

void tst_idle::notifyCallsOnceOnTheMainThread()
{
    const auto queue = QSharedPointer<ZrDispatch>::create(u"q"_s);
    Gate gate;
    int calls = 0;
    bool onMain = false;
    queue->post(nullptr, [&] { gate.pass(); });
    ZrIdle::notify({queue}, this, [&] {
        ++calls;
        onMain = QThread::currentThread() == QCoreApplication::instance()->thread();
    });
    QVERIFY(!ZrIdle::wait({queue}, 20));
    QCOMPARE(calls, 0);
    gate.open();
    QTRY_COMPARE(calls, 1);
    QVERIFY(onMain);
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(calls, 1);
}

void tst_idle::notifyNeedsItsContext()
{
    int calls = 0;
    {
        QObject context;
        ZrIdle::notify({}, &context, [&] { ++calls; });
    }
    int others = 0;
    ZrIdle::notify({}, nullptr, [&] { ++others; });
    QTRY_COMPARE(others, 1);
    QCOMPARE(calls, 0);
}

void tst_idle::aPauseOnTheStoppedClockRests()
{
    ZrClock::instance().set(QDateTime(QDate(2026, 3, 2), QTime(8, 0)));
    ZrDispatch queue(u"q"_s);
    std::atomic<int> steps = 0;
    queue.post(nullptr, [&] {
        ++steps;
        ZrClock::instance().pause(10);
        ++steps;
    });
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(steps.load(), 1);
    ZrClock::instance().release();
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(steps.load(), 2);
}

void tst_idle::aRealPauseDoesNotRest()
{
    ZrDispatch queue(u"q"_s);
    queue.post(nullptr, [] { ZrClock::instance().pause(3'600'000); });
    QVERIFY(!ZrIdle::wait(20));
    queue.close();
    QVERIFY(ZrIdle::wait(10'000));
}

void tst_idle::aClosedQueueRests()
{
    ZrDispatch queue(u"q"_s);
    queue.close();
    queue.post(nullptr, [] {});
    QVERIFY(ZrIdle::wait(10'000));
}

void tst_idle::whatWaitsIsListedByGroup()
{
    ZrClock::instance().set(QDateTime(QDate(2026, 3, 2), QTime(10, 0)));
    ZrDispatch common(u"common"_s);
    ZrDispatch one(u"one"_s, u"A"_s);
    ZrDispatch two(u"two"_s, u"A"_s);
    ZrDispatch other(u"other"_s, u"B"_s);
    for (ZrDispatch* queue : {&common, &one, &two, &other})
        queue->postLater(queue->name() + u"Key"_s, 60'000, [] {});
    const auto namesOf = [](const QString& group) {
        QStringList names;
        const QList<ZrIdle::Waiting> waiting = ZrIdle::waitingOf(group);
        for (const auto& [queue, job] : waiting) {
            if (job.key == queue + u"Key"_s && job.due == QDateTime(QDate(2026, 3, 2), QTime(10, 1)))
                names.append(queue);
        }
        return names;
    };
    QCOMPARE(namesOf(u"A"_s), (QStringList{u"one"_s, u"two"_s, u"common"_s}));
    QCOMPARE(namesOf(u"B"_s), (QStringList{u"other"_s, u"common"_s}));
    QCOMPARE(namesOf(u"C"_s), QStringList{u"common"_s});
    QCOMPARE(namesOf(QString()), QStringList{u"common"_s});
}

QTEST_GUILESS_MAIN(tst_idle)
#include "tst_idle.moc"
