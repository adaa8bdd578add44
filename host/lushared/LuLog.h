// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QList>
#include <QString>

#include <atomic>

/// One line of the log.
struct LUSHARED_EXPORT LuLogLine
{
    quint64 seq = 0;
    QString level; ///< "debug", "info", "warning", "critical" or "fatal".
    QString text;
};

/// Takes Qt's messages: writes them to standard error and keeps the last ones for the control socket. Any
/// thread.
class LUSHARED_EXPORT LuLog
{
public:
    LuLog() = delete;

    static constexpr int Capacity = 2000;

    /// Installs the message handler, once.
    static void install();

    /// The kept lines with a seq greater than @p since, oldest first.
    static QList<LuLogLine> lines(quint64 since = 0);

    /// Warnings that came from QML files since the start.
    static QList<QString> qmlWarnings();
};
