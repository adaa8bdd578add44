// SPDX-License-Identifier: Apache-2.0
#include "HeldQueue.h"
#include "SimulatedBed.h"

#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrDispatch.h>
#include <lushared/LuModelHost.h>

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>
#include <QXmlStreamReader>

#include <memory>

namespace {

constexpr const char* Module = "LuBrightness";

services::SimulatedServices& desktop()
{
    return TestBed::instance().services();
}

QString gets(const char* code, int value)
{
    return QStringLiteral("get 0x%1 %2").arg(QLatin1String(code)).arg(value);
}

QString sets(const char* code, int value)
{
    return QStringLiteral("set 0x%1 %2").arg(QLatin1String(code)).arg(value);
}

/// A monitor without software dimming, so that brightness and hardware value are the same, with all controls
/// read once.
class BrightnessBed : public SimulatedBed
{
public:
    explicit BrightnessBed(const QString& name = QStringLiteral("TK30Z")) : SimulatedBed(name)
    {
        launch();
        idle();
        if (model().isModelSupported()) {
            get(Module, "softwareDimming").value<QObject*>()->setProperty("state", false);
            set(Module, "displayBrightness", 50);
            idle();
        }
        forget();
    }

    int number(const char* property) { return get(Module, property).toInt(); }
    QVariant stored(const char* key) const
    {
        return setting(QStringLiteral("LuBrightness/") + QLatin1String(key));
    }

    /// Lets the present colour mode allow what no mode of the series does.
    void allow(const QString& attributes)
    {
        QXmlStreamReader reader(QStringLiteral("<VCPcode %1/>").arg(attributes));
        reader.readNextStartElement();
        model().colorMode()->loadExtraValues(reader.attributes());
    }

    void readSchema(const QString& entries)
    {
        const QString text = QStringLiteral("<VCPTree><VCPList>%1</VCPList></VCPTree>").arg(entries);
        module(Module)->readSchema(text.toUtf8());
    }

    bool press(LuShortcutAction::ActionName name)
    {
        const QKeyEvent key(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
        for (LuShortcutAction* action : model().shortcutActions()) {
            if (action->name() == name) {
                action->setActive(true);
                return action->handle(key);
            }
        }
        return false;
    }

    bool setMode(const char* name)
    {
        model().setColorMode(model().getColorModeByName(QLatin1String(name)));
        return idle();
    }
};

const QString SixAxes = QStringLiteral("<VCPcode Type=\"SixAxis\" Category=\"SixAxis\" Value=\"on\"/>");
const QString AllFlags = QStringLiteral("HueEnable=\"on\" SaturationEnable=\"on\" GamutEnable=\"on\" "
                                        "UniformityEnable=\"on\" GammaEnable=\"on\" ContrastEnable=\"on\" "
                                        "SharpnessEnable=\"on\" ColorTempCustomEnable=\"on\" "
                                        "BrightnessEnable=\"on\"");

} // namespace

class TestBrightness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valueIsClamped_data();
    void valueIsClamped();
    void setterWritesStoresAndEmits();
    void lastMoveOfASliderIsWritten();
    void aSliderIsPacedByTheMonitor_data();
    void aSliderIsPacedByTheMonitor();
    void returnToThePresentValueWritesNothing();
    void switchOfDimmingForcesTheValue();
    void lockedBrightnessIsNeitherWrittenNorRead();
    void failedWriteIsCorrectedByTheNextRound();
    void readBackTellsStoresAndReports();
    void firstConnectionReportsWithItsSource();
    void valuesBelongToTheColourMode();
    void modeChangeReadsBackAtOnce();
    void shortcutsSnapToTheGrid_data();
    void shortcutsSnapToTheGrid();
    void heldShortcutLosesNoStep();
    void anUnknownBrightnessIsReadBeforeItIsStepped();
    void unsupportedMonitorKeepsItsValueApart();
    void unsupportedMonitorTellsItsBrightness();
    void unsupportedMonitorIsFollowedWhileItShows();
    void unsupportedMonitorIsReadOnceAfterItsSleep();
    void unsupportedMonitorThatIsSilentIsAskedEverMoreRarely();
    void unsupportedMonitorIsReadWhenAsked();
    void builtInPanelUsesTheSystem();
    void builtInPanelFollowsTheSystem_data();
    void builtInPanelFollowsTheSystem();
    void modeGatesWhatIsRead_data();
    void modeGatesWhatIsRead();
    void everyControlHasItsCode_data();
    void everyControlHasItsCode();
    void readValuesAreMapped_data();
    void readValuesAreMapped();
    void unknownNumbersAreRefused_data();
    void unknownNumbersAreRefused();
    void gainsAreReadWithTheUsersTemperatureOnly();
    void sixAxesAreReadInTheirOrder();
    void uniformityAndBacklightControlAreOnForExactlyOne();
    void schemaTellsWhatIsSupported();
    void schemaWithoutTemperaturesOffersThree();
    void launchWritesInOrder();
    void launchWritesSixAxesAndGainsInOrder();
    void launchWritesNothingThatWasNeverKnown();
    void baselineIsStored();
    void colourModeByName();
};

