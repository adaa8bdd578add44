// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <lushared/LuModelHost.h>

#include <QKeyEvent>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

namespace {

/// The actions of that name, beside those that the model's own modules registered.
QList<LuShortcutAction*> actionsOf(const LuMonitorModel& model, LuShortcutAction::ActionName name)
{
    QList<LuShortcutAction*> found = model.shortcutActions();
    found.removeIf([name](const LuShortcutAction* action) { return action->name() != name; });
    return found;
}

} // namespace

/// Shortcut actions and actions of flows, as the model keeps them.
class TestActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesBelongToTheirTitles_data();
    void namesBelongToTheirTitles();
    void registrationKeepsItsOrder();
    void keysOfAMissingActionAreDropped();
    void sameKeysMarkBothAsDuplicated();
    void pressReachesTheActiveActionOnly();
    void flowActionReplacesOneOfTheSameTitle();
    void flowActionTriggersAsAnotherFunction();
    void flowActionOfAForeignModuleIsRefused();
    void unregisteringTakesTheModulesOnly();
    void triggerNamesWhatIsWrong();
};

void TestActions::namesBelongToTheirTitles_data()
{
    QTest::addColumn<int>("name");
    QTest::addColumn<int>("title");
    QTest::newRow("input") << int(LuShortcutAction::Input_SwitchtoThunderbolt3) << 1;
    QTest::newRow("color mode") << int(LuShortcutAction::ColorMode_SwitchtoCodingPaperColor) << 2;
    QTest::newRow("brightness") << int(LuShortcutAction::Brightness_Decrease) << 3;
    QTest::newRow("volume") << int(LuShortcutAction::Volume_LoopAllAudioMode) << 4;
    QTest::newRow("night protection") << int(LuShortcutAction::NightProtection_Increase) << 5;
    QTest::newRow("eco privacy") << int(LuShortcutAction::EcoPrivacy_TurnOnOff) << 6;
    QTest::newRow("copy and paste") << int(LuShortcutAction::ExtraCopyPaste_Paste) << 7;
    QTest::newRow("kvm") << int(LuShortcutAction::Kvm_LoopAllKvmSwitch) << 13;
    QTest::newRow("not supported") << int(LuShortcutAction::ColorMode_NotSupported) << 0;
}

void TestActions::namesBelongToTheirTitles()
{
    QFETCH(int, name);
    QFETCH(int, title);
    QCOMPARE(int(LuShortcutAction::titleOf(LuShortcutAction::ActionName(name))), title);
}

void TestActions::registrationKeepsItsOrder()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    // Actions that the model's own modules do not register.
    LuModelModuleInterface* module = bed.module("LuKvmSwitch");
    module->registerShortcutAction(LuShortcutAction::Input_SwitchtoThunderbolt3,
                                   [](const QKeyEvent&) { return true; });
    module->registerShortcutAction(LuShortcutAction::Input_SwitchtoHDMI3,
                                   [](const QKeyEvent&) { return true; });
    module->registerShortcutAction(LuShortcutAction::Input_SwitchtoThunderbolt3,
                                   [](const QKeyEvent&) { return false; });
    const auto first = actionsOf(model, LuShortcutAction::Input_SwitchtoThunderbolt3);
    const auto second = actionsOf(model, LuShortcutAction::Input_SwitchtoHDMI3);
    QCOMPARE(first.size(), 1);
    QCOMPARE(second.size(), 1);
    QVERIFY(model.shortcutActions().indexOf(first[0]) < model.shortcutActions().indexOf(second[0]));
    QVERIFY(bed.idle());
}

void TestActions::keysOfAMissingActionAreDropped()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    bed.module("LuKvmSwitch")
        ->registerShortcutKeys(LuShortcutAction::ColorMode_NotSupported, {Qt::CTRL | Qt::Key_F1});
    QVERIFY(actionsOf(model, LuShortcutAction::ColorMode_NotSupported).isEmpty());
    QVERIFY(!LuModelHost::handleKey(&model, Qt::ControlModifier, Qt::Key_F1, false));
    QVERIFY(bed.idle());
}

void TestActions::sameKeysMarkBothAsDuplicated()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    LuModelModuleInterface* module = bed.module("LuKvmSwitch");
    for (const auto name : {LuShortcutAction::Volume_Mute, LuShortcutAction::Volume_Increase})
        module->registerShortcutAction(name, [](const QKeyEvent&) { return true; });
    const LuShortcutAction* mute = actionsOf(model, LuShortcutAction::Volume_Mute).first();
    const LuShortcutAction* louder = actionsOf(model, LuShortcutAction::Volume_Increase).first();
    module->registerShortcutKeys(LuShortcutAction::Volume_Mute, {Qt::CTRL | Qt::Key_F1});
    module->registerShortcutKeys(LuShortcutAction::Volume_Increase, {Qt::CTRL | Qt::Key_F2});
    QVERIFY(!mute->isDuplicated());
    module->registerShortcutKeys(LuShortcutAction::Volume_Increase, {Qt::CTRL | Qt::Key_F1});
    QVERIFY(mute->isDuplicated());
    QVERIFY(louder->isDuplicated());
    module->registerShortcutKeys(LuShortcutAction::Volume_Increase, {});
    QVERIFY(!mute->isDuplicated());
    QCOMPARE(louder->key(), Qt::Key_unknown);
    QCOMPARE(mute->key(), Qt::Key_F1);
    QCOMPARE(mute->modifiers(), Qt::KeyboardModifiers(Qt::ControlModifier));
    QVERIFY(bed.idle());
}

