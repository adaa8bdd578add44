// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <LuShared/LuUtils.h>
#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrIdle.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuModelHost.h>
#include <lushared/LuSettings.h>

#include <QElapsedTimer>
#include <QFile>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace {

const QStringList ConstructionOrder{
    QStringLiteral("LuAiContrast"),    QStringLiteral("LuApplicationMode"),
    QStringLiteral("LuAutoPivot"),     QStringLiteral("LuBackLight"),
    QStringLiteral("LuABPlus"),        QStringLiteral("LuABSetting"),
    QStringLiteral("LuBrightness"),    QStringLiteral("LuColorWeakness"),
    QStringLiteral("LuDaisyChain"),    QStringLiteral("LuDirectSearch"),
    QStringLiteral("LuDpiScaling"),    QStringLiteral("LuDualView"),
    QStringLiteral("LuEcoPrivacy"),    QStringLiteral("LuHidpi"),
    QStringLiteral("LuInputSource"),   QStringLiteral("LuKvmSwitch"),
    QStringLiteral("LuLowBlueLight"),  QStringLiteral("LuNightProtection"),
    QStringLiteral("LuPartition"),     QStringLiteral("LuPipPbp"),
    QStringLiteral("LuSmartKvmBasic"), QStringLiteral("LuResolution"),
    QStringLiteral("LuVolume"),        QStringLiteral("LuMultiMonitorSync"),
    QStringLiteral("LuOsdSetting"),    QStringLiteral("LuFlow"),
    QStringLiteral("LuShortcuts"),
};

const QStringList PropertyOrder{
    QStringLiteral("aiContrast"),
    QStringLiteral("applicationMode"),
    QStringLiteral("autoPivot"),
    QStringLiteral("backLight"),
    QStringLiteral("abPlus"),
    QStringLiteral("abSetting"),
    QStringLiteral("brightness"),
    QStringLiteral("colorWeakness"),
    QStringLiteral("daisyChain"),
    QStringLiteral("directSearch"),
    QStringLiteral("dpiScaling"),
    QStringLiteral("dualView"),
    QStringLiteral("ecoPrivacy"),
    QStringLiteral("flow"),
    QStringLiteral("hidpi"),
    QStringLiteral("inputSource"),
    QStringLiteral("kvmSwitch"),
    QStringLiteral("lowBlueLight"),
    QStringLiteral("multiMonitorSync"),
    QStringLiteral("nightProtection"),
    QStringLiteral("osdSetting"),
    QStringLiteral("partition"),
    QStringLiteral("pipPbp"),
    QStringLiteral("shortcuts"),
    QStringLiteral("smartKvmBasic"),
    QStringLiteral("resolution"),
    QStringLiteral("volume"),
};

} // namespace

class TestModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void modulesAreMadeInTheirOrder();
    void propertiesStandInTheirOrderAndAreNeverNull_data();
    void propertiesStandInTheirOrderAndAreNeverNull();
    void colorModeIsKnownBeforeAnythingElse();
    void modesOfTheSchemaBecomeNodes();
    void flagsThatTheSchemaLacksAreNotOn();
    void firstConnectionEndsWithTheConstruction();
    void monitorMetBeforeIsRestoredThenRead();
    void monitorMetForTheFirstTimeIsOnlyRead();
    void hotplugIsOnlyRead();
    void restoringCanBeSwitchedOff();
    void withoutAutoSyncNothingIsRead();
    void withoutLoadingMembersKeepTheirFirstValues();
    void skippedModulesAreLeftOutOnce();
    void settingClearsTheSkipMark();
    void unsupportedMonitorHasAModelThatSendsItsBrightnessAlone_data();
    void unsupportedMonitorHasAModelThatSendsItsBrightnessAlone();
    void damagedSchemaIsNoSupport_data();
    void damagedSchemaIsNoSupport();
    void settingTheModeWritesAndEmits();
    void presentModeAndNullDoNothing();
    void failedWriteKeepsTheMode();
    void modeOfTheMonitorIsFollowed();
    void unknownModeIsNull();
    void delayTableHoldsBackEveryAccess();
    void otherFunctionHoldsOnThisThreadOnly();
    void packageNameAndWidgets();
    void destructionWhileTheQueueIsBusy();
    void hangingBusDoesNotBlockTheThread();
};

