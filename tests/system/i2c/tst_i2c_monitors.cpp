// SPDX-License-Identifier: Apache-2.0
#include "MockBed.h"
#include "SimulatedBed.h"

#include <LuShared/LuMonitorModel.h>
#include <PanelCore/MonitorInfo.h>
#include <app/RealMonitors.h>
#include <app/ScreenMatch.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuMonitorRegistry.h>
#include <lushared/LuSettings.h>
#include <panelcore/MonitorLink.h>

#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(QList<ScreenFacts>)

namespace {

constexpr int Brightness = 0x10;
/// Debounce, enumeration and the first question to a monitor, with room for a slow machine.
constexpr int LimitMs = 20'000;

std::unique_ptr<sim::Monitor> makeMonitor(const char* name)
{
    sim::Options options;
    options.strictTiming = true;
    return std::make_unique<sim::Monitor>(*sim::Identity::parse(QString::fromLatin1(name)), options);
}

} // namespace

/// Monitors on mocked device files as the program has them: in the registry, with models of the package.
class TestMonitors : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<sim::Monitor> alpha;
    std::unique_ptr<sim::Monitor> beta;
    std::unique_ptr<MockBed> bed;
    MockBed::Port* first = nullptr;
    MockBed::Port* second = nullptr;
    MockBed::Port* third = nullptr;
    std::unique_ptr<LuMonitorRegistry> registry;
    std::unique_ptr<RealMonitors> monitors;

    void start()
    {
        monitors = std::make_unique<RealMonitors>(*registry);
        QSignalSpy discovered(monitors.get(), &RealMonitors::discovered);
        monitors->start();
        QTRY_COMPARE_WITH_TIMEOUT(discovered.size(), 1, LimitMs);
        QTRY_VERIFY_WITH_TIMEOUT(!registry->isBusy(), LimitMs);
    }
    QStringList ids() const
    {
        QStringList result;
        const QList<LuMonitorModel*> models = registry->monitors();
        for (const LuMonitorModel* model : models)
            result.append(model->id());
        result.sort();
        return result;
    }
    bool write(const char* id, int value)
    {
        const LuMonitorModel* model = registry->find(QString::fromLatin1(id));
        return model && MonitorLink::of(*model->info()).setVCP(Brightness, value);
    }

