// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QString>
#include <QStringList>
#include <QVariant>

/// Configuration of the host: switches and addresses from JSON files laid over each other.
///
/// The lowest layer is carried inside this library; the host adds the installed file, the user's and that of
/// the command line, and a later layer wins key by key. A key is a dotted name ("using.flow"), written in a
/// file so, or as nested objects, or mixed. An object whose keys are all among "default", "linux", "windows"
/// and "osx" is a choice by device class and a value as a whole. Thread safe.
class ZRCORE_EXPORT ZrEnvironment
{
public:
    ZrEnvironment() = delete;

    /// The value of @p key as its file has it (a choice as a map), invalid if there is none.
    static QVariant var(const QString& key);
    /// As var(), but of a choice the value for the current device class, else its "default"; invalid without
    /// either.
    static QVariant varDeviceChoice(const QString& key);

    /// Lays @p file over what is there. False for a file that cannot be read or is no JSON object, with the
    /// reason (file, line) in @p error if given; then no value of it is taken and the other layers hold.
    static bool addLayer(const QString& file, QString* error = nullptr);
    /// Takes all layers off again, down to the built-in one.
    static void clear();
    /// All keys that have a value, sorted.
    static QStringList keys();
    /// "linux", "windows" or "osx".
    static QString deviceClass();
};
