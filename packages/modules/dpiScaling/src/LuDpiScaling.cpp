// SPDX-License-Identifier: Apache-2.0
#include "LuDpiScaling.h"

LuDpiScaling::LuDpiScaling(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuDpiScaling::~LuDpiScaling() = default;

void LuDpiScaling::readSchema(const QByteArray&) {}

LuSyncTasks* LuDpiScaling::syncPeriodically()
{
    return nullptr;
}
