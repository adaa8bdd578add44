// SPDX-License-Identifier: Apache-2.0
#include "ModelDescription.h"
#include "wirehost.h"

using ddc::BusStatus;

/// A monitor that lays its picture out anew leaves its bus for a moment.
class TestSimLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBusDropsAfterAChange_data();
    void theBusDropsAfterAChange();
    void nothingDropsWithoutAChange_data();
    void nothingDropsWithoutAChange();
    void nothingDropsWithoutStrictTiming();
    void triesMeanwhileAreLoggedAsFailed();
    void pullingThePlugEndsIt();
    void aWrongDropIsRefused();

private:
    static constexpr double DropMs = 700;

    sim::Options strict()
    {
        sim::Options options;
        options.strictTiming = true;
        options.clock = m_clock.function();
        options.epoch = m_clock.epoch();
        return options;
    }
    int get(WireHost& host, int code)
    {
        return host.get(code, [this] { m_clock.advance(40); });
    }

    TestClock m_clock;
};

void TestSimLayout::theBusDropsAfterAChange_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("value");
    QTest::newRow("another layout") << 0x7D << 2;
    QTest::newRow("closed") << 0x7D << 0;
    QTest::newRow("swapped") << 0x7F << 1;
}

void TestSimLayout::theBusDropsAfterAChange()
{
    QFETCH(int, code);
    QFETCH(int, value);
    sim::Monitor monitor(identity("TK30Z"), strict());
    WireHost host(monitor);
    QVERIFY(monitor.setByMenu(0x7D, 1));
    QVERIFY(monitor.setByMenu(0x7E, 15, 512));
    QCOMPARE(host.set(code, value), BusStatus::Ok);
    m_clock.advance(60);
    QCOMPARE(host.request(0x60), BusStatus::Nack);
    QCOMPARE(host.set(0x60, 15), BusStatus::Nack);
    BusStatus status = BusStatus::Ok;
    host.read(11, &status);
    QCOMPARE(status, BusStatus::Nack);
    host.readFrom(0x50, 128, &status);
    QCOMPARE(status, BusStatus::Nack);
    m_clock.advance(DropMs - 61);
    QCOMPARE(host.request(0x60), BusStatus::Nack);
    m_clock.advance(2);
    QVERIFY(get(host, 0x7D) >= 0);
    host.readFrom(0x50, 128, &status);
    QCOMPARE(status, BusStatus::Ok);
    // A dropped bus is the monitor's doing: the host broke no wait.
    QCOMPARE(monitor.violations().total(), 0U);
}

void TestSimLayout::nothingDropsWithoutAChange_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("value");
    QTest::newRow("the same layout") << 0x7D << 1;
    QTest::newRow("a layout that the model lacks") << 0x7D << 99;
    QTest::newRow("another source") << 0x7E << 15;
    QTest::newRow("a place of the small window") << 0x80 << 0x0301;
    QTest::newRow("the main input") << 0x60 << 15;
}

void TestSimLayout::nothingDropsWithoutAChange()
{
    QFETCH(int, code);
    QFETCH(int, value);
    sim::Monitor monitor(identity("TK30Z"), strict());
    WireHost host(monitor);
    QVERIFY(monitor.setByMenu(0x7D, 1));
    QVERIFY(monitor.setByMenu(0xA5, 512));
    QCOMPARE(host.set(code, value), BusStatus::Ok);
    m_clock.advance(60);
    QCOMPARE(get(host, 0x7D), 1);
}

void TestSimLayout::nothingDropsWithoutStrictTiming()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    QCOMPARE(host.set(0x7D, 2), BusStatus::Ok);
    QCOMPARE(host.get(0x7D), 2);
}

void TestSimLayout::triesMeanwhileAreLoggedAsFailed()
{
    sim::Monitor monitor(identity("TK30Z"), strict());
    WireHost host(monitor);
    QCOMPARE(host.set(0x7D, 2), BusStatus::Ok);
    m_clock.advance(60);
    QCOMPARE(host.request(0x7D), BusStatus::Nack);
    QCOMPARE(host.set(0xA5, 512), BusStatus::Nack);
    const QList<sim::TrafficEntry> traffic = monitor.traffic();
    QCOMPARE(traffic.size(), 3);
    QVERIFY(traffic[0].ok);
    QVERIFY(traffic[1].op == sim::Op::Get && traffic[1].code == 0x7D && !traffic[1].ok);
    QVERIFY(traffic[2].op == sim::Op::Set && traffic[2].code == 0xA5 && traffic[2].value == 512 &&
            !traffic[2].ok);
    // What was not heard was not done.
    QCOMPARE(int(*monitor.value(0xA5)), 0);
}

void TestSimLayout::pullingThePlugEndsIt()
{
    sim::Monitor monitor(identity("TK30Z"), strict());
    WireHost host(monitor);
    QCOMPARE(host.set(0x7D, 2), BusStatus::Ok);
    monitor.unplug();
    monitor.plug();
    QCOMPARE(get(host, 0x7D), 2);
}

void TestSimLayout::aWrongDropIsRefused()
{
    const QJsonObject model{{QStringLiteral("model"), QStringLiteral("X")},
                            {QStringLiteral("drops"), QJsonObject{{QStringLiteral("0x7D"), 700}}}};
    QString error;
    QVERIFY(!sim::ModelDescription::fromJson(model, &error));
    QVERIFY2(error.contains(QLatin1String("drops")), qPrintable(error));
}

QTEST_APPLESS_MAIN(TestSimLayout)
#include "tst_sim_layout.moc"
