// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>

#include <QtQml/qqmlregistration.h>

/// The pointer feature of models with a driver of their own. No model of this series makes one.
class LuSmartKvm : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool smartKvmEnable READ smartKvmEnable CONSTANT)

public:
    explicit LuSmartKvm(LuMonitorModel* model);
    ~LuSmartKvm() override;

    bool smartKvmEnable() const { return false; }

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
};
