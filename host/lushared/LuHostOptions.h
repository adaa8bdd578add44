// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QString>

#include <optional>

/// What the command line decides for all models. Set once by the application before the first model exists.
struct LUSHARED_EXPORT LuHostOptions
{
    bool autoSync = true;        ///< Hardware is read at construction and periodically.
    bool loadSettings = true;    ///< Modules load their settings at construction.
    std::optional<bool> restore; ///< Apply stored values at launch; unset: the user's setting.
    int syncPeriodMs = 2000;     ///< Pause between two rounds of the read-back, in ms.
    bool launching = true;       ///< Models made now belong to the program's launch: values may be restored.
    QString schemaDirectory;     ///< Schema files here stand for the built-in ones of the same name.

    static LuHostOptions& instance();
};