void TestBrightness::valueIsClamped_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("written");
    QTest::newRow("101") << 101 << 100;
    QTest::newRow("-1") << -1 << 0;
    QTest::newRow("far out") << 2147483647 << 100;
}

void TestBrightness::valueIsClamped()
{
    QFETCH(int, asked);
    QFETCH(int, written);
    BrightnessBed bed;
    bed.set(Module, "displayBrightness", asked);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{sets("10", written)});
    QCOMPARE(bed.number("displayBrightness"), written);
}

void TestBrightness::setterWritesStoresAndEmits()
{
    BrightnessBed bed;
    QSignalSpy spy(bed.module(Module), SIGNAL(displayBrightnessChanged(bool)));
    bed.set(Module, "displayBrightness", 61);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{sets("10", 61)});
    QCOMPARE(bed.stored("User/displayBrightness").toInt(), 61);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toBool(), true);
    QCOMPARE(bed.events(), QStringList());
    QVERIFY(bed.log().contains(QStringLiteral("[LuBrightness] set hardware brightness: 61")));
}

void TestBrightness::lastMoveOfASliderIsWritten()
{
    BrightnessBed bed;
    {
        const HeldQueue held(bed.model());
        for (int value = 1; value <= 99; ++value)
            bed.set(Module, "displayBrightness", value);
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{sets("10", 99)});
}

void TestBrightness::aSliderIsPacedByTheMonitor_data()
{
    QTest::addColumn<bool>("nacks");
    QTest::newRow("healthy") << false;
    QTest::newRow("NACKs every second try") << true;
}

void TestBrightness::aSliderIsPacedByTheMonitor()
{
    QFETCH(bool, nacks);
    constexpr int BetweenWritesMs = 50; // What the monitor needs after a write.
    SimulatedBed bed(QStringLiteral("TK30Z"), SimulatedBed::Timing::Real);
    bed.launch();
    QVERIFY(bed.idle());
    bed.get(Module, "softwareDimming").value<QObject*>()->setProperty("state", false);
    QVERIFY(bed.idle());
    if (nacks) {
        sim::Fault fault;
        fault.kind = sim::FaultKind::Nack;
        fault.code = 0x10;
        fault.op = sim::Op::Set;
        fault.every = 2;
        bed.monitor().armFault(fault);
    }
    const quint64 before = bed.monitor().traffic().last().seq;
    // 200 moves in the time of 40 writes, each when the event loop comes to it.
    QElapsedTimer elapsed;
    elapsed.start();
    for (int i = 1; i <= 200; ++i) {
        bed.set(Module, "displayBrightness", i == 200 ? 63 : (i * 7) % 101);
        const qint64 due = qint64(i) * 10;
        while (elapsed.elapsed() < due)
            QCoreApplication::processEvents(QEventLoop::AllEvents, int(due - elapsed.elapsed()));
    }
    QVERIFY(bed.idle());
    QList<sim::TrafficEntry> writes;
    for (const sim::TrafficEntry& entry : bed.monitor().traffic(before)) {
        if (entry.op == sim::Op::Set && entry.code == 0x10)
            writes.append(entry);
    }
    QVERIFY(writes.size() >= 5);
    QVERIFY2(writes.size() <= elapsed.elapsed() / BetweenWritesMs * (nacks ? 2 : 1) + 2,
             qPrintable(QString::number(writes.size())));
    QVERIFY(writes.last().ok);
    QCOMPARE(int(writes.last().value), 63);
    QCOMPARE(int(bed.monitor().value(0x10).value_or(0)), 63);
    QCOMPARE(bed.get(Module, "displayBrightness").toInt(), 63);
    qsizetype refused = 0;
    for (qsizetype i = 0; i < writes.size(); ++i) {
        refused += !writes[i].ok;
        // After a write that was taken the next one waits.
        if (i > 0 && writes[i - 1].ok)
            QVERIFY2(writes[i].ms - writes[i - 1].ms >= BetweenWritesMs - 1,
                     qPrintable(QString::number(writes[i].ms - writes[i - 1].ms)));
        // What was refused is written again, unless the user has moved on.
        if (!writes[i].ok)
            QVERIFY(i + 1 < writes.size());
    }
    QCOMPARE(refused > 0, nacks);
}

void TestBrightness::returnToThePresentValueWritesNothing()
{
    BrightnessBed bed;
    const int present = bed.number("displayBrightness");
    {
        const HeldQueue held(bed.model());
        bed.set(Module, "displayBrightness", 99);
        bed.set(Module, "displayBrightness", present);
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.number("displayBrightness"), present);
}

void TestBrightness::switchOfDimmingForcesTheValue()
{
    BrightnessBed bed;
    bed.get(Module, "softwareDimming").value<QObject*>()->setProperty("state", true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{sets("10", 29)});
    QCOMPARE(bed.number("displayBrightness"), 50);
}

