// SPDX-License-Identifier: Apache-2.0
#include "LuDirectSearch.h"

LuDirectSearch::LuDirectSearch(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuDirectSearch::~LuDirectSearch() = default;

void LuDirectSearch::readSchema(const QByteArray&) {}

LuSyncTasks* LuDirectSearch::syncPeriodically()
{
    return nullptr;
}
