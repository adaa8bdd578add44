// SPDX-License-Identifier: Apache-2.0
#include "LuFlow.h"

LuFlow::LuFlow(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuFlow::~LuFlow() = default;

void LuFlow::readSchema(const QByteArray&) {}

LuSyncTasks* LuFlow::syncPeriodically()
{
    return nullptr;
}