void TestActions::pressReachesTheActiveActionOnly()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    LuModelModuleInterface* module = bed.module("LuKvmSwitch");
    QList<bool> presses;
    module->registerShortcutAction(LuShortcutAction::Volume_Mute, [&presses](const QKeyEvent& event) {
        presses.append(event.isAutoRepeat());
        return !event.isAutoRepeat();
    });
    module->registerShortcutKeys(LuShortcutAction::Volume_Mute, {Qt::CTRL | Qt::Key_F1});
    QVERIFY(!LuModelHost::handleKey(&model, Qt::ControlModifier, Qt::Key_F1, false));
    QVERIFY(presses.isEmpty());
    actionsOf(model, LuShortcutAction::Volume_Mute).first()->setActive(true);
    QVERIFY(LuModelHost::handleKey(&model, Qt::ControlModifier, Qt::Key_F1, false));
    QVERIFY(!LuModelHost::handleKey(&model, Qt::ControlModifier, Qt::Key_F1, true));
    QVERIFY(!LuModelHost::handleKey(&model, Qt::AltModifier, Qt::Key_F1, false));
    QCOMPARE(presses, (QList<bool>{false, true}));
    QVERIFY(bed.idle());
}

void TestActions::flowActionReplacesOneOfTheSameTitle()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    LuModelModuleInterface* module = bed.module("LuAiContrast");
    QSignalSpy registered(&model, &LuMonitorModel::flowActionRegistered);
    const QString flow = QStringLiteral("flow");
    QVERIFY(
        model.registerFlowAction(flow, LuActionInterface::Volume, module, {{QStringLiteral("state"), true}}));
    QVERIFY(model.registerFlowAction(flow, LuActionInterface::Volume, module,
                                     {{QStringLiteral("state"), false}}));
    QVERIFY(model.registerFlowAction(flow, LuActionInterface::EcoPrivacy, module, {}));
    QVERIFY(model.registerFlowAction(QStringLiteral("other"), LuActionInterface::Volume, module, {}));
    QCOMPARE(registered.count(), 4);
    QCOMPARE(model.flowActions().size(), 3);
    QCOMPARE(model.flowActions(flow).size(), 2);
    for (const LuFlowAction* action : model.flowActions(flow)) {
        QCOMPARE(action->modeId(), flow);
        if (action->title() == LuActionInterface::Volume)
            QCOMPARE(action->actionProperty(QStringLiteral("state")), QVariant(false));
    }
    QVERIFY(bed.idle());
}

void TestActions::flowActionTriggersAsAnotherFunction()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    LuModelModuleInterface* module = bed.module("LuAiContrast");
    QVERIFY(model.registerFlowAction(QStringLiteral("flow"), LuActionInterface::Volume, module,
                                     {{QStringLiteral("state"), true}}));
    QVERIFY(model.flowActions().first()->trigger());
    QVERIFY(!model.isOtherFunctionTrigger(module));
    QVERIFY(bed.idle());
    QCOMPARE(int(bed.monitor().value(0xF3).value()), 1);
}

void TestActions::flowActionOfAForeignModuleIsRefused()
{
    SimulatedBed one;
    SimulatedBed two;
    one.launch();
    two.launch();
    QVERIFY(!one.model().registerFlowAction(QStringLiteral("flow"), LuActionInterface::Volume,
                                            two.module("LuAiContrast"), {}));
    QVERIFY(one.idle());
}

void TestActions::unregisteringTakesTheModulesOnly()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    const QString flow = QStringLiteral("flow");
    QVERIFY(model.registerFlowAction(flow, LuActionInterface::Volume, bed.module("LuAiContrast"), {}));
    QVERIFY(model.registerFlowAction(flow, LuActionInterface::EcoPrivacy, bed.module("LuAutoPivot"), {}));
    QSignalSpy gone(&model, &LuMonitorModel::flowActionUnregistered);
    QSignalSpy cleared(&model, &LuMonitorModel::flowActionCleared);
    bed.module("LuAiContrast")->unregisterFlowAction(flow);
    QCOMPARE(gone.count(), 1);
    QCOMPARE(cleared.count(), 0);
    QCOMPARE(model.flowActions(flow).size(), 1);
    bed.module("LuAutoPivot")->unregisterFlowAction(flow);
    QCOMPARE(cleared.count(), 1);
    QVERIFY(model.flowActions().isEmpty());
    QVERIFY(bed.idle());
}

void TestActions::triggerNamesWhatIsWrong()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    LuModelModuleInterface* module = bed.module("LuAiContrast");
    QVERIFY(
        LuModelHost::trigger(module, {{QStringLiteral("nothing"), 1}}).contains(QStringLiteral("nothing")));
    QVERIFY(LuModelHost::trigger(module, {{QStringLiteral("aiContrastEnable"), true}})
                .contains(QStringLiteral("aiContrastEnable")));
    QVERIFY(LuModelHost::trigger(module, {{QStringLiteral("state"), QVariantList{1, 2}}})
                .contains(QStringLiteral("state")));
    bed.forget();
    QVERIFY(bed.idle());
    QCOMPARE(bed.wire(), QStringList());
}

QTEST_MAIN(TestActions)
#include "tst_actions.moc"