void TestModel::cleanup()
{
    LuHostOptions::instance() = LuHostOptions();
}

void TestModel::modulesAreMadeInTheirOrder()
{
    SimulatedBed bed;
    QStringList names;
    for (LuModelModuleInterface* module : bed.launch().modules())
        names.append(LuUtils::className(module));
    QCOMPARE(names, ConstructionOrder);
    QVERIFY(bed.idle());
}

void TestModel::propertiesStandInTheirOrderAndAreNeverNull_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"TK10", "TK20", "TK30", "TK30X", "TK30Z", "TK40", "TK40X", "Other", "builtin"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestModel::propertiesStandInTheirOrderAndAreNeverNull()
{
    QFETCH(QString, name);
    SimulatedBed bed(name);
    LuMonitorModel& model = bed.launch();
    const QMetaObject* meta = model.metaObject();
    QStringList names;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        names.append(QString::fromLatin1(property.name()));
        QVERIFY(property.isConstant());
        QVERIFY2(property.read(&model).value<QObject*>(), property.name());
    }
    QCOMPARE(names, PropertyOrder);
    QVERIFY(bed.idle());
}

void TestModel::colorModeIsKnownBeforeAnythingElse()
{
    SimulatedBed bed;
    QVERIFY(bed.monitor().setByMenu(0xDC, 0x12));
    bed.forget();
    LuMonitorModel& model = bed.launch();
    QVERIFY(model.colorMode());
    QCOMPARE(model.colorMode()->displayName(), QStringLiteral("User"));
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().first(), QStringLiteral("get 0xDC 18"));
}

void TestModel::modesOfTheSchemaBecomeNodes()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QStringList names;
    for (const LuVCPNode* node : model.colorModeList())
        names.append(QStringLiteral("%1 %2").arg(node->code(), 0, 16).arg(node->displayName()));
    QCOMPARE(names,
             (QStringList{QStringLiteral("31 Coding - Light Theme"), QStringLiteral("30 Coding - Dark Theme"),
                          QStringLiteral("3a Coding - Paper Color"), QStringLiteral("f M-book"),
                          QStringLiteral("32 Cinema"), QStringLiteral("28 Game"), QStringLiteral("1f ePaper"),
                          QStringLiteral("a sRGB"), QStringLiteral("12 User"), QStringLiteral("23 HDR")}));
    QCOMPARE(model.getColorModeByName(QStringLiteral("Cinema"))->code(), 0x32);
    QVERIFY(!model.getColorModeByName(QStringLiteral("cinema")));
    QVERIFY(bed.idle());
}

void TestModel::flagsThatTheSchemaLacksAreNotOn()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    for (const LuVCPNode* node : model.colorModeList()) {
        QCOMPARE(node->isHdr(), node->displayName() == QLatin1String("HDR"));
        QVERIFY(node->hueEnable() != VCPNode::FunctionOn);
        QVERIFY(node->gamutEnable() != VCPNode::FunctionOn);
        QVERIFY(node->uniformityEnable() != VCPNode::FunctionOn);
        QVERIFY(node->appleColorSyncEnable() != VCPNode::FunctionOn);
    }
    const LuVCPNode* srgb = model.getColorModeByName(QStringLiteral("sRGB"));
    QCOMPARE(srgb->aiContrastEnable(), VCPNode::FunctionOff);
    QCOMPARE(srgb->brightnessEnable(), VCPNode::FunctionOn);
    QVERIFY(srgb->gammaEnable() != VCPNode::FunctionOn);
    QVERIFY(bed.idle());
}

void TestModel::firstConnectionEndsWithTheConstruction()
{
    SimulatedBed bed;
    QVERIFY(!bed.launch().isFirstTimeConnected());
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot 6 off 5 ")).size(), 1);
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot 6 off 5 ")).size(), 0);
    LuModelHost::forgetFirstConnection(&bed.model());
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.events().filter(QStringLiteral("LuAutoPivot 6 off 5 ")).size(), 1);
}

