// SPDX-License-Identifier: Apache-2.0
#include "LuBackLight.h"

LuBackLight::LuBackLight(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuBackLight::~LuBackLight() = default;

void LuBackLight::readSchema(const QByteArray&) {}

LuSyncTasks* LuBackLight::syncPeriodically()
{
    return nullptr;
}
