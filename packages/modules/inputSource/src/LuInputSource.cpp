// SPDX-License-Identifier: Apache-2.0
#include "LuInputSource.h"

LuInputSource::LuInputSource(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuInputSource::~LuInputSource() = default;

void LuInputSource::readSchema(const QByteArray&) {}

LuSyncTasks* LuInputSource::syncPeriodically()
{
    return nullptr;
}
