// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QStandardPaths>
#include <QString>

namespace control {

/// Where the control socket is by itself: "lumen-desk/control.sock" in the user's runtime directory.
inline QString defaultSocketPath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation))
        .filePath(QStringLiteral("lumen-desk/control.sock"));
}

} // namespace control
