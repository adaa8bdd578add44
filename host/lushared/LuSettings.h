// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

/// The settings store: the application's default QSettings (INI form) with atomic, asynchronous writes.
///
/// A value is visible to every reader of the default QSettings at once and reaches the disk shortly
/// afterwards, on a thread of its own, so that no caller waits for the disk. Any thread.
class LUSHARED_EXPORT LuSettings
{
public:
    static LuSettings& instance();
    ~LuSettings();

    /// Opens the store below @p directory (empty: the platform's configuration folder). A damaged file is
    /// kept aside under another name, reported, and replaced by defaults. Called once, before anything reads
    /// a setting.
    /// @return false if the folder can be neither made nor written; the message is in the log, reading still
    /// works.
    bool open(const QString& directory = {});

    QVariant value(const QString& key, const QVariant& defaultValue = {}) const;
    void setValue(const QString& key, const QVariant& value);
    bool contains(const QString& key) const;
    void remove(const QString& key);

    /// Every stored key, with all its sections.
    QStringList allKeys() const;

    /// Writes what waits and returns once it is on the disk. Blocks; false with a message in the log on
    /// failure.
    bool flush();

    /// Path of the file.
    QString fileName() const;

private:
    LuSettings();
    struct Private;
    std::unique_ptr<Private> d;
};
