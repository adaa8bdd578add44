// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the command line asks for.
struct Options
{
    bool headless = false;
    bool hidden = false;
    bool simulate = false;
    QString simulatedMonitors;
    bool fastTiming = false;
    std::optional<bool> nativeServices;
    QString controlPath;
    QString configDirectory;
    QString dataDirectory;
    int syncPeriodMs = 2000;
    std::optional<bool> restore;
    bool autoSync = true;
    bool loadSettings = true;
    QString stateFile;
    QString schemaDirectory;
    QString environmentFile;
    QString screenshotFile;
    QString theme;
    QString page;
};

/// What reading the command line came to.
struct ParsedOptions
{
    enum class Outcome {
        Run,
        ShowAndEnd, ///< text goes to standard output: help or version.
        Refuse,     ///< text goes to standard error: what was wrong.
    };
    Outcome outcome = Outcome::Run;
    Options options;
    QString text;
};

/// Reads the program's arguments, the first of which is its name. Needs no application object.
ParsedOptions parseOptions(const QStringList& arguments);
