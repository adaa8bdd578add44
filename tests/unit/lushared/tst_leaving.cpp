// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrIdle.h>
#include <ddc/Bus.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuMonitorRegistry.h>
#include <panelcore/MonitorLink.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QTest>

#include <algorithm>
#include <condition_variable>
#include <limits>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

/// A way for tests to make a bus hang as a driver does: no cancel reaches it.
class Hanger
{
public:
    void hang(bool on)
    {
        const std::lock_guard lock(m_mutex);
        m_hangs = on;
        m_condition.notify_all();
    }
    bool isHolding() const
    {
        const std::lock_guard lock(m_mutex);
        return m_inside > 0;
    }
    void pass()
    {
        std::unique_lock lock(m_mutex);
        ++m_inside;
        m_condition.wait(lock, [this] { return !m_hangs; });
        --m_inside;
    }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_hangs = false;
    int m_inside = 0;
};

class HangingBus : public ddc::Bus
{
public:
    HangingBus(std::unique_ptr<ddc::Bus> bus, std::shared_ptr<Hanger> hanger)
        : m_bus(std::move(bus)), m_hanger(std::move(hanger))
    {
    }
    ddc::BusStatus write(std::uint8_t address, std::span<const std::uint8_t> bytes) override
    {
        m_hanger->pass();
        return m_bus->write(address, bytes);
    }
    ddc::BusStatus read(std::uint8_t address, std::span<std::uint8_t> bytes) override
    {
        m_hanger->pass();
        return m_bus->read(address, bytes);
    }
    std::string name() const override { return m_bus->name(); }

private:
    const std::unique_ptr<ddc::Bus> m_bus;
    const std::shared_ptr<Hanger> m_hanger;
};

struct Plug
{
    explicit Plug(const QString& serial)
        : monitor(sim::Identity{u"TK30Z"_s, serial}), hanger(std::make_shared<Hanger>())
    {
        MonitorDescription description;
        description.id = u"TK30Z@"_s + serial;
        description.modelName = u"TK30Z"_s;
        description.serialNumber = serial;
        info = MonitorLink::create(description, std::make_unique<HangingBus>(monitor.makeBus(), hanger),
                                   MonitorLink::Waits::None);
    }

    sim::Monitor monitor;
    std::shared_ptr<Hanger> hanger;
    QSharedPointer<MonitorInfo> info;
};

} // namespace

/// Monitors that go while their bus hangs.
class TestLeaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void removalDoesNotWaitForTheBus();
    void theModelGoesWithItsLastJob();
    void aMonitorAtRestGoesAtOnce();
    void theSameMonitorComesBackMeanwhile();
    void theRestOfAnotherMonitorDoesNotWait();
    void aQuestionThatHangsDelaysNobody();
    void theEndWaitsForWhatEnds();
    void theEndDoesNotWaitForEver();

private:
    static void settle(LuMonitorRegistry& registry, Plug& plug);
    /// Lets a job of the monitor hang on its bus.
    static void hold(LuMonitorModel* model, Plug& plug);
};

void TestLeaving::init()
{
    LuHostOptions::instance() = LuHostOptions();
    TestBed::instance();
}

void TestLeaving::settle(LuMonitorRegistry& registry, Plug& plug)
{
    registry.addMonitor(plug.info);
    QTRY_VERIFY(!registry.isBusy());
    QVERIFY(waitForRest());
}

void TestLeaving::hold(LuMonitorModel* model, Plug& plug)
{
    plug.hanger->hang(true);
    LuModelModuleInterface* contrast = model->moduleByClassName(u"LuAiContrast"_s);
    QVERIFY(contrast->setProperty("state", !contrast->property("state").toBool()));
    QTRY_VERIFY(plug.hanger->isHolding());
}

void TestLeaving::removalDoesNotWaitForTheBus()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    // The shortest of some, since a busy machine may stop any thread for a while.
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int i = 0; i < 5; ++i) {
        Plug plug(u"L1-%1"_s.arg(i));
        settle(registry, plug);
        QPointer<LuMonitorModel> model = registry.current();
        hold(model, plug);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(registry.removeMonitor(plug.info->id()));
        shortest = std::min(shortest, timer.nsecsElapsed());
        QVERIFY(registry.monitors().isEmpty());
        QVERIFY(model);
        plug.hanger->hang(false);
        QTRY_VERIFY(!model);
    }
    qInfo() << "shortest removal:" << shortest / 1000 << "us";
