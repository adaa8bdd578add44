// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <ZrCore/ZrDispatch.h>

#include <QSemaphore>
#include <QTest>

#include <functional>

namespace {

const QString SetLevel = QStringLiteral("setLevel");

/// A value whose comparison on the setter's side can be met by an event.
struct Level
{
    int value = 0;
    static inline std::function<void()> compared;

    friend bool operator==(const Level& a, const Level& b)
    {
        if (const std::function<void()> now = std::exchange(compared, {}))
            now();
        return a.value == b.value;
    }
};

/// A module with one setter, whose jobs wait until they are let go.
class LevelModule : public LuModelModuleInterface
{
public:
    using LuModelModuleInterface::LuModelModuleInterface;

    void readSchema(const QByteArray&) override {}
    LuSyncTasks* syncPeriodically() override { return nullptr; }

    void setLevel(int value)
    {
        if (isSettled(SetLevel, level, Level{value}))
            return;
        postUniqueAtFront(this, SetLevel, [this, value] {
            begun.release();
            go.acquire();
            level = Level{value}; // not compared: that is for the setter alone
        });
    }

    ZrShared<Level> level;
    QSemaphore begun;
    QSemaphore go;
};

} // namespace

/// A setter's word against the job of an older one.
class TestSetter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWordDuringAnOlderJobIsTheLast();
    void aWordWhileAnOlderJobEndsIsTheLast();
    void theValueThatHoldsPostsNothing();
    void theValueThatHoldsDropsWhatWaits();
};

void TestSetter::aWordDuringAnOlderJobIsTheLast()
{
    SimulatedBed bed;
    auto* module = new LevelModule(&bed.launch());
    QVERIFY(bed.idle());
    module->setLevel(1);
    module->begun.acquire();
    module->setLevel(0);
    module->go.release(2);
    QVERIFY(bed.idle());
    QCOMPARE(module->level.get().value, 0);
}

void TestSetter::aWordWhileAnOlderJobEndsIsTheLast()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    auto* module = new LevelModule(&model);
    QVERIFY(bed.idle());
    module->setLevel(1);
    module->begun.acquire();
    // Between a look at the member and the next one the job comes to its end.
    Level::compared = [&] {
        module->go.release();
        model.dispatch()->remove(module, SetLevel, true);
    };
    module->setLevel(0);
    Level::compared = {};
    module->go.release(2);
    QVERIFY(bed.idle());
    QCOMPARE(module->level.get().value, 0);
}

void TestSetter::theValueThatHoldsPostsNothing()
{
    SimulatedBed bed;
    auto* module = new LevelModule(&bed.launch());
    QVERIFY(bed.idle());
    module->setLevel(0);
    QVERIFY(bed.idle());
    QCOMPARE(module->begun.available(), 0);
}

void TestSetter::theValueThatHoldsDropsWhatWaits()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    auto* module = new LevelModule(&model);
    QVERIFY(bed.idle());
    QSemaphore holds;
    QSemaphore held;
    model.dispatch()->post(nullptr, [&] {
        holds.release();
        held.acquire();
    });
    holds.acquire();
    module->setLevel(1);
    module->setLevel(0);
    held.release();
    module->go.release();
    QVERIFY(bed.idle());
    QCOMPARE(module->begun.available(), 0);
    QCOMPARE(module->level.get().value, 0);
}

QTEST_MAIN(TestSetter)
#include "tst_setter.moc"
