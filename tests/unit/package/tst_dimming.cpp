// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <LuShared/LuPlatform.h>
#include <ZrCore/ZrDispatch.h>
#include <panelcore/MonitorLink.h>

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QQuickWindow>
#include <QScreen>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <thread>

namespace {

constexpr const char* Module = "LuBrightness";
constexpr int BrightnessCode = 0x10;

QQuickWindow* overlay()
{
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->objectName() == QLatin1String("dimmingOverlay"))
            return qobject_cast<QQuickWindow*>(window);
    }
    return nullptr;
}

QJsonObject screenAt(const QString& name, int x, int width)
{
    const QJsonObject rect{{QStringLiteral("x"), x},
                           {QStringLiteral("y"), 0},
                           {QStringLiteral("width"), width},
                           {QStringLiteral("height"), 800}};
    return {{QStringLiteral("name"), name}, {QStringLiteral("rect"), rect}};
}

/// A monitor of the series on the right one of two screens.
class DimmingBed : public SimulatedBed
{
public:
    explicit DimmingBed(const QString& name = QStringLiteral("TK30Z"), Timing timing = Timing::Fast)
        : SimulatedBed(name, timing)
    {
        launch();
        showOn(QStringLiteral("right"));
        idle();
        forget();
    }

    void showOn(const QString& screen) { MonitorLink::of(*model().info()).setScreenName(screen); }
    QObject* dimming() { return get(Module, "softwareDimming").value<QObject*>(); }
    int brightness() { return get(Module, "displayBrightness").toInt(); }
    QStringList set10() { return wire().filter(QStringLiteral("set 0x10")); }

    bool setBrightness(int value)
    {
        set(Module, "displayBrightness", value);
        return idle();
    }
};

} // namespace

class TestDimming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void overlayCoversItsOwnScreenUnseen();
    void tableSharesBrightness_data();
    void tableSharesBrightness();
    void readingFindsTheHighestBrightnessOfThePicture_data();
    void readingFindsTheHighestBrightnessOfThePicture();
    void lockedHardwareStillDarkensTheOverlay();
    void switchingOffWritesTheBrightnessItselfAndCloses();
    void switchingOnMapsThePresentBrightness();
    void switchingKeepsTheLatestWish();
    void switchingDuringAReadBackKeepsTheBrightness_data();
    void switchingDuringAReadBackKeepsTheBrightness();
    void forbiddingClosesWithoutAWrite();
    void signalsComeOncePerChange();
    void fastSliderEndsOnItsLastOpacity();
    void overlayFollowsTheScreen();
    void withoutAScreenNothingIsShown();
    void unsupportedModelStartsWithoutDimming_data();
    void unsupportedModelStartsWithoutDimming();
    void firstConnectionReportsDimming();
    void launchRestoresStateAndOverlay();
    void withoutAStoredBrightnessTheFirstStateStays();
    void oldKeyIsTakenOverOnce_data();
    void oldKeyIsTakenOverOnce();
};

void TestDimming::initTestCase()
{
    services::Error error;
    const QJsonArray screens{screenAt(QStringLiteral("left"), 0, 1000),
                             screenAt(QStringLiteral("right"), 1000, 1200)};
    QVERIFY2(TestBed::instance().services().set(QStringLiteral("screens"), screens, &error),
             qPrintable(error.message));
}

void TestDimming::overlayCoversItsOwnScreenUnseen()
{
    DimmingBed bed;
    QQuickWindow* window = overlay();
    QVERIFY(window);
    QVERIFY(!window->isVisible());
    QVERIFY(!window->transientParent());
    QCOMPARE(window->screen()->name(), QStringLiteral("right"));
    QCOMPARE(window->color().alpha(), 0);
    QCOMPARE(window->flags(), LuPlatform::windowFlags | Qt::WindowFlags(0xC0800));
    QCOMPARE(window->property("windowLayer").toInt(), 3);
    QCOMPARE(window->property("joinActiveSpaces").toBool(), true);
    QVERIFY(bed.setBrightness(10));
    QVERIFY(window->isVisible());
    QCOMPARE(window->geometry(), QRect(1000, 0, 1200, 800));
}