#ifdef LUMEN_TIMES_COUNT
    QVERIFY2(shortest < 4'000'000, qPrintable(u"%1 ns"_s.arg(shortest)));
#endif
}

void TestLeaving::theModelGoesWithItsLastJob()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug plug(u"L2"_s);
    settle(registry, plug);
    QPointer<LuMonitorModel> model = registry.current();
    const std::weak_ptr<Hanger> hanger = plug.hanger;
    hold(model, plug);
    QVERIFY(registry.removeMonitor(plug.info->id()));
    QVERIFY(waitForRest()); // nobody awaits what hangs
    QVERIFY(model);
    plug.hanger->hang(false);
    QTRY_VERIFY(!model);
    // Bus and transactor go with the last who holds the handle.
    plug.info.reset();
    plug.hanger.reset();
    QTRY_VERIFY(hanger.expired());
}

void TestLeaving::aMonitorAtRestGoesAtOnce()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug plug(u"L3"_s);
    settle(registry, plug);
    QPointer<LuMonitorModel> model = registry.current();
    QVERIFY(registry.removeMonitor(plug.info->id()));
    QVERIFY(!model);
}

void TestLeaving::theSameMonitorComesBackMeanwhile()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug before(u"L4"_s);
    settle(registry, before);
    QPointer<LuMonitorModel> old = registry.current();
    hold(old, before);
    QVERIFY(registry.removeMonitor(before.info->id()));
    Plug after(u"L4"_s);
    settle(registry, after);
    LuMonitorModel* model = registry.current();
    QVERIFY(model && model != old);
    LuModelModuleInterface* contrast = model->moduleByClassName(u"LuAiContrast"_s);
    QVERIFY(contrast->setProperty("state", true));
    QTRY_COMPARE(int(after.monitor.value(0xF3).value()), 1);
    before.hanger->hang(false);
    QTRY_VERIFY(!old);
    // What the old one was about to do came to nothing.
    QCOMPARE(registry.current(), model);
    QVERIFY(contrast->property("state").toBool());
    registry.shutDown();
}

void TestLeaving::theRestOfAnotherMonitorDoesNotWait()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug hanging(u"L5"_s);
    Plug sound(u"L6"_s);
    settle(registry, hanging);
    hold(registry.find(hanging.info->id()), hanging);
    registry.addMonitor(sound.info);
    QTRY_VERIFY(!registry.isBusy());
    bool rest = false;
    ZrIdle::notifyGroup(sound.info->id(), this, [&rest] { rest = true; });
    QTRY_VERIFY(rest);
    QVERIFY(hanging.hanger->isHolding());
    hanging.hanger->hang(false);
    QVERIFY(registry.shutDown());
}

void TestLeaving::aQuestionThatHangsDelaysNobody()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug plug(u"L7"_s);
    plug.hanger->hang(true);
    registry.addMonitor(plug.info);
    QTRY_VERIFY(plug.hanger->isHolding());
    QElapsedTimer timer;
    timer.start();
    QVERIFY(registry.removeMonitor(plug.info->id()));
    QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!registry.isBusy());
    plug.hanger->hang(false);
    QVERIFY(registry.shutDown());
}

void TestLeaving::theEndWaitsForWhatEnds()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug plug(u"L8"_s);
    settle(registry, plug);
    QPointer<LuMonitorModel> model = registry.current();
    hold(model, plug);
    QVERIFY(registry.removeMonitor(plug.info->id()));
    plug.hanger->hang(false);
    QVERIFY(registry.shutDown());
    QVERIFY(!model);
}

void TestLeaving::theEndDoesNotWaitForEver()
{
    LuMonitorRegistry registry;
    registry.addPackage(TestBed::instance().package());
    Plug plug(u"L9"_s);
    settle(registry, plug);
    QPointer<LuMonitorModel> model = registry.current();
    const QSharedPointer<ZrDispatch> queue = model->dispatch();
    hold(model, plug);
    QVERIFY(!registry.shutDown());
    QVERIFY(registry.monitors().isEmpty());
    QVERIFY(model); // its thread may wake up yet
    plug.hanger->hang(false);
    QVERIFY(queue->waitForEnd(10'000));
}

QTEST_MAIN(TestLeaving)
#include "tst_leaving.moc"