void TestBrightness::lockedBrightnessIsNeitherWrittenNorRead()
{
    BrightnessBed bed;
    bed.set(Module, "hardwareBrightnessEnable", false);
    bed.set(Module, "displayBrightness", 33);
    QVERIFY(bed.idle());
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire().filter(QStringLiteral("0x10")), QStringList());
    QCOMPARE(bed.number("displayBrightness"), 33);
    QCOMPARE(bed.stored("User/displayBrightness").toInt(), 33);
    QVERIFY(bed.apply());
    QCOMPARE(bed.wire().filter(QStringLiteral("0x10")), QStringList{sets("10", 33)});
}

void TestBrightness::failedWriteIsCorrectedByTheNextRound()
{
    BrightnessBed bed;
    sim::Fault fault;
    fault.kind = sim::FaultKind::Nack;
    fault.code = 0x10;
    bed.monitor().armFault(fault);
    bed.set(Module, "displayBrightness", 33);
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayBrightness"), 33);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.number("displayBrightness"), 33);
    bed.monitor().clearFaults();
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.number("displayBrightness"), 50);
    QCOMPARE(bed.stored("User/displayBrightness").toInt(), 50);
}

void TestBrightness::readBackTellsStoresAndReports()
{
    BrightnessBed bed;
    QVERIFY(bed.monitor().setByMenu(0x10, 64));
    QSignalSpy spy(bed.module(Module), SIGNAL(displayBrightnessChanged(bool)));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.number("displayBrightness"), 64);
    QCOMPARE(bed.stored("User/displayBrightness").toInt(), 64);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toBool(), false);
    QCOMPARE(bed.events(), QStringList{QStringLiteral("LuBrightness 35  1 [64]")});
    const QStringList log = bed.log();
    QVERIFY(log.contains(QStringLiteral("[LuBrightness] sync: \"TK30Z\"")));
    QVERIFY(log.contains(QStringLiteral("[LuBrightness] sync hardware brightness changed: 64")));
    QVERIFY(bed.sync(Module));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.events(), QStringList());
}

void TestBrightness::firstConnectionReportsWithItsSource()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    // Hardware 50 is what brightness 65 shows through the dimming table.
    QCOMPARE(bed.events().filter(QStringLiteral("LuBrightness 35")),
             QStringList{QStringLiteral("LuBrightness 35  5 [65]")});
}

void TestBrightness::valuesBelongToTheColourMode()
{
    BrightnessBed bed;
    bed.set(Module, "displayBrightness", 61);
    QVERIFY(bed.idle());
    QVERIFY(bed.setMode("Cinema"));
    bed.set(Module, "displayBrightness", 22);
    bed.set(Module, "displayContrast", 44);
    QVERIFY(bed.idle());
    QCOMPARE(bed.stored("User/displayBrightness").toInt(), 61);
    QCOMPARE(bed.stored("Cinema/displayBrightness").toInt(), 22);
    QCOMPARE(bed.stored("Cinema/displayContrast").toInt(), 44);
    bed.relaunch();
    QCOMPARE(bed.number("displayContrast"), 44);
    QVERIFY(bed.idle());
}

void TestBrightness::modeChangeReadsBackAtOnce()
{
    BrightnessBed bed;
    QVERIFY(bed.setMode("Cinema"));
    QCOMPARE(bed.number("displayBrightness"), 65);
    QCOMPARE(bed.number("displayContrast"), 55);
    QVERIFY(bed.wire().contains(gets("10", 65)));
}

void TestBrightness::shortcutsSnapToTheGrid_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<bool>("increase");
    QTest::addColumn<int>("to");
    QTest::newRow("up from 3") << 3 << true << 5;
    QTest::newRow("up from 5") << 5 << true << 10;
    QTest::newRow("up from 97") << 97 << true << 100;
    QTest::newRow("up from 100") << 100 << true << 100;
    QTest::newRow("down from 7") << 7 << false << 5;
    QTest::newRow("down from 5") << 5 << false << 0;
    QTest::newRow("down from 100") << 100 << false << 95;
    QTest::newRow("down from 0") << 0 << false << 0;
}

void TestBrightness::shortcutsSnapToTheGrid()
{
    QFETCH(int, from);
    QFETCH(bool, increase);
    QFETCH(int, to);
    BrightnessBed bed;
    bed.set(Module, "displayBrightness", from);
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(
        bed.press(increase ? LuShortcutAction::Brightness_Increase : LuShortcutAction::Brightness_Decrease));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayBrightness"), to);
    if (from == to)
        QCOMPARE(bed.events(), QStringList());
    else
        QCOMPARE(bed.events(),
                 QStringList{QStringLiteral("LuBrightness 35 on_update_setting 0 [%1]").arg(to)});
    // A move of the slider after it reports nothing.
    bed.forget();
    bed.set(Module, "displayBrightness", 42);
    QVERIFY(bed.idle());
    QCOMPARE(bed.events(), QStringList());
}

void TestBrightness::heldShortcutLosesNoStep()
{
    BrightnessBed bed;
    {
        const HeldQueue held(bed.model());
        for (int i = 0; i < 4; ++i)
            QVERIFY(bed.press(LuShortcutAction::Brightness_Increase));
    }
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{sets("10", 70)});
}

