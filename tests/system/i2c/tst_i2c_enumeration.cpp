// SPDX-License-Identifier: Apache-2.0
#include "FakeCalls.h"
#include "FakeSysfs.h"
#include "TestEdid.h"

#include <ddc-i2c/Enumerator.h>
#include <ddc-i2c/Sysfs.h>

#include <QTest>

using ddci2c::Enumeration;
using ddci2c::Enumerator;

/// The enumeration on trees of kernel files as drivers make them.
class TestEnumeration : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeSysfs> sysfs;
    std::shared_ptr<FakeCalls> calls;
    const std::vector<std::uint8_t> alpha = makeEdid({.serial = "SN-1"});
    const std::vector<std::uint8_t> beta = makeEdid({.product = 0x9999, .serial = "SN-2"});

    Enumeration scan(const ddci2c::BusAnswers& answers = {})
    {
        return Enumerator(sysfs->root(), calls).scan(answers);
    }
    Enumeration scanAndAsk()
    {
        const Enumerator enumerator(sysfs->root(), calls);
        ddci2c::BusAnswers answers;
        for (const ddci2c::BusQuestion& question : enumerator.scan().questions)
            answers[question.connector] = enumerator.ask(question);
        return enumerator.scan(answers);
    }
    FakeCalls::Node& node(int bus) { return calls->nodes["/dev/i2c-" + std::to_string(bus)]; }

