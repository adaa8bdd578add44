// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuMonitorModel.h>

#include <QString>

/// Settings key of a value that belongs to the colour mode: "Cinema/displayBrightness". On a monitor that is
/// not supported, and while no mode is current, the first part is "Unsupported". Any thread.
inline QString colorModeSettingKey(const LuMonitorModel* model, const QString& name)
{
    const LuVCPNode* node = model->isModelSupported() ? model->colorMode() : nullptr;
    return (node ? node->displayName() : QStringLiteral("Unsupported")) + QLatin1Char('/') + name;
}
