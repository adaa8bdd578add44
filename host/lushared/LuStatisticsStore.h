// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QSharedPointer>
#include <QString>

#include <memory>

class MonitorInfo;

/// Keeps the statistics, the ledger of writes and the learnt waits of each monitor from run to run: one file
/// a monitor in the data folder, written as a whole.
///
/// A file that is damaged is kept aside under another name, reported, and begun anew. GUI thread; the disk is
/// written on a thread of its own.
class LUSHARED_EXPORT LuStatisticsStore
{
public:
    static LuStatisticsStore& instance();
    ~LuStatisticsStore();

    /// Opens the store in the folder @p directory. Until then, and with an empty name, nothing is kept.
    void open(const QString& directory);

    /// Gives the monitor what was kept of it, before its first transfer, and keeps it from now on: now and
    /// then, and when it is let go.
    void attach(const QSharedPointer<MonitorInfo>& info);
    /// Keeps the monitor's numbers for the last time.
    void letGo(const QSharedPointer<MonitorInfo>& info);

    /// Writes what has changed. flush() also waits until it is on the disk.
    void save();
    void flush();

    /// The file of a monitor's id; empty without a folder.
    QString fileOf(const QString& id) const;

private:
    LuStatisticsStore();
    struct Private;
    std::unique_ptr<Private> d;
};
