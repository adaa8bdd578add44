// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <span>

/// One command of the client and the method of the protocol that it calls.
struct Command
{
    const char* words; ///< As typed, such as "sim set".
    const char* method;
    /// Its parameters in order, separated by blanks. NAME:KIND with the kinds "text", "json" (JSON where it
    /// is JSON, else a string), "object" and "list"; "?" behind it: may be left out; "*" behind it: takes all
    /// that follow.
    const char* parameters;
    bool takesMonitor; ///< -m becomes its parameter "monitor".
    const char* help;
};

std::span<const Command> commands();

/// The command whose words stand at the front of @p arguments; null if there is none. The words are taken
/// off.
const Command* takeCommand(QStringList* arguments);

/// Makes the request's parameters out of the arguments: in order, or as NAME=VALUE.
/// @return false with the reason in @p error.
bool readArguments(const Command& command, const QStringList& arguments, QJsonObject* parameters,
                   QString* error);

/// "sim set CODE VALUE [WINDOW]", for people.
QString usageOf(const Command& command);
