// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the user typed, options taken apart from arguments.
struct CommandLine
{
    QStringList arguments;
    std::optional<QString> monitor;
    QString control;
    int timeoutMs = 30'000; ///< 0: without limit.
    bool json = false;
    bool help = false;
    bool version = false;
    QString error; ///< What is wrong; empty if nothing is.

    /// Options may stand anywhere; "--" ends them. A negative number is no option.
    static CommandLine parse(const QStringList& words);
};
