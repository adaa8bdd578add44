// SPDX-License-Identifier: Apache-2.0
#include "FakeCalls.h"
#include "FakeSysfs.h"
#include "TestEdid.h"

#include <ddc-i2c/Debounce.h>
#include <ddc-i2c/Enumerator.h>
#include <ddc-i2c/I2cBus.h>
#include <ddc-i2c/Identity.h>
#include <ddc/Edid.h>

#include <QTest>

#include <algorithm>
#include <map>
#include <random>
#include <set>

using ddci2c::FoundMonitor;
using ddci2c::IdentifiedMonitor;
using ddci2c::IdentityBook;

namespace {

FoundMonitor at(const std::string& connector, const std::vector<std::uint8_t>& edid,
                std::optional<int> bus = 4)
{
    FoundMonitor found;
    found.connector = connector;
    found.edid = edid;
    found.bus = bus;
    return found;
}

std::string idOf(const std::vector<IdentifiedMonitor>& list, const std::string& connector)
{
    for (const IdentifiedMonitor& each : list) {
        if (each.found.connector == connector)
            return each.id;
    }
    return {};
}

/// What no two distinguishable monitors share.
std::string keyOf(const std::vector<std::uint8_t>& bytes)
{
    const ddc::Edid edid = ddc::parseEdid(bytes).value;
    return edid.manufacturer + '|' + std::to_string(edid.product) + '|' + edid.identitySerial() + '|' +
           edid.name;
}

/// A set of VCP 0x10; what matters is at whom it arrives.
constexpr std::array<std::uint8_t, 7> SetFrame = {0x51, 0x84, 0x03, 0x10, 0x00, 0x32, 0x9A};

} // namespace

