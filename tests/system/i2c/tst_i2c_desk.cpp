// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"
#include "MockBed.h"

#include <QFile>
#include <QTest>

#include <linux/capability.h>
#include <sys/prctl.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(sim::FaultKind)

namespace {

constexpr int Brightness = 0x10;
constexpr int AiContrast = 0xF3;
/// Debounce, search and the first questions to a monitor, with room for a slow machine.
constexpr int LimitMs = 25'000;
const QString Series = u"TK30Z@SERIES-1"_s;
const QString Other = u"Alpha27Q@SN-A"_s;

std::unique_ptr<sim::Monitor> makeMonitor(const QString& name)
{
    sim::Options options;
    options.strictTiming = true;
    return std::make_unique<sim::Monitor>(*sim::Identity::parse(name), options);
}

/// Lets root be held up by the rights of files, as everybody else is.
void dropFileRights()
{
    for (const int right : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH})
        ::prctl(PR_CAPBSET_DROP, right);
}

} // namespace

/// The whole program on mocked device files, driven through its socket: no part of it knows that the monitors
/// behind /dev/i2c-N are simulated.
class TestDesk : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<sim::Monitor> series;
    std::unique_ptr<sim::Monitor> other;
    std::vector<std::unique_ptr<sim::Monitor>> more;
    std::unique_ptr<MockBed> bed;
    MockBed::Port* first = nullptr;
    MockBed::Port* second = nullptr;
    MockBed::Port* third = nullptr;
    std::unique_ptr<DeskProcess> desk;

    sim::Monitor& add(const QString& name)
    {
        more.push_back(makeMonitor(name));
        return *more.back();
    }
    bool start(const QStringList& options = {})
    {
        return desk->start(QStringList{u"--headless"_s, u"--services"_s, u"simulated"_s} + options);
    }
    void plugBoth()
    {
        bed->plug(*first, *series);
        bed->plug(*third, *other);
    }
    QJsonArray monitors() const { return desk->client().call(u"monitors"_s).result.toArray(); }
    QJsonObject monitor(const QString& id) const
    {
        const QJsonArray all = monitors();
        for (const QJsonValue& each : all) {
            if (each[u"id"] == id)
                return each.toObject();
        }
        return {};
    }
    QStringList ids() const
    {
        QStringList result;
        const QJsonArray all = monitors();
        for (const QJsonValue& each : all)
            result.append(each[u"id"].toString());
        result.sort();
        return result;
    }
    QJsonValue get(const QString& id, const QString& path) const
    {
        return desk->client().value(u"get"_s, {{u"monitor"_s, id}, {u"path"_s, path}});
    }
    bool set(const QString& id, const QString& path, const QJsonValue& value) const
    {
        return desk->client()
            .call(u"set"_s, {{u"monitor"_s, id}, {u"path"_s, path}, {u"value"_s, value}})
            .ok();
    }
    bool setBrightness(const QString& id, int value) const
    {
        return set(id, u"brightness.displayBrightness"_s, value);
    }
    /// Every monitor has come to rest.
    bool idle() const
    {
        const QStringList all = ids();
        return std::all_of(all.begin(), all.end(), [this](const QString& id) {
            return desk->client().call(u"idle"_s, {{u"monitor"_s, id}}, LimitMs).ok();
        });
    }
    QJsonObject stats(const QString& id) const
    {
        return desk->client().call(u"stats"_s, {{u"monitor"_s, id}}).result.toObject();
    }
    QString log() const
    {
        QStringList lines;
        const QJsonArray all = desk->client().call(u"log"_s).result.toArray();
        for (const QJsonValue& each : all)
            lines.append(each[u"text"].toString());
        return lines.join(u'\n');
    }

