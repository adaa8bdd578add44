// SPDX-License-Identifier: Apache-2.0
#include "LuABSetting.h"

LuABSetting::LuABSetting(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuABSetting::~LuABSetting() = default;

void LuABSetting::readSchema(const QByteArray&) {}

LuSyncTasks* LuABSetting::syncPeriodically()
{
    return nullptr;
}
