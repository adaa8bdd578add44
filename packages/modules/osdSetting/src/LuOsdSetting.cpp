// SPDX-License-Identifier: Apache-2.0
#include "LuOsdSetting.h"

LuOsdSetting::LuOsdSetting(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuOsdSetting::~LuOsdSetting() = default;

void LuOsdSetting::readSchema(const QByteArray&) {}

LuSyncTasks* LuOsdSetting::syncPeriodically()
{
    return nullptr;
}
