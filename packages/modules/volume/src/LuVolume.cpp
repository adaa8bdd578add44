// SPDX-License-Identifier: Apache-2.0
#include "LuVolume.h"

LuVolume::LuVolume(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuVolume::~LuVolume() = default;

void LuVolume::readSchema(const QByteArray&) {}

LuSyncTasks* LuVolume::syncPeriodically()
{
    return nullptr;
}
