// SPDX-License-Identifier: Apache-2.0
#include "LuDualView.h"

LuDualView::LuDualView(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuDualView::~LuDualView() = default;

void LuDualView::readSchema(const QByteArray&) {}

LuSyncTasks* LuDualView::syncPeriodically()
{
    return nullptr;
}