private Q_SLOTS:
    void init()
    {
        sysfs = std::make_unique<FakeSysfs>();
        calls = std::make_shared<FakeCalls>();
    }

    void aConnectorIsFoundByItsLink()
    {
        sysfs->addBus(4);
        sysfs->addBus(5);
        sysfs->linkBus("card0-HDMI-A-1", 5);
        sysfs->plug("card0-HDMI-A-1", alpha);
        sysfs->connector("card0-DP-1");
        const Enumeration found = scan();
        QCOMPARE(found.monitors.size(), std::size_t(1));
        QCOMPARE(found.monitors[0].connector, std::string("card0-HDMI-A-1"));
        QVERIFY(found.monitors[0].bus == 5);
        QVERIFY(found.monitors[0].edid == alpha);
        QVERIFY(!found.monitors[0].asleep);
        QVERIFY(found.skipped.empty());
        QVERIFY(found.questions.empty());
        QVERIFY(!found.lacksDeviceFiles);
    }

    void theKernelsNumberOfAConnectorIsTold_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("number");
        QTest::newRow("a kernel that tells none") << QByteArray() << -1;
        QTest::newRow("one") << QByteArray("108\n") << 108;
        QTest::newRow("none at all") << QByteArray("0\n") << -1;
        QTest::newRow("no number") << QByteArray("DP-1\n") << -1;
        QTest::newRow("more than a number") << QByteArray("108x\n") << -1;
        QTest::newRow("negative") << QByteArray("-8\n") << -1;
        QTest::newRow("out of range") << QByteArray("99999999999\n") << -1;
    }

    void theKernelsNumberOfAConnectorIsTold()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, number);
        sysfs->addBus(9, sysfs->connector("card0-DP-3"));
        sysfs->plug("card0-DP-3", alpha);
        if (!content.isEmpty())
            sysfs->write(sysfs->connector("card0-DP-3") + "/connector_id", content.toStdString());
        const Enumeration found = scan();
        QCOMPARE(found.monitors.size(), std::size_t(1));
        QCOMPARE(found.monitors[0].connectorId.value_or(-1), number);
    }

    void aDisplayPortsOwnChannelIsFound_data()
    {
        QTest::addColumn<QString>("inner");
        QTest::newRow("child of the connector") << QString();
        QTest::newRow("child of its AUX channel") << QStringLiteral("/drm_dp_aux1");
    }

    void aDisplayPortsOwnChannelIsFound()
    {
        QFETCH(QString, inner);
        sysfs->addBus(9, sysfs->connector("card0-DP-3") + inner.toStdString());
        sysfs->plug("card0-DP-3", alpha);
        const Enumeration found = scan();
        QCOMPARE(found.monitors.size(), std::size_t(1));
        QVERIFY(found.monitors[0].bus == 9);
    }

    void monitorsBehindADockAreFoundBesideItsPort()
    {
        // The port that carries the dock is not connected itself; the dock's outputs appear as connectors.
        sysfs->addBus(3, sysfs->connector("card0-DP-1"));
        sysfs->addBus(11, sysfs->connector("card0-DP-5"));
        sysfs->addBus(10, sysfs->connector("card0-DP-10"));
        sysfs->plug("card0-DP-10", beta);
        sysfs->plug("card0-DP-5", alpha);
        const Enumeration found = scan();
        QCOMPARE(found.monitors.size(), std::size_t(2));
        QVERIFY(found.monitors[0].bus == 11);
        QVERIFY(found.monitors[0].edid == alpha);
        QVERIFY(found.monitors[1].bus == 10);
        QVERIFY(found.monitors[1].edid == beta);
    }

    void ofTwoChannelsTheOneThatAnswersIsTaken()
    {
        // A passive adapter on a DisplayPort: the monitor is on the HDMI lines, not on the AUX channel.
        sysfs->addBus(4);
        sysfs->addBus(9, sysfs->connector("card0-DP-1"));
        sysfs->linkBus("card0-DP-1", 4);
        sysfs->plug("card0-DP-1", alpha);
        FakeCalls::Monitor monitor;
        monitor.edid = alpha;
        node(4).monitor = &monitor;
        node(9).monitor = nullptr;
        QCOMPARE(scan().monitors.size(), std::size_t(0));
        const Enumeration found = scanAndAsk();
        QCOMPARE(found.monitors.size(), std::size_t(1));
        QVERIFY(found.monitors[0].bus == 4);
        QVERIFY(monitor.writes.empty());
    }

    void aDriverThatNamesNoBusIsSearchedByEdid()
    {
        FakeCalls::Monitor first;
        FakeCalls::Monitor second;
        first.edid = alpha;
        second.edid = beta;
        for (const int bus : {4, 5, 6})
            sysfs->addBus(bus);
        sysfs->addBus(0, "sys/devices/pci0000:00/0000:00:1f.3"); // the mainboard's own
        sysfs->write("sys/devices/pci0000:00/0000:00:1f.3/class", "0x0c0500\n");
        node(0).monitor = &first;
        node(4).monitor = nullptr;
        node(5).monitor = &second;
        node(6).monitor = &first;
        sysfs->plug("card0-DP-1", alpha);
        sysfs->plug("card0-DP-2", beta);
        const Enumeration found = scanAndAsk();
        QCOMPARE(found.monitors.size(), std::size_t(2));
        QVERIFY(found.monitors[0].bus == 6);
        QVERIFY(found.monitors[1].bus == 5);
        QVERIFY(!found.monitors[0].connectorIsGuessed);
        QCOMPARE(node(0).opens, 0);
    }

    void twinsOnADriverThatNamesNoBusGetOneEach()
    {
        FakeCalls::Monitor first;
        FakeCalls::Monitor second;
        first.edid = second.edid = alpha;
        for (const int bus : {4, 5, 6})
            sysfs->addBus(bus);
        node(4).monitor = nullptr;
        node(5).monitor = &first;
        node(6).monitor = &second;
        sysfs->plug("card0-DP-1", alpha);
        sysfs->plug("card0-DP-2", alpha);
        const Enumeration found = scanAndAsk();
        QCOMPARE(found.monitors.size(), std::size_t(2));
        QVERIFY(found.monitors[0].bus == 5);
        QVERIFY(found.monitors[1].bus == 6);
        // Which of them is which nobody can tell, and that is known.
        QVERIFY(found.monitors[0].connectorIsGuessed);
        QVERIFY(found.monitors[1].connectorIsGuessed);
    }

    void oneBusIsNotGivenToTwoTwins()
    {
        FakeCalls::Monitor monitor;
        monitor.edid = alpha;
        for (const int bus : {4, 5})
            sysfs->addBus(bus);
        node(4).monitor = nullptr;
        node(5).monitor = &monitor;
        sysfs->plug("card0-DP-1", alpha);
        sysfs->plug("card0-DP-2", alpha);
        const Enumeration found = scanAndAsk();
        QCOMPARE(found.monitors.size(), std::size_t(1));
        QVERIFY(found.monitors[0].connectorIsGuessed);
        QCOMPARE(found.skipped.size(), std::size_t(1));
        QCOMPARE(found.skipped[0].connector, std::string("card0-DP-2"));
        QCOMPARE(found.skipped[0].reason, std::string("its buses lead to other connectors"));
    }

    void aConnectorWithoutAnEdidGetsNobodyElsesMonitor()
    {
        FakeCalls::Monitor first;
        FakeCalls::Monitor second;
        first.edid = alpha;
        second.edid = beta;
        for (const int bus : {4, 5})
            sysfs->addBus(bus);
        node(4).monitor = &first;
        node(5).monitor = nullptr;
        sysfs->plug("card0-DP-1", {}); // the kernel could not read it
        sysfs->plug("card0-DP-2", alpha);
        const Enumeration alone = scanAndAsk();
        QCOMPARE(alone.monitors.size(), std::size_t(1));
        QCOMPARE(alone.monitors[0].connector, std::string("card0-DP-2"));
        QVERIFY(!alone.monitors[0].connectorIsGuessed);
        node(5).monitor = &second;
        const Enumeration both = scanAndAsk();
        QCOMPARE(both.monitors.size(), std::size_t(2));
        QVERIFY(both.monitors[0].bus == 5);
        QVERIFY(both.monitors[0].edid == beta);
        QVERIFY(both.monitors[1].bus == 4);
        QVERIFY(!both.monitors[0].connectorIsGuessed);
    }

    void twinsOfWhichTheKernelKnowsNothingGetOneEach()
    {
        FakeCalls::Monitor first;
        FakeCalls::Monitor second;
        first.edid = second.edid = alpha;
        for (const int bus : {4, 5})
            sysfs->addBus(bus);
        node(4).monitor = &first;
        node(5).monitor = &second;
        sysfs->plug("card0-DP-1", {});
        sysfs->plug("card0-DP-2", {});
        const Enumeration found = scanAndAsk();
        QCOMPARE(found.monitors.size(), std::size_t(2));
        QVERIFY(found.monitors[0].bus == 4);
        QVERIFY(found.monitors[1].bus == 5);
        QVERIFY(found.monitors[1].connectorIsGuessed);
    }

    void anEdidThatTheKernelLacksIsReadFromTheBus_data()
    {
        QTest::addColumn<QByteArray>("kernels");
        std::vector<std::uint8_t> own = makeEdid({.manufacturer = "LNX", .name = "Linux FHD"});
        QTest::newRow("none") << QByteArray();
        QTest::newRow("garbage") << QByteArray(128, '\x5A');
        QTest::newRow("half") << QByteArray(reinterpret_cast<const char*>(alpha.data()), 64);
        QTest::newRow("the kernel's own in place of the monitor's")
            << QByteArray(reinterpret_cast<const char*>(own.data()), qsizetype(own.size()));
    }

    void anEdidThatTheKernelLacksIsReadFromTheBus()
    {
        QFETCH(QByteArray, kernels);
        sysfs->addBus(4);
        sysfs->linkBus("card0-DP-1", 4);
        sysfs->plug("card0-DP-1", std::vector<std::uint8_t>(kernels.begin(), kernels.end()));
        FakeCalls::Monitor monitor;
        monitor.edid = alpha;
        node(4).monitor = &monitor;
        const Enumeration found = scanAndAsk();
        QCOMPARE(found.monitors.size(), std::size_t(1));
        QVERIFY(found.monitors[0].edid == alpha);
        QVERIFY(found.monitors[0].bus == 4);
    }

    void aConnectorWithoutAMonitorToWorkWithIsSkippedWithAReason_data()
    {
        QTest::addColumn<bool>("hasBus");
        QTest::addColumn<QByteArray>("onBus");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no bus") << false << QByteArray() << QStringLiteral("no EDID and no I2C bus");
        QTest::newRow("silent bus") << true << QByteArray() << QStringLiteral("i2c-4: no reply");
        QTest::newRow("garbage") << true << QByteArray(128, '\x5A')
                                 << QStringLiteral("i2c-4 answers no sound EDID");
    }

    void aConnectorWithoutAMonitorToWorkWithIsSkippedWithAReason()
    {
        QFETCH(bool, hasBus);
        QFETCH(QByteArray, onBus);
        QFETCH(QString, reason);
        FakeCalls::Monitor monitor;
        monitor.edid.assign(onBus.begin(), onBus.end());
        if (hasBus) {
            sysfs->addBus(4);
            sysfs->linkBus("card0-DP-1", 4);
            node(4).monitor = onBus.isEmpty() ? nullptr : &monitor;
        }
        sysfs->plug("card0-DP-1", {});
        const Enumeration found = scanAndAsk();
        QVERIFY(found.monitors.empty());
        QCOMPARE(found.skipped.size(), std::size_t(1));
        const QString told = QString::fromStdString(found.skipped[0].reason);
        QVERIFY2(told.contains(reason), qPrintable(told));
    }

    void aDamagedEdidCountsIfTheMonitorHasItSo()
    {
        sysfs->addBus(4);
        sysfs->linkBus("card0-DP-1", 4);
        const auto damaged = makeEdid({.serial = "SN-1", .badChecksum = true});
        sysfs->plug("card0-DP-1", damaged);
        FakeCalls::Monitor monitor;
        monitor.edid = damaged;
        node(4).monitor = &monitor;
        const Enumeration found = scanAndAsk();
        QCOMPARE(found.monitors.size(), std::size_t(1));
        QVERIFY(found.monitors[0].edid == damaged);
    }

    void aBuiltInPanelHasItsBackLightAndNoBus_data()
    {
        QTest::addColumn<QString>("connector");
        QTest::addColumn<bool>("hasEdid");
        QTest::newRow("eDP") << QStringLiteral("card0-eDP-1") << true;
        QTest::newRow("LVDS") << QStringLiteral("card0-LVDS-1") << true;
        QTest::newRow("DSI without an EDID") << QStringLiteral("card0-DSI-1") << false;
    }

    void aBuiltInPanelHasItsBackLightAndNoBus()
    {
        QFETCH(QString, connector);
        QFETCH(bool, hasEdid);
        const std::string name = connector.toStdString();
        sysfs->addBus(7, sysfs->connector(name));
        sysfs->plug(name, hasEdid ? alpha : std::vector<std::uint8_t>());
        sysfs->addBacklight("acpi_video0", "firmware", FakeSysfs::Card);
        sysfs->addBacklight("intel_backlight", "raw", sysfs->connector(name));
        const Enumeration found = scan();
        QCOMPARE(found.monitors.size(), std::size_t(1));
        QVERIFY(found.monitors[0].builtIn);
        QVERIFY(!found.monitors[0].bus);
        QCOMPARE(found.monitors[0].backlight.filename().string(), std::string("intel_backlight"));
        QVERIFY(found.questions.empty());
    }

    void withoutABackLightOfItsOwnTheBestOneIsTaken()
    {
        const char* other = "sys/devices/pci0000:00/0000:01:00.0";
        sysfs->addCard(1, other, "nouveau");
        sysfs->plug("card0-eDP-1", alpha);
        sysfs->addBacklight("nv_backlight", "raw", other);
        QCOMPARE(scan().monitors[0].backlight, std::filesystem::path());
        sysfs->addBacklight("amdgpu_bl0", "raw", FakeSysfs::Card);
        QCOMPARE(scan().monitors[0].backlight.filename().string(), std::string("amdgpu_bl0"));
        sysfs->addBacklight("thinkpad_screen", "platform", "sys/devices/platform/thinkpad_acpi");
        QCOMPARE(scan().monitors[0].backlight.filename().string(), std::string("thinkpad_screen"));
    }

    void aSleepingDisplayIsSeenAsSuch_data()
    {
        QTest::addColumn<QString>("dpms");
        QTest::addColumn<QString>("enabled");
        QTest::addColumn<QString>("driver");
        QTest::addColumn<bool>("asleep");
        QTest::newRow("on") << QStringLiteral("On") << QStringLiteral("enabled") << QStringLiteral("i915")
                            << false;
        QTest::newRow("off") << QStringLiteral("Off") << QStringLiteral("enabled") << QStringLiteral("i915")
                             << true;
        QTest::newRow("standby") << QStringLiteral("Standby") << QStringLiteral("enabled")
                                 << QStringLiteral("i915") << true;
        QTest::newRow("not in use") << QStringLiteral("On") << QStringLiteral("disabled")
                                    << QStringLiteral("i915") << true;
        QTest::newRow("a driver that does not tell")
            << QStringLiteral("Off") << QStringLiteral("disabled") << QStringLiteral("nvidia") << false;
    }

    void aSleepingDisplayIsSeenAsSuch()
    {
        QFETCH(QString, dpms);
        QFETCH(QString, enabled);
        QFETCH(QString, driver);
        QFETCH(bool, asleep);
        sysfs->addCard(0, FakeSysfs::Card, driver.toStdString());
        sysfs->addBus(4);
        sysfs->linkBus("card0-DP-1", 4);
        sysfs->plug("card0-DP-1", alpha);
        const std::string folder = sysfs->connector("card0-DP-1");
        sysfs->write(folder + "/dpms", dpms.toStdString() + '\n');
        sysfs->write(folder + "/enabled", enabled.toStdString() + '\n');
        QCOMPARE(scan().monitors.size(), std::size_t(1));
        QCOMPARE(scan().monitors[0].asleep, asleep);
    }

    void aSleepingDisplayIsNotAskedWhoItIs()
    {
        sysfs->addBus(4);
        sysfs->linkBus("card0-DP-1", 4);
        sysfs->plug("card0-DP-1", {});
        sysfs->write(sysfs->connector("card0-DP-1") + "/dpms", "Off\n");
        const Enumeration found = scan();
        QVERIFY(found.questions.empty());
        QCOMPARE(found.sleepers.size(), std::size_t(1));
    }

    void aCardWithoutConnectorsIsSearchedOnItsBuses()
    {
        const std::string other = "sys/devices/pci0000:00/0000:01:00.0";
        sysfs->write(other + "/class", "0x030000\n");
        sysfs->addBus(8, other);
        sysfs->addBus(9, other);
        sysfs->addBus(0, "sys/devices/pci0000:00/0000:00:1f.3");
        sysfs->write("sys/devices/pci0000:00/0000:00:1f.3/class", "0x0c0500\n");
        FakeCalls::Monitor monitor;
        monitor.edid = alpha;
        node(8).monitor = nullptr;
        node(9).monitor = &monitor;
        node(0).monitor = &monitor;
        const Enumeration found = scanAndAsk();
        QCOMPARE(found.monitors.size(), std::size_t(1));
        QCOMPARE(found.monitors[0].connector, std::string("i2c-9"));
        QCOMPARE(node(0).opens, 0);
    }

    void missingDeviceFilesAreNoticed()
    {
        sysfs->addBus(4);
        std::filesystem::remove(sysfs->root() / "dev/i2c-4");
        QVERIFY(scan().lacksDeviceFiles);
    }

    void anEmptySystemHasNoMonitors()
    {
        QTemporaryDir empty;
        const Enumeration found = Enumerator(empty.path().toStdString()).scan();
        QVERIFY(found.monitors.empty() && found.skipped.empty() && found.questions.empty());
        QVERIFY(!found.lacksDeviceFiles);
    }

    void numbersInNamesCountAsNumbers()
    {
        QVERIFY(ddci2c::naturalLess("card0-DP-2", "card0-DP-10"));
        QVERIFY(!ddci2c::naturalLess("card0-DP-10", "card0-DP-2"));
        QVERIFY(ddci2c::naturalLess("card0-DP-1", "card1-DP-1"));
        QVERIFY(!ddci2c::naturalLess("card0-DP-1", "card0-DP-1"));
        QVERIFY(!ddci2c::busNumber("i2c-").has_value());
        QVERIFY(!ddci2c::busNumber("i2c-4x").has_value());
        QVERIFY(ddci2c::busNumber("i2c-14") == 14);
    }
};

QTEST_GUILESS_MAIN(TestEnumeration)
#include "tst_i2c_enumeration.moc"