void TestBrightness::anUnknownBrightnessIsReadBeforeItIsStepped()
{
    SimulatedBed bed;
    sim::Fault fault;
    fault.code = 0x10;
    bed.monitor().armFault(fault);
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    const auto press = [&bed] {
        const QKeyEvent key(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
        for (LuShortcutAction* action : bed.model().shortcutActions()) {
            if (action->name() == LuShortcutAction::Brightness_Increase) {
                action->setActive(true);
                return action->handle(key);
            }
        }
        return false;
    };
    QVERIFY(press());
    QObject* dimming = bed.get(Module, "softwareDimming").value<QObject*>();
    dimming->setProperty("state", false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("set 0x10")), QStringList());
    bed.monitor().clearFaults();
    const int held = int(*bed.monitor().value(0x10));
    QVERIFY(held > 10 && held % 5 == 0);
    QVERIFY(press());
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "displayBrightness").toInt(), held);
    QVERIFY(press());
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("set 0x10")), QStringList{sets("10", held + 5)});
}

void TestBrightness::unsupportedMonitorKeepsItsValueApart()
{
    BrightnessBed bed(QStringLiteral("Other"));
    const std::unique_ptr<LuSyncTasks> tasks(bed.module(Module)->syncPeriodically());
    QVERIFY(!tasks);
    bed.set(Module, "displayBrightness", 30);
    bed.set(Module, "displayContrast", 40);
    bed.set(Module, "displayUniformity", true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{sets("10", 30)});
    QCOMPARE(bed.stored("Unsupported/displayBrightness").toInt(), 30);
    QVERIFY(bed.log().contains(QStringLiteral("[LuBrightness] set system brightness: 30")));
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayBrightness"), 30);
    QCOMPARE(bed.wire().filter(QStringLiteral("set")), QStringList{sets("10", 30)});
    QVERIFY(bed.events().contains(QStringLiteral("LuBrightness 35  3 [30]")));
    QVERIFY(!bed.get(Module, "brightnessSyncEnable").toBool());
}

void TestBrightness::unsupportedMonitorTellsItsBrightness()
{
    SimulatedBed bed(QStringLiteral("Other"));
    bed.monitor().setByMenu(0x10, 62);
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "displayBrightness").toInt(), 62);
    QCOMPARE(bed.wire().filter(QStringLiteral("set")), QStringList());
    bed.destroy();
    sim::Fault silent;
    bed.monitor().setByMenu(0x10, 10);
    bed.monitor().armFault(silent);
    bed.hotplug();
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "displayBrightness").toInt(), 62);
    QCOMPARE(bed.setting(QStringLiteral("LuBrightness/Unsupported/displayBrightness")).toInt(), 62);
}

namespace {

/// A program's clock of the test's own that also moves the periodic rounds.
struct MovingClock
{
    MovingClock()
    {
        ZrClock::instance().set(QDateTime(QDate(2026, 3, 2), QTime(10, 0)));
        ZrClock::instance().setBackgroundMoves(true);
    }
    ~MovingClock()
    {
        ZrClock::instance().setBackgroundMoves(false);
        ZrClock::instance().release();
    }
    static void pass(int ms) { ZrClock::instance().advance(ms); }
};

constexpr const char* Gets = "get 0x10";

} // namespace

