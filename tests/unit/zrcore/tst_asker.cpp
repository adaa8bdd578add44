// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrAsker.h"
#include "ZrCore/ZrDispatch.h"
#include "ZrCore/ZrIdle.h"

#include <QCoreApplication>
#include <QTest>

#include <atomic>
#include <functional>

using namespace Qt::StringLiterals;

/// Who asked for what a thread does.
class tst_asker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nobodyAsksByHimself();
    void inputMakesTheGuiThreadAPersons();
    void theInnermostScopeHolds();
    void aJobCarriesWhoAskedForIt();
    void whatAPersonsJobAsksForIsThePersonsForAWhile();
    void aProgramsScopeIsCarriedToo();
};

void tst_asker::nobodyAsksByHimself()
{
    // First of all tests: no input has come yet.
    QVERIFY(!ZrAsker::isAsking());
    QVERIFY(!ZrAsker::isAskedFor());
}

void tst_asker::inputMakesTheGuiThreadAPersons()
{
    ZrAsker::noteInput();
    QVERIFY(ZrAsker::isAsking());
    ZrDispatch queue(u"q"_s);
    std::atomic<bool> elsewhere = true;
    {
        const ZrAsker::Scope program(ZrAsker::Program);
        queue.post(nullptr, [&] { elsewhere = ZrAsker::isAskedFor(); });
    }
    QVERIFY(ZrIdle::wait(10'000));
    QVERIFY(!elsewhere);
    // The second of an input passes.
    QTRY_VERIFY_WITH_TIMEOUT(!ZrAsker::isAsking(), 10'000);
}

void tst_asker::theInnermostScopeHolds()
{
    const ZrAsker::Scope person(ZrAsker::Person);
    QVERIFY(ZrAsker::isAsking());
    {
        const ZrAsker::Scope program(ZrAsker::Program);
        QVERIFY(!ZrAsker::isAsking());
        QVERIFY(!ZrAsker::isAskedFor());
        ZrAsker::noteInput();
        QVERIFY(!ZrAsker::isAsking());
    }
    QVERIFY(ZrAsker::isAskedFor());
}

void tst_asker::aJobCarriesWhoAskedForIt()
{
    ZrDispatch queue(u"q"_s);
    std::atomic<bool> byPerson = false;
    std::atomic<bool> byProgram = true;
    {
        const ZrAsker::Scope person(ZrAsker::Person);
        queue.post(nullptr, [&] { byPerson = ZrAsker::isAskedFor() && !ZrAsker::isAsking(); });
    }
    {
        const ZrAsker::Scope program(ZrAsker::Program);
        queue.postUniqueAtFront(nullptr, u"k"_s, [&] { byProgram = ZrAsker::isAskedFor(); });
    }
    QVERIFY(ZrIdle::wait(10'000));
    QVERIFY(byPerson);
    QVERIFY(!byProgram);
}

void tst_asker::whatAPersonsJobAsksForIsThePersonsForAWhile()
{
    ZrDispatch one(u"one"_s);
    ZrDispatch two(u"two"_s);
    std::atomic<int> persons = 0;
    std::atomic<int> runs = 0;
    // Two functions that set each other off.
    std::function<void()> step = [&] {
        persons += ZrAsker::isAskedFor();
        if (++runs < 50)
            (runs % 2 ? two : one).post(nullptr, [&step] { step(); });
    };
    {
        const ZrAsker::Scope person(ZrAsker::Person);
        one.post(nullptr, [&step] { step(); });
    }
    QVERIFY(ZrIdle::wait(10'000));
    QCOMPARE(runs.load(), 50);
    QCOMPARE(persons.load(), 3);
}

void tst_asker::aProgramsScopeIsCarriedToo()
{
    ZrDispatch queue(u"q"_s);
    std::atomic<bool> asked = true;
    {
        const ZrAsker::Scope person(ZrAsker::Person);
        queue.post(nullptr, [&] {
            const ZrAsker::Scope program(ZrAsker::Program);
            queue.post(nullptr, [&asked] { asked = ZrAsker::isAskedFor(); });
        });
    }
    QVERIFY(ZrIdle::wait(10'000));
    QVERIFY(!asked);
}

QTEST_GUILESS_MAIN(tst_asker)
#include "tst_asker.moc"
