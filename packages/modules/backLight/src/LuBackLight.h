// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>

#include <QtQml/qqmlregistration.h>

/// The lighting on the back of the monitor.
///
/// The monitor carries this object so that panels and scripts find it; without the feature it stays inactive:
/// it sends nothing to the monitor, keeps no setting and reports no event.
class LuBackLight : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool backLightEnable READ backLightEnable CONSTANT)

public:
    explicit LuBackLight(LuMonitorModel* model);
    ~LuBackLight() override;

    bool backLightEnable() const { return false; }

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
};
