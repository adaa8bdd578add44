// SPDX-License-Identifier: Apache-2.0
#include "LuHidpi.h"

LuHidpi::LuHidpi(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuHidpi::~LuHidpi() = default;

void LuHidpi::readSchema(const QByteArray&) {}

LuSyncTasks* LuHidpi::syncPeriodically()
{
    return nullptr;
}