void TestBrightness::unsupportedMonitorIsFollowedWhileItShows()
{
    const MovingClock clock;
    BrightnessBed bed(QStringLiteral("Other"));
    QVERIFY(bed.idle());
    bed.forget();
    // Nobody looks: nothing is asked.
    bed.monitor().setByMenu(0x10, 35);
    clock.pass(60'000);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QSignalSpy spy(bed.module(Module), SIGNAL(displayBrightnessChanged(bool)));
    bed.set(Module, "syncEnable", true);
    clock.pass(10'000);
    QTRY_COMPARE(bed.number("displayBrightness"), 35);
    QVERIFY(bed.idle());
    QCOMPARE(bed.stored("Unsupported/displayBrightness").toInt(), 35);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toBool(), false);
    QVERIFY(bed.log().contains(QStringLiteral("[LuBrightness] sync system brightness changed: 35")));
    // One transfer a round, and nothing but that.
    const QStringList wire = bed.wire();
    QCOMPARE(wire.filter(QLatin1String(Gets)).size(), wire.size());
    QVERIFY2(wire.size() >= 4 && wire.size() <= 6, qPrintable(wire.join(u'\n')));
    // What the program writes comes back as nothing new.
    bed.set(Module, "displayBrightness", 80);
    QVERIFY(bed.idle());
    clock.pass(10'000);
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayBrightness"), 80);
    QCOMPARE(bed.wire().filter(QStringLiteral("set")), QStringList{sets("10", 80)});
    QCOMPARE(spy.count(), 2);
    bed.set(Module, "syncEnable", false);
    QVERIFY(bed.idle());
    bed.forget();
    clock.pass(60'000);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestBrightness::unsupportedMonitorIsReadOnceAfterItsSleep()
{
    const MovingClock clock;
    BrightnessBed bed(QStringLiteral("Other"));
    QVERIFY(bed.idle());
    bed.set(Module, "syncEnable", true);
    LuModelHost::setAsleep(&bed.model(), true);
    QVERIFY(bed.idle());
    bed.forget();
    bed.monitor().setByMenu(0x10, 12);
    clock.pass(600'000);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList());
    bed.set(Module, "syncEnable", false);
    QVERIFY(bed.idle());
    LuModelHost::setAsleep(&bed.model(), false);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().size(), 1);
    QTRY_COMPARE(bed.number("displayBrightness"), 12);
}

void TestBrightness::unsupportedMonitorThatIsSilentIsAskedEverMoreRarely()
{
    const MovingClock clock;
    BrightnessBed bed(QStringLiteral("Other"));
    QVERIFY(bed.idle());
    bed.monitor().armFault(sim::Fault());
    bed.set(Module, "syncEnable", true);
    clock.pass(600'000);
    QVERIFY(bed.idle());
    bed.forget();
    clock.pass(600'000);
    QVERIFY(bed.idle());
    // A question a minute, each with its tries.
    const qsizetype asked = bed.wire().size();
    QVERIFY2(asked > 0 && asked <= 60, qPrintable(QString::number(asked)));
    bed.monitor().clearFaults();
    bed.monitor().setByMenu(0x10, 5);
    clock.pass(120'000);
    QTRY_COMPARE(bed.number("displayBrightness"), 5);
}

void TestBrightness::unsupportedMonitorIsReadWhenAsked()
{
    BrightnessBed bed(QStringLiteral("Other"));
    QVERIFY(bed.idle());
    bed.monitor().setByMenu(0x10, 64);
    bed.forget();
    QVERIFY(bed.sync("LuAutoPivot"));
    QCOMPARE(bed.wire(), QStringList());
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire().size(), 1);
    QTRY_COMPARE(bed.number("displayBrightness"), 64);
    bed.monitor().setByMenu(0x10, 65);
    QVERIFY(bed.sync());
    QTRY_COMPARE(bed.number("displayBrightness"), 65);
}

void TestBrightness::builtInPanelUsesTheSystem()
{
    QVERIFY(desktop().set(QStringLiteral("systemBrightness"), 0.5));
    BrightnessBed bed(QStringLiteral("builtin"));
    QVERIFY(bed.get(Module, "brightnessSyncEnable").toBool());
    QCOMPARE(bed.number("displayBrightness"), 50);
    bed.set(Module, "displayBrightness", 30);
    QVERIFY(bed.idle());
    QCOMPARE(desktop().get(QStringLiteral("systemBrightness")).toDouble(), 0.3);
    QCOMPARE(bed.stored("Unsupported/displayBrightness").toInt(), 30);
    QCOMPARE(bed.wire(), QStringList());
    bed.destroy();
    QVERIFY(desktop().set(QStringLiteral("systemBrightness"), 0.9));
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(desktop().get(QStringLiteral("systemBrightness")).toDouble(), 0.3);
    QVERIFY(bed.log().contains(QStringLiteral("[LuBrightness] apply system brightness: 30")));
    QVERIFY(bed.events().contains(QStringLiteral("LuBrightness 35  3 [30]")));
}

void TestBrightness::builtInPanelFollowsTheSystem_data()
{
    QTest::addColumn<double>("fraction");
    QTest::addColumn<int>("value");
    QTest::newRow("half away from zero") << 0.125 << 13;
    QTest::newRow("down") << 0.124 << 12;
    QTest::newRow("none") << 0.0 << 0;
    QTest::newRow("all") << 1.0 << 100;
}

void TestBrightness::builtInPanelFollowsTheSystem()
{
    QFETCH(double, fraction);
    QFETCH(int, value);
    QVERIFY(desktop().set(QStringLiteral("systemBrightness"), 0.5));
    BrightnessBed bed(QStringLiteral("builtin"));
    QSignalSpy spy(bed.module(Module), SIGNAL(displayBrightnessChanged(bool)));
    QVERIFY(desktop().set(QStringLiteral("systemBrightness"), fraction));
    QVERIFY(bed.idle());
    QCOMPARE(bed.number("displayBrightness"), value);
    QCOMPARE(bed.stored("Unsupported/displayBrightness").toInt(), value);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toBool(), false);
    QVERIFY(
        bed.log().contains(QStringLiteral("[LuBrightness] sync system brightness changed: %1").arg(value)));
}

void TestBrightness::modeGatesWhatIsRead_data()
{
    QTest::addColumn<QStringList>("wire");
    QTest::newRow("User") << QStringList{gets("10", 50), gets("12", 50), gets("87", 5),
                                         gets("14", 5),  gets("8A", 5),  gets("72", 120)};
    QTest::newRow("M-book") << QStringList{gets("10", 60), gets("12", 50), gets("87", 4), gets("14", 8)};
    QTest::newRow("Cinema") << QStringList{gets("10", 65), gets("12", 55), gets("87", 6)};
    QTest::newRow("HDR") << QStringList{gets("10", 100), gets("87", 5), QStringLiteral("get 0x13 ")};
}

void TestBrightness::modeGatesWhatIsRead()
{
    QFETCH(QStringList, wire);
    BrightnessBed bed;
    QVERIFY(bed.setMode(QTest::currentDataTag()));
    bed.forget();
    QVERIFY(bed.sync(Module));
    const QStringList seen = bed.wire();
    QCOMPARE(seen.size(), wire.size());
    for (qsizetype i = 0; i < wire.size(); ++i)
        QVERIFY2(seen[i].startsWith(wire[i]), qPrintable(seen[i]));
}

void TestBrightness::everyControlHasItsCode_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("wire");
    QTest::addColumn<QString>("log");
    const auto row = [](const char* property, int value, const char* code, int vcp, const char* log) {
        QTest::newRow(property)
            << QByteArray(property) << value << sets(code, vcp)
            << QStringLiteral("[LuBrightness] set %1: %2").arg(QLatin1String(log)).arg(value);
    };
    row("displayContrast", 61, "12", 61, "contrast");
    row("displaySharpness", 7, "87", 7, "sharpness");
    row("displayColorTemperature", LuVCPNode::ColorTemperature_UserDefine, "14", 11, "color temperature");
    row("displayColorTemperatureR", 31, "16", 31, "color temperature R");
    row("displayColorTemperatureG", 32, "18", 32, "color temperature G");
    row("displayColorTemperatureB", 33, "1A", 33, "color temperature B");
    row("displayGamma", LuVCPNode::Gamma_BT1886, "72", 135, "gamma");
    row("displayGamut", LuVCPNode::Gamut_Rec2020, "5F", 5, "gamut");
    row("displayHue", 41, "90", 41, "hue");
    row("displayHueR", 42, "9B", 42, "hue R");
    row("displayHueY", 43, "9C", 43, "hue Y");
    row("displayHueG", 44, "9D", 44, "hue G");
    row("displayHueC", 45, "9E", 45, "hue C");
    row("displayHueB", 46, "9F", 46, "hue B");
    row("displayHueM", 47, "A0", 47, "hue M");
    row("displaySaturation", 8, "8A", 8, "saturation");
    row("displaySaturationR", 52, "59", 52, "saturation R");
    row("displaySaturationY", 53, "5A", 53, "saturation Y");
    row("displaySaturationG", 54, "5B", 54, "saturation G");
    row("displaySaturationC", 55, "5C", 55, "saturation C");
    row("displaySaturationB", 56, "5D", 56, "saturation B");
    row("displaySaturationM", 57, "5E", 57, "saturation M");
}

void TestBrightness::everyControlHasItsCode()
{
    QFETCH(QByteArray, property);
    QFETCH(int, value);
    QFETCH(QString, wire);
    QFETCH(QString, log);
    BrightnessBed bed;
    bed.set(Module, property.constData(), value);
    QVERIFY(bed.idle());
    // Gains are not taken by the monitor with a preset temperature; the write goes out all the same.
    const QStringList seen = bed.wire();
    QCOMPARE(seen.size(), 1);
    QVERIFY2(seen.first().startsWith(wire), qPrintable(seen.first()));
    QCOMPARE(bed.number(property.constData()), value);
    QCOMPARE(bed.stored("User/" + property).toInt(), value);
    QCOMPARE(bed.events(), QStringList());
    QVERIFY2(bed.log().contains(log), qPrintable(log));
}

void TestBrightness::readValuesAreMapped_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("vcp");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("number");
    const auto row = [](const char* name, int code, int vcp, const char* property, int number) {
        QTest::newRow(name) << code << vcp << QByteArray(property) << number;
    };
    const char* gamma = "displayGamma";
    const char* temperature = "displayColorTemperature";
    row("gamma 1.6", 0x72, 60, gamma, 6);
    row("gamma 1.8", 0x72, 80, gamma, 0);
    row("gamma 2.0", 0x72, 100, gamma, 1);
    row("gamma sRGB", 0x72, 119, gamma, 2);
    row("gamma 2.2", 0x72, 120, gamma, 3);
    row("gamma 2.4", 0x72, 140, gamma, 4);
    row("gamma 2.6", 0x72, 160, gamma, 5);
    row("gamma BT 1886", 0x72, 135, gamma, 7);
    row("unknown gamma", 0x72, 121, gamma, 0);
    row("5000", 0x14, 4, temperature, 0);
    row("6500", 0x14, 5, temperature, 1);
    row("9300", 0x14, 8, temperature, 2);
    row("user", 0x14, 11, temperature, 3);
    row("DCI", 0x14, 13, temperature, 4);
    row("unknown temperature", 0x14, 6, temperature, 0);
}

void TestBrightness::readValuesAreMapped()
{
    QFETCH(int, code);
    QFETCH(int, vcp);
    QFETCH(QByteArray, property);
    QFETCH(int, number);
    BrightnessBed bed;
    QVERIFY(bed.monitor().setByMenu(code, vcp));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.number(property.constData()), number);
    QCOMPARE(bed.stored("User/" + property).toInt(), number);
    QCOMPARE(bed.events(), QStringList());
}

void TestBrightness::unknownNumbersAreRefused_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("value");
    QTest::newRow("contrast -1") << QByteArray("displayContrast") << -1;
    QTest::newRow("sharpness 65536") << QByteArray("displaySharpness") << 65536;
}

void TestBrightness::unknownNumbersAreRefused()
{
    QFETCH(QByteArray, property);
    QFETCH(int, value);
    BrightnessBed bed;
    const int before = bed.number(property.constData());
    bed.set(Module, property.constData(), value);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(bed.number(property.constData()), before);
    QVERIFY(!bed.log().filter(QStringLiteral("cannot be %1").arg(value)).isEmpty());
}

void TestBrightness::gainsAreReadWithTheUsersTemperatureOnly()
{
    BrightnessBed bed;
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire().filter(QStringLiteral("get 0x1")).size(), 3); // brightness, contrast, temperature
    QVERIFY(bed.monitor().setByMenu(0x14, 11));
    QVERIFY(bed.monitor().setByMenu(0x16, 90));
    bed.forget();
    QVERIFY(bed.sync(Module));
    const QStringList wire = bed.wire();
    QCOMPARE(wire.mid(3, 4), (QStringList{gets("14", 11), gets("16", 90), gets("18", 100), gets("1A", 100)}));
    QCOMPARE(bed.number("displayColorTemperatureR"), 90);
    QCOMPARE(bed.stored("User/displayColorTemperatureR").toInt(), 90);
    QVERIFY(bed.log().contains(QStringLiteral("[LuBrightness] sync color temperature R changed: 90")));
}