void TestDimming::tableSharesBrightness_data()
{
    QTest::addColumn<int>("brightness");
    QTest::addColumn<int>("hardware");
    QTest::addColumn<double>("opacity");
    QTest::newRow("darkest") << 0 << 0 << 0.85;
    QTest::newRow("last of the darkest") << 5 << 0 << 0.85;
    QTest::newRow("6") << 6 << 0 << 0.8;
    QTest::newRow("10") << 10 << 0 << 0.7;
    QTest::newRow("16") << 16 << 0 << 0.5;
    QTest::newRow("20") << 20 << 0 << 0.35;
    QTest::newRow("29") << 29 << 0 << 0.05;
    QTest::newRow("no overlay") << 30 << 0 << 0.0;
    QTest::newRow("31") << 31 << 1 << 0.0;
    QTest::newRow("40") << 40 << 14 << 0.0;
    QTest::newRow("60") << 60 << 43 << 0.0;
    QTest::newRow("81") << 81 << 73 << 0.0;
    QTest::newRow("99") << 99 << 99 << 0.0;
    QTest::newRow("brightest") << 100 << 100 << 0.0;
}

void TestDimming::tableSharesBrightness()
{
    QFETCH(int, brightness);
    QFETCH(int, hardware);
    QFETCH(double, opacity);
    DimmingBed bed;
    QVERIFY(bed.setBrightness(brightness));
    QCOMPARE(bed.monitor().value(BrightnessCode).value(), hardware);
    QVERIFY(std::abs(overlay()->color().alphaF() - opacity) < 0.0001);
    QCOMPARE(overlay()->isVisible(), opacity > 0);
    QCOMPARE(bed.brightness(), brightness);
}

void TestDimming::readingFindsTheHighestBrightnessOfThePicture_data()
{
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("read");
    QTest::addColumn<int>("brightness");
    QTest::newRow("opacity 0.85") << 3 << 0 << 5;
    QTest::newRow("opacity 0.5") << 15 << 0 << 16;
    QTest::newRow("no overlay") << 30 << 0 << 30;
    QTest::newRow("between two rows") << 30 << 2 << 31;
    QTest::newRow("own value") << 60 << 43 << 60;
    QTest::newRow("full") << 60 << 100 << 100;
    QTest::newRow("beyond the scale") << 60 << 200 << 100;
}

void TestDimming::readingFindsTheHighestBrightnessOfThePicture()
{
    QFETCH(int, set);
    QFETCH(int, read);
    QFETCH(int, brightness);
    DimmingBed bed;
    QVERIFY(bed.setBrightness(set));
    QVERIFY(bed.monitor().setByMenu(BrightnessCode, read));
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.brightness(), brightness);
    QCOMPARE(overlay()->isVisible(), brightness < 30);
    // What was read is stable.
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.brightness(), brightness);
}

void TestDimming::lockedHardwareStillDarkensTheOverlay()
{
    DimmingBed bed;
    bed.set(Module, "hardwareBrightnessEnable", false);
    QVERIFY(bed.setBrightness(10));
    QCOMPARE(bed.set10(), QStringList());
    QVERIFY(overlay()->isVisible());
    QCOMPARE(bed.brightness(), 10);
    QCOMPARE(bed.setting(QStringLiteral("LuBrightness/User/displayBrightness")).toInt(), 10);
}

void TestDimming::switchingOffWritesTheBrightnessItselfAndCloses()
{
    DimmingBed bed;
    QVERIFY(bed.setBrightness(10));
    bed.forget();
    QVERIFY(bed.dimming()->setProperty("state", false));
    QVERIFY(bed.idle());
    QCOMPARE(bed.set10(), QStringList{QStringLiteral("set 0x10 10")});
    QVERIFY(!overlay()->isVisible());
    QCOMPARE(bed.brightness(), 10);
    QCOMPARE(bed.setting(QStringLiteral("LuBrightness/softwareDimming")).toBool(), false);
    QVERIFY(bed.setting(QStringLiteral("LuBrightness/softwareDimming")).isValid());
    QVERIFY(bed.log().contains(QStringLiteral("[LuSoftwareDimming] set state: false")));
    QCOMPARE(bed.events(), QStringList{QStringLiteral("LuBrightness 24 off 0 []")});
}

void TestDimming::switchingOnMapsThePresentBrightness()
{
    DimmingBed bed;
    bed.dimming()->setProperty("state", false);
    QVERIFY(bed.setBrightness(20));
    bed.forget();
    bed.dimming()->setProperty("state", true);
    QVERIFY(bed.idle());
    QCOMPARE(bed.set10(), QStringList{QStringLiteral("set 0x10 0")});
    QVERIFY(overlay()->isVisible());
    QCOMPARE(bed.events(), QStringList{QStringLiteral("LuBrightness 24 on 0 []")});
}

