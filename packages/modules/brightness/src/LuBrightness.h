// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>

#include <QtQml/qqmlregistration.h>

/// Brightness and the colour controls of a mode.
///
/// The monitor carries this object so that panels and scripts find it; without the feature it stays inactive:
/// it sends nothing to the monitor, keeps no setting and reports no event.
class LuBrightness : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")

public:
    explicit LuBrightness(LuMonitorModel* model);
    ~LuBrightness() override;

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
};
