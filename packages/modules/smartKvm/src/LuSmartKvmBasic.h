// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>

#include <QtQml/qqmlregistration.h>

class LuPipPbp;
class LuInputSource;
class LuKvmSwitch;

/// Keyboard and mouse follow the pointer across two computers in one picture.
///
/// The monitor carries this object so that panels and scripts find it; without the feature it stays inactive:
/// it sends nothing to the monitor, keeps no setting and reports no event.
class LuSmartKvmBasic : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool smartKvmBasicEnable READ smartKvmBasicEnable CONSTANT)

public:
    explicit LuSmartKvmBasic(LuMonitorModel* model, LuPipPbp* pipPbp, LuInputSource* inputSource,
                             LuKvmSwitch* kvmSwitch);
    ~LuSmartKvmBasic() override;

    bool smartKvmBasicEnable() const { return false; }

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
};
