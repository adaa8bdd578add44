// SPDX-License-Identifier: Apache-2.0
#include "LuKvmSwitch.h"

LuKvmSwitch::LuKvmSwitch(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuKvmSwitch::~LuKvmSwitch() = default;

void LuKvmSwitch::readSchema(const QByteArray&) {}

LuSyncTasks* LuKvmSwitch::syncPeriodically()
{
    return nullptr;
}
