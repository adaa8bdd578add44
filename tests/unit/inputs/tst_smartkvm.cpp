// SPDX-License-Identifier: Apache-2.0
#include "InputsBed.h"

#include <LuShared/LuKvm.h>
#include <LuShared/LuPlatformNotifications.h>
#include <lushared/LuModelHost.h>

#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Module = "LuSmartKvmBasic";
constexpr const char* Layout = "LuPipPbp";
constexpr const char* Source = "LuInputSource";
constexpr int UpstreamCode = 0xE4;
constexpr int LayoutCode = 0x7D;
constexpr int MainCode = 0x60;
constexpr int WindowCode = 0x7E;

constexpr int Left = 0;
constexpr int Right = 1;

constexpr int TypeB = 2;
constexpr int TypeC = 3;
constexpr int Automatic = 4;

using Rows = QList<SchemaOverride::Row>;

services::SimulatedServices& session()
{
    return TestBed::instance().services();
}

QJsonObject kvm()
{
    return session().get(u"kvm"_s).toObject();
}

/// The operations of the service since the last call.
QStringList calls()
{
    static int seen = 0;
    const QJsonArray all = kvm().value("calls"_L1).toArray();
    QStringList result;
    for (int i = qMin(seen, int(all.size())); i < all.size(); ++i)
        result.append(all.at(i).toString());
    seen = int(all.size());
    return result;
}

bool setLocation(int location)
{
    QJsonObject value = kvm();
    value.insert(u"location"_s, location);
    value.remove(u"calls"_s);
    return session().set(u"kvm"_s, value);
}

/// Main picture, layout and the input beside it, as the monitor reports them.
bool show(SimulatedBed& bed, int layout, int main, int sub)
{
    return bed.monitor().setByMenu(LayoutCode, layout) && bed.monitor().setByMenu(MainCode, main) &&
           bed.monitor().setByMenu(WindowCode, sub, 512) && bed.sync(Layout) && bed.sync(Source);
}

void cross()
{
    Q_EMIT LuKvm::instance()->kvmChanged();
}

} // namespace

/// One keyboard and mouse for two computers, on simulated services.
class TestSmartKvm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void schemaDecides_data();
    void schemaDecides();
    void switchingOnActivatesTheService();
    void switchingOffDeactivatesAndFreesTheHub();
    void theTargetFollowsTheLayout_data();
    void theTargetFollowsTheLayout();
    void withoutAnotherPortTheTargetIsTypeC();
    void aLayoutOfFourHasNoTarget();
    void aCrossingSwitchesTheHub();
    void theServiceRestsDuringTheWholeSwitch();
    void aCrossingWhileOffIsIgnored();
    void crossingsThatWaitAreOne();
    void switchingOffDropsACrossing();
    void switchingOffDuringASwitchFreesTheHub();
    void aHubThatWasNotReadBackIsFreed();
    void aMonitorThatGoesTakesTheWatchAlong();
    void closingTheLayoutSwitchesOff();
    void leavingTheFamilySwitchesOff();
    void theMonitorsMenuSwitchesOff();
    void aSwapFlipsTheSide();
    void theSideIsStoredAndTold();
    void theRectangleFollowsTheScreen();
    void theInitialSyncBringsTheServiceInLine();
    void theLaunchRestores();
    void theLaunchFreesTheHubWhileOff();
    void nothingIsRead();
    void otherModelsLeaveTheServiceAlone_data();
    void otherModelsLeaveTheServiceAlone();
};

void TestSmartKvm::init()
{
    QVERIFY(setLocation(Left));
    QVERIFY(waitForRest());
    calls();
}

void TestSmartKvm::schemaDecides_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("shipped") << Rows() << true;
    QTest::newRow("the full variant")
        << Rows{{u"SmartKvm Type"_s, u"SmartKvm Type"_s, u"SmartKvm"_s}} << false;
    QTest::newRow("on") << Rows{{u"SmartKvm Type"_s, u"SmartKvm Type"_s, u"on"_s}} << false;
    QTest::newRow("absent") << Rows{{u"SmartKvm Type"_s, u"SmartKvm Type"_s, {}}} << false;
}

void TestSmartKvm::schemaDecides()
{
    QFETCH(Rows, rows);
    QFETCH(bool, enabled);
    const SchemaOverride schema(u"TK30Z"_s, rows);
    SimulatedBed bed;
    bed.launch();
    QCOMPARE(bed.get(Module, "smartKvmBasicEnable").toBool(), enabled);
    QVERIFY(bed.idle());
    QCOMPARE(calls().contains(u"setKvmType"_s), enabled);
    if (enabled)
        QCOMPARE(kvm().value("type"_L1).toInt(), int(LuKvm::SmartKvmBasic));
}

