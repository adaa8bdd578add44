// SPDX-License-Identifier: Apache-2.0
#include "LuDaisyChain.h"

LuDaisyChain::LuDaisyChain(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuDaisyChain::~LuDaisyChain() = default;

void LuDaisyChain::readSchema(const QByteArray&) {}

LuSyncTasks* LuDaisyChain::syncPeriodically()
{
    return nullptr;
}
