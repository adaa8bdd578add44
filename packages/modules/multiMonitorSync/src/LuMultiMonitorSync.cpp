// SPDX-License-Identifier: Apache-2.0
#include "LuMultiMonitorSync.h"

LuMultiMonitorSync::LuMultiMonitorSync(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuMultiMonitorSync::~LuMultiMonitorSync() = default;

void LuMultiMonitorSync::readSchema(const QByteArray&) {}

LuSyncTasks* LuMultiMonitorSync::syncPeriodically()
{
    return nullptr;
}
