// SPDX-License-Identifier: Apache-2.0
#include "LuPartition.h"

LuPartition::LuPartition(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuPartition::~LuPartition() = default;

void LuPartition::readSchema(const QByteArray&) {}

LuSyncTasks* LuPartition::syncPeriodically()
{
    return nullptr;
}
