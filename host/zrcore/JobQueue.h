// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "zrcore/ClockReading.h"
#include "zrcore/ContextRegistry.h"

#include "ZrCore/ZrDispatch.h"

#include <QString>

#include <array>
#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <tuple>
#include <unordered_set>
#include <vector>

class QObject;

namespace zr {

/// Where a job waits. Timed jobs wait by what they go by.
enum class Lane {
    Front,
    Back,
    Duration,
    Wall,
    Background, ///< By duration, on a stopped clock only where the clock moves background jobs.
};
inline constexpr std::size_t LaneCount = 5;

/// One job and where it waits.
struct QueuedJob
{
    QObject* context = nullptr;
    QString key;
    std::function<void()> run;
    Lane lane = Lane::Back;
    bool background = false;
    qint64 due = 0;     ///< Monotonic ns, or ms since the epoch in Lane::Wall; 0 in the lanes.
    quint64 number = 0; ///< Order of posting, and of falling due.
    const char* contextClass = nullptr; ///< Static text of the meta-object.
    int generationsAsked = 0;           ///< Above 0: a person asked for it; see Asker.h.
};

/// The jobs of one ZrDispatch, apart from the thread that runs them.
class JobQueue final : public ContextListener, public std::enable_shared_from_this<JobQueue>
{
public:
    /// @p wakeHook is called without locks when there may be something to do, besides the wake of the own
    /// thread.
    explicit JobQueue(QString name, std::function<void()> wakeHook = {}, QString group = {});

    /// @p job has its context, key, function, lane, background mark and due time.
    void post(QueuedJob job, bool unique);
    bool has(QObject* context, const QString& key) const;
    bool isRunning(QObject* context, const QString& key) const;
    void remove(QObject* context, const QString& key, bool waitForRunning);
    void close();
    /// See ZrDispatch::retire(); @p ended is called without locks, on whichever thread ends last.
    void retire(std::function<void()> ended);
    bool waitForEnd(qint64 timeoutMs) const;
    /// Drops what waits, and goes on.
    void drop();
    void contextGone(QObject* context) override;
    QList<ZrDispatch::Waiting> waiting() const;
    const QString& name() const { return m_name; }
    const QString& group() const { return m_group; }

    /// Runs jobs until the queue is closed.
    void runThread();
    /// Moves what is due and runs one job. False if none was ready, or one runs already (a nested event
    /// loop).
    bool runOne();
    /// Milliseconds of real time until something may be due: 0 for now, none for nothing to wait for.
    std::optional<qint64> msUntilReady() const;

    /// Looks at the clock anew.
    void wake();
    /// ZrClock::pause() of the running job.
    void pause(qint64 ns);
    /// The monotonic time at which the next timed job or pause is due on the stopped clock @p now.
    std::optional<qint64> nextDueNs(const ClockReading& now) const;

    /// See ZrIdle.
    bool isAtRest() const;
    /// Grows with everything that happens here, background jobs aside.
    quint64 activity() const;

    /// The queue whose job runs on the calling thread, or null.
    static JobQueue* current();

private:
    using Slot = std::pair<qint64, quint64>;
    using Jobs = std::map<Slot, std::unique_ptr<QueuedJob>>;
    using Dropped = std::vector<std::unique_ptr<QueuedJob>>;
    /// Context, key and number: the jobs of one context and key lie beside each other.
    using Identity = std::tuple<const QObject*, QString, quint64>;
    using Index = std::map<Identity, QueuedJob*>;
    struct Running
    {
        const QueuedJob* job = nullptr;
        std::thread::id thread;
        bool contextGone = false;
        std::optional<qint64> pausedUntil;
    };

    Jobs& jobs(Lane lane) { return m_jobs[static_cast<std::size_t>(lane)]; }
    const Jobs& jobs(Lane lane) const { return m_jobs[static_cast<std::size_t>(lane)]; }
    void insert(std::unique_ptr<QueuedJob> job);
    std::unique_ptr<QueuedJob> take(const QueuedJob* job);
    Dropped takeAll(const QObject* context, const QString& key);
    Dropped takeEverything();
    void moveDue(const ClockReading& now);
    bool runNext(std::unique_lock<std::mutex>& lock);
    std::optional<std::chrono::nanoseconds> delay(const ClockReading& now) const;
    bool isDue(Lane lane, const ClockReading& now) const;
    bool pauseIsOver(qint64 until, const ClockReading& now) const;
    void waitForJob(std::unique_lock<std::mutex>& lock, const QueuedJob* job);
    void changed();

    const QString m_name;
    const QString m_group;
    const std::function<void()> m_wakeHook;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_condition;
    std::array<Jobs, LaneCount> m_jobs;
    Index m_index;
    std::unordered_set<QObject*> m_contexts;
    Running m_running;
    quint64 m_number = 0;
    quint64 m_activity = 0;
    quint64 m_finished = 0;
    bool m_closed = false;
    std::function<void()> m_ended; ///< To call when the running job is the last.
};

} // namespace zr