void TestBrightness::sixAxesAreReadInTheirOrder()
{
    BrightnessBed bed;
    bed.readSchema(SixAxes);
    QVERIFY(bed.get(Module, "sixAxisEnable").toBool());
    bed.allow(AllFlags);
    QVERIFY(bed.monitor().setByMenu(0x9B, 11));
    QVERIFY(bed.monitor().setByMenu(0x5E, 22));
    bed.forget();
    QVERIFY(bed.sync(Module));
    const QStringList wire = bed.wire();
    QCOMPARE(wire.mid(4, 12), (QStringList{gets("9B", 11), gets("59", 50), gets("9C", 50), gets("5A", 50),
                                           gets("9D", 50), gets("5B", 50), gets("9E", 50), gets("5C", 50),
                                           gets("9F", 50), gets("5D", 50), gets("A0", 50), gets("5E", 22)}));
    QCOMPARE(wire.mid(16), (QStringList{gets("72", 120), gets("5F", 2), gets("FA", 0)}));
    QCOMPARE(bed.number("displayHueR"), 11);
    QCOMPARE(bed.number("displaySaturationM"), 22);
    const QStringList log = bed.log();
    QVERIFY(log.contains(QStringLiteral("[LuBrightness] sync hue R changed: 11")));
    QVERIFY(log.contains(QStringLiteral("[LuBrightness] sync saturation M changed: 22")));
}

