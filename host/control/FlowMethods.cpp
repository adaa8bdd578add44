// SPDX-License-Identifier: Apache-2.0
#include "MonitorAccess.h"
#include "ValueWriter.h"

#include <LuShared/LuFlowAction.h>
#include <LuShared/LuModelModuleInterface.h>
#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuUtils.h>

#include "lushared/LuModelHost.h"

#include <QJsonArray>

#include <array>

using namespace Qt::StringLiterals;

namespace control {

namespace {

struct TitleRow
{
    LuActionInterface::ActionTitle title;
    QLatin1String module;
};

/// The module whose properties an action of a title sets, as the popups of the panels have it.
constexpr std::array TitleModules{
    TitleRow{LuActionInterface::Input, "LuInputSource"_L1},
    TitleRow{LuActionInterface::ColorMode, "LuBrightness"_L1},
    TitleRow{LuActionInterface::Brightness, "LuBrightness"_L1},
    TitleRow{LuActionInterface::Volume, "LuVolume"_L1},
    TitleRow{LuActionInterface::NightProtection, "LuNightProtection"_L1},
    TitleRow{LuActionInterface::EcoPrivacy, "LuEcoPrivacy"_L1},
    TitleRow{LuActionInterface::ABPlus, "LuABPlus"_L1},
    TitleRow{LuActionInterface::LowBlueLight, "LuLowBlueLight"_L1},
    TitleRow{LuActionInterface::AB, "LuABSetting"_L1},
    TitleRow{LuActionInterface::BackLight, "LuBackLight"_L1},
    TitleRow{LuActionInterface::Flow, "LuFlow"_L1},
    TitleRow{LuActionInterface::KvmSwitch, "LuKvmSwitch"_L1},
};

LuModelModuleInterface* moduleOfTitle(const MonitorAccess& access, LuMonitorModel* model, qint64 title)
{
    for (const TitleRow& row : TitleModules) {
        if (row.title == title)
            return access.module(model, row.module);
    }
    throw RequestError(InvalidParameters, u"no flow has an action of the title %1"_s.arg(title));
}

QJsonArray flowActions(const LuMonitorModel* model, const std::optional<QString>& flow)
{
    QJsonArray list;
    const QList<LuFlowAction*> actions = flow ? model->flowActions(*flow) : model->flowActions();
    for (const LuFlowAction* action : actions) {
        list.append(QJsonObject{
            {u"flow"_s, action->modeId()},
            {u"title"_s, int(action->title())},
            {u"module"_s, LuUtils::className(action->module())},
            {u"active"_s, action->isActive()},
            {u"properties"_s, toJson(action->properties())},
        });
    }
    return list;
}

/// The properties of a request, checked against the module's own and in their types.
QVariantMap propertiesOf(const MonitorAccess& access, const Request& request, LuMonitorModel* model,
                         LuModelModuleInterface* module)
{
    return ObjectAccess(model, access.context())
        .readProperties(module, request.parameters.object(u"properties"_s));
}

QJsonValue registerAction(const MonitorAccess& access, const Request& request)
{
    LuMonitorModel* const model = access.monitor(request);
    const QString flow = request.parameters.text(u"flow"_s);
    const qint64 title = request.parameters.integer(u"title"_s);
    LuModelModuleInterface* const module = moduleOfTitle(access, model, title);
    const QVariantMap properties = propertiesOf(access, request, model, module);
    if (!model->registerFlowAction(flow, LuActionInterface::ActionTitle(title), module, properties))
        throw RequestError(NoSuchPath, u"the flow \"%1\" takes no such action"_s.arg(flow.left(100)));
    return QJsonObject();
}

QJsonValue unregisterAction(const MonitorAccess& access, const Request& request)
{
    LuMonitorModel* const model = access.monitor(request);
    const QString flow = request.parameters.text(u"flow"_s);
    const qint64 title = request.parameters.integer(u"title"_s);
    moduleOfTitle(access, model, title)->unregisterFlowAction(flow);
    return QJsonObject();
}

QJsonValue trigger(const MonitorAccess& access, const Request& request)
{
    LuMonitorModel* const model = access.monitor(request);
    LuModelModuleInterface* const module = access.module(model, request.parameters.text(u"module"_s));
    const QString wrong = LuModelHost::trigger(module, propertiesOf(access, request, model, module));
    if (!wrong.isEmpty())
        throw RequestError(WrongValue, wrong);
    return QJsonObject();
}

} // namespace

void addFlowMethods(Server* server, MonitorAccess* access)
{
    Dispatcher& dispatcher = server->dispatcher();
    const QString monitor = u"monitor"_s;
    dispatcher.addMethod(u"flowActions.list"_s, {monitor, u"flow"_s}, [access](const Request& request) {
        return QJsonValue(flowActions(access->monitor(request), request.parameters.optionalText(u"flow"_s)));
    });
    dispatcher.addMethod(u"flowActions.register"_s, {monitor, u"flow"_s, u"title"_s, u"properties"_s},
                         [access](const Request& request) { return registerAction(*access, request); });
    // The popups withdraw an action with its properties at hand; they are not needed for it.
    dispatcher.addMethod(u"flowActions.unregister"_s, {monitor, u"flow"_s, u"title"_s, u"properties"_s},
                         [access](const Request& request) { return unregisterAction(*access, request); });
    dispatcher.addMethod(u"trigger"_s, {monitor, u"module"_s, u"properties"_s},
                         [access](const Request& request) { return trigger(*access, request); });
}

} // namespace control