void TestDimming::switchingKeepsTheLatestWish()
{
    DimmingBed bed;
    QSemaphore started;
    QSemaphore gate;
    bed.model().dispatch()->post(nullptr, [&] {
        started.release();
        gate.acquire();
    });
    started.acquire();
    bed.set(Module, "displayBrightness", 70);
    bed.dimming()->setProperty("state", false);
    gate.release();
    QVERIFY(bed.idle());
    QCOMPARE(bed.set10(), QStringList{QStringLiteral("set 0x10 70")});
    QCOMPARE(bed.brightness(), 70);
}

void TestDimming::switchingDuringAReadBackKeepsTheBrightness_data()
{
    QTest::addColumn<bool>("to");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void TestDimming::switchingDuringAReadBackKeepsTheBrightness()
{
    QFETCH(bool, to);
    DimmingBed bed(QStringLiteral("TK30Z"), SimulatedBed::Timing::Real);
    bed.dimming()->setProperty("state", !to);
    QVERIFY(bed.setBrightness(50));
    bed.forget();
    QSignalSpy changes(bed.module(Module), SIGNAL(displayBrightnessChanged(bool)));
    bed.module(Module)->forceSyncHardwareState(false);
    // From here on the question is on its way; its answer is what the monitor had before.
    QDeadlineTimer limit(10'000);
    while (bed.log().filter(QStringLiteral("[LuBrightness] sync:")).isEmpty() && !limit.hasExpired())
        std::this_thread::yield();
    bed.dimming()->setProperty("state", to);
    QVERIFY(bed.idle());
    QCOMPARE(bed.brightness(), 50);
    QCOMPARE(bed.set10(), QStringList{QStringLiteral("set 0x10 %1").arg(to ? 29 : 50)});
    QCOMPARE(changes.count(), 1);
    QCOMPARE(bed.events().filter(QStringLiteral("LuBrightness 35")), QStringList());
    QCOMPARE(bed.setting(QStringLiteral("LuBrightness/User/displayBrightness")).toInt(), 50);
}

void TestDimming::forbiddingClosesWithoutAWrite()
{
    DimmingBed bed;
    QVERIFY(bed.setBrightness(10));
    bed.forget();
    bed.dimming()->setProperty("enabled", false);
    QVERIFY(!overlay()->isVisible());
    QVERIFY(bed.idle());
    QCOMPARE(bed.set10(), QStringList());
    QCOMPARE(bed.events(), QStringList());
    QCOMPARE(bed.dimming()->property("active").toBool(), false);
    QCOMPARE(bed.dimming()->property("state").toBool(), true);
    QVERIFY(bed.setBrightness(20));
    QCOMPARE(bed.set10(), QStringList{QStringLiteral("set 0x10 20")});
    bed.dimming()->setProperty("enabled", true);
    QVERIFY(overlay()->isVisible());
}

void TestDimming::signalsComeOncePerChange()
{
    DimmingBed bed;
    QSignalSpy active(bed.dimming(), SIGNAL(activeChanged()));
    QSignalSpy enabled(bed.dimming(), SIGNAL(enabledChanged()));
    QSignalSpy state(bed.dimming(), SIGNAL(stateChanged()));
    bed.dimming()->setProperty("state", true);
    bed.dimming()->setProperty("enabled", true);
    QCOMPARE(active.count() + enabled.count() + state.count(), 0);
    bed.dimming()->setProperty("enabled", false);
    QCOMPARE(active.count(), 1);
    bed.dimming()->setProperty("state", false);
    QCOMPARE(state.count(), 1);
    QCOMPARE(active.count(), 1);
    bed.dimming()->setProperty("enabled", true);
    QCOMPARE(enabled.count(), 2);
    QCOMPARE(active.count(), 1);
    QVERIFY(bed.idle());
}

void TestDimming::fastSliderEndsOnItsLastOpacity()
{
    DimmingBed bed;
    QSignalSpy colors(overlay(), SIGNAL(colorChanged(QColor)));
    for (int brightness = 29; brightness >= 16; --brightness)
        bed.set(Module, "displayBrightness", brightness);
    QVERIFY(bed.idle());
    QVERIFY(std::abs(overlay()->color().alphaF() - 0.5) < 0.0001);
    QVERIFY(colors.count() <= 14);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.brightness(), 16);
}

void TestDimming::overlayFollowsTheScreen()
{
    DimmingBed bed;
    QVERIFY(bed.setBrightness(10));
    bed.showOn(QStringLiteral("left"));
    QVERIFY(overlay()->isVisible());
    QCOMPARE(overlay()->screen()->name(), QStringLiteral("left"));
    QCOMPARE(overlay()->geometry(), QRect(0, 0, 1000, 800));
}

void TestDimming::withoutAScreenNothingIsShown()
{
    DimmingBed bed;
    QVERIFY(bed.setBrightness(10));
    bed.showOn(QString());
    QVERIFY(!overlay()->isVisible());
    QVERIFY(bed.setBrightness(5));
    QVERIFY(!overlay()->isVisible());
    bed.showOn(QStringLiteral("right"));
    QVERIFY(overlay()->isVisible());
}

void TestDimming::unsupportedModelStartsWithoutDimming_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("other maker") << QStringLiteral("Other");
    QTest::newRow("built-in") << QStringLiteral("builtin");
}

