// SPDX-License-Identifier: Apache-2.0
#include "MonitorAccess.h"

#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuPackagesInterface.h>

#include "lushared/LuLog.h"
#include "lushared/LuModelHost.h"
#include "lushared/LuMonitorRegistry.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace control {

namespace {

QJsonObject version(const MonitorAccess& access)
{
    const auto& packageVersion = access.backend().packageVersion;
    return {{u"application"_s, QCoreApplication::applicationVersion()},
            {u"package"_s, packageVersion ? packageVersion() : QString()},
            {u"qt"_s, QLatin1String(qVersion())}};
}

QJsonArray monitors(const LuMonitorRegistry& registry)
{
    QJsonArray list;
    const QList<LuMonitorModel*> models = registry.monitors();
    for (const LuMonitorModel* model : models) {
        list.append(QJsonObject{
            {u"id"_s, model->id()},
            {u"model"_s, model->modelName()},
            {u"serial"_s, model->info()->serialNumber()},
            {u"supported"_s, model->isModelSupported()},
            {u"builtIn"_s, model->isModelBuiltIn()},
            {u"current"_s, model == registry.current()},
            {u"simulated"_s, model->info()->isSimulated()},
        });
    }
    return list;
}

QJsonArray packages(const LuMonitorRegistry& registry)
{
    QJsonArray list;
    const QList<LuPackagesInterface*> all = registry.packages();
    for (LuPackagesInterface* package : all) {
        QJsonArray widgets;
        const QList<QUrl> urls = package->widgetUrls();
        for (const QUrl& url : urls) {
            const QString file = url.fileName();
            widgets.append(file.endsWith(".qml"_L1) ? file.chopped(4) : file);
        }
        list.append(QJsonObject{
            {u"name"_s, package->name()},
            {u"kind"_s, package->packageKind()},
            {u"models"_s, QJsonArray::fromStringList(package->supportedModels())},
            {u"widgets"_s, widgets},
        });
    }
    return list;
}

QJsonArray logLines(quint64 since)
{
    QJsonArray list;
    const QList<LuLogLine> lines = LuLog::lines(since);
    for (const LuLogLine& line : lines)
        list.append(
            QJsonObject{{u"seq"_s, qint64(line.seq)}, {u"level"_s, line.level}, {u"text"_s, line.text}});
    return list;
}

} // namespace

void addProgramMethods(Server* server, MonitorAccess* access)
{
    Dispatcher& dispatcher = server->dispatcher();
    LuMonitorRegistry* const registry = access->backend().registry;

    dispatcher.addMethod(
        u"version"_s, {}, [access](const Request&) { return QJsonValue(version(*access)); },
        Dispatcher::When::Always);
    dispatcher.addMethod(u"monitors"_s, {},
                         [registry](const Request&) { return QJsonValue(monitors(*registry)); });
    dispatcher.addMethod(u"package"_s, {},
                         [registry](const Request&) { return QJsonValue(packages(*registry)); });
    dispatcher.addMethod(u"select"_s, {u"monitor"_s}, [access, registry](const Request& request) {
        registry->select(access->monitor(request.parameters.text(u"monitor"_s))->id());
        return QJsonValue(QJsonObject());
    });
    dispatcher.addMethod(
        u"report"_s, {},
        [access](const Request&) {
            const auto& report = access->backend().report;
            return QJsonValue(QJsonObject{{u"text"_s, report ? report() : QString()}});
        },
        Dispatcher::When::Always);
    dispatcher.addMethod(
        u"log"_s, {u"since"_s},
        [](const Request& request) {
            return QJsonValue(
                logLines(quint64(request.parameters.optionalInteger(u"since"_s, 0).value_or(0))));
        },
        Dispatcher::When::Always);
    dispatcher.addMethod(
        u"quit"_s, {},
        [access](const Request&) {
            // Posted, so that the answer is on its way first.
            if (access->backend().quit)
                QMetaObject::invokeMethod(access, access->backend().quit, Qt::QueuedConnection);
            return QJsonValue(QJsonObject());
        },
        Dispatcher::When::Always);
}

} // namespace control
