// SPDX-License-Identifier: Apache-2.0
#include "LuModelHost.h"

#include "LuMonitorModelPrivate.h"
#include "LuSettings.h"

#include "LuHostOptions.h"

#include <LuShared/LuUtils.h>
#include <ZrCore/ZrAsker.h>
#include <panelcore/MonitorLink.h>

#include <QKeyEvent>
#include <QMetaProperty>
#include <QSet>

void LuModelHost::launch(LuMonitorModel* model)
{
    LuMonitorModelPrivate& host = LuMonitorModelPrivate::of(model);
    if (!host.restoring)
        return;
    const ZrAsker::Scope asker(ZrAsker::Program);
    // Registered before the job, so that nothing changes the choice of modules in between.
    const QStringList skipped = host.skippedModules();
    host.dispatch->post(model, [&host, model, skipped] {
        for (LuModelModuleInterface* module : std::as_const(host.modules)) {
            if (!skipped.contains(LuUtils::className(module)))
                module->applyValues();
        }
        if (!LuHostOptions::instance().autoSync)
            return;
        ZrDispatch::main()->post(model, [&host] {
            host.runInitialSync();
            host.engine.start();
        });
    });
}

void LuModelHost::apply(LuMonitorModel* model, std::function<void()> done)
{
    LuMonitorModelPrivate& host = LuMonitorModelPrivate::of(model);
    const ZrAsker::Scope asker(ZrAsker::Program);
    host.dispatch->post(model, [&host, done = std::move(done)]() mutable {
        for (LuModelModuleInterface* module : std::as_const(host.modules))
            module->applyValues();
        ZrDispatch::main()->post(nullptr, std::move(done));
    });
}

void LuModelHost::sync(LuMonitorModel* model, LuModelModuleInterface* module, std::function<void()> done)
{
    LuMonitorModelPrivate::of(model).engine.readBack(
        module, [done = std::move(done)]() mutable { ZrDispatch::main()->post(nullptr, std::move(done)); });
}

void LuModelHost::lookAgain(LuMonitorModel* model)
{
    LuMonitorModelPrivate::of(model).engine.lookAgain();
}

QString LuModelHost::trigger(LuModelModuleInterface* module, const QVariantMap& properties)
{
    const QMetaObject* meta = module->metaObject();
    for (auto it = properties.begin(); it != properties.end(); ++it) {
        const int index = meta->indexOfProperty(it.key().toUtf8().constData());
        if (index < 0 || !meta->property(index).isWritable())
            return QStringLiteral("%1 has no writable property %2").arg(LuUtils::className(module), it.key());
    }
    const LuMonitorModel::OtherFunctionScope scope(module);
    const ZrAsker::Scope asker(ZrAsker::Program);
    for (auto it = properties.begin(); it != properties.end(); ++it) {
        if (!module->setProperty(it.key().toUtf8().constData(), it.value()))
            return QStringLiteral("%1.%2 takes no such value").arg(LuUtils::className(module), it.key());
    }
    return {};
}

bool LuModelHost::autoSyncEnabled(const LuMonitorModel* model)
{
    return model->autoSyncEnabled();
}

bool LuModelHost::loadSettingsEnabled(const LuMonitorModel* model)
{
    return model->loadSettingsEnabled();
}

QStringList LuModelHost::skippedModules(const LuMonitorModel* model)
{
    return LuMonitorModelPrivate::of(model).skippedModules();
}

std::optional<int> LuModelHost::syncTaskCount(LuModelModuleInterface* module)
{
    const std::unique_ptr<LuSyncTasks> tasks(module->syncPeriodically());
    return tasks ? std::optional<int>(tasks->count()) : std::nullopt;
}

QJsonObject LuModelHost::statistics(const LuMonitorModel* model)
{
    return LuMonitorModelPrivate::of(model).link().statistics();
}

void LuModelHost::setAsleep(LuMonitorModel* model, bool asleep)
{
    LuMonitorModelPrivate::of(model).engine.setAsleep(asleep);
}

void LuModelHost::noteDisturbance(LuMonitorModel* model)
{
    LuMonitorModelPrivate::of(model).engine.noteDisturbance();
}

QString LuModelHost::monitorSection(const LuMonitorModel* model)
{
    return LuMonitorModelPrivate::of(model).section;
}

QString LuModelHost::moduleSection(const LuModelModuleInterface* module)
{
    return module->settingSection();
}

void LuModelHost::forgetFirstConnection(LuMonitorModel* model)
{
    LuMonitorModelPrivate::of(model).forgetMeeting();
}

bool LuModelHost::handleKey(LuMonitorModel* model, Qt::KeyboardModifiers modifiers, Qt::Key key,
                            bool repeated)
{
    ZrAsker::noteInput();
    const ZrAsker::Scope asker(ZrAsker::Person);
    const QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(), repeated);
    bool handled = false;
    const QList<LuShortcutAction*> actions =
        LuMonitorModelPrivate::of(model).actionsWithKey(QKeyCombination(modifiers, key));
    for (const LuShortcutAction* action : actions)
        handled = action->handle(event) || handled;
    return handled;
}

void LuModelHost::fireExitEvents(LuMonitorModel* model)
{
    for (LuModelModuleInterface* module : LuMonitorModelPrivate::of(model).modules)
        module->fireExitEvent();
}

void LuModelHost::setCurrent(LuMonitorModel* model, bool current)
{
    LuMonitorModelPrivate& host = LuMonitorModelPrivate::of(model);
    if (host.current == current)
        return;
    host.current = current;
    Q_EMIT model->isCurrentModelChanged();
}