void TestDimming::unsupportedModelStartsWithoutDimming()
{
    QFETCH(QString, name);
    DimmingBed bed(name);
    QCOMPARE(bed.dimming()->property("state").toBool(), false);
    QVERIFY(bed.setBrightness(10));
    QVERIFY(!overlay()->isVisible());
}

void TestDimming::firstConnectionReportsDimming()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuBrightness 24")),
             QStringList{QStringLiteral("LuBrightness 24 on 5 []")});
    bed.hotplug();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuBrightness 24")), QStringList());
}

void TestDimming::launchRestoresStateAndOverlay()
{
    DimmingBed bed;
    QVERIFY(bed.setBrightness(10));
    bed.destroy();
    QVERIFY(bed.monitor().setByMenu(BrightnessCode, 50));
    bed.forget();
    bed.launch();
    bed.showOn(QStringLiteral("right"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.set10(), QStringList{QStringLiteral("set 0x10 0")});
    QVERIFY(overlay()->isVisible());
    QVERIFY(bed.events().contains(QStringLiteral("LuBrightness 24 on 3 []")));
    bed.dimming()->setProperty("state", false);
    QVERIFY(bed.idle());
    bed.forget();
    bed.relaunch();
    bed.showOn(QStringLiteral("right"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.dimming()->property("state").toBool(), false);
    QVERIFY(!overlay()->isVisible());
    QVERIFY(bed.events().contains(QStringLiteral("LuBrightness 24 off 3 []")));
}

void TestDimming::withoutAStoredBrightnessTheFirstStateStays()
{
    SimulatedBed bed;
    bed.storeSetting(QStringLiteral("LuBrightness/softwareDimming"), false);
    bed.launch();
    QVERIFY(bed.idle());
    QObject* dimming = bed.get(Module, "softwareDimming").value<QObject*>();
    QCOMPARE(dimming->property("state").toBool(), true);
}

void TestDimming::oldKeyIsTakenOverOnce_data()
{
    QTest::addColumn<QVariant>("present");
    QTest::addColumn<bool>("state");
    QTest::newRow("no new key") << QVariant() << false;
    QTest::newRow("new key wins") << QVariant(true) << true;
}

void TestDimming::oldKeyIsTakenOverOnce()
{
    QFETCH(QVariant, present);
    QFETCH(bool, state);
    SimulatedBed bed;
    bed.storeSetting(QStringLiteral("LuBrightness/User/displayBrightness"), 60);
    bed.storeSetting(QStringLiteral("SoftwareDimming/state"), QStringLiteral("false"));
    if (present.isValid())
        bed.storeSetting(QStringLiteral("LuBrightness/softwareDimming"), present);
    bed.launch();
    QVERIFY(bed.idle());
    QVERIFY(!bed.setting(QStringLiteral("SoftwareDimming/state")).isValid());
    QCOMPARE(bed.setting(QStringLiteral("LuBrightness/softwareDimming")).toBool(), state);
    QObject* dimming = bed.get(Module, "softwareDimming").value<QObject*>();
    QCOMPARE(dimming->property("state").toBool(), state);
}

QTEST_MAIN(TestDimming)
#include "tst_dimming.moc"
