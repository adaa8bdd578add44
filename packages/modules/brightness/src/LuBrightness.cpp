// SPDX-License-Identifier: Apache-2.0
#include "LuBrightness.h"

LuBrightness::LuBrightness(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuBrightness::~LuBrightness() = default;

void LuBrightness::readSchema(const QByteArray&) {}

LuSyncTasks* LuBrightness::syncPeriodically()
{
    return nullptr;
}