void TestSmartKvm::switchingOnActivatesTheService()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 17, 19));
    bed.forget();
    calls();
    SignalRecorder recorder(bed.module(Module));
    bed.set(Module, "basicState", true);
    // At once, on the caller's thread.
    QCOMPARE(calls(), (QStringList{u"setScreenRect"_s, u"activate"_s}));
    QVERIFY(kvm().value("active"_L1).toBool());
    QCOMPARE(recorder.take(), QStringList{u"basicStateChanged"_s});
    QCOMPARE(bed.setting(u"LuSmartKvmBasic/state"_s).toBool(), true);
    QVERIFY(bed.log().contains(u"[LuSmartKvmBasic] setBasicState: true"_s));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    bed.set(Module, "basicState", true);
    QCOMPARE(calls(), QStringList());
}

void TestSmartKvm::switchingOffDeactivatesAndFreesTheHub()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 17, 19));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.monitor().setByMenu(UpstreamCode, TypeC));
    QVERIFY(bed.sync("LuKvmSwitch"));
    bed.forget();
    calls();
    bed.set(Module, "basicState", false);
    QCOMPARE(calls(), QStringList{u"deactivate"_s});
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList{u"set 0xE4 4"_s});
    QCOMPARE(bed.get("LuKvmSwitch", "kvmSwitch").toInt(), Automatic);
    QCOMPARE(bed.setting(u"LuSmartKvmBasic/state"_s).toBool(), false);
}

void TestSmartKvm::theTargetFollowsTheLayout_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<int>("main");
    QTest::addColumn<int>("sub");
    QTest::addColumn<int>("location");
    QTest::addColumn<int>("target");
    constexpr int Hdmi = 17;
    constexpr int Dp = 15;
    constexpr int UsbC = 19;
    const std::pair<const char*, int> layouts[] = {{"half", 2}, {"5:9", 6}, {"3:1", 7}, {"2:1", 8}};
    for (const auto& [name, layout] : layouts) {
        QTest::addRow("%s, left on HDMI", name) << layout << Hdmi << UsbC << Left << TypeC;
        QTest::addRow("%s, left on DisplayPort", name) << layout << Dp << Hdmi << Left << TypeC;
        QTest::addRow("%s, left on USB-C", name) << layout << UsbC << Hdmi << Left << TypeB;
        QTest::addRow("%s, right on HDMI", name) << layout << UsbC << Hdmi << Right << TypeC;
        QTest::addRow("%s, right on USB-C", name) << layout << Hdmi << UsbC << Right << TypeB;
        QTest::addRow("%s, unknown main", name) << layout << 22 << UsbC << Left << TypeC;
    }
    QTest::newRow("above") << 2 << Hdmi << Dp << 2 << TypeB;
    QTest::newRow("below") << 2 << Hdmi << Dp << 3 << TypeB;
}

void TestSmartKvm::theTargetFollowsTheLayout()
{
    QFETCH(int, layout);
    QFETCH(int, main);
    QFETCH(int, sub);
    QFETCH(int, location);
    QFETCH(int, target);
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, layout, main, sub));
    QVERIFY(setLocation(location));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    bed.forget();
    cross();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), (QStringList{u"set 0xE4 %1"_s.arg(target), u"get 0xE4 %1"_s.arg(target)}));
}

void TestSmartKvm::withoutAnotherPortTheTargetIsTypeC()
{
    const SchemaOverride schema(u"TK30Z"_s, {{u"Kvm"_s, u"TypeB"_s, {}}});
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.forget();
    bed.set(Module, "basicState", true);
    QVERIFY(bed.log().contains(
        u"[LuSmartKvmBasic] can't find the target kvm usb set default kvm usb: LuKvmSwitch::TypeC"_s));
    cross();
    QVERIFY(bed.idle());
    QCOMPARE(writesIn(bed.wire()), QStringList{u"0xE4 3"_s});
}

void TestSmartKvm::aLayoutOfFourHasNoTarget()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    bed.forget();
    // Entered at the monitor's own menu, it leaves the feature on.
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 5));
    QVERIFY(bed.sync(Layout));
    QVERIFY(bed.get(Module, "basicState").toBool());
    QVERIFY(bed.log().contains(
        u"[LuSmartKvmBasic] can't mapping Pbp mode set target kvm usb: LuKvmSwitch::TypeC"_s));
    bed.forget();
    cross();
    QVERIFY(bed.idle());
    QCOMPARE(writesIn(bed.wire()), QStringList{u"0xE4 3"_s});
}

