// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>

#include <QtQml/qqmlregistration.h>

/// Dims the monitor while nobody sits in front of it.
///
/// The monitor carries this object so that panels and scripts find it; without the feature it stays inactive:
/// it sends nothing to the monitor, keeps no setting and reports no event.
class LuEcoPrivacy : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool ecoPrivacyEnable READ ecoPrivacyEnable CONSTANT)

public:
    explicit LuEcoPrivacy(LuMonitorModel* model);
    ~LuEcoPrivacy() override;

    bool ecoPrivacyEnable() const { return false; }

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
};
