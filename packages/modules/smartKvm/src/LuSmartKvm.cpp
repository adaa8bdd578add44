// SPDX-License-Identifier: Apache-2.0
#include "LuSmartKvm.h"

LuSmartKvm::LuSmartKvm(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuSmartKvm::~LuSmartKvm() = default;

void LuSmartKvm::readSchema(const QByteArray&) {}

LuSyncTasks* LuSmartKvm::syncPeriodically()
{
    return nullptr;
}
