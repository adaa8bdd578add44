// SPDX-License-Identifier: Apache-2.0
#include "MonitorAccess.h"
#include "Watches.h"

#include <LuShared/LuModelModuleInterface.h>
#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuUtils.h>
#include <ZrCore/ZrAsker.h>
#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrIdle.h>

#include "lushared/LuModelHost.h"
#include "lushared/LuMonitorRegistry.h"

#include <QJsonArray>
#include <QKeySequence>

using namespace Qt::StringLiterals;

namespace control {

namespace {

QString pathOf(const Request& request)
{
    return request.parameters.text(u"path"_s);
}

QJsonValue nothing()
{
    return QJsonObject();
}

void addPropertyMethods(Dispatcher& dispatcher, MonitorAccess* access)
{
    dispatcher.addMethod(u"describe"_s, {u"monitor"_s, u"path"_s}, [access](const Request& request) {
        const QString path = request.parameters.optionalText(u"path"_s).value_or(QString());
        return QJsonValue(access->objects(request, path).describe(path));
    });
    dispatcher.addMethod(u"get"_s, {u"monitor"_s, u"path"_s}, [access](const Request& request) {
        const QString path = pathOf(request);
        return QJsonValue(QJsonObject{{u"value"_s, access->objects(request, path).get(path)}});
    });
    dispatcher.addMethod(u"set"_s, {u"monitor"_s, u"path"_s, u"value"_s}, [access](const Request& request) {
        const QString path = pathOf(request);
        const QJsonValue value = request.parameters.value(u"value"_s);
        ZrAsker::noteInput();
        access->objects(request, path).set(path, value);
        return nothing();
    });
    dispatcher.addMethod(u"call"_s, {u"monitor"_s, u"path"_s, u"args"_s}, [access](const Request& request) {
        const QString path = pathOf(request);
        const QJsonArray arguments =
            request.parameters.contains(u"args"_s) ? request.parameters.array(u"args"_s) : QJsonArray();
        ZrAsker::noteInput();
        return QJsonValue(QJsonObject{{u"value"_s, access->objects(request, path).call(path, arguments)}});
    });
}

void addWatchMethods(Dispatcher& dispatcher, MonitorAccess* access)
{
    const auto monitorId = [access](const Request& request) {
        if (request.parameters.contains(u"monitor"_s))
            return access->monitor(request)->id();
        const LuMonitorModel* const current = access->backend().registry->current();
        return current ? current->id() : QString();
    };
    dispatcher.addMethod(u"watch"_s, {u"monitor"_s, u"paths"_s}, [access, monitorId](const Request& request) {
        const QStringList paths = request.parameters.texts(u"paths"_s);
        const QString id = monitorId(request);
        LuMonitorModel* const model = access->backend().registry->find(id);
        if (request.client)
            Watches::of(request.client)->add(id, PathResolver(model, access->context()), paths);
        return nothing();
    });
    dispatcher.addMethod(u"unwatch"_s, {u"monitor"_s, u"paths"_s}, [monitorId](const Request& request) {
        const QStringList paths = request.parameters.texts(u"paths"_s);
        const QString id = monitorId(request);
        if (request.client)
            Watches::of(request.client)->remove(id, paths);
        return nothing();
    });
}

RequestError goneError(const LuMonitorModel* model)
{
    return {NoSuchMonitor, u"the monitor \"%1\" went away"_s.arg(model->id())};
}

void addWaitingMethods(Dispatcher& dispatcher, MonitorAccess* access)
{
    dispatcher.addAsyncMethod(u"idle"_s, {u"monitor"_s}, [access](const Request& request) {
        LuMonitorModel* const model = access->monitor(request);
        const auto done = [reply = request.reply] { reply.done(); };
        // Whoever names a monitor does not await what others have to do: one of them may hang.
        if (request.parameters.contains(u"monitor"_s))
            ZrIdle::notifyGroup(model->id(), access, done);
        else
            ZrIdle::notify({}, access, done);
    });
    dispatcher.addAsyncMethod(u"sync"_s, {u"monitor"_s, u"module"_s}, [access](const Request& request) {
        LuMonitorModel* const model = access->monitor(request);
        const auto name = request.parameters.optionalText(u"module"_s);
        LuModelModuleInterface* const module = name ? access->module(model, *name) : nullptr;
        request.reply.setAbandoned(goneError(model));
        LuModelHost::sync(model, module, [reply = request.reply] { reply.done(); });
    });
    dispatcher.addAsyncMethod(u"apply"_s, {u"monitor"_s}, [access](const Request& request) {
        LuMonitorModel* const model = access->monitor(request);
        request.reply.setAbandoned(goneError(model));
        LuModelHost::apply(model, [reply = request.reply] { reply.done(); });
    });
}

QJsonObject modelFacts(LuMonitorModel* model)
{
    QJsonArray modules;
    QJsonObject tasks;
    const QList<LuModelModuleInterface*> all = model->modules();
    for (LuModelModuleInterface* module : all) {
        const QString name = LuUtils::className(module);
        modules.append(name);
        const std::optional<int> count = LuModelHost::syncTaskCount(module);
        tasks.insert(name, count ? QJsonValue(*count) : QJsonValue());
    }
    return {{u"firstTimeConnected"_s, model->isFirstTimeConnected()},
            {u"autoSync"_s, LuModelHost::autoSyncEnabled(model)},
            {u"loadSettings"_s, LuModelHost::loadSettingsEnabled(model)},
            {u"skipped"_s, QJsonArray::fromStringList(LuModelHost::skippedModules(model))},
            {u"modules"_s, modules},
            {u"syncTasks"_s, tasks}};
}

QJsonArray shortcutActions(const LuMonitorModel* model)
{
    QJsonArray list;
    const QList<LuShortcutAction*> actions = model->shortcutActions();
    for (const LuShortcutAction* action : actions) {
        QString key;
        if (action->key() != Qt::Key_unknown)
            key = QKeySequence(QKeyCombination(action->modifiers(), action->key()))
                      .toString(QKeySequence::PortableText);
        list.append(QJsonObject{
            {u"title"_s, int(action->title())},
            {u"name"_s, int(action->name())},
            {u"key"_s, key},
            {u"active"_s, action->isActive()},
            {u"duplicated"_s, action->isDuplicated()},
        });
    }
    return list;
}

// The monitor's own queues, those of its features, and what belongs to no monitor, such as the main queue.
QJsonArray waitingJobs(const LuMonitorModel* model)
{
    QJsonArray list;
    const QList<ZrIdle::Waiting> waiting = ZrIdle::waitingOf(model->id());
    for (const auto& [queue, job] : waiting) {
        QJsonObject entry{{u"queue"_s, queue}, {u"context"_s, job.context}};
        if (!job.key.isEmpty())
            entry.insert(u"key"_s, job.key);
        if (job.due)
            entry.insert(u"due"_s, job.due->toString(Qt::ISODateWithMs));
        list.append(entry);
    }
    return list;
}

void addFactMethods(Dispatcher& dispatcher, MonitorAccess* access)
{
    dispatcher.addMethod(u"model"_s, {u"monitor"_s}, [access](const Request& request) {
        return QJsonValue(modelFacts(access->monitor(request)));
    });
    dispatcher.addMethod(u"stats"_s, {u"monitor"_s}, [access](const Request& request) {
        return QJsonValue(LuModelHost::statistics(access->monitor(request)));
    });
    dispatcher.addMethod(u"actions"_s, {u"monitor"_s}, [access](const Request& request) {
        return QJsonValue(shortcutActions(access->monitor(request)));
    });
    dispatcher.addMethod(u"queue"_s, {u"monitor"_s}, [access](const Request& request) {
        return QJsonValue(waitingJobs(access->monitor(request)));
    });
    dispatcher.addMethod(u"forgetFirstConnection"_s, {u"monitor"_s}, [access](const Request& request) {
        LuModelHost::forgetFirstConnection(access->monitor(request));
        return nothing();
    });
    dispatcher.addMethod(u"snapshot"_s, {u"monitor"_s, u"module"_s}, [access](const Request& request) {
        access->module(access->monitor(request), request.parameters.text(u"module"_s))
            ->takePropertySnapshot();
        return nothing();
    });
    dispatcher.addMethod(u"fireUpdate"_s, {u"monitor"_s, u"module"_s}, [access](const Request& request) {
        access->module(access->monitor(request), request.parameters.text(u"module"_s))
            ->fireUpdateSettingEvent();
        return nothing();
    });
}

} // namespace

void addModelMethods(Server* server, MonitorAccess* access)
{
    Dispatcher& dispatcher = server->dispatcher();
    addPropertyMethods(dispatcher, access);
    addWatchMethods(dispatcher, access);
    addWaitingMethods(dispatcher, access);
    addFactMethods(dispatcher, access);
}

} // namespace control