private Q_SLOTS:
    void initTestCase() { TestBed::instance(); }

    void init()
    {
        LuSettings::instance().remove(QStringLiteral("monitors/twins"));
        alpha = makeMonitor("Alpha27Q@SN-A");
        beta = makeMonitor("Beta32U@SN-B");
        bed = std::make_unique<MockBed>();
        first = &bed->addPort(4, QStringLiteral("DP-1"));
        second = &bed->addPort(5, QStringLiteral("DP-2"));
        third = &bed->addPort(6, QStringLiteral("HDMI-A-1"));
        registry = std::make_unique<LuMonitorRegistry>();
        registry->addPackage(TestBed::instance().package());
    }

    void cleanup()
    {
        registry->shutDown();
        monitors.reset();
        registry.reset();
        QCOMPARE(alpha->violations().total(), quint64(0));
        QCOMPARE(beta->violations().total(), quint64(0));
        bed.reset();
    }

    void withoutMonitorsTheSearchEndsToo()
    {
        start();
        QVERIFY(monitors->isDiscovered());
        QVERIFY(registry->monitors().isEmpty());
    }

    void whatIsThereIsPluggedIn()
    {
        bed->plug(*first, *alpha);
        bed->plug(*third, *beta);
        bed->addPanel(QStringLiteral("eDP-1"), makeMonitor("Panel@1")->edid());
        start();
        QCOMPARE(ids(), (QStringList{QStringLiteral("Alpha27Q@SN-A"), QStringLiteral("Beta32U@SN-B"),
                                     QStringLiteral("Panel@1")}));
        QVERIFY(registry->find(QStringLiteral("Panel@1"))->isModelBuiltIn());
        QVERIFY(monitors->backlightOf(QStringLiteral("Panel@1")).endsWith(QLatin1String("/intel_backlight")));
        QCOMPARE(monitors->connectorOf(QStringLiteral("Beta32U@SN-B")), QStringLiteral("card0-HDMI-A-1"));
        QVERIFY(write("Alpha27Q@SN-A", 11));
        QVERIFY(write("Beta32U@SN-B", 22));
        QVERIFY(alpha->value(Brightness) == 11);
        QVERIFY(beta->value(Brightness) == 22);
    }

    void aMonitorOfTheSeriesIsDrivenByItsModules()
    {
        const auto series = makeMonitor("TK30Z@SERIES-1");
        bed->plug(*first, *series);
        start();
        LuMonitorModel* model = registry->find(QStringLiteral("TK30Z@SERIES-1"));
        QVERIFY(model && model->isModelSupported());
        LuModelModuleInterface* module = model->moduleByClassName(QStringLiteral("LuAiContrast"));
        QVERIFY(module);
        QVERIFY(waitForRest());
        const bool before = module->property("state").toBool();
        const auto raw = series->value(0xF3);
        QVERIFY(module->setProperty("state", !before));
        QVERIFY(waitForRest());
        QCOMPARE(module->property("state").toBool(), !before);
        QVERIFY(series->value(0xF3) != raw);
        QCOMPARE(series->violations().total(), quint64(0));
        bed->unplug(*first);
        registry->removeMonitor(model->id());
    }

    void aMonitorThatComesGoesAndChangesPlacesIsFollowed()
    {
        start();
        bed->plug(*first, *alpha);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{QStringLiteral("Alpha27Q@SN-A")}, LimitMs);
        bed->unplug(*first);
        bed->plug(*third, *alpha);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(monitors->connectorOf(QStringLiteral("Alpha27Q@SN-A")),
                                  QStringLiteral("card0-HDMI-A-1"), LimitMs);
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{QStringLiteral("Alpha27Q@SN-A")}, LimitMs);
        QVERIFY(write("Alpha27Q@SN-A", 17));
        QVERIFY(alpha->value(Brightness) == 17);
        bed->unplug(*third);
        bed->sendEvent();
        QTRY_VERIFY_WITH_TIMEOUT(ids().isEmpty(), LimitMs);
    }

    void swappedMonitorsKeepTheirValuesApart()
    {
        bed->plug(*first, *alpha);
        bed->plug(*second, *beta);
        start();
        QVERIFY(write("Alpha27Q@SN-A", 11));
        QVERIFY(write("Beta32U@SN-B", 22));
        bed->plug(*first, *beta);
        bed->plug(*second, *alpha);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(monitors->connectorOf(QStringLiteral("Alpha27Q@SN-A")),
                                  QStringLiteral("card0-DP-2"), LimitMs);
        QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 2, LimitMs);
        QVERIFY(write("Alpha27Q@SN-A", 33));
        QVERIFY(alpha->value(Brightness) == 33);
        QVERIFY(beta->value(Brightness) == 22);
    }

    void aMonitorThatWasAwayForAMomentWorksAgain()
    {
        bed->plug(*first, *alpha);
        start();
        // Another one in its place and back, faster than the events settle.
        bed->plug(*first, *beta);
        QSignalSpy disturbed(monitors.get(), &RealMonitors::disturbed);
        bed->sendEvent();
        QTRY_VERIFY_WITH_TIMEOUT(!disturbed.isEmpty(), LimitMs);
        const auto untouched = beta->value(Brightness);
        QVERIFY(!write("Alpha27Q@SN-A", 44));
        QVERIFY(beta->value(Brightness) == untouched);
        bed->plug(*first, *alpha);
        bed->sendEvent();
        QTRY_VERIFY_WITH_TIMEOUT(write("Alpha27Q@SN-A", 45), LimitMs);
        QVERIFY(alpha->value(Brightness) == 45);
    }

    void twinsWithoutSerialsKeepTheirNames()
    {
        const auto one = makeMonitor("Twin24@");
        const auto two = makeMonitor("Twin24@");
        bed->plug(*first, *one);
        bed->plug(*second, *two);
        start();
        QCOMPARE(ids(), (QStringList{QStringLiteral("Twin24"), QStringLiteral("Twin24#2")}));
        QVERIFY(write("Twin24#2", 7));
        QVERIFY(two->value(Brightness) == 7);
        QVERIFY(one->value(Brightness) != 7);
        bed->unplug(*first);
        bed->sendEvent();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{QStringLiteral("Twin24#2")}, LimitMs);
        // The next start knows it too.
        registry->shutDown();
        monitors.reset();
        start();
        QCOMPARE(ids(), QStringList{QStringLiteral("Twin24#2")});
        bed->unplug(*second);
        registry->shutDown();
    }

    void aSleepingDisplayIsAskedNothing()
    {
        alpha->setRawLogEnabled(true);
        bed->plug(*first, *alpha);
        bed->plug(*second, *beta);
        bed->setPower(*first, "Off");
        start();
        QCOMPARE(ids(), QStringList{QStringLiteral("Beta32U@SN-B")});
        QVERIFY(alpha->rawLog().isEmpty());
        bed->setPower(*first, "On");
        QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 2, LimitMs);
        QVERIFY(!monitors->isAsleep(QStringLiteral("Alpha27Q@SN-A")));
        QSignalSpy slept(monitors.get(), &RealMonitors::sleepChanged);
        bed->setPower(*first, "Off");
        QTRY_COMPARE_WITH_TIMEOUT(slept.size(), 1, LimitMs);
        QCOMPARE(slept.at(0), (QVariantList{QStringLiteral("Alpha27Q@SN-A"), true}));
        QVERIFY(monitors->isAsleep(QStringLiteral("Alpha27Q@SN-A")));
        QCOMPARE(ids().size(), 2);
        bed->setPower(*first, "On");
        QTRY_VERIFY_WITH_TIMEOUT(!monitors->isAsleep(QStringLiteral("Alpha27Q@SN-A")), LimitMs);
        QVERIFY(write("Alpha27Q@SN-A", 5));
    }

    void aSilentMonitorHoldsUpNoOther()
    {
        sim::Fault fault;
        fault.kind = sim::FaultKind::Timeout;
        fault.blocks = std::chrono::minutes(2);
        alpha->armFault(fault);
        bed->plug(*first, *alpha);
        bed->plug(*second, *beta);
        monitors = std::make_unique<RealMonitors>(*registry);
        monitors->start();
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{QStringLiteral("Beta32U@SN-B")}, LimitMs);
        QVERIFY(bed->isTransferring(*first));
        alpha->unplug();
        QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 2, LimitMs);
    }

    void aBusThatHangsWhenItIsAskedWhoIsThereHoldsUpNoOther()
    {
        bed->plug(*first, *alpha);
        bed->plug(*second, *beta);
        for (MockBed::Port* port : {first, second})
            bed->hideEdid(*port);
        bed->hang(*first, true);
        start();
        QVERIFY(bed->isTransferring(*first));
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{QStringLiteral("Beta32U@SN-B")}, LimitMs);
        QVERIFY(write("Beta32U@SN-B", 7));
        bed->hang(*first, false);
        QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 2, LimitMs);
    }

    void aScreenIsFoundByWhatItTellsOrItsName_data()
    {
        QTest::addColumn<QString>("connector");
        QTest::addColumn<QList<ScreenFacts>>("screens");
        QTest::addColumn<QString>("screen");
        const auto row = [](const char* name, const char* connector,
                            const QList<std::array<const char*, 3>>& screens, const char* screen) {
            QList<ScreenFacts> facts;
            for (const auto& each : screens)
                facts.append({QString::fromLatin1(each[0]), QString::fromLatin1(each[1]),
                              QString::fromLatin1(each[2])});
            QTest::newRow(name) << QString::fromLatin1(connector) << facts << QString::fromLatin1(screen);
        };
        row("X11", "card0-HDMI-A-1", {{"DP-1", "", ""}, {"HDMI-1", "", ""}}, "HDMI-1");
        row("X11, Intel's driver", "card0-DP-2", {{"DP1", "", ""}, {"DP2", "", ""}}, "DP2");
        row("X11, a driver that counts from 0", "card0-DP-2",
            {{"DisplayPort-0", "", ""}, {"DisplayPort-1", "", ""}, {"HDMI-A-0", "", ""}}, "DisplayPort-1");
        row("Wayland", "card0-HDMI-A-2", {{"HDMI-A-1", "", ""}, {"HDMI-A-2", "", ""}}, "HDMI-A-2");
        row("panel", "card1-eDP-1", {{"eDP-1", "", ""}, {"DP-1", "", ""}}, "eDP-1");
        row("by its EDID, against the names", "card0-DP-1", {{"DP-1", "Other", "9"}, {"DP-3", "Alpha", "S"}},
            "DP-3");
        row("twins by their names", "card0-DP-2", {{"DP-1", "Alpha", "S"}, {"DP-2", "Alpha", "S"}}, "DP-2");
        row("a name that belongs to another model", "card0-DP-1", {{"DP-1", "Other", "9"}}, "");
        row("none", "card0-DP-1", {}, "");
        row("nothing in common", "card0-DP-1", {{"offscreen", "", ""}}, "");
    }

    void aScreenIsFoundByWhatItTellsOrItsName()
    {
        QFETCH(QString, connector);
        QFETCH(QList<ScreenFacts>, screens);
        QFETCH(QString, screen);
        QCOMPARE(screensFor({{connector, QStringLiteral("Alpha"), QStringLiteral("S")}}, screens),
                 QStringList{screen});
    }

    void noScreenIsGivenByChance_data()
    {
        QTest::addColumn<QStringList>("found");
        QTest::addColumn<QStringList>("screens");
        QTest::addColumn<QStringList>("expected"); // "?" for a doubtful one
        const auto row = [](const char* name, const char* found, const char* screens, const char* expected) {
            const auto list = [](const char* text) {
                return QString::fromLatin1(text).split(QLatin1Char(' '));
            };
            QTest::newRow(name) << list(found) << list(screens) << list(expected);
        };
        // A connector or screen, its model, its serial, the kernel's number of the connector; "-" for none.
        row("twins without a serial", "card0-DP-1/A/ card0-DP-2/A/", "DP-2/A/ DP-1/A/", "DP-1 DP-2");
        row("twins with one serial on X11", "card0-HDMI-A-1/A/S card0-HDMI-A-2/A/S", "HDMI-1/A/S HDMI-2/A/S",
            "HDMI-1 HDMI-2");
        row("twins with serials of their own, names crossed", "card0-DP-1/A/1 card0-DP-2/A/2",
            "DP-1/A/2 DP-2/A/1", "DP-2 DP-1");
        row("a second card with the same output", "card0-HDMI-A-1/A/1 card1-HDMI-A-1/B/2",
            "HDMI-1/A/1 HDMI-1-1/B/2", "HDMI-1 HDMI-1-1");
        row("a second card, models unknown to the screens", "card0-HDMI-A-1/A/1 card1-HDMI-A-2/B/2",
            "HDMI-1// HDMI-1-2//", "HDMI-1 HDMI-1-2");
        row("equal outputs of two cards, nothing else known", "card0-HDMI-A-1/A/ card1-HDMI-A-1/A/",
            "HDMI-1// HDMI-1-1//", "? ?");
        row("behind a dock, by the model that is left", "card0-DP-1/A/ card0-DP-5/B/", "DP-1/A/ DP-2-8/B/",
            "DP-1 DP-2-8");
        row("twins, one of them behind a dock", "card0-DP-1/A/ card0-DP-5/A/", "DP-1/A/ DP-2-8/A/",
            "DP-1 DP-2-8");
        row("twins, both behind a dock", "card0-DP-5/A/ card0-DP-6/A/", "DP-2-8/A/ DP-2-1/A/", "? ?");
        row("twins behind a dock, by the kernel's numbers", "card0-DP-5/A//108 card0-DP-6/A//117",
            "DP-2-8/A//117 DP-2-1/A//108", "DP-2-1 DP-2-8");
        row("the same, and the screens tell nothing else", "card0-DP-5/A//108 card0-DP-6/A//117",
            "DP-2-8///117 DP-2-1///108", "DP-2-1 DP-2-8");
        row("one number is known, the rest follows", "card0-DP-5/A//108 card0-DP-6/A//",
            "DP-2-8/A// DP-2-1/A//108", "DP-2-1 DP-2-8");
        row("the number of another card's connector", "card0-DP-5/A//108 card1-HDMI-A-1/A//108",
            "DP-2-8/A//108 HDMI-1-1/A//108", "DP-2-8 HDMI-1-1");
        row("equal numbers of two cards' equal outputs", "card0-DP-5/A//108 card1-DP-5/A//108",
            "DP-2-8/A//108 DP-1-2-8/A//108", "? ?");
        row("a number against the model", "card0-DP-5/A//108", "DP-2-8/B//108", "-");
        row("a number against the serial", "card0-DP-5/A/1/108 card0-DP-6/A/2/117",
            "DP-2-8/A/2/108 DP-2-1/A/1/117", "DP-2-1 DP-2-8");
        row("twins behind a dock, one of them dark", "card0-DP-5/A/ card0-DP-6/A/", "DP-2-8/A/", "? ?");
        row("off-screen", "card0-DP-5/A/ card0-DP-6/A/", "offscreen//", "- -");
        row("twins behind a dock with serials", "card0-DP-5/A/1 card0-DP-6/A/2", "DP-2-8/A/2 DP-2-1/A/1",
            "DP-2-1 DP-2-8");
        row("twins whose connectors are a guess", "card0-DP-1/A//108/guess card0-DP-2/A//117/guess",
            "DP-1/A//108 DP-2/A//117", "? ?");
        row("a guess with serials", "card0-DP-1/A/1//guess card0-DP-2/A/2//guess", "DP-1/A/2 DP-2/A/1",
            "DP-2 DP-1");
        row("one of two is dark", "card0-DP-1/A/ card0-DP-2/A/", "DP-2/A/", "- DP-2");
        row("panel beside a twin of the other card", "card1-eDP-1/P/ card0-DP-1/A/", "eDP-1/P/ DP-1/A/",
            "eDP-1 DP-1");
    }

    void noScreenIsGivenByChance()
    {
        QFETCH(QStringList, found);
        QFETCH(QStringList, screens);
        QFETCH(QStringList, expected);
        const auto numberOf = [](const QStringList& parts) {
            return parts.size() > 3 && !parts.at(3).isEmpty() ? std::optional(parts.at(3).toInt())
                                                              : std::nullopt;
        };
        QList<MonitorFacts> monitorFacts;
        QList<ScreenFacts> screenFacts;
        for (const QString& each : std::as_const(found)) {
            const QStringList parts = each.split(QLatin1Char('/'));
            monitorFacts.append({parts.at(0), parts.at(1), parts.at(2), numberOf(parts), parts.size() > 4});
        }
        for (const QString& each : std::as_const(screens)) {
            const QStringList parts = each.split(QLatin1Char('/'));
            screenFacts.append({parts.at(0), parts.at(1), parts.at(2), numberOf(parts)});
        }
        QList<bool> doubtful;
        for (QString& each : expected) {
            doubtful.append(each == QLatin1String("?"));
            each = each == QLatin1String("-") || doubtful.last() ? QString() : each;
        }
        const QStringList names = screensFor(monitorFacts, screenFacts);
        QCOMPARE(names, expected);
        QCOMPARE(doubtfulScreens(monitorFacts, screenFacts, names), doubtful);
    }
};

QTEST_MAIN(TestMonitors)
#include "tst_i2c_monitors.moc"
