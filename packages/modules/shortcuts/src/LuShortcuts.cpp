// SPDX-License-Identifier: Apache-2.0
#include "LuShortcuts.h"

LuShortcuts::LuShortcuts(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuShortcuts::~LuShortcuts() = default;

void LuShortcuts::readSchema(const QByteArray&) {}

LuSyncTasks* LuShortcuts::syncPeriodically()
{
    return nullptr;
}