private Q_SLOTS:
    void init()
    {
        series = makeMonitor(Series);
        other = makeMonitor(Other);
        bed = std::make_unique<MockBed>();
        first = &bed->addPort(4, u"DP-1"_s);
        second = &bed->addPort(5, u"DP-2"_s);
        third = &bed->addPort(6, u"HDMI-A-1"_s);
        desk = std::make_unique<DeskProcess>();
    }

    void cleanup()
    {
        if (QTest::currentTestFailed())
            qInfo().noquote() << desk->errors();
        const int code = desk->stop();
        desk.reset();
        bed.reset(); // before any check: two beds at a time are in each other's way
        more.push_back(std::move(series));
        more.push_back(std::move(other));
        const auto monitors = std::exchange(more, {});
        QCOMPARE(code, 0);
        for (const auto& each : monitors)
            QVERIFY2(each->violations().total() == 0, qPrintable(each->violations().last));
    }

    void whatIsThereIsFoundAndDriven()
    {
        plugBoth();
        bed->addPanel(u"eDP-1"_s, makeMonitor(u"Panel@1"_s)->edid());
        other->setByMenu(Brightness, 62);
        QVERIFY(start());
        QCOMPARE(ids(), (QStringList{Other, u"Panel@1"_s, Series}));
        const QJsonObject found = monitor(Series);
        QCOMPARE(found.value(u"supported"), QJsonValue(true));
        QCOMPARE(found.value(u"current"), QJsonValue(true));
        QCOMPARE(found.value(u"simulated"), QJsonValue(false));
        QCOMPARE(found.value(u"builtIn"), QJsonValue(false));
        QCOMPARE(found.value(u"serial"), QJsonValue(u"SERIES-1"_s));
        QCOMPARE(monitor(Other).value(u"supported"), QJsonValue(false));
        QCOMPARE(monitor(u"Panel@1"_s).value(u"builtIn"), QJsonValue(true));
        QVERIFY(idle());

        // One of the series is driven by its modules ...
        const bool before = get(Series, u"aiContrast.state"_s).toBool();
        QVERIFY(set(Series, u"aiContrast.state"_s, !before));
        QVERIFY(idle());
        QCOMPARE(get(Series, u"aiContrast.state"_s), QJsonValue(!before));
        QCOMPARE(series->value(AiContrast).value_or(99), std::uint16_t(!before));
        // ... any other over its brightness alone.
        QCOMPARE(get(Other, u"brightness.displayBrightness"_s), QJsonValue(62));
        QVERIFY(setBrightness(Other, 17));
        QVERIFY(idle());
        QCOMPARE(other->value(Brightness).value_or(999), std::uint16_t(17));

        QCOMPARE(stats(Series).value(u"bus"), QJsonValue(u"i2c-4"_s));
        QCOMPARE(stats(Other).value(u"bus"), QJsonValue(u"i2c-6"_s));
        QVERIFY(stats(Series).value(u"transfers").toInt() > 10);
        QCOMPARE(stats(Series).value(u"errors"), QJsonValue(QJsonObject()));
    }

    void aChangeAtTheMonitorIsReadBack()
    {
        plugBoth();
        QVERIFY(start());
        QVERIFY(idle());
        const auto value = std::uint16_t(series->value(AiContrast) == 1 ? 0 : 1);
        QVERIFY(series->setByMenu(AiContrast, value));
        QVERIFY(desk->client()
                    .call(u"sync"_s, {{u"monitor"_s, Series}, {u"module"_s, u"LuAiContrast"_s}}, LimitMs)
                    .ok());
        QCOMPARE(get(Series, u"aiContrast.state"_s), QJsonValue(value == 1));
    }

    void aMonitorWithoutAPackageIsFollowedWhileItShows()
    {
        plugBoth();
        QVERIFY(start({u"--sync-period"_s, u"20"_s}));
        QVERIFY(idle());
        const QString brightness = u"brightness.displayBrightness"_s;
        QVERIFY(set(Other, u"brightness.syncEnable"_s, true));
        for (const int value : {33, 90, 0}) {
            QVERIFY(other->setByMenu(Brightness, std::uint16_t(value)));
            QTRY_COMPARE_WITH_TIMEOUT(get(Other, brightness), QJsonValue(value), LimitMs);
        }
        bed->setPower(*third, "Off");
        QTRY_VERIFY_WITH_TIMEOUT(log().contains(Other + u" sleeps"_s), LimitMs);
        // What was on its way runs before this, and this itself asks a sleeping display nothing.
        QVERIFY(desk->client().call(u"sync"_s, {{u"monitor"_s, Other}}, LimitMs).ok());
        QVERIFY(set(Series, u"aiContrast.syncEnable"_s, true));
        const auto asleep = other->traffic().size();
        const auto rounds = series->traffic().size() + 20;
        QTRY_VERIFY_WITH_TIMEOUT(series->traffic().size() > rounds, LimitMs);
        QCOMPARE(other->traffic().size(), asleep);
        QVERIFY(other->setByMenu(Brightness, 71));
        bed->setPower(*third, "On");
        QTRY_COMPARE_WITH_TIMEOUT(get(Other, brightness), QJsonValue(71), LimitMs);
    }

    void aBuiltInPanelHasTheBrightnessOfItsBackLight()
    {
        bed->addPanel(u"eDP-1"_s, makeMonitor(u"Panel@1"_s)->edid());
        // Without logind the file itself is written.
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent");
        const bool started = desk->start({u"--headless"_s, u"--services"_s, u"native"_s});
        qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
        QVERIFY(started);
        QVERIFY(idle());
        const QString panel = u"Panel@1"_s;
        QCOMPARE(ids(), QStringList{panel});
        QCOMPARE(get(panel, u"brightness.displayBrightness"_s), QJsonValue(25));
        QVERIFY(setBrightness(panel, 50));
        const auto light = [] {
            QFile file(u"/sys/class/backlight/intel_backlight/brightness"_s);
            return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
        };
        QTRY_COMPARE_WITH_TIMEOUT(light(), QByteArray("200"), LimitMs);
    }

    void theNextStartFindsTheSettings()
    {
        plugBoth();
        QVERIFY(start());
        QVERIFY(idle());
        QVERIFY(setBrightness(Other, 31));
        QVERIFY(idle());
        QCOMPARE(desk->stop(), 0);
        QVERIFY(other->setByMenu(Brightness, 80));
        QVERIFY(start());
        QVERIFY(idle());
        QCOMPARE(get(Other, u"brightness.displayBrightness"_s), QJsonValue(31));
        QCOMPARE(other->value(Brightness).value_or(999), std::uint16_t(31));
    }

    void monitorsComeGoAndChangePlaces()
    {
        QVERIFY(start());
        QCOMPARE(ids(), QStringList());
        bed->plug(*first, *series);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{Series}, LimitMs);
        bed->plug(*third, *other);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), (QStringList{Other, Series}), LimitMs);
        QVERIFY(idle());
        QVERIFY(setBrightness(Other, 23));
        QVERIFY(idle());

        bed->unplug(*third);
        bed->plug(*second, *other);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(stats(Other).value(u"bus"), QJsonValue(u"i2c-5"_s), LimitMs);
        QVERIFY(idle());
        QCOMPARE(get(Other, u"brightness.displayBrightness"_s), QJsonValue(23));
        QVERIFY(setBrightness(Other, 24));
        QVERIFY(idle());
        QCOMPARE(other->value(Brightness).value_or(999), std::uint16_t(24));
        QCOMPARE(stats(Series).value(u"bus"), QJsonValue(u"i2c-4"_s));

        bed->unplug(*first);
        bed->unplug(*second);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList(), LimitMs);
        // Its values are there when it comes back.
        bed->plug(*first, *other);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{Other}, LimitMs);
        QVERIFY(idle());
        QCOMPARE(get(Other, u"brightness.displayBrightness"_s), QJsonValue(24));
    }

    void afterAHotplugNothingIsWritten()
    {
        bed->plug(*first, *series);
        QVERIFY(start());
        QVERIFY(idle());
        const auto writes = [this] {
            const auto traffic = series->traffic();
            return std::count_if(traffic.begin(), traffic.end(),
                                 [](const sim::TrafficEntry& entry) { return entry.op == sim::Op::Set; });
        };
        const auto before = writes();
        bed->unplug(*first);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList(), LimitMs);
        bed->plug(*second, *series);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{Series}, LimitMs);
        QVERIFY(idle());
        QCOMPARE(writes(), before);
    }

    void aDisplayThatSleepsAtTheStartIsLeftAlone()
    {
        plugBoth();
        other->setRawLogEnabled(true);
        bed->setPower(*third, "Off");
        QVERIFY(start());
        QVERIFY(idle());
        QCOMPARE(ids(), QStringList{Series});
        QVERIFY(other->rawLog().isEmpty());
        bed->setPower(*third, "On");
        QTRY_COMPARE_WITH_TIMEOUT(ids(), (QStringList{Other, Series}), LimitMs);
        QVERIFY(idle());
        QVERIFY(setBrightness(Other, 8));
        QVERIFY(idle());
        QCOMPARE(other->value(Brightness).value_or(999), std::uint16_t(8));
    }

    void aDisplayThatWakesAfterTheStartIsOnlyRead()
    {
        bed->plug(*first, *series);
        QVERIFY(start());
        QVERIFY(idle());
        QVERIFY(set(Series, u"aiContrast.state"_s, true));
        QVERIFY(idle());
        QCOMPARE(desk->stop(), 0);
        QVERIFY(series->setByMenu(AiContrast, 0));
        const auto seen = series->traffic().last().seq;
        bed->setPower(*first, "Off");
        QVERIFY(start());
        QCOMPARE(ids(), QStringList());
        bed->setPower(*first, "On");
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{Series}, LimitMs);
        QVERIFY(idle());
        const auto traffic = series->traffic(seen);
        QVERIFY(!traffic.empty());
        QVERIFY(std::none_of(traffic.begin(), traffic.end(),
                             [](const sim::TrafficEntry& entry) { return entry.op == sim::Op::Set; }));
        QCOMPARE(get(Series, u"aiContrast.state"_s), QJsonValue(false));
    }

    void aDisplayThatFallsAsleepIsReadNoMore()
    {
        const QString awake = u"TK30Z@AWAKE"_s;
        sim::Monitor& neighbour = add(awake);
        bed->plug(*first, *series);
        bed->plug(*second, neighbour);
        QVERIFY(start({u"--sync-period"_s, u"20"_s}));
        QVERIFY(idle());
        for (const QString& id : {Series, awake})
            QVERIFY(set(id, u"aiContrast.syncEnable"_s, true));
        const auto readAgain = [](const sim::Monitor& monitor) {
            const auto before = monitor.traffic().size();
            return QTest::qWaitFor([&] { return monitor.traffic().size() > before + 5; }, LimitMs);
        };
        QVERIFY(readAgain(*series));
        bed->setPower(*first, "Off");
        QTRY_VERIFY_WITH_TIMEOUT(log().contains(Series + u" sleeps"_s), LimitMs);
        QVERIFY(readAgain(neighbour)); // the round that was on its way has ended by then
        const auto asleep = series->traffic().size();
        QVERIFY(readAgain(neighbour));
        QCOMPARE(series->traffic().size(), asleep);
        bed->setPower(*first, "On");
        QVERIFY(readAgain(*series));
    }

    void swappedTwinsKeepTheirValuesApart()
    {
        const QString one = u"TK30Z@TWIN-1"_s;
        const QString two = u"TK30Z@TWIN-2"_s;
        sim::Monitor& left = add(one);
        sim::Monitor& right = add(two);
        bed->plug(*first, left);
        bed->plug(*second, right);
        QVERIFY(start());
        QVERIFY(idle());
        const auto drive = [&](bool value) {
            return set(one, u"aiContrast.state"_s, value) && set(two, u"aiContrast.state"_s, !value) &&
                   idle();
        };
        QVERIFY(drive(true));
        QCOMPARE(left.value(AiContrast).value_or(99), std::uint16_t(1));
        QCOMPARE(right.value(AiContrast).value_or(99), std::uint16_t(0));
        bed->plug(*first, right);
        bed->plug(*second, left);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(stats(one).value(u"bus"), QJsonValue(u"i2c-5"_s), LimitMs);
        QTRY_COMPARE_WITH_TIMEOUT(stats(two).value(u"bus"), QJsonValue(u"i2c-4"_s), LimitMs);
        QVERIFY(idle());
        QVERIFY(drive(false));
        QCOMPARE(left.value(AiContrast).value_or(99), std::uint16_t(0));
        QCOMPARE(right.value(AiContrast).value_or(99), std::uint16_t(1));
    }

    void betweenTheSwapAndItsEventNothingReachesTheWrongOne()
    {
        sim::Monitor& left = add(u"Twin24@1"_s);
        sim::Monitor& right = add(u"Twin24@2"_s);
        bed->plug(*first, left);
        bed->plug(*second, right);
        QVERIFY(start());
        QVERIFY(idle());
        const auto untouched = right.value(Brightness);
        // Who pulls a plug meets the adapter's silence before anything else.
        bed->unplug(*first);
        QVERIFY(setBrightness(u"Twin24@1"_s, 3));
        QVERIFY(idle());
        bed->plug(*first, right);
        bed->plug(*second, left);
        QVERIFY(setBrightness(u"Twin24@1"_s, 4));
        QVERIFY(idle());
        QCOMPARE(right.value(Brightness), untouched);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(stats(u"Twin24@1"_s).value(u"bus"), QJsonValue(u"i2c-5"_s), LimitMs);
        QVERIFY(idle());
        QVERIFY(setBrightness(u"Twin24@1"_s, 5));
        QVERIFY(idle());
        QCOMPARE(left.value(Brightness).value_or(999), std::uint16_t(5));
        QCOMPARE(right.value(Brightness), untouched);
    }

    void equalTwinsAreKnownByTheirPlaceAndThatIsSaid()
    {
        sim::Monitor& left = add(u"Twin24@"_s);
        sim::Monitor& right = add(u"Twin24@"_s);
        bed->plug(*first, left);
        bed->plug(*second, right);
        QVERIFY(start());
        QVERIFY(idle());
        QCOMPARE(ids(), (QStringList{u"Twin24"_s, u"Twin24#2"_s}));
        QVERIFY2(
            log().contains(u"2 equal monitors give no serial number: this one is known by its connector"),
            qPrintable(log()));
        QVERIFY(setBrightness(u"Twin24#2"_s, 9));
        QVERIFY(idle());
        QCOMPARE(right.value(Brightness).value_or(999), std::uint16_t(9));
        QVERIFY(left.value(Brightness) != 9);
        // The one that stays keeps its name, with this start and the next.
        bed->unplug(*first);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{u"Twin24#2"_s}, LimitMs);
        QCOMPARE(desk->stop(), 0);
        QVERIFY(start());
        QCOMPARE(ids(), QStringList{u"Twin24#2"_s});
    }

    void aFaultIsCountedAndOverWhenItIsOver_data()
    {
        QTest::addColumn<sim::FaultKind>("kind");
        QTest::addColumn<int>("nack");
        using Kind = sim::FaultKind;
        QTest::newRow("NACK as ENXIO") << Kind::Nack << ENXIO;
        QTest::newRow("NACK as EREMOTEIO") << Kind::Nack << EREMOTEIO;
        QTest::newRow("NACK as EIO") << Kind::Nack << EIO;
        QTest::newRow("null reply") << Kind::Null << ENXIO;
        QTest::newRow("checksum") << Kind::Checksum << ENXIO;
        QTest::newRow("garbage") << Kind::Garbage << ENXIO;
    }

    void aFaultIsCountedAndOverWhenItIsOver()
    {
        QFETCH(sim::FaultKind, kind);
        QFETCH(int, nack);
        plugBoth();
        bed->setNackErrno(*first, nack);
        QVERIFY(start());
        QVERIFY(idle());
        const bool before = get(Series, u"aiContrast.state"_s).toBool();
        sim::Fault fault;
        fault.kind = kind;
        series->armFault(fault);
        QVERIFY(series->setByMenu(AiContrast, !before));
        const QJsonObject module{{u"monitor"_s, Series}, {u"module"_s, u"LuAiContrast"_s}};
        QVERIFY(desk->client().call(u"sync"_s, module, LimitMs).ok());
        QCOMPARE(get(Series, u"aiContrast.state"_s), QJsonValue(before));
        const QJsonObject counted = stats(Series);
        QVERIFY2(!counted.value(u"errors").toObject().isEmpty(), QJsonDocument(counted).toJson().constData());
        // The other one does not notice.
        const QJsonValue unaware = stats(Other).value(u"errors");
        QVERIFY(setBrightness(Other, 41));
        QVERIFY(idle());
        QCOMPARE(other->value(Brightness).value_or(999), std::uint16_t(41));
        QCOMPARE(stats(Other).value(u"errors"), unaware);
        series->clearFaults();
        QVERIFY(desk->client().call(u"sync"_s, module, LimitMs).ok());
        QCOMPARE(get(Series, u"aiContrast.state"_s), QJsonValue(!before));
        QVERIFY(set(Series, u"aiContrast.state"_s, before));
        QVERIFY(idle());
        QCOMPARE(series->value(AiContrast).value_or(99), std::uint16_t(before));
    }

    void aSilentBusDelaysNoOther()
    {
        plugBoth();
        QVERIFY(start());
        QVERIFY(idle());
        sim::Fault fault;
        fault.kind = sim::FaultKind::Timeout;
        fault.blocks = std::chrono::minutes(2);
        series->armFault(fault);
        QVERIFY(set(Series, u"aiContrast.state"_s, !get(Series, u"aiContrast.state"_s).toBool()));
        QTRY_VERIFY_WITH_TIMEOUT(bed->isTransferring(*first), LimitMs);
        for (int i = 1; i <= 20; ++i) {
            QVERIFY(setBrightness(Other, i));
            QVERIFY(QTest::qWaitFor([&] { return other->value(Brightness) == i; }, LimitMs));
        }
        // All that while the first one hung.
        QVERIFY(bed->isTransferring(*first));
        series->unplug(); // nobody waits for the two minutes to end
    }

    void aMonitorWhoseBusHangsGoesAtOnce()
    {
        plugBoth();
        QVERIFY(start());
        QVERIFY(idle());
        sim::Fault fault;
        fault.kind = sim::FaultKind::Timeout;
        fault.blocks = std::chrono::minutes(5);
        series->armFault(fault);
        QVERIFY(set(Series, u"aiContrast.state"_s, true));
        QTRY_VERIFY_WITH_TIMEOUT(bed->isTransferring(*first), LimitMs);
        bed->loseOutput(*first);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{Other}, LimitMs);
        QVERIFY(setBrightness(Other, 17));
        QVERIFY(idle());
        QCOMPARE(other->value(Brightness).value_or(999), std::uint16_t(17));
        // The call into the kernel has not come back even now: nobody has waited for it.
        QVERIFY(bed->isTransferring(*first));
        series->unplug();
        QTRY_VERIFY_WITH_TIMEOUT(!bed->isTransferring(*first), LimitMs);
    }

    void anUnplugInsideATransferLosesNothing()
    {
        plugBoth();
        QVERIFY(start());
        QVERIFY(idle());
        const bool before = get(Series, u"aiContrast.state"_s).toBool();
        sim::Fault fault;
        fault.kind = sim::FaultKind::Timeout;
        fault.blocks = std::chrono::seconds(10);
        series->armFault(fault);
        QVERIFY(set(Series, u"aiContrast.state"_s, !before));
        QTRY_VERIFY_WITH_TIMEOUT(bed->isTransferring(*first), LimitMs);
        bed->unplug(*first);
        series->unplug();
        series->clearFaults();
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{Other}, LimitMs);
        QVERIFY(setBrightness(Other, 51));
        QVERIFY(idle());
        QCOMPARE(other->value(Brightness).value_or(999), std::uint16_t(51));
        bed->plug(*second, *series);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), (QStringList{Other, Series}), LimitMs);
        QVERIFY(idle());
        QCOMPARE(get(Series, u"aiContrast.state"_s).toInt(), int(series->value(AiContrast).value_or(99)));
        const bool now = get(Series, u"aiContrast.state"_s).toBool();
        QVERIFY(set(Series, u"aiContrast.state"_s, !now));
        QVERIFY(idle());
        QCOMPARE(series->value(AiContrast).value_or(99), std::uint16_t(!now));
    }

    void aBusyBusIsTriedAgain()
    {
        plugBoth();
        QVERIFY(start());
        QVERIFY(idle());
        bed->failTransfers(*third, EBUSY, 2);
        QVERIFY(setBrightness(Other, 33));
        QVERIFY(idle());
        QCOMPARE(bed->failuresLeft(*third), 0);
        QCOMPARE(other->value(Brightness).value_or(999), std::uint16_t(33));
    }

    void withoutPermissionThePersonIsToldWhatToDo()
    {
        plugBoth();
        bed->setAccess(*first, false);
        desk->setChildModifier(dropFileRights);
        QVERIFY(desk->start({u"--services"_s, u"simulated"_s}));
        QCOMPARE(ids(), (QStringList{Other, Series}));
        const auto notices = [this] { return desk->client().get(u"context.notices"_s).toArray(); };
        QTRY_COMPARE_WITH_TIMEOUT(notices().size(), 1, LimitMs);
        const QString notice = notices().first().toString();
        QVERIFY2(notice.startsWith(u"No permission to use /dev/i2c-4, so its monitor cannot be controlled."),
                 qPrintable(notice));
        QVERIFY2(notice.contains(u"60-lumen-desk-i2c.rules") || notice.contains(u"udev rule") ||
                     notice.contains(u"group"),
                 qPrintable(notice));
        QTRY_COMPARE(log().count(notice), 1);
        QVERIFY(desk->client().call(u"ui.show"_s).ok());
        const auto shown = [&] {
            const QJsonValue tree = desk->client().call(u"ui.tree"_s).result;
            const QJsonArray list = tree.isArray() ? tree.toArray() : QJsonArray{tree};
            return QString::fromUtf8(QJsonDocument(list).toJson())
                .contains(u"No permission to use /dev/i2c-4");
        };
        QTRY_VERIFY_WITH_TIMEOUT(shown(), LimitMs);
        // The other one is not held up.
        QVERIFY(setBrightness(Other, 12));
        QVERIFY(idle());
        QCOMPARE(other->value(Brightness).value_or(999), std::uint16_t(12));
        // With the rule in force it works, without a restart.
        bed->setAccess(*first, true);
        bed->sendBusEvent(*first);
        QTRY_COMPARE_WITH_TIMEOUT(notices().size(), 0, LimitMs);
        QTRY_VERIFY_WITH_TIMEOUT(!shown(), LimitMs);
        QTRY_COMPARE_WITH_TIMEOUT(ids(), (QStringList{Other, Series}), LimitMs);
        QVERIFY(idle());
        const bool now = get(Series, u"aiContrast.state"_s).toBool();
        QVERIFY(set(Series, u"aiContrast.state"_s, !now));
        QVERIFY(idle());
        QCOMPARE(series->value(AiContrast).value_or(99), std::uint16_t(!now));
    }
};

QTEST_GUILESS_MAIN(TestDesk)
#include "tst_i2c_desk.moc"