void TestSmartKvm::aCrossingSwitchesTheHub()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    bed.forget();
    calls();
    cross();
    QVERIFY(bed.idle());
    QCOMPARE(calls(), (QStringList{u"deactivate"_s, u"setScreenRect"_s, u"activate"_s}));
    QCOMPARE(bed.wire(), (QStringList{u"set 0xE4 2"_s, u"get 0xE4 2"_s}));
    QCOMPARE(bed.get("LuKvmSwitch", "kvmSwitch").toInt(), TypeB);
    QVERIFY(kvm().value("active"_L1).toBool());
}

void TestSmartKvm::theServiceRestsDuringTheWholeSwitch()
{
    SimulatedBed bed(u"TK30Z"_s, SimulatedBed::Timing::Real);
    bed.launch();
    QVERIFY(bed.idle());
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    const quint64 before = bed.monitor().traffic().last().seq;
    calls();
    cross();
    // At once, before the monitor hears of it.
    QCOMPARE(calls(), QStringList{u"deactivate"_s});
    QTRY_COMPARE(bed.monitor().traffic(before).size(), 1);
    QCOMPARE(calls(), QStringList());
    QVERIFY(!kvm().value("active"_L1).toBool());
    QVERIFY(bed.idle());
    QCOMPARE(calls(), (QStringList{u"setScreenRect"_s, u"activate"_s}));
    const QList<sim::TrafficEntry> traffic = bed.monitor().traffic(before);
    QCOMPARE(traffic.size(), 2);
    QVERIFY(traffic[1].ms - traffic[0].ms >= 999);
    QCOMPARE(bed.monitor().violations().total(), 0U);
}

void TestSmartKvm::aCrossingWhileOffIsIgnored()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    calls();
    cross();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(calls(), QStringList());
}

void TestSmartKvm::crossingsThatWaitAreOne()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    // A bus that hangs holds the first switch while others come.
    sim::Fault fault;
    fault.kind = sim::FaultKind::Timeout;
    fault.code = UpstreamCode;
    fault.op = sim::Op::Set;
    fault.count = 1;
    fault.blocks = std::chrono::milliseconds(1500);
    bed.monitor().armFault(fault);
    const quint64 before = bed.monitor().traffic().last().seq;
    calls();
    for (int i = 0; i < 5; ++i)
        cross();
    QVERIFY(bed.idle());
    // Each switch reads the hub back once.
    int switches = 0;
    const QList<sim::TrafficEntry> traffic = bed.monitor().traffic(before);
    for (const sim::TrafficEntry& entry : traffic)
        switches += entry.op == sim::Op::Get && entry.ok ? 1 : 0;
    QVERIFY2(switches >= 1 && switches <= 2, qPrintable(QString::number(switches)));
    // It is activated once, by the last.
    const QStringList all = calls();
    QCOMPARE(all.count(u"deactivate"_s), 5);
    QCOMPARE(all.last(), u"activate"_s);
    QVERIFY(all.count(u"activate"_s) <= 2);
}

void TestSmartKvm::switchingOffDropsACrossing()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    bed.forget();
    calls();
    cross();
    bed.set(Module, "basicState", false);
    QVERIFY(bed.idle());
    // Whatever ran first, the hub is free and the service at rest in the end.
    QVERIFY(!kvm().value("active"_L1).toBool());
    QTRY_COMPARE(int(*bed.monitor().value(UpstreamCode)), Automatic);
    QCOMPARE(bed.get("LuKvmSwitch", "kvmSwitch").toInt(), Automatic);
}

void TestSmartKvm::switchingOffDuringASwitchFreesTheHub()
{
    SimulatedBed bed(u"TK30Z"_s, SimulatedBed::Timing::Real);
    bed.launch();
    QVERIFY(bed.idle());
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    const quint64 before = bed.monitor().traffic().last().seq;
    cross();
    // The monitor has it, and its second of rest lies before the module hears of it.
    QTRY_COMPARE(bed.monitor().traffic(before).size(), 1);
    QCOMPARE(int(*bed.monitor().value(UpstreamCode)), TypeB);
    QCOMPARE(bed.get("LuKvmSwitch", "kvmSwitch").toInt(), Automatic);
    bed.set(Module, "basicState", false);
    QVERIFY(bed.idle());
    QVERIFY(!kvm().value("active"_L1).toBool());
    QCOMPARE(int(*bed.monitor().value(UpstreamCode)), Automatic);
    QCOMPARE(bed.get("LuKvmSwitch", "kvmSwitch").toInt(), Automatic);
    QCOMPARE(bed.setting(u"LuKvmSwitch/KvmSwitch"_s).toInt(), Automatic);
}

