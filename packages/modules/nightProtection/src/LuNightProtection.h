// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>

#include <QtQml/qqmlregistration.h>

/// Softens the picture in a dark room.
///
/// The monitor carries this object so that panels and scripts find it; without the feature it stays inactive:
/// it sends nothing to the monitor, keeps no setting and reports no event.
class LuNightProtection : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool nightProtectionEnable READ nightProtectionEnable CONSTANT)

public:
    explicit LuNightProtection(LuMonitorModel* model);
    ~LuNightProtection() override;

    bool nightProtectionEnable() const { return false; }

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
};
