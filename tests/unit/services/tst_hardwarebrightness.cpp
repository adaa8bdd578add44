// SPDX-License-Identifier: Apache-2.0
#include "../ddc/FakeWire.h"

#include <LuShared/LuPlatform.h>
#include <PanelCore/MonitorInfo.h>
#include <panelcore/HardwareBrightness.h>
#include <panelcore/MonitorLink.h>

#include <QElapsedTimer>
#include <QSemaphore>
#include <QTest>

#include <atomic>
#include <future>

namespace {

constexpr std::uint8_t Brightness = 0x10;

/// A monitor that holds one value, with a maximum of its own.
struct Device
{
    std::atomic<int> value{20};
    std::atomic<int> maximum{80};
    std::atomic<bool> answers{true};
    std::atomic<int> gets{0};
    QSemaphore gate; ///< Held by holdSets: each set waits for it.
    std::atomic<bool> holdSets{false};
    std::atomic<bool> holdGets{false}; ///< As holdSets, for the answers.
    std::atomic<int> waitingGets{0};
    std::mutex mutex;
    QList<int> written;

    QList<int> sets()
    {
        const std::lock_guard lock(mutex);
        return written;
    }
};

class DeviceBus : public ddc::Bus
{
public:
    explicit DeviceBus(std::shared_ptr<Device> device) : m_device(std::move(device)) {}

    ddc::BusStatus write(std::uint8_t, std::span<const std::uint8_t> bytes) override
    {
        if (!m_device->answers)
            return ddc::BusStatus::Nack;
        // 51 84 03 CODE HIGH LOW CHECK is a set, 51 82 01 CODE CHECK a get.
        if (bytes.size() == 7 && bytes[2] == 0x03 && bytes[3] == Brightness) {
            if (m_device->holdSets)
                m_device->gate.acquire();
            m_device->value = bytes[4] << 8 | bytes[5];
            const std::lock_guard lock(m_device->mutex);
            m_device->written.append(m_device->value);
        } else {
            ++m_device->gets;
        }
        return ddc::BusStatus::Ok;
    }

    ddc::BusStatus read(std::uint8_t, std::span<std::uint8_t> bytes) override
    {
        if (!m_device->answers)
            return ddc::BusStatus::Nack;
        const int value = m_device->value;
        if (m_device->holdGets) {
            ++m_device->waitingGets;
            m_device->gate.acquire();
        }
        const Bytes frame = vcpFrame(Brightness, std::uint16_t(value), std::uint16_t(m_device->maximum));
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = i < frame.size() ? frame[i] : 0xFF;
        return ddc::BusStatus::Ok;
    }

    std::string name() const override { return "device"; }

private:
    const std::shared_ptr<Device> m_device;
};

} // namespace

/// The brightness of a monitor that no package serves: its own, over the bus, in the units of the system.
class TestHardwareBrightness : public QObject
{
    Q_OBJECT

private:
    std::shared_ptr<Device> device;
    QSharedPointer<MonitorInfo> monitor;

    /// As a monitor's queue calls it: on another thread than this one.
    double get() const
    {
        return std::async(std::launch::async, [this] { return LuPlatform::getMonitorBrightness(monitor); })
            .get();
    }
    bool refresh() const
    {
        return std::async(std::launch::async,
                          [this] { return MonitorLink::of(*monitor).brightness().refresh(); })
            .get();
    }
    void set(double fraction) const
    {
        std::async(std::launch::async, [this, fraction] {
            LuPlatform::setMonitorBrightness(monitor, fraction);
        }).get();
    }

private Q_SLOTS:
    void init()
    {
        device = std::make_shared<Device>();
        MonitorDescription description;
        description.id = QStringLiteral("Other@1");
        monitor =
            MonitorLink::create(description, std::make_unique<DeviceBus>(device), MonitorLink::Waits::None);
    }

    void cleanup()
    {
        device->holdSets = false;
        device->holdGets = false;
        device->gate.release(1000);
        monitor.reset();
    }

