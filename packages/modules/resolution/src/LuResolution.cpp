// SPDX-License-Identifier: Apache-2.0
#include "LuResolution.h"

LuResolution::LuResolution(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuResolution::~LuResolution() = default;

void LuResolution::readSchema(const QByteArray&) {}

LuSyncTasks* LuResolution::syncPeriodically()
{
    return nullptr;
}
