// SPDX-License-Identifier: Apache-2.0
#include "LuFlowActions.h"

#ifdef LUMEN_QML_SHARED_TYPES
#include <LuShared/LuFlowAction.h>
#include <LuShared/LuModelModuleInterface.h>
#include <LuShared/LuMonitorModel.h>
#endif

#include <algorithm>

#ifdef LUMEN_QML_SHARED_TYPES
namespace {

QList<LuFlowAction*> actionsOf(QObject* monitor, const QString& flowId)
{
    const auto* model = qobject_cast<LuMonitorModel*>(monitor);
    return model ? model->flowActions(flowId) : QList<LuFlowAction*>();
}

} // namespace

bool LuFlowActions::store(QObject* monitor, const QString& flowId, int title, QObject* module,
                          const QVariantMap& properties)
{
    auto* model = qobject_cast<LuMonitorModel*>(monitor);
    auto* owner = qobject_cast<LuModelModuleInterface*>(module);
    return model && owner &&
           model->registerFlowAction(flowId, LuActionInterface::ActionTitle(title), owner, properties);
}

QVariantMap LuFlowActions::properties(QObject* monitor, const QString& flowId, int title) const
{
    const QList<LuFlowAction*> actions = actionsOf(monitor, flowId);
    for (const LuFlowAction* action : actions) {
        if (action->title() == title)
            return action->properties();
    }
    return {};
}

QList<int> LuFlowActions::titles(QObject* monitor, const QString& flowId) const
{
    QList<int> list;
    const QList<LuFlowAction*> actions = actionsOf(monitor, flowId);
    for (const LuFlowAction* action : actions)
        list.append(action->title());
    std::sort(list.begin(), list.end());
    return list;
}
#else
bool LuFlowActions::store(QObject*, const QString&, int, QObject*, const QVariantMap&)
{
    return false;
}

QVariantMap LuFlowActions::properties(QObject*, const QString&, int) const
{
    return {};
}

QList<int> LuFlowActions::titles(QObject*, const QString&) const
{
    return {};
}
#endif