/// Who is who: ids, twins, changes, and that no write ever meets the wrong monitor.
class TestIdentity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anIdNamesModelAndSerial_data()
    {
        QTest::addColumn<QByteArray>("edid");
        QTest::addColumn<QString>("id");
        const auto row = [](const char* name, const EdidText& text, const char* id) {
            const auto edid = makeEdid(text);
            QTest::newRow(name) << QByteArray(reinterpret_cast<const char*>(edid.data()),
                                              qsizetype(edid.size()))
                                << QString::fromLatin1(id);
        };
        row("text serial", {.serial = "SN-1"}, "Alpha 27Q@SN-1");
        row("numeric serial", {.number = 77}, "Alpha 27Q@77");
        row("text goes before number", {.number = 77, .serial = "SN-1"}, "Alpha 27Q@SN-1");
        row("no serial", {}, "Alpha 27Q");
        row("blank serial", {.serial = "   "}, "Alpha 27Q");
        row("no name", {.product = 0x1A2B, .serial = "SN-1", .name = ""}, "ABC-1A2B@SN-1");
        row("extension", {.serial = "SN-1", .extension = true}, "Alpha 27Q@SN-1");
    }

    void anIdNamesModelAndSerial()
    {
        QFETCH(QByteArray, edid);
        QFETCH(QString, id);
        IdentityBook book;
        const auto list = book.identify({at("card0-DP-1", {edid.begin(), edid.end()})});
        QCOMPARE(QString::fromStdString(list.at(0).id), id);
        QVERIFY(list.at(0).note.empty());
        QVERIFY(book.twins().empty());
    }

    void aPanelWithoutAnEdidHasAName()
    {
        IdentityBook book;
        QCOMPARE(book.identify({at("card0-DSI-1", {}, {})}).at(0).id, std::string("Built-in display"));
    }

    void twinsAreNumberedByConnectorAndTold()
    {
        const auto twin = makeEdid({});
        IdentityBook book;
        const auto list =
            book.identify({at("card0-DP-10", twin), at("card0-DP-2", twin), at("card0-DP-3", twin)});
        QCOMPARE(idOf(list, "card0-DP-2"), std::string("Alpha 27Q"));
        QCOMPARE(idOf(list, "card0-DP-3"), std::string("Alpha 27Q#2"));
        QCOMPARE(idOf(list, "card0-DP-10"), std::string("Alpha 27Q#3"));
        for (const IdentifiedMonitor& each : list)
            QVERIFY(QString::fromStdString(each.note).contains(QLatin1String("no serial number")));
    }

    void equalSerialsAreToldApartByConnectorAndTold()
    {
        const auto twin = makeEdid({.serial = "000000"});
        IdentityBook book;
        const auto list = book.identify({at("card0-DP-1", twin), at("card0-DP-2", twin)});
        QCOMPARE(idOf(list, "card0-DP-1"), std::string("Alpha 27Q@000000"));
        QCOMPARE(idOf(list, "card0-DP-2"), std::string("Alpha 27Q@000000#2"));
        QVERIFY(QString::fromStdString(list.at(0).note).contains(QLatin1String("000000")));
    }

    void aTwinKeepsItsIdWhileTheOtherIsAway()
    {
        const auto twin = makeEdid({});
        IdentityBook book;
        book.identify({at("card0-DP-1", twin), at("card0-DP-2", twin)});
        QCOMPARE(idOf(book.identify({at("card0-DP-2", twin)}), "card0-DP-2"), std::string("Alpha 27Q#2"));
        // Also over a restart.
        IdentityBook next(book.twins());
        QCOMPARE(idOf(next.identify({at("card0-DP-2", twin)}), "card0-DP-2"), std::string("Alpha 27Q#2"));
        QCOMPARE(idOf(next.identify({at("card0-DP-1", twin), at("card0-DP-2", twin)}), "card0-DP-1"),
                 std::string("Alpha 27Q"));
    }

    void aTwinAtANewConnectorIsTold()
    {
        const auto twin = makeEdid({});
        IdentityBook book;
        book.identify({at("card0-DP-1", twin), at("card0-DP-2", twin)});
        const auto list = book.identify({at("card0-DP-3", twin)});
        QVERIFY(!list.at(0).note.empty());
    }

    void aLoneMonitorTakesItsIdToAnotherConnector()
    {
        for (const char* serial : {"", "SN-1"}) {
            const auto edid = makeEdid({.serial = serial});
            IdentityBook book;
            const auto before = book.identify({at("card0-DP-1", edid, 4)});
            const auto after = book.identify({at("card0-HDMI-A-1", edid, 6)});
            QCOMPARE(after.at(0).id, before.at(0).id);
            QVERIFY(after.at(0).note.empty());
            const ddci2c::Changes changes = ddci2c::difference(before, after);
            QCOMPARE(changes.moved.size(), std::size_t(1));
            QVERIFY(changes.appeared.empty() && changes.vanished.empty());
        }
    }

    void monitorsOfDifferentMakesNeverShareAnId()
    {
        IdentityBook book;
        const auto list = book.identify({at("card0-DP-1", makeEdid({.product = 1})),
                                         at("card0-DP-2", makeEdid({.product = 2})),
                                         at("card0-DP-3", makeEdid({.name = "Alpha 27Q#2"}))});
        std::set<std::string> ids;
        for (const IdentifiedMonitor& each : list)
            ids.insert(each.id);
        QCOMPARE(ids.size(), std::size_t(3));
        // Whoever comes back finds its own again, wherever it is plugged in.
        const auto swapped = book.identify(
            {at("card0-DP-1", makeEdid({.product = 2})), at("card0-DP-2", makeEdid({.product = 1}))});
        QCOMPARE(idOf(swapped, "card0-DP-1"), idOf(list, "card0-DP-2"));
        QCOMPARE(idOf(swapped, "card0-DP-2"), idOf(list, "card0-DP-1"));
    }

    void differencesAreTold()
    {
        IdentityBook book;
        const auto a = makeEdid({.serial = "A"});
        const auto b = makeEdid({.serial = "B"});
        const auto c = makeEdid({.serial = "C"});
        const auto before = book.identify({at("card0-DP-1", a, 1), at("card0-DP-2", b, 2)});
        const auto after = book.identify({at("card0-DP-1", c, 1), at("card0-DP-2", b, 3)});
        const ddci2c::Changes changes = ddci2c::difference(before, after);
        QCOMPARE(changes.vanished.at(0).id, std::string("Alpha 27Q@A"));
        QCOMPARE(changes.appeared.at(0).id, std::string("Alpha 27Q@C"));
        QCOMPARE(changes.moved.at(0).id, std::string("Alpha 27Q@B"));
        QVERIFY(ddci2c::difference(after, after).empty());
    }

    void aBurstOfEventsSettlesOnce()
    {
        using Ms = ddci2c::Debounce::Ms;
        ddci2c::Debounce debounce;
        const ddci2c::Debounce::TimePoint zero{};
        QVERIFY(!debounce.remaining(zero).has_value());
        QVERIFY(!debounce.take(zero));
        debounce.note(zero);
        debounce.note(zero + Ms(200));
        QVERIFY(!debounce.take(zero + Ms(499)));
        QVERIFY(debounce.remaining(zero + Ms(499)) == Ms(1));
        QVERIFY(debounce.take(zero + Ms(500)));
        QVERIFY(!debounce.take(zero + Ms(501)));
        // A loose contact does not hold it up for ever.
        Ms time(1000);
        debounce.note(zero + time);
        while (!debounce.take(zero + time) && time < Ms(20000)) {
            time += Ms(100);
            debounce.note(zero + time);
        }
        QCOMPARE(time.count(), Ms(4000).count());
    }

    void noWriteMeetsTheWrongMonitor_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 3; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    /// 200 monitors take turns on eight outputs; some have no serial, some the same, some damaged EDIDs.
    /// Writes go out while the program knows who is where, and just after it was all changed under its hands.
    void noWriteMeetsTheWrongMonitor()
    {
        QFETCH(unsigned, seed);
        std::mt19937 random(seed);
        const auto pick = [&random](int count) { return int(random() % unsigned(count)); };
        constexpr int Count = 200;
        constexpr int Outputs = 8;

        std::vector<FakeCalls::Monitor> monitors(Count);
        for (int i = 0; i < Count; ++i) {
            EdidText text;
            text.product = std::uint16_t(0x1000 + pick(3));
            text.name = std::array{"Alpha 27Q", "Beta 32U", ""}[std::size_t(pick(3))];
            switch (pick(6)) {
            case 0:
                break; // no serial at all
            case 1:
                text.serial = "    ";
                break;
            case 2:
                text.serial = "000000";
                break;
            case 3:
                text.number = 0x01010101;
                break;
            case 4:
                text.serial = "SN" + std::to_string(i);
                break;
            default:
                text.number = std::uint32_t(5000 + i);
            }
            text.extension = pick(4) == 0;
            text.badChecksum = pick(5) == 0;
            monitors[std::size_t(i)].edid = makeEdid(text);
        }

        FakeSysfs sysfs;
        const auto calls = std::make_shared<FakeCalls>();
        const auto connector = [](int output) { return "card0-DP-" + std::to_string(output + 1); };
        const auto pathOf = [](int output) { return "/dev/i2c-" + std::to_string(output + 4); };
        for (int output = 0; output < Outputs; ++output) {
            sysfs.addBus(output + 4);
            sysfs.linkBus(connector(output), output + 4);
        }
        std::vector<FakeCalls::Monitor*> placed(Outputs, nullptr);
        const auto place = [&] {
            std::vector<FakeCalls::Monitor*> pool;
            for (FakeCalls::Monitor& each : monitors)
                pool.push_back(&each);
            std::shuffle(pool.begin(), pool.end(), random);
            for (int output = 0; output < Outputs; ++output) {
                placed[std::size_t(output)] = pick(4) == 0 ? nullptr : pool[std::size_t(output)];
                calls->nodes[pathOf(output)].monitor = placed[std::size_t(output)];
            }
        };

        const ddci2c::Enumerator enumerator(sysfs.root(), calls);
        IdentityBook book;
        std::map<std::string, std::string> keyOfId;
        std::map<std::string, std::string> idOfKey;
        struct Route
        {
            std::string key;
            FakeCalls::Monitor* monitor;
            std::unique_ptr<ddci2c::I2cBus> bus;
            std::shared_ptr<ddci2c::BusLink> link;
        };
        std::vector<Route> routes;
        int arrived = 0;
        int refused = 0;
        const auto writeToAll = [&](bool changed) {
            for (Route& route : routes) {
                std::vector<std::size_t> before;
                for (const FakeCalls::Monitor& each : monitors)
                    before.push_back(each.writes.size());
                const bool ok = route.bus->write(ddc::DdcCiAddress, SetFrame) == ddc::BusStatus::Ok;
                (ok ? arrived : refused) += 1;
                if (!changed && !ok)
                    return false;
                for (std::size_t i = 0; i < monitors.size(); ++i) {
                    if (monitors[i].writes.size() == before[i])
                        continue;
                    if (keyOf(monitors[i].edid) != route.key || (!changed && &monitors[i] != route.monitor))
                        return false;
                }
            }
            return true;
        };

        for (int round = 0; round < 30; ++round) {
            place();
            for (Route& route : routes)
                ++route.link->generation; // the event that the kernel sends
            QVERIFY2(writeToAll(true), "a write met the wrong monitor before it was noticed");
            for (int output = 0; output < Outputs; ++output) {
                if (placed[std::size_t(output)])
                    sysfs.plug(connector(output), placed[std::size_t(output)]->edid);
                else
                    sysfs.unplug(connector(output));
            }
            ddci2c::BusAnswers answers;
            for (const ddci2c::BusQuestion& question : enumerator.scan().questions)
                answers[question.connector] = enumerator.ask(question);
            const auto list = book.identify(enumerator.scan(answers).monitors);
            routes.clear();
            std::set<std::string> ids;
            for (const IdentifiedMonitor& each : list) {
                QVERIFY2(ids.insert(each.id).second, "two monitors with one id");
                const std::string key = keyOf(each.found.edid);
                QCOMPARE(keyOfId.emplace(each.id, key).first->second, key);
                if (!each.serial.empty() && each.serial != "000000" && each.serial != "16843009")
                    QCOMPARE(idOfKey.emplace(key, each.id).first->second, each.id);
                Route route;
                route.key = key;
                route.monitor = calls->nodes.at(pathOf(*each.found.bus - 4)).monitor;
                route.link = std::make_shared<ddci2c::BusLink>();
                ddci2c::I2cBus::Options options;
                options.path = ddci2c::Enumerator::devicePath(*each.found.bus);
                options.edid = each.found.edid;
                options.connectorEdid = each.found.connectorEdid;
                options.link = route.link;
                options.calls = calls;
                route.bus = std::make_unique<ddci2c::I2cBus>(std::move(options));
                routes.push_back(std::move(route));
            }
            QCOMPARE(std::count_if(placed.begin(), placed.end(), [](auto* each) { return each; }),
                     std::ptrdiff_t(list.size()));
            QVERIFY2(writeToAll(false), "a write failed or met the wrong monitor");
        }
        QVERIFY(arrived > 120);
        QVERIFY(refused > 60);
    }
};

QTEST_GUILESS_MAIN(TestIdentity)
#include "tst_i2c_identity.moc"
