// SPDX-License-Identifier: Apache-2.0
#include "LuEcoPrivacy.h"

LuEcoPrivacy::LuEcoPrivacy(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuEcoPrivacy::~LuEcoPrivacy() = default;

void LuEcoPrivacy::readSchema(const QByteArray&) {}

LuSyncTasks* LuEcoPrivacy::syncPeriodically()
{
    return nullptr;
}
