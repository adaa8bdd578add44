// SPDX-License-Identifier: Apache-2.0
#include "MockBed.h"
#include "Patience.h"

#include <ddc-i2c/Enumerator.h>
#include <ddc-i2c/HotplugWatcher.h>
#include <ddc-i2c/I2cBus.h>
#include <ddc-i2c/Identity.h>
#include <ddc/Transactor.h>

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTest>

#include <future>

Q_DECLARE_METATYPE(ddc::Error)
Q_DECLARE_METATYPE(sim::FaultKind)

namespace {

constexpr std::uint8_t Brightness = 0x10;

std::unique_ptr<sim::Monitor> makeMonitor(const char* name)
{
    sim::Options options;
    options.strictTiming = true;
    return std::make_unique<sim::Monitor>(*sim::Identity::parse(QString::fromLatin1(name)), options);
}

} // namespace

/// The transport, the enumeration and the events on device files with simulated monitors behind them.
class TestMock : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<sim::Monitor> alpha;
    std::unique_ptr<sim::Monitor> beta;
    std::unique_ptr<MockBed> bed;
    MockBed::Port* first = nullptr;
    MockBed::Port* second = nullptr;

    static std::unique_ptr<ddc::Transactor> open(int number, const sim::Monitor& monitor,
                                                 std::shared_ptr<ddci2c::BusLink> link = {})
    {
        ddci2c::I2cBus::Options options;
        options.path = ddci2c::Enumerator::devicePath(number);
        const QByteArray edid = monitor.edid();
        options.edid.assign(edid.begin(), edid.end());
        options.link = std::move(link);
        return std::make_unique<ddc::Transactor>(std::make_unique<ddci2c::I2cBus>(std::move(options)));
    }

    static std::vector<ddci2c::IdentifiedMonitor> look(ddci2c::IdentityBook& book)
    {
        return book.identify(ddci2c::Enumerator().scan().monitors);
    }

