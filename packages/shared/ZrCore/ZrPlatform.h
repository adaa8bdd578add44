// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QString>

/// Facts about the computer. Thread safe.
class ZRCORE_EXPORT ZrPlatform
{
public:
    ZrPlatform() = delete;

    /// The computer's model identifier, such as "20XW0026GE"; empty where the system does not tell.
    static QString deviceModel();
    /// Replaces the answer of deviceModel(), for simulated services; a null string goes back to the system's.
    static void setDeviceModel(const QString& model);
};