void TestBrightness::uniformityAndBacklightControlAreOnForExactlyOne()
{
    BrightnessBed bed;
    QVERIFY(bed.setMode("HDR"));
    bed.allow(QStringLiteral("BacklightControlEnable=\"on\" UniformityEnable=\"on\" isHDR=\"on\""));
    for (const auto& [value, on] : {std::pair(1, true), std::pair(2, false), std::pair(0, false)}) {
        QVERIFY(bed.monitor().setByMenu(0x13, value));
        QVERIFY(bed.monitor().setByMenu(0xFA, value));
        QVERIFY(bed.sync(Module));
        QCOMPARE(bed.get(Module, "backlightControlOn").toBool(), on);
        QCOMPARE(bed.get(Module, "displayUniformity").toBool(), on);
        QCOMPARE(bed.stored("HDR/displayUniformity").toBool(), on);
    }
    QVERIFY(bed.log().contains(QStringLiteral("[LuBrightness] sync backlight control changed: true")));
    QVERIFY(!bed.stored("backlightControlOn").isValid());
    bed.forget();
    bed.set(Module, "displayUniformity", true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{sets("FA", 1)});
}

void TestBrightness::schemaTellsWhatIsSupported()
{
    BrightnessBed bed;
    QVERIFY(bed.get(Module, "brightnessSyncEnable").toBool());
    QVERIFY(!bed.get(Module, "sixAxisEnable").toBool());
    // 1.8 to 2.6; sRGB is off.
    QCOMPARE(bed.get(Module, "supportedGamma").value<QList<int>>(), (QList<int>{0, 1, 3, 4, 5}));
    QCOMPARE(bed.get(Module, "supportedGamut").value<QList<int>>(), QList<int>());
    const auto entry = [](const char* category, const char* type, const char* value) {
        return QStringLiteral("<VCPcode Category=\"%1\" Type=\"%2\" Value=\"%3\"/>")
            .arg(QLatin1String(category), QLatin1String(type), QLatin1String(value));
    };
    bed.readSchema(entry("Gamma", "2.6", "on") + entry("Gamma", "BT 1886", "on") +
                   entry("Gamma", "2.0", "off") + entry("Gamma", "odd", "on") +
                   entry("Gamut", "Rec 709", "on") + entry("Gamut", "odd", "on") +
                   entry("ColorTemperature", "DCI", "on") + entry("ColorTemperature", "5000", "on"));
    QCOMPARE(bed.get(Module, "supportedGamma").value<QList<int>>(), (QList<int>{5, 7, 2}));
    QCOMPARE(bed.get(Module, "supportedGamut").value<QList<int>>(), (QList<int>{4, 0}));
    QCOMPARE(bed.get(Module, "supportedPresetColorTemp").value<QList<int>>(), (QList<int>{4, 0}));
}

