// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModuleAction.h>

/// An action of a flow, kept by the monitor's model.
class LUSHARED_EXPORT LuFlowAction : public LuModuleAction
{
    Q_OBJECT
    Q_PROPERTY(QString modeId READ modeId CONSTANT)

public:
    LuFlowAction(const QString& modeId, ActionTitle title, LuModelModuleInterface* module,
                 const QVariantMap& properties, QObject* parent = nullptr);
    ~LuFlowAction() override;

    /// Id of the flow that the action belongs to.
    QString modeId() const { return m_modeId; }

private:
    const QString m_modeId;
};
