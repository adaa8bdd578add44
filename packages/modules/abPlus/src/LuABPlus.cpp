// SPDX-License-Identifier: Apache-2.0
#include "LuABPlus.h"

LuABPlus::LuABPlus(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuABPlus::~LuABPlus() = default;

void LuABPlus::readSchema(const QByteArray&) {}

LuSyncTasks* LuABPlus::syncPeriodically()
{
    return nullptr;
}
