// SPDX-License-Identifier: Apache-2.0
#include "LuSmartKvmBasic.h"

LuSmartKvmBasic::LuSmartKvmBasic(LuMonitorModel* model, LuPipPbp*, LuInputSource*, LuKvmSwitch*)
    : LuModelModuleInterface(model)
{
}

LuSmartKvmBasic::~LuSmartKvmBasic() = default;

void LuSmartKvmBasic::readSchema(const QByteArray&) {}

LuSyncTasks* LuSmartKvmBasic::syncPeriodically()
{
    return nullptr;
}
