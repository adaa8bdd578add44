// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>

#include <QtQml/qqmlregistration.h>

/// The daisy-chain switch of DisplayPort.
///
/// The monitor carries this object so that panels and scripts find it; without the feature it stays inactive:
/// it sends nothing to the monitor, keeps no setting and reports no event.
class LuDaisyChain : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool daisyChainEnable READ daisyChainEnable CONSTANT)

public:
    explicit LuDaisyChain(LuMonitorModel* model);
    ~LuDaisyChain() override;

    bool daisyChainEnable() const { return false; }

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
};
