// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QDateTime>

#include <memory>

namespace zr {
struct ClockReading;
ClockReading readClock();
} // namespace zr

/// The program's clock: the system's until it is set, from then on one that stands still and is moved by
/// hand.
///
/// Queues (ZrDispatch), schedules and pauses go by it, so that a test or a script reaches next Monday without
/// waiting for it. All operations are thread safe.
class ZRCORE_EXPORT ZrClock
{
public:
    static ZrClock& instance();

    /// The present local time, in milliseconds' resolution.
    QDateTime now() const;
    /// Milliseconds since some fixed point: never goes back, and does not see changes of the wall time.
    qint64 monotonicMs() const;
    bool isStopped() const;

    /// Sets the wall time. The first call stops the clock. A later one jumps as a changed system clock does:
    /// jobs at a wall-clock time fall due by the new time, timers by duration keep what remains of them. An
    /// invalid time is refused with a warning. Does not wait for the jobs that have fallen due.
    void set(const QDateTime& time);

    /// Moves wall time and timers together by @p ms milliseconds (under 0 counts as 0) and runs what falls
    /// due, in the order of the due times, each job at its own time, and lets pauses end in the same order.
    /// Returns when every queue is idle. A running clock is stopped first. On the main thread it runs the
    /// event loop meanwhile. Inside a job it moves the other queues only.
    void advance(qint64 ms);

    /// The pause inside a job. Sleeps while the clock runs, and waits to be advanced while it is stopped.
    /// Ends at once when the job's queue is closed or the job's context is being destroyed. On the main
    /// thread outside a queue thread it runs the event loop while it waits.
    void pause(qint64 ms);

    /// Back to the system's time. Timers keep what remains of them; monotonicMs() does not go back.
    void release();

    /// Whether timed background jobs fall due on a stopped clock. False at first: the periodic read-back
    /// stands still.
    void setBackgroundMoves(bool moves);
    bool backgroundMoves() const;

private:
    ZrClock();
    ~ZrClock();
    Q_DISABLE_COPY_MOVE(ZrClock)
    friend zr::ClockReading zr::readClock();
    zr::ClockReading reading() const;
    class Private;
    std::unique_ptr<Private> d;
};
