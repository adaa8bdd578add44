// SPDX-License-Identifier: Apache-2.0
#include "FakeCalls.h"
#include "FakeSysfs.h"
#include "TestEdid.h"

#include <ddc-i2c/Access.h>
#include <ddc-i2c/I2cBus.h>

#include <QTest>

#include <array>

using ddc::BusStatus;
using ddci2c::I2cBus;

Q_DECLARE_METATYPE(ddc::BusStatus)

namespace {

constexpr std::array<std::uint8_t, 7> SetFrame = {0x51, 0x84, 0x03, 0x10, 0x00, 0x32, 0x9A};
const std::string Path = "/dev/i2c-4";

} // namespace

/// The transport on a system of the test's own.
class TestBus : public QObject
{
    Q_OBJECT

private:
    std::shared_ptr<FakeCalls> calls;
    std::shared_ptr<ddci2c::BusLink> link;
    FakeCalls::Monitor alpha;
    FakeCalls::Monitor beta;
    QStringList said;

    I2cBus::Options options(bool expectAlpha = true)
    {
        I2cBus::Options result;
        result.path = Path;
        if (expectAlpha)
            result.edid = alpha.edid;
        result.link = link;
        result.calls = calls;
        result.report = [this](const ddci2c::Advice& advice) {
            said.append(QString::fromStdString(advice.english()));
        };
        return result;
    }
    FakeCalls::Node& node() { return calls->nodes[Path]; }
    static BusStatus set(I2cBus& bus) { return bus.write(ddc::DdcCiAddress, SetFrame); }

private Q_SLOTS:
    void init()
    {
        calls = std::make_shared<FakeCalls>();
        link = std::make_shared<ddci2c::BusLink>();
        alpha = {};
        beta = {};
        alpha.edid = makeEdid({.serial = "SN-1"});
        beta.edid = makeEdid({.serial = "SN-2"});
        node().monitor = &alpha;
        said.clear();
    }