void TestBrightness::schemaWithoutTemperaturesOffersThree()
{
    BrightnessBed bed;
    QCOMPARE(bed.get(Module, "supportedPresetColorTemp").value<QList<int>>(), (QList<int>{0, 1, 2}));
}

void TestBrightness::launchWritesInOrder()
{
    BrightnessBed bed;
    bed.set(Module, "displayBrightness", 61);
    bed.set(Module, "displayContrast", 62);
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(bed.apply());
    // Other modules write before and after it.
    const QStringList wire = bed.wire().filter(QStringLiteral("set"));
    QCOMPARE(wire.mid(wire.indexOf(sets("10", 61)), 6),
             (QStringList{sets("10", 61), sets("12", 62), sets("87", 5), sets("14", 5), sets("8A", 5),
                          sets("72", 120)}));
    QCOMPARE(
        bed.events().filter(QLatin1String(Module)),
        (QStringList{QStringLiteral("LuBrightness 35  3 [61]"), QStringLiteral("LuBrightness 24 off 3 []")}));
    const QStringList log = bed.log();
    for (const char* line : {"apply hardware brightness: 61", "apply contrast: 62", "apply sharpness: 5",
                             "apply color temperature: 1", "apply saturation: 5", "apply gamma: 3"})
        QVERIFY2(log.contains(QStringLiteral("[LuBrightness] ") + QLatin1String(line)), line);
}

void TestBrightness::launchWritesSixAxesAndGainsInOrder()
{
    BrightnessBed bed;
    bed.readSchema(SixAxes);
    bed.allow(AllFlags);
    QVERIFY(bed.monitor().setByMenu(0x14, 11));
    QVERIFY(bed.sync(Module));
    bed.set(Module, "displayUniformity", true);
    QVERIFY(bed.idle());
    bed.forget();
    QVERIFY(bed.apply());
    const QStringList wire = bed.wire().filter(QStringLiteral("set"));
    const qsizetype first = wire.indexOf(sets("14", 11));
    QCOMPARE(wire.mid(first, 19),
             (QStringList{sets("14", 11), sets("16", 100), sets("18", 100), sets("1A", 100), sets("9B", 50),
                          sets("9C", 50), sets("9D", 50), sets("9E", 50), sets("9F", 50), sets("A0", 50),
                          sets("59", 50), sets("5A", 50), sets("5B", 50), sets("5C", 50), sets("5D", 50),
                          sets("5E", 50), sets("72", 120), sets("5F", 2), sets("FA", 1)}));
    const QStringList log = bed.log();
    QVERIFY(log.contains(QStringLiteral("[LuBrightness] apply custom color temperature: 100 100 100")));
    QVERIFY(log.contains(QStringLiteral("[LuBrightness] apply hue: 50 50 50 50 50 50")));
}

void TestBrightness::launchWritesNothingThatWasNeverKnown()
{
    BrightnessBed bed;
    bed.destroy();
    // While the program was not running, the person chose a mode that it has never seen.
    QVERIFY(bed.monitor().setByMenu(0xDC, 0x32));
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    const QStringList wire = bed.wire();
    for (const char* code : {"set 0x10", "set 0x12", "set 0x87"})
        QCOMPARE(wire.filter(QLatin1String(code)), QStringList());
    QCOMPARE(bed.monitor().value(0x12).value(), 55);
    QCOMPARE(bed.number("displayContrast"), 55);
}

void TestBrightness::baselineIsStored()
{
    BrightnessBed bed;
    QSignalSpy spy(bed.module(Module), SIGNAL(syncBaselineChanged()));
    bed.set(Module, "syncBaseline", 40);
    bed.set(Module, "syncBaseline", 40);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.stored("syncBaseline").toInt(), 40);
    QVERIFY(bed.log().contains(QStringLiteral("[LuBrightness] set sync baseline: 40")));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    bed.relaunch();
    QCOMPARE(bed.number("syncBaseline"), 40);
    QVERIFY(bed.idle());
}

void TestBrightness::colourModeByName()
{
    BrightnessBed bed;
    QCOMPARE(bed.get(Module, "colorModeName").toString(), QStringLiteral("User"));
    QSignalSpy spy(bed.module(Module), SIGNAL(colorModeNameChanged()));
    bed.set(Module, "colorModeName", QStringLiteral("no such mode"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(spy.count(), 0);
    bed.set(Module, "colorModeName", QStringLiteral("Game"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "colorModeName").toString(), QStringLiteral("Game"));
    QCOMPARE(bed.wire().first(), sets("DC", 0x28));
    QCOMPARE(spy.count(), 1);
}

QTEST_MAIN(TestBrightness)
#include "tst_brightness.moc"