void TestSmartKvm::aHubThatWasNotReadBackIsFreed()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    sim::Fault fault;
    fault.code = UpstreamCode;
    fault.op = sim::Op::Get;
    bed.monitor().armFault(fault);
    cross();
    QVERIFY(bed.idle());
    QCOMPARE(int(*bed.monitor().value(UpstreamCode)), TypeB);
    QCOMPARE(bed.get("LuKvmSwitch", "kvmSwitch").toInt(), Automatic);
    bed.set(Module, "basicState", false);
    QVERIFY(bed.idle());
    QCOMPARE(int(*bed.monitor().value(UpstreamCode)), Automatic);
    bed.monitor().clearFaults();
    // Freed once, it is not written again.
    bed.forget();
    bed.set("LuKvmSwitch", "kvmSwitch", Automatic);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

void TestSmartKvm::aMonitorThatGoesTakesTheWatchAlong()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    calls();
    bed.destroy();
    QCOMPARE(calls(), QStringList{u"deactivate"_s});
    QVERIFY(!kvm().value("active"_L1).toBool());
    // It is the user's choice still, when the monitor comes again.
    bed.hotplug();
    QVERIFY(bed.idle());
    QVERIFY(bed.get(Module, "basicState").toBool());
    QVERIFY(kvm().value("active"_L1).toBool());
}

void TestSmartKvm::closingTheLayoutSwitchesOff()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    cross();
    QVERIFY(bed.idle());
    calls();
    SignalRecorder recorder(bed.module(Module));
    bed.set(Layout, "state", false);
    QVERIFY(bed.idle());
    QVERIFY(!bed.get(Module, "basicState").toBool());
    QCOMPARE(recorder.take(), QStringList{u"basicStateChanged"_s});
    QCOMPARE(calls(), QStringList{u"deactivate"_s});
    QCOMPARE(int(*bed.monitor().value(UpstreamCode)), Automatic);
}

void TestSmartKvm::leavingTheFamilySwitchesOff()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    bed.set(Layout, "mode", 8);
    QVERIFY(bed.idle());
    QVERIFY(bed.get(Module, "basicState").toBool());
    bed.set(Layout, "mode", 1);
    QVERIFY(bed.idle());
    QVERIFY(!bed.get(Module, "basicState").toBool());
}

void TestSmartKvm::theMonitorsMenuSwitchesOff()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.monitor().setByMenu(LayoutCode, 0));
    QVERIFY(bed.sync(Layout));
    QVERIFY(!bed.get(Module, "basicState").toBool());
}

void TestSmartKvm::aSwapFlipsTheSide()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    bed.forget();
    SignalRecorder recorder(bed.module(Module));
    QVERIFY(QMetaObject::invokeMethod(bed.module(Layout), "swapPipPbp"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "deviceLocation").toInt(), Right);
    QCOMPARE(recorder.take(), QStringList{u"deviceLocationChanged"_s});
    QCOMPARE(bed.setting(u"LuSmartKvmBasic/KvmLocation"_s).toInt(), Right);
    QCOMPARE(bed.get(Source, "currentMainInputSource").toString(), u"HDMI"_s);
    QCOMPARE(bed.get(Layout, "pbpSource").toString(), u"USB-C"_s);
    // Nothing of it is written to the hub before the next crossing.
    QCOMPARE(bed.wire().filter(u"0xE4"_s), QStringList());
    cross();
    QVERIFY(bed.idle());
    QCOMPARE(writesIn(bed.wire()), QStringList{u"0xE4 2"_s});
    QVERIFY(QMetaObject::invokeMethod(bed.module(Layout), "swapPipPbp"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "deviceLocation").toInt(), Left);
    // Without the feature the sides are nobody's.
    bed.set(Module, "basicState", false);
    QVERIFY(QMetaObject::invokeMethod(bed.module(Layout), "swapPipPbp"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.get(Module, "deviceLocation").toInt(), Left);
}