    void aFractionIsOneOfTheMonitorsOwnMaximum_data()
    {
        QTest::addColumn<int>("maximum");
        QTest::addColumn<double>("fraction");
        QTest::addColumn<int>("written");
        QTest::newRow("80, half") << 80 << 0.5 << 40;
        QTest::newRow("80, all") << 80 << 1.0 << 80;
        QTest::newRow("80, none") << 80 << 0.0 << 0;
        QTest::newRow("100 keeps percents") << 100 << 0.29 << 29;
        QTest::newRow("255, a third, to the nearest") << 255 << 0.33 << 84;
        QTest::newRow("over 1") << 80 << 7.0 << 80;
        QTest::newRow("under 0") << 80 << -7.0 << 0;
        QTest::newRow("16 bits") << 0xFFFF << 1.0 << 0xFFFF;
    }

    void aFractionIsOneOfTheMonitorsOwnMaximum()
    {
        QFETCH(int, maximum);
        QFETCH(double, fraction);
        QFETCH(int, written);
        device->maximum = maximum;
        set(fraction);
        QCOMPARE(device->sets(), QList<int>{written});
        QCOMPARE(get(), double(written) / maximum);
    }

    void theMaximumIsReadOnce()
    {
        set(0.1);
        set(0.2);
        QCOMPARE(device->gets.load(), 1);
        QCOMPARE(device->sets(), (QList<int>{8, 16}));
    }

    void whatTheMonitorSaysIsRead()
    {
        QCOMPARE(get(), 0.25);
        device->value = 60;
        QCOMPARE(get(), 0.75);
        device->value = 200; // more than its own maximum
        QCOMPARE(get(), 1.0);
    }

    void aChangeAtTheMonitorIsNewsOnce()
    {
        HardwareBrightness& brightness = MonitorLink::of(*monitor).brightness();
        QVERIFY(refresh());
        QVERIFY(!refresh());
        QCOMPARE(brightness.known().value_or(-1), 0.25);
        device->value = 60;
        QVERIFY(refresh());
        QCOMPARE(brightness.known().value_or(-1), 0.75);
        device->maximum = 120;
        QVERIFY(refresh());
        QCOMPARE(brightness.known().value_or(-1), 0.5);
        device->answers = false;
        QVERIFY(!refresh());
        QCOMPARE(brightness.known().value_or(-1), 0.5);
    }

    void whatWasWrittenIsNoNews()
    {
        device->maximum = 50; // 0.37 is none of its steps
        set(0.37);
        QCOMPARE(device->value.load(), 19);
        QVERIFY(!refresh());
        QCOMPARE(MonitorLink::of(*monitor).brightness().known().value_or(-1), 0.37);
    }

    void afterAFailedWriteTheMonitorHasTheWord()
    {
        QVERIFY(refresh());
        device->answers = false;
        set(0.9);
        device->answers = true;
        QVERIFY(refresh());
        QCOMPARE(MonitorLink::of(*monitor).brightness().known().value_or(-1), 0.25);
    }

    void anAnswerThatAWriteHasOutrunCountsForNothing()
    {
        QVERIFY(refresh());
        device->value = 60;
        device->holdGets = true;
        auto round = std::async(std::launch::async, [this] { return refresh(); });
        QTRY_COMPARE(device->waitingGets.load(), 1);
        LuPlatform::setMonitorBrightness(monitor, 0.5);
        device->holdGets = false;
        device->gate.release(100);
        QVERIFY(!round.get());
        QTRY_COMPARE(MonitorLink::of(*monitor).brightness().known().value_or(-1), 0.5);
        QCOMPARE(device->value.load(), 40);
    }

    void onlyWhoIsToldOfIsWatched()
    {
        HardwareBrightness& brightness = MonitorLink::of(*monitor).brightness();
        QVERIFY(!brightness.isWatched());
        LuPlatform::registerBrightnessChangeNotifications(monitor);
        QVERIFY(brightness.isWatched());
        QCOMPARE(device->gets.load(), 0);
    }