private Q_SLOTS:
    void init()
    {
        alpha = makeMonitor("Alpha27Q@SN-A");
        beta = makeMonitor("Beta32U@SN-B");
        bed = std::make_unique<MockBed>();
        first = &bed->addPort(4, QStringLiteral("DP-1"));
        second = &bed->addPort(5, QStringLiteral("HDMI-A-1"));
        bed->plug(*first, *alpha);
        bed->plug(*second, *beta);
    }

    void cleanup()
    {
        QCOMPARE(alpha->violations().total(), quint64(0));
        QCOMPARE(beta->violations().total(), quint64(0));
        bed.reset();
    }

    void monitorsAreFoundReadAndWritten()
    {
        bed->addPanel(QStringLiteral("eDP-1"), makeMonitor("Panel@1")->edid());
        bed->addPort(6, QStringLiteral("DP-2"));
        ddci2c::IdentityBook book;
        const auto found = look(book);
        QCOMPARE(found.size(), std::size_t(3));
        QCOMPARE(found[0].id, std::string("Alpha27Q@SN-A"));
        QVERIFY(found[0].found.bus == 4);
        QCOMPARE(found[1].id, std::string("Beta32U@SN-B"));
        QVERIFY(found[1].found.bus == 5);
        QVERIFY(found[2].found.builtIn);
        QCOMPARE(found[2].found.backlight.filename().string(), std::string("intel_backlight"));

        const auto transactor = open(4, *alpha);
        for (const std::uint16_t value : {42, 7}) {
            QCOMPARE(transactor->setVcp(Brightness, value), ddc::Error::None);
            const auto read = transactor->getVcp(Brightness);
            QCOMPARE(read.error, ddc::Error::None);
            QCOMPARE(read.value.current, value);
            QVERIFY(alpha->value(Brightness) == value);
        }
        QCOMPARE(QByteArray::fromStdString(transactor->capabilities().value), alpha->capabilities());
        QCOMPARE(transactor->getVcp(0xEE).error, ddc::Error::Unsupported);
        QCOMPARE(bed->plainTransfers(), 0);
        QCOMPARE(beta->traffic().size(), 0);
    }

    void adaptersWithoutMessagesWork()
    {
        bed->setHasMessages(false);
        const auto transactor = open(4, *alpha);
        QCOMPARE(transactor->setVcp(Brightness, 33), ddc::Error::None);
        QCOMPARE(transactor->getVcp(Brightness).value.current, std::uint16_t(33));
        QVERIFY(bed->plainTransfers() > 0);
    }

    void aFaultIsToldAndOverWhenItIsOver_data()
    {
        QTest::addColumn<sim::FaultKind>("kind");
        QTest::addColumn<int>("nack");
        QTest::addColumn<QList<ddc::Error>>("errors");
        using Kind = sim::FaultKind;
        using Errors = QList<ddc::Error>;
        QTest::newRow("NACK as ENXIO") << Kind::Nack << ENXIO << Errors{ddc::Error::NoReply};
        QTest::newRow("NACK as EREMOTEIO") << Kind::Nack << EREMOTEIO << Errors{ddc::Error::NoReply};
        QTest::newRow("NACK as EIO") << Kind::Nack << EIO << Errors{ddc::Error::NoReply};
        QTest::newRow("null reply") << Kind::Null << ENXIO << Errors{ddc::Error::NullReply};
        QTest::newRow("checksum") << Kind::Checksum << ENXIO << Errors{ddc::Error::BadChecksum};
        QTest::newRow("garbage") << Kind::Garbage << ENXIO
                                 << Errors{ddc::Error::Malformed, ddc::Error::BadChecksum};
    }

    void aFaultIsToldAndOverWhenItIsOver()
    {
        QFETCH(sim::FaultKind, kind);
        QFETCH(int, nack);
        QFETCH(QList<ddc::Error>, errors);
        bed->setNackErrno(*first, nack);
        const auto transactor = open(4, *alpha);
        QCOMPARE(transactor->getVcp(Brightness).error, ddc::Error::None);
        sim::Fault fault;
        fault.kind = kind;
        fault.count = 1;
        alpha->armFault(fault);
        const ddc::Error error = transactor->getVcp(Brightness).error;
        QVERIFY2(errors.contains(error), ddc::text(error));
        alpha->endTransaction();
        QCOMPARE(transactor->getVcp(Brightness).error, ddc::Error::None);
        QCOMPARE(transactor->setVcp(Brightness, 61), ddc::Error::None);
        QVERIFY(alpha->value(Brightness) == 61);
    }

    void aTryThatFailsIsRepeated()
    {
        const auto transactor = open(4, *alpha);
        sim::Fault fault;
        fault.kind = sim::FaultKind::Null;
        fault.probability = 0.3;
        alpha->armFault(fault);
        int good = 0;
        for (int i = 0; i < 10; ++i)
            good += transactor->getVcp(Brightness).error == ddc::Error::None;
        QVERIFY2(good >= 8, qPrintable(QString::number(good)));
    }

    void aSilentBusDelaysNoOther()
    {
        const auto silent = open(4, *alpha);
        const auto other = open(5, *beta);
        QCOMPARE(other->getVcp(Brightness).error, ddc::Error::None);
        sim::Fault fault;
        fault.kind = sim::FaultKind::Timeout;
        fault.blocks = std::chrono::minutes(2);
        alpha->armFault(fault);
        auto hanging = std::async(std::launch::async, [&silent] { return silent->getVcp(Brightness).error; });
        QTRY_VERIFY(bed->isTransferring(*first));
        for (int i = 0; i < 20; ++i)
            QCOMPARE(other->getVcp(Brightness).error, ddc::Error::None);
        // All that while the first one hung.
        QVERIFY(bed->isTransferring(*first));
        QVERIFY(hanging.wait_for(std::chrono::seconds(0)) == std::future_status::timeout);
        alpha->unplug(); // nobody waits for the two minutes to end
        QVERIFY(hanging.get() != ddc::Error::None);
    }

    void anUnplugInsideATransferEndsIt()
    {
        const auto transactor = open(4, *alpha);
        QCOMPARE(transactor->getVcp(Brightness).error, ddc::Error::None);
        sim::Fault fault;
        fault.kind = sim::FaultKind::Timeout;
        fault.blocks = std::chrono::minutes(2);
        alpha->armFault(fault);
        QElapsedTimer timer;
        timer.start();
        auto call =
            std::async(std::launch::async, [&transactor] { return transactor->setVcp(Brightness, 5); });
        QTRY_VERIFY(bed->isTransferring(*first));
        bed->unplug(*first);
        alpha->unplug();
        const ddc::Error error = call.get();
        QVERIFY2(error == ddc::Error::NoReply || error == ddc::Error::Gone, ddc::text(error));
        QVERIFY(timer.elapsed() < 60'000);
        QVERIFY(alpha->value(Brightness) != 5);
    }

    void aMonitorThatComesBackOnAnotherBusIsTheSame()
    {
        ddci2c::IdentityBook book;
        const auto before = look(book);
        bed->unplug(*first);
        bed->unplug(*second);
        bed->plug(*second, *alpha);
        const auto after = look(book);
        const ddci2c::Changes changes = ddci2c::difference(before, after);
        QCOMPARE(changes.moved.size(), std::size_t(1));
        QCOMPARE(changes.moved[0].id, std::string("Alpha27Q@SN-A"));
        QCOMPARE(changes.vanished.size(), std::size_t(1));
        const auto transactor = open(*changes.moved[0].found.bus, *alpha);
        QCOMPARE(transactor->setVcp(Brightness, 12), ddc::Error::None);
        QVERIFY(alpha->value(Brightness) == 12);
    }

    void afterASwapNothingIsWrittenToTheOther()
    {
        const auto link = std::make_shared<ddci2c::BusLink>();
        const auto transactor = open(4, *alpha, link);
        QCOMPARE(transactor->setVcp(Brightness, 12), ddc::Error::None);
        const auto untouched = beta->value(Brightness);
        bed->plug(*first, *beta);
        bed->plug(*second, *alpha);
        ++link->generation;
        QCOMPARE(transactor->setVcp(Brightness, 99), ddc::Error::Gone);
        QVERIFY(link->lost);
        QVERIFY(beta->value(Brightness) == untouched);
        QCOMPARE(beta->traffic().size(), 0);
    }

    void twinsThatAreSwappedAreToldApartByTheirSerial()
    {
        const auto one = makeMonitor("Twin24@1");
        const auto two = makeMonitor("Twin24@2");
        bed->plug(*first, *one);
        bed->plug(*second, *two);
        ddci2c::IdentityBook book;
        look(book);
        bed->plug(*first, *two);
        bed->plug(*second, *one);
        const auto swapped = look(book);
        QCOMPARE(swapped[0].id, std::string("Twin24@2"));
        QCOMPARE(swapped[1].id, std::string("Twin24@1"));
        const auto transactor = open(*swapped[0].found.bus, *two);
        QCOMPARE(transactor->setVcp(Brightness, 3), ddc::Error::None);
        QVERIFY(two->value(Brightness) == 3);
        QVERIFY(one->value(Brightness) != 3);
        bed->unplug(*first);
        bed->unplug(*second);
    }

    void anEventReachesTheWatcher()
    {
        ddci2c::HotplugWatcher watcher;
        QVERIFY2(watcher.isOpen(), watcher.problem().c_str());
        QVERIFY(!watcher.readEvents());
        QSocketNotifier notifier(watcher.descriptor(), QSocketNotifier::Read);
        bool heard = false;
        connect(&notifier, &QSocketNotifier::activated, this, [&] { heard = watcher.readEvents() || heard; });
        bed->unplug(*first);
        bed->sendEvent();
        QTRY_VERIFY(heard);
    }
};

QTEST_GUILESS_MAIN(TestMock)
#include "tst_i2c_mock.moc"