void TestModel::monitorMetBeforeIsRestoredThenRead()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.storeSetting(QStringLiteral("LuAiContrast/state"), true);
    bed.forget();
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("0xF3")),
             (QStringList{QStringLiteral("set 0xF3 1"), QStringLiteral("get 0xF3 1")}));
}

void TestModel::monitorMetForTheFirstTimeIsOnlyRead()
{
    SimulatedBed bed;
    bed.storeSetting(QStringLiteral("LuAiContrast/state"), true);
    bed.forget();
    bed.launch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("set")), QStringList());
}

void TestModel::hotplugIsOnlyRead()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.storeSetting(QStringLiteral("LuAiContrast/state"), true);
    bed.forget();
    bed.hotplug();
    QVERIFY(bed.idle());
    const QStringList wire = bed.wire();
    QCOMPARE(wire.filter(QStringLiteral("set")), QStringList());
    QVERIFY(wire.contains(QStringLiteral("get 0xF3 0")));
}

void TestModel::restoringCanBeSwitchedOff()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.storeSetting(QStringLiteral("LuAiContrast/state"), true);
    LuHostOptions::instance().restore = false;
    bed.forget();
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("set")), QStringList());
}

void TestModel::withoutAutoSyncNothingIsRead()
{
    LuHostOptions::instance().autoSync = false;
    SimulatedBed bed;
    bed.forget();
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    // The bed itself asks for the colour mode in the application's place.
    QCOMPARE(bed.wire(), QStringList{QStringLiteral("get 0xDC %1").arg(bed.monitor().value(0xDC).value())});
    QVERIFY(!model.colorMode());
    QVERIFY(!model.isFirstTimeConnected());
}

void TestModel::withoutLoadingMembersKeepTheirFirstValues()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.storeSetting(QStringLiteral("LuAiContrast/state"), true);
    LuHostOptions::instance().loadSettings = false;
    bed.forget();
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.get("LuAiContrast", "state").toBool(), false);
    QVERIFY(bed.wire().contains(QStringLiteral("set 0xF3 0")));
}

void TestModel::skippedModulesAreLeftOutOnce()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    model.setSkipApplyValuesWithLaunchTime(bed.module("LuAiContrast"), true);
    QVERIFY(LuModelHost::skippedModules(&model).contains(QStringLiteral("LuAiContrast")));
    bed.forget();
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("set 0xF3")), QStringList());
    bed.model().setSkipApplyValuesWithLaunchTime(bed.module("LuAiContrast"), false);
    QVERIFY(!LuModelHost::skippedModules(&bed.model()).contains(QStringLiteral("LuAiContrast")));
    bed.relaunch();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire().filter(QStringLiteral("set 0xF3")).size(), 1);
}

void TestModel::settingClearsTheSkipMark()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.model().setSkipApplyValuesWithLaunchTime(bed.module("LuAiContrast"), true);
    bed.relaunch();
    QVERIFY(bed.idle());
    bed.monitor().setByMenu(0xF3, 1);
    QVERIFY(bed.sync("LuAiContrast"));
    QVERIFY(!LuModelHost::skippedModules(&bed.model()).contains(QStringLiteral("LuAiContrast")));
}

void TestModel::unsupportedMonitorHasAModelThatSendsItsBrightnessAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown model") << QStringLiteral("Other");
    QTest::newRow("name that is a path") << QStringLiteral("../TK30Z");
    QTest::newRow("built-in panel") << QStringLiteral("builtin");
}

void TestModel::unsupportedMonitorHasAModelThatSendsItsBrightnessAlone()
{
    QFETCH(QString, name);
    SimulatedBed bed(name);
    bed.forget();
    LuMonitorModel& model = bed.launch();
    QVERIFY(!model.isModelSupported());
    QVERIFY(model.colorModeList().isEmpty());
    QVERIFY(!model.colorMode());
    QVERIFY(bed.idle());
    QVERIFY(bed.sync());
    QVERIFY(bed.apply());
    QStringList sets = bed.wire().filter(QStringLiteral("set"));
    sets.removeIf([](const QString& line) { return line.startsWith(QLatin1String("set 0x10 ")); });
    QCOMPARE(sets, QStringList());
}

