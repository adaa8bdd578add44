// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>

#include <QtQml/qqmlregistration.h>

/// Searches the web for what is selected.
///
/// The monitor carries this object so that panels and scripts find it; without the feature it stays inactive:
/// it sends nothing to the monitor, keeps no setting and reports no event.
class LuDirectSearch : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")

public:
    explicit LuDirectSearch(LuMonitorModel* model);
    ~LuDirectSearch() override;

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
};
