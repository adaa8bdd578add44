// SPDX-License-Identifier: Apache-2.0
#include "Gate.h"

#include "ZrCore/ZrDispatch.h"
#include "ZrCore/ZrIdle.h"

#include <QCoreApplication>
#include <QTest>

#include <atomic>
#include <memory>

using namespace Qt::StringLiterals;

/// Queues that are let go while their job hangs, and waiting for one group's rest.
class tst_retire : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void retiringDoesNotWait();
    void aQueueAtRestEndsAtOnce();
    void whatWaitsIsDropped();
    void aRetiredQueueIsNotAwaited();
    void theEndCanBeAwaited();
    void anotherGroupIsNotAwaited();
    void theOwnGroupAndThatOfNobodyAreAwaited();
};

void tst_retire::retiringDoesNotWait()
{
    Gate gate;
    auto queue = std::make_unique<ZrDispatch>(u"q"_s);
    queue->post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    bool ended = false;
    queue->retire([&ended] { ended = true; });
    QVERIFY(!queue->hasEnded());
    QCoreApplication::processEvents();
    QVERIFY(!ended);
    gate.open();
    QTRY_VERIFY(ended);
    QVERIFY(queue->hasEnded());
    queue.reset();
}

void tst_retire::aQueueAtRestEndsAtOnce()
{
    ZrDispatch queue(u"q"_s);
    bool ended = false;
    queue.retire([&ended] { ended = true; });
    QVERIFY(queue.hasEnded());
    QTRY_VERIFY(ended);
}

void tst_retire::whatWaitsIsDropped()
{
    Gate gate;
    std::atomic<int> ran = 0;
    ZrDispatch queue(u"q"_s);
    queue.post(nullptr, [&] { gate.pass(); });
    queue.post(nullptr, [&] { ++ran; });
    QVERIFY(gate.waitUntilReached());
    queue.retire();
    queue.post(nullptr, [&] { ++ran; });
    gate.open();
    QVERIFY(queue.waitForEnd(10'000));
    QCOMPARE(ran.load(), 0);
}

void tst_retire::aRetiredQueueIsNotAwaited()
{
    Gate gate;
    ZrDispatch queue(u"q"_s);
    queue.post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    QVERIFY(!ZrIdle::wait(20));
    queue.retire();
    QVERIFY(ZrIdle::wait(10'000));
    gate.open();
}

void tst_retire::theEndCanBeAwaited()
{
    Gate gate;
    ZrDispatch queue(u"q"_s);
    queue.post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    QVERIFY(!queue.waitForEnd(1));
    queue.retire();
    QVERIFY(!queue.waitForEnd(1));
    gate.open();
    QVERIFY(queue.waitForEnd(10'000));
}

void tst_retire::anotherGroupIsNotAwaited()
{
    Gate gate;
    ZrDispatch hanging(u"a"_s, u"A"_s);
    ZrDispatch sound(u"b"_s, u"B"_s);
    hanging.post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    bool restOfB = false;
    bool restOfA = false;
    ZrIdle::notifyGroup(u"B"_s, this, [&restOfB] { restOfB = true; });
    ZrIdle::notifyGroup(u"A"_s, this, [&restOfA] { restOfA = true; });
    QTRY_VERIFY(restOfB);
    QVERIFY(!restOfA);
    gate.open();
    QTRY_VERIFY(restOfA);
}

void tst_retire::theOwnGroupAndThatOfNobodyAreAwaited()
{
    Gate gate;
    ZrDispatch nobodys(u"n"_s);
    ZrDispatch own(u"a"_s, u"A"_s);
    nobodys.post(nullptr, [&] { gate.pass(); });
    QVERIFY(gate.waitUntilReached());
    std::atomic<bool> ran = false;
    bool rest = false;
    ZrIdle::notifyGroup(u"A"_s, this, [&] { rest = ran; });
    QCoreApplication::processEvents();
    QVERIFY(!rest);
    own.post(nullptr, [&ran] { ran = true; });
    gate.open();
    QTRY_VERIFY(rest);
}

QTEST_GUILESS_MAIN(tst_retire)
#include "tst_retire.moc"
