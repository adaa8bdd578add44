// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>

#include <QtQml/qqmlregistration.h>

/// Volume, mute and the audio output.
///
/// The monitor carries this object so that panels and scripts find it; without the feature it stays inactive:
/// it sends nothing to the monitor, keeps no setting and reports no event.
class LuVolume : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool volumeEnable READ volumeEnable CONSTANT)

public:
    explicit LuVolume(LuMonitorModel* model);
    ~LuVolume() override;

    bool volumeEnable() const { return false; }

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
};