    void whoHasNoBrightnessIsAskedNoMore()
    {
        HardwareBrightness& brightness = MonitorLink::of(*monitor).brightness();
        brightness.watch();
        device->answers = false;
        for (int i = 0; i < 50; ++i)
            QVERIFY(!refresh());
        QVERIFY(brightness.isWatched()); // it may come back
        device->answers = true;
        device->maximum = 0;
        int asked = 0;
        while (brightness.isWatched() && ++asked < 50)
            QVERIFY(!refresh());
        QVERIFY2(asked >= 2 && asked <= 5, qPrintable(QString::number(asked)));
        // A person's choice asks anew.
        device->maximum = 100;
        set(0.5);
        QVERIFY(brightness.isWatched());
    }

    void aMonitorThatTellsNothingIsNotWritten_data()
    {
        QTest::addColumn<bool>("answers");
        QTest::addColumn<int>("maximum");
        QTest::newRow("silent") << false << 100;
        QTest::newRow("no maximum") << true << 0;
    }

    void aMonitorThatTellsNothingIsNotWritten()
    {
        QFETCH(bool, answers);
        QFETCH(int, maximum);
        device->answers = answers;
        device->maximum = maximum;
        QVERIFY(get() < 0);
        set(0.5);
        QCOMPARE(device->sets(), QList<int>());
        device->answers = true;
        device->maximum = 100;
        set(0.5);
        QCOMPARE(device->sets(), QList<int>{50});
    }

    void theGuiThreadWaitsForNoBus()
    {
        QVERIFY(LuPlatform::getMonitorBrightness(monitor) < 0);
        QCOMPARE(device->gets.load(), 0);
        device->holdSets = true;
        QElapsedTimer timer;
        timer.start();
        LuPlatform::setMonitorBrightness(monitor, 0.5);
        QVERIFY(LuPlatform::getMonitorBrightness(monitor) <= 0.5);
        // The bus hangs all the while; without it both calls take microseconds.
        QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(device->sets().isEmpty());
        device->gate.release();
        QTRY_COMPARE(device->sets(), QList<int>{40});
        QTRY_COMPARE(LuPlatform::getMonitorBrightness(monitor), 0.5);
    }

    void ofManyValuesTheLastOneCounts()
    {
        device->holdSets = true;
        for (int i = 0; i <= 80; ++i)
            LuPlatform::setMonitorBrightness(monitor, i / 80.0);
        device->holdSets = false;
        device->gate.release(100);
        QTRY_COMPARE(device->value.load(), 80);
        QVERIFY2(device->sets().size() <= 3, qPrintable(QString::number(device->sets().size())));
    }

    void aNewerWriteOutrunsWhatWaits()
    {
        get();
        device->holdSets = true;
        LuPlatform::setMonitorBrightness(monitor, 0.1);
        LuPlatform::setMonitorBrightness(monitor, 0.2);
        auto direct =
            std::async(std::launch::async, [this] { LuPlatform::setMonitorBrightness(monitor, 1); });
        device->holdSets = false;
        device->gate.release(100);
        direct.get();
        QTRY_COMPARE(device->value.load(), 80);
    }

    void aMonitorThatGoesEndsItsWrites()
    {
        device->answers = false;
        LuPlatform::setMonitorBrightness(monitor, 0.5);
        MonitorLink::of(*monitor).cancel();
        monitor.reset(); // would hang or crash
        QCOMPARE(device->sets(), QList<int>());
    }

    void withoutABusNothingIsKnown()
    {
        MonitorDescription description;
        monitor = MonitorLink::create(description, nullptr, MonitorLink::Waits::None);
        set(0.5);
        QVERIFY(get() < 0);
    }
};

QTEST_GUILESS_MAIN(TestHardwareBrightness)
#include "tst_hardwarebrightness.moc"
