// SPDX-License-Identifier: Apache-2.0
#include "LuApplicationMode.h"

LuApplicationMode::LuApplicationMode(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuApplicationMode::~LuApplicationMode() = default;

void LuApplicationMode::readSchema(const QByteArray&) {}

LuSyncTasks* LuApplicationMode::syncPeriodically()
{
    return nullptr;
}