void TestModel::damagedSchemaIsNoSupport_data()
{
    QTest::addColumn<QByteArray>("modes");
    QTest::addColumn<QByteArray>("features");
    QTest::addColumn<bool>("supported");
    QTest::addColumn<bool>("contrast");
    const QByteArray mode =
        "<VCPcode Type=\"User\" Name=\"User\" Category=\"Picture Mode\" Code=\"0x12\" SHCode=\"0x00\" "
        "AiContrastEnable=\"on\"/>";
    const QByteArray feature =
        "<VCPcode Type=\"AiContrast\" Name=\"AiContrast\" Category=\"AiContrast\" Value=\"on\"/>";
    const QByteArray goodModes = "<VCPTree><VCPList>" + mode + "</VCPList></VCPTree>";
    const QByteArray goodFeatures = "<VCPTree><VCPList>" + feature + "</VCPList></VCPTree>";
    QTest::newRow("both sound") << goodModes << goodFeatures << true << true;
    QTest::newRow("modes cut") << QByteArray("<VCPTree><VCPList>" + mode) << goodFeatures << false << false;
    QTest::newRow("modes empty") << QByteArray() << goodFeatures << false << false;
    QTest::newRow("modes without an entry") << QByteArray("<VCPTree/>") << goodFeatures << false << false;
    QTest::newRow("code that is no byte")
        << QByteArray(goodModes).replace("0x12", "0x123") << goodFeatures << false << false;
    QTest::newRow("binary") << QByteArray(200, '\xff') << goodFeatures << false << false;
    QTest::newRow("features cut behind the entry")
        << goodModes << QByteArray("<VCPTree><VCPList>" + feature) << true << true;
    QTest::newRow("features damaged in front of the entry")
        << goodModes << QByteArray("<VCPTree><" + feature) << true << false;
    QTest::newRow("features empty") << goodModes << QByteArray() << true << false;
}

void TestModel::damagedSchemaIsNoSupport()
{
    QFETCH(QByteArray, modes);
    QFETCH(QByteArray, features);
    QFETCH(bool, supported);
    QFETCH(bool, contrast);
    QTemporaryDir directory;
    const auto write = [&directory](const char* name, const QByteArray& bytes) {
        QFile file(directory.filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QVERIFY(write("TK30Z.xml", modes) && write("TK30Z_ext.xml", features));
    LuHostOptions::instance().schemaDirectory = directory.path();
    SimulatedBed bed;
    bed.forget();
    LuMonitorModel& model = bed.launch();
    QCOMPARE(model.isModelSupported(), supported);
    QCOMPARE(bed.get("LuAiContrast", "aiContrastEnable").toBool(), contrast);
    QVERIFY(bed.idle());
    if (!supported || !contrast)
        QVERIFY(!bed.log()
                     .filter(QStringLiteral("[LuMonitorModel]"))
                     .filter(QRegularExpression(QStringLiteral("damage|left out|without a colour mode")))
                     .isEmpty());
}

void TestModel::settingTheModeWritesAndEmits()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    QSignalSpy spy(&model, &LuMonitorModel::colorModeChanged);
    LuVCPNode* cinema = model.getColorModeByName(QStringLiteral("Cinema"));
    QVERIFY(model.setProperty("colorMode", QVariant::fromValue(cinema)));
    QVERIFY(bed.idle());
    QCOMPARE(model.colorMode(), cinema);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bed.wire().first(), QStringLiteral("set 0xDC 50"));
    QCOMPARE(bed.monitor().value(0xDC).value(), 50);
}

void TestModel::presentModeAndNullDoNothing()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    QSignalSpy spy(&model, &LuMonitorModel::colorModeChanged);
    model.setColorMode(model.colorMode());
    model.setColorMode(nullptr);
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
    QCOMPARE(spy.count(), 0);
}

void TestModel::failedWriteKeepsTheMode()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    sim::Fault fault;
    fault.code = 0xDC;
    bed.monitor().armFault(fault);
    QSignalSpy spy(&model, &LuMonitorModel::colorModeChanged);
    LuVCPNode* before = model.colorMode();
    model.setColorMode(model.getColorModeByName(QStringLiteral("Game")));
    QVERIFY(bed.idle());
    QCOMPARE(model.colorMode(), before);
    QCOMPARE(spy.count(), 0);
}

