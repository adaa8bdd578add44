// SPDX-License-Identifier: Apache-2.0
#include "LuColorWeakness.h"

LuColorWeakness::LuColorWeakness(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuColorWeakness::~LuColorWeakness() = default;

void LuColorWeakness::readSchema(const QByteArray&) {}

LuSyncTasks* LuColorWeakness::syncPeriodically()
{
    return nullptr;
}
