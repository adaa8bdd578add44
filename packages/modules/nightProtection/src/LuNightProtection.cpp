// SPDX-License-Identifier: Apache-2.0
#include "LuNightProtection.h"

LuNightProtection::LuNightProtection(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuNightProtection::~LuNightProtection() = default;

void LuNightProtection::readSchema(const QByteArray&) {}

LuSyncTasks* LuNightProtection::syncPeriodically()
{
    return nullptr;
}
