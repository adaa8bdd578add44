// SPDX-License-Identifier: Apache-2.0
#include "LuPipPbp.h"

LuPipPbp::LuPipPbp(LuMonitorModel* model, LuInputSource*) : LuModelModuleInterface(model) {}

LuPipPbp::~LuPipPbp() = default;

void LuPipPbp::readSchema(const QByteArray&) {}

LuSyncTasks* LuPipPbp::syncPeriodically()
{
    return nullptr;
}