void TestModel::modeOfTheMonitorIsFollowed()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    bed.monitor().setByMenu(0xDC, 0x32);
    QSignalSpy spy(&model, &LuMonitorModel::colorModeChanged);
    QVERIFY(bed.sync());
    QCOMPARE(model.colorMode()->displayName(), QStringLiteral("Cinema"));
    QCOMPARE(spy.count(), 1);
}

void TestModel::unknownModeIsNull()
{
    SimulatedBed bed;
    bed.monitor().setByMenu(0xDC, 0x77);
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    QVERIFY(!model.colorMode());
    QVERIFY(bed.sync());
    QVERIFY(!model.colorMode());
}

void TestModel::delayTableHoldsBackEveryAccess()
{
    SimulatedBed bed(QStringLiteral("TK30Z"), SimulatedBed::Timing::Real);
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    const quint64 seen = bed.monitor().traffic().last().seq;
    model.setColorMode(model.getColorModeByName(QStringLiteral("Cinema")));
    QVERIFY(bed.idle());
    const QList<sim::TrafficEntry> traffic = bed.monitor().traffic(seen);
    QVERIFY(traffic.size() >= 2);
    QCOMPARE(int(traffic.at(0).code), 0xDC);
    QVERIFY2(traffic.at(1).ms - traffic.at(0).ms >= 500.0,
             qPrintable(QString::number(traffic.at(1).ms - traffic.at(0).ms)));
    QCOMPARE(bed.monitor().violations().total(), 0);
}

void TestModel::otherFunctionHoldsOnThisThreadOnly()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    LuModelModuleInterface* module = bed.module("LuAiContrast");
    QVERIFY(!model.isOtherFunctionTrigger(module));
    {
        const LuMonitorModel::OtherFunctionScope scope(module);
        QVERIFY(model.isOtherFunctionTrigger(module));
        QVERIFY(!model.isOtherFunctionTrigger(bed.module("LuAutoPivot")));
        ZrDispatch other(QStringLiteral("other"));
        std::atomic<bool> elsewhere{true};
        other.post(nullptr, [&] { elsewhere = model.isOtherFunctionTrigger(module); });
        QVERIFY(ZrIdle::wait(10000));
        other.close();
        QVERIFY(!elsewhere);
    }
    QVERIFY(!model.isOtherFunctionTrigger(module));
    QVERIFY(bed.idle());
}

void TestModel::packageNameAndWidgets()
{
    SimulatedBed bed;
    bed.launch();
    QCOMPARE(LuUtils::packageName(bed.module("LuShortcuts")), QStringLiteral("TKPackage"));
    QCOMPARE(LuUtils::packageName(&bed.model()), QStringLiteral("TKPackage"));
    QCOMPARE(LuUtils::packageName(this), QString());
    QCOMPARE(LuUtils::packageName(nullptr), QString());
    QVERIFY(bed.idle());
}

void TestModel::destructionWhileTheQueueIsBusy()
{
    for (int i = 0; i < 20; ++i) {
        SimulatedBed bed;
        LuMonitorModel& model = bed.launch();
        for (LuVCPNode* node : model.colorModeList())
            model.setColorMode(node);
        bed.set("LuAiContrast", "state", i % 2 == 0);
        LuModelHost::sync(&model, nullptr, [] {});
        bed.destroy();
    }
}

void TestModel::hangingBusDoesNotBlockTheThread()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    sim::Fault fault;
    fault.kind = sim::FaultKind::Timeout;
    fault.blocks = std::chrono::minutes(2);
    bed.monitor().armFault(fault);
    QElapsedTimer timer;
    timer.start();
    bed.set("LuAiContrast", "state", true);
    bed.model().setColorMode(bed.model().getColorModeByName(QStringLiteral("Cinema")));
    (void)bed.get("LuAiContrast", "state");
    // Microseconds; who waits for the bus waits for minutes.
    QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
    bed.monitor().unplug();
}

QTEST_MAIN(TestModel)
#include "tst_model.moc"
