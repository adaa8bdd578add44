// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"
#include "ZrCore/ZrDispatch.h"

#include <QList>
#include <QSharedPointer>
#include <QString>

#include <functional>

class QObject;

/// Tells when the program has come to rest.
///
/// At rest no queue has a job that waits or runs (background jobs and timed ones that are not due aside; a
/// job that pauses on a stopped clock counts as resting, and so does what waits behind it), the main thread's
/// posted events have run empty, and a second look finds that nothing has happened since the first. The main
/// queue always counts.
class ZRCORE_EXPORT ZrIdle
{
public:
    ZrIdle() = delete;

    /// Blocks until @p queues are at rest, or all queues of the process where the list is empty. Returns
    /// false when
    /// @p timeoutMs milliseconds of real time have passed before; under 0 waits without limit. On the main
    /// thread it runs the event loop meanwhile. Inside a job, the job's own queue is left out.
    static bool wait(const QList<QSharedPointer<ZrDispatch>>& queues, qint64 timeoutMs);
    /// As above, for all queues.
    static bool wait(qint64 timeoutMs);

    /// As below, for the queues that belong to @p group and those that belong to no group: what another group
    /// does, or where it hangs, is not awaited.
    static void notifyGroup(const QString& group, QObject* context, std::function<void()> done);

    /// A job that waits, with the name of its queue.
    struct Waiting
    {
        QString queue;
        ZrDispatch::Waiting job;
    };
    /// What waits in the queues that notifyGroup() looks at, jobs of the future and of the background
    /// included: first those of the group, then those that belong to no group.
    static QList<Waiting> waitingOf(const QString& group);

    /// Calls @p done once on the main thread when @p queues (all where empty) are at rest, unless @p context
    /// is gone by then. Returns at once.
    static void notify(const QList<QSharedPointer<ZrDispatch>>& queues, QObject* context,
                       std::function<void()> done);
};