    void anErrnoMeansOneThing_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<BusStatus>("status");
        QTest::newRow("none") << 0 << BusStatus::Ok;
        QTest::newRow("ENXIO") << ENXIO << BusStatus::Nack;
        QTest::newRow("EREMOTEIO") << EREMOTEIO << BusStatus::Nack;
        QTest::newRow("EIO") << EIO << BusStatus::Nack;
        QTest::newRow("EBUSY") << EBUSY << BusStatus::Busy;
        QTest::newRow("EAGAIN") << EAGAIN << BusStatus::Busy;
        QTest::newRow("ETIMEDOUT") << ETIMEDOUT << BusStatus::Timeout;
        QTest::newRow("EACCES") << EACCES << BusStatus::NoAccess;
        QTest::newRow("EPERM") << EPERM << BusStatus::NoAccess;
        QTest::newRow("ENODEV") << ENODEV << BusStatus::Gone;
        QTest::newRow("ENOENT") << ENOENT << BusStatus::Gone;
        QTest::newRow("another one") << EPROTO << BusStatus::Nack;
    }

    void anErrnoMeansOneThing()
    {
        QFETCH(int, error);
        QFETCH(BusStatus, status);
        QCOMPARE(I2cBus::statusOf(error), status);
        if (error == 0)
            return;
        I2cBus bus(options(false));
        QCOMPARE(set(bus), BusStatus::Ok);
        node().transferError = error;
        QCOMPARE(set(bus), status);
        QCOMPARE(link->lastErrno.load(), error);
        QCOMPARE(link->lost.load(), status == BusStatus::Gone);
    }

    void nothingIsOpenedBeforeTheFirstTransfer()
    {
        I2cBus bus(options());
        QCOMPARE(bus.name(), std::string("i2c-4"));
        QCOMPARE(node().opens, 0);
        QCOMPARE(set(bus), BusStatus::Ok);
        QCOMPARE(set(bus), BusStatus::Ok);
        QCOMPARE(node().opens, 1);
        QCOMPARE(alpha.writes.size(), std::size_t(2));
        QCOMPARE(alpha.edidReads, 1);
    }

    void aBusIsClosedAtTheEnd()
    {
        {
            I2cBus bus(options());
            QCOMPARE(set(bus), BusStatus::Ok);
            QCOMPARE(calls->openCount(), 1);
        }
        QCOMPARE(calls->openCount(), 0);
    }

    void aBusThatWasGoneIsOpenedAgain()
    {
        I2cBus bus(options());
        QCOMPARE(set(bus), BusStatus::Ok);
        node().transferError = ENODEV;
        QCOMPARE(set(bus), BusStatus::Gone);
        QCOMPARE(calls->openCount(), 0);
        node().transferError = 0;
        QCOMPARE(set(bus), BusStatus::Ok);
        QCOMPARE(node().opens, 2);
        QVERIFY(!link->lost);
    }

    void readAndWriteServeDriversWithoutMessages_data()
    {
        QTest::addColumn<int>("messages");
        QTest::addColumn<int>("error");
        QTest::newRow("by I2C_FUNCS") << 0 << 0;
        QTest::newRow("EOPNOTSUPP") << 1 << EOPNOTSUPP;
        QTest::newRow("ENOTTY") << -ENOTTY << ENOTTY;
        QTest::newRow("EINVAL") << 1 << EINVAL;
    }

    void readAndWriteServeDriversWithoutMessages()
    {
        QFETCH(int, messages);
        QFETCH(int, error);
        node().messages = messages;
        node().transferError = error;
        I2cBus bus(options());
        QCOMPARE(set(bus), BusStatus::Ok);
        QCOMPARE(alpha.writes.size(), std::size_t(1));
        std::array<std::uint8_t, 11> reply{};
        QCOMPARE(bus.read(ddc::DdcCiAddress, reply), BusStatus::Ok);
        QCOMPARE(node().plain, 4); // offset, EDID, the write, the read
    }

    void anotherMonitorGetsNothing()
    {
        node().monitor = &beta;
        I2cBus bus(options());
        QCOMPARE(set(bus), BusStatus::Gone);
        std::array<std::uint8_t, 11> reply{};
        QCOMPARE(bus.read(ddc::DdcCiAddress, reply), BusStatus::Gone);
        QVERIFY(beta.writes.empty());
        QVERIFY(link->lost);
        QCOMPARE(said.size(), 1);
    }

    void afterAnEventTheMonitorIsLookedAtAgain()
    {
        I2cBus bus(options());
        QCOMPARE(set(bus), BusStatus::Ok);
        node().monitor = &beta;
        ++link->generation;
        QCOMPARE(set(bus), BusStatus::Gone);
        QVERIFY(beta.writes.empty());
        node().monitor = &alpha;
        QCOMPARE(set(bus), BusStatus::Ok);
        QCOMPARE(alpha.writes.size(), std::size_t(2));
    }

    void afterSilenceTheMonitorIsLookedAtAgain()
    {
        I2cBus bus(options());
        QCOMPARE(set(bus), BusStatus::Ok);
        node().monitor = nullptr;
        QCOMPARE(set(bus), BusStatus::Nack);
        node().monitor = &beta;
        QCOMPARE(set(bus), BusStatus::Gone);
        QVERIFY(beta.writes.empty());
    }

    void anotherMonitorWithADamagedEdidGetsNothing()
    {
        beta.edid = makeEdid({.serial = "SN-2", .badChecksum = true});
        node().monitor = &beta;
        FakeSysfs sysfs;
        sysfs.plug("card0-DP-1", alpha.edid); // the kernel has not noticed yet
        I2cBus::Options wanted = options();
        wanted.connectorEdid = sysfs.root() / sysfs.connector("card0-DP-1") / "edid";
        I2cBus bus(wanted);
        QCOMPARE(set(bus), BusStatus::Gone);
        QVERIFY(beta.writes.empty());
    }

    void theKernelsWordCountsWhereTheEdidCannotBeRead()
    {
        alpha.edidError = ENXIO;
        FakeSysfs sysfs;
        sysfs.plug("card0-DP-1", alpha.edid);
        I2cBus::Options wanted = options();
        wanted.connectorEdid = sysfs.root() / sysfs.connector("card0-DP-1") / "edid";
        I2cBus bus(wanted);
        QCOMPARE(set(bus), BusStatus::Ok);
        ++link->generation;
        sysfs.plug("card0-DP-1", beta.edid);
        QCOMPARE(set(bus), BusStatus::Gone);
        QCOMPARE(alpha.writes.size(), std::size_t(1));
    }

    void withoutAnyWordNothingIsSent()
    {
        alpha.edidError = ENXIO;
        I2cBus bus(options());
        QCOMPARE(set(bus), BusStatus::Nack);
        QVERIFY(alpha.writes.empty());
    }

    void anEdidWhoseTimingsChangedIsTheSameMonitors()
    {
        I2cBus bus(options());
        QCOMPARE(set(bus), BusStatus::Ok);
        alpha.edid[60] = 0x55;
        alpha.edid[127] = std::uint8_t(alpha.edid[127] - 0x55);
        ++link->generation;
        QCOMPARE(set(bus), BusStatus::Ok);
    }

    void missingPermissionIsExplainedOnce()
    {
        node().openError = EACCES;
        I2cBus bus(options());
        QCOMPARE(set(bus), BusStatus::NoAccess);
        QCOMPARE(set(bus), BusStatus::NoAccess);
        QCOMPARE(said.size(), 1);
        QVERIFY2(said.first().startsWith(QLatin1String("No permission to use /dev/i2c-4")),
                 qPrintable(said.first()));
        node().openError = 0;
        QCOMPARE(set(bus), BusStatus::Ok);
    }

    void theAdviceNamesWhatIsMissing_data()
    {
        QTest::addColumn<bool>("rule");
        QTest::addColumn<QString>("group");
        QTest::addColumn<bool>("inGroup");
        QTest::addColumn<bool>("account");
        QTest::addColumn<QString>("says");
        QTest::newRow("nothing installed")
            << false << QStringLiteral("root") << false << false
            << QStringLiteral("60-lumen-desk-i2c.rules of this program is not installed");
        QTest::newRow("no rule, but a group") << false << QStringLiteral("i2c") << false << false
                                              << QStringLiteral("add your account to the group i2c");
        QTest::newRow("remote session") << true << QStringLiteral("i2c") << false << false
                                        << QStringLiteral("add your account to the group i2c");
        QTest::newRow("joined after login")
            << true << QStringLiteral("i2c") << false << true << QStringLiteral("log out and in again");
        QTest::newRow("rule not in force")
            << true << QStringLiteral("root") << false << false << QStringLiteral("udevadm trigger");
    }

    void theAdviceNamesWhatIsMissing()
    {
        QFETCH(bool, rule);
        QFETCH(QString, group);
        QFETCH(bool, inGroup);
        QFETCH(bool, account);
        QFETCH(QString, says);
        const QString advice = QString::fromStdString(
            ddci2c::accessAdvice(Path, ddci2c::AccessFacts{rule, group.toStdString(), inGroup, account})
                .english());
        QVERIFY2(advice.contains(says), qPrintable(advice));
        QVERIFY2(!advice.contains(u'%'), qPrintable(advice));
    }
};

QTEST_GUILESS_MAIN(TestBus)
#include "tst_i2c_bus.moc"
