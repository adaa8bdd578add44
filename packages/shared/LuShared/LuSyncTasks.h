// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

/// The read-back steps of one module for one period.
///
/// A module builds the list in syncPeriodically(); the sync engine takes the steps out and runs them in
/// order, one at a time, on the model's queue. The list belongs to whoever called syncPeriodically().
class LUSHARED_EXPORT LuSyncTasks : public QObject
{
    Q_OBJECT

public:
    /// @param name class name of the module, as in the log.
    explicit LuSyncTasks(const QString& name);
    ~LuSyncTasks() override;

    QString name() const { return m_name; }

    /// Appends one step.
    void addTask(std::function<void()> task);

    /// Called from inside a running step: runs @p task to its end before returning, so that the step may read
    /// what the sub-task left in the step's locals.
    void addSubTask(std::function<void()> task);

    /// Number of steps.
    int count() const { return int(m_tasks.size()); }

    /// Hands the steps over; the list is empty afterwards.
    std::vector<std::function<void()>> takeTasks();

private:
    const QString m_name;
    std::vector<std::function<void()>> m_tasks;
};
