// SPDX-License-Identifier: Apache-2.0
#include "LuLowBlueLight.h"

LuLowBlueLight::LuLowBlueLight(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuLowBlueLight::~LuLowBlueLight() = default;

void LuLowBlueLight::readSchema(const QByteArray&) {}

LuSyncTasks* LuLowBlueLight::syncPeriodically()
{
    return nullptr;
}