void TestSmartKvm::theSideIsStoredAndTold()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    calls();
    SignalRecorder recorder(bed.module(Module));
    bed.set(Module, "deviceLocation", Right);
    QVERIFY(bed.idle());
    QCOMPARE(kvm().value("location"_L1).toInt(), Right);
    QCOMPARE(bed.get(Module, "deviceLocation").toInt(), Right);
    QCOMPARE(bed.setting(u"LuSmartKvmBasic/KvmLocation"_s).toInt(), Right);
    QCOMPARE(recorder.take(), QStringList{u"deviceLocationChanged"_s});
    QVERIFY(!bed.log().filter(u"[LuSmartKvmBasic] set Device Location: "_s).isEmpty());
    bed.set(Module, "deviceLocation", Right);
    QCOMPARE(calls(), QStringList{u"setKvmDeviceLocation"_s});
    // Another way to the service is told as well.
    QVERIFY(setLocation(Left));
    QVERIFY(bed.idle());
    QCOMPARE(recorder.take(), QStringList{u"deviceLocationChanged"_s});
    bed.storeSetting(u"LuSmartKvmBasic/KvmLocation"_s, Right);
    bed.relaunch();
    QCOMPARE(bed.get(Module, "deviceLocation").toInt(), Right);
    QVERIFY(bed.idle());
}

void TestSmartKvm::theRectangleFollowsTheScreen()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    calls();
    Q_EMIT LuPlatformNotifications::instance()->screenGeometryChanged();
    Q_EMIT bed.model().screenChanged();
    QVERIFY(bed.idle());
    QCOMPARE(calls(), QStringList());
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    calls();
    Q_EMIT LuPlatformNotifications::instance()->screenGeometryChanged();
    QVERIFY(bed.idle());
    QCOMPARE(calls(), QStringList{u"setScreenRect"_s});
    Q_EMIT bed.model().screenChanged();
    QVERIFY(bed.idle());
    QCOMPARE(calls(), QStringList{u"setScreenRect"_s});
}

void TestSmartKvm::theInitialSyncBringsTheServiceInLine()
{
    SimulatedBed bed;
    calls();
    bed.launch();
    QVERIFY(bed.idle());
    // Met for the first time: off, and at rest.
    QVERIFY(calls().contains(u"deactivate"_s));
    QVERIFY(!kvm().value("active"_L1).toBool());
}

void TestSmartKvm::theLaunchRestores()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QVERIFY(show(bed, 2, 19, 17));
    bed.set(Module, "basicState", true);
    QVERIFY(bed.idle());
    bed.destroy();
    bed.forget();
    calls();
    bed.launch();
    QVERIFY(bed.get(Module, "basicState").toBool());
    QVERIFY(bed.idle());
    QVERIFY(bed.get(Module, "basicState").toBool());
    QVERIFY(calls().contains(u"activate"_s));
    QVERIFY(kvm().value("active"_L1).toBool());
    const QStringList log = bed.log();
    QVERIFY(log.contains(u"[LuSmartKvmBasic] apply state: true"_s));
    QVERIFY(!log.filter(u"[LuSmartKvmBasic] apply device location:"_s).isEmpty());
    cross();
    QVERIFY(bed.idle());
    QCOMPARE(writesOf(u"0xE4"_s, bed.wire()).last(), u"0xE4 2"_s);
}

void TestSmartKvm::theLaunchFreesTheHubWhileOff()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    bed.storeSetting(u"LuKvmSwitch/KvmSwitch"_s, TypeC);
    bed.destroy();
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(writesOf(u"0xE4"_s, bed.wire()), (QStringList{u"0xE4 3"_s, u"0xE4 4"_s}));
}

void TestSmartKvm::nothingIsRead()
{
    SimulatedBed bed;
    QVERIFY(launchAndForget(bed));
    QCOMPARE(LuModelHost::syncTaskCount(bed.module(Module)), std::nullopt);
    QVERIFY(bed.sync(Module));
    QCOMPARE(bed.wire(), QStringList());
}

void TestSmartKvm::otherModelsLeaveTheServiceAlone_data()
{
    QTest::addColumn<QString>("model");
    for (const char* model : {"TK10", "TK20", "TK30", "TK30X", "TK40", "TK40X", "unsupported"})
        QTest::newRow(model) << QString::fromLatin1(model);
}

void TestSmartKvm::otherModelsLeaveTheServiceAlone()
{
    SimulatedBed bed(QString::fromLatin1(QTest::currentDataTag()));
    bed.storeSetting(u"LuSmartKvmBasic/state"_s, true);
    calls();
    QVERIFY(launchAndForget(bed));
    bed.set(Module, "basicState", true);
    bed.set(Module, "deviceLocation", Right);
    cross();
    QVERIFY(bed.sync(Module));
    QVERIFY(bed.apply());
    QCOMPARE(calls(), QStringList());
    QVERIFY(!bed.get(Module, "basicState").toBool());
    QCOMPARE(bed.wire().filter(u"0xE4"_s), QStringList());
}

QTEST_MAIN(TestSmartKvm)
#include "tst_smartkvm.moc"
