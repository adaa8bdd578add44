// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrClock.h"

#include "zrcore/ClockReading.h"
#include "zrcore/IdleHub.h"
#include "zrcore/JobQueue.h"
#include "zrcore/MainQueue.h"
#include "zrcore/QueueList.h"

#include <QDebug>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <list>
#include <mutex>
#include <thread>

namespace {

constexpr qint64 LastWallMs = 9'000'000'000'000;

std::atomic<zr::WallSource> g_wallSource = nullptr;

qint64 steadyNs()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

qint64 systemWallMs()
{
    if (const zr::WallSource source = g_wallSource)
        return source();
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::floor<std::chrono::milliseconds>(now).count();
}

// A pause on a thread that belongs to no queue.
struct Sleeper
{
    qint64 until;
    std::thread::id thread;
};

} // namespace

class ZrClock::Private
{
public:
    zr::ClockReading read() const;
    bool step(qint64 target, const zr::JobQueue* left);
    void waitForSleepers();
    void pauseHere(qint64 ns);
    void changed();

    mutable std::mutex mutex;
    std::condition_variable condition;
    bool stopped = false;
    bool backgroundMoves = false;
    qint64 monotonicNs = 0;       ///< Stopped.
    qint64 wallToMonotonic = 0;   ///< Stopped.
    qint64 steadyToMonotonic = 0; ///< Running.
    std::list<Sleeper> sleepers;
};

// The clock's lock is taken last: under that of a queue, and never around another one.
zr::ClockReading ZrClock::Private::read() const
{
    zr::ClockReading now;
    now.stopped = stopped;
    now.backgroundMoves = backgroundMoves;
    if (stopped) {
        now.monotonicNs = monotonicNs;
        now.wallToMonotonicNs = wallToMonotonic;
        now.wallMs = (monotonicNs - wallToMonotonic) / zr::NsPerMs;
    } else {
        now.monotonicNs = steadyNs() + steadyToMonotonic;
        now.wallMs = systemWallMs();
    }
    return now;
}

zr::ClockReading zr::readClock()
{
    return ZrClock::instance().reading();
}

void zr::setWallSource(WallSource source)
{
    g_wallSource = source;
}

ZrClock::ZrClock() : d(std::make_unique<Private>()) {}

ZrClock::~ZrClock() = default;

ZrClock& ZrClock::instance()
{
    // Never destroyed: queues may be statics of other libraries.
    static auto* const clock = new ZrClock;
    return *clock;
}

zr::ClockReading ZrClock::reading() const
{
    const std::lock_guard lock(d->mutex);
    return d->read();
}

QDateTime ZrClock::now() const
{
    return QDateTime::fromMSecsSinceEpoch(reading().wallMs);
}

qint64 ZrClock::monotonicMs() const
{
    return reading().monotonicNs / zr::NsPerMs;
}

bool ZrClock::isStopped() const
{
    return reading().stopped;
}

void ZrClock::set(const QDateTime& time)
{
    const qint64 ms = time.isValid() ? time.toMSecsSinceEpoch() : -1;
    if (ms < 0 || ms > LastWallMs) {
        qWarning() << "[ZrClock] time refused, invalid or out of range:" << time;
        return;
    }
    {
        const std::lock_guard lock(d->mutex);
        d->monotonicNs = d->read().monotonicNs;
        d->wallToMonotonic = d->monotonicNs - ms * zr::NsPerMs;
        d->stopped = true;
    }
    d->changed();
}

void ZrClock::release()
{
    {
        const std::lock_guard lock(d->mutex);
        if (!d->stopped)
            return;
        d->steadyToMonotonic = d->monotonicNs - steadyNs();
        d->stopped = false;
    }
    d->changed();
}

void ZrClock::setBackgroundMoves(bool moves)
{
    {
        const std::lock_guard lock(d->mutex);
        d->backgroundMoves = moves;
    }
    d->changed();
}

bool ZrClock::backgroundMoves() const
{
    return reading().backgroundMoves;
}

void ZrClock::Private::changed()
{
    condition.notify_all();
    for (const auto& queue : zr::allQueues())
        queue->wake();
    zr::IdleHub::instance().changed();
}

// Moves the clock to the next due time, or to the target if that comes first. False when the target was
// reached.
bool ZrClock::Private::step(qint64 target, const zr::JobQueue* left)
{
    const zr::ClockReading now = ZrClock::instance().reading();
    qint64 next = target;
    bool found = false;
    const auto consider = [&](qint64 due) {
        if (due > next)
            return;
        next = due;
        found = true;
    };
    for (const auto& queue : zr::allQueues()) {
        if (queue.get() == left || (queue == zr::mainJobs() && !zr::hasApplication()))
            continue;
        if (const auto due = queue->nextDueNs(now))
            consider(*due);
    }
    {
        const std::lock_guard lock(mutex);
        for (const Sleeper& sleeper : sleepers) {
            if (sleeper.thread != std::this_thread::get_id())
                consider(sleeper.until);
        }
        monotonicNs = std::max(monotonicNs, next);
    }
    changed();
    return found;
}

void ZrClock::Private::waitForSleepers()
{
    std::unique_lock lock(mutex);
    condition.wait(lock, [this] {
        return std::none_of(sleepers.begin(), sleepers.end(), [this](const Sleeper& sleeper) {
            return sleeper.until <= monotonicNs && sleeper.thread != std::this_thread::get_id();
        });
    });
}

void ZrClock::advance(qint64 ms)
{
    if (!isStopped())
        set(now());
    const zr::JobQueue* const left = zr::JobQueue::current();
    const qint64 target = reading().monotonicNs + zr::clampedNs(ms);
    // What is due already comes first, at the present time.
    bool more = true;
    do {
        d->waitForSleepers();
        // Not at rest means that the application ends.
        if (!zr::IdleHub::instance().wait({}, -1) || !more)
            return;
        more = d->step(target, left);
    } while (isStopped());
}

void ZrClock::Private::pauseHere(qint64 ns)
{
    const bool onMain = zr::onMainThread();
    std::unique_lock lock(mutex);
    const qint64 until = read().monotonicNs + ns;
    const auto sleeper = sleepers.insert(sleepers.end(), Sleeper{until, std::this_thread::get_id()});
    for (zr::ClockReading now = read(); now.monotonicNs < until; now = read()) {
        const qint64 remaining = until - now.monotonicNs;
        if (onMain) {
            lock.unlock();
            zr::processMainEvents(now.stopped ? -1 : remaining / zr::NsPerMs + 1);
            lock.lock();
        } else if (now.stopped) {
            condition.wait(lock);
        } else {
            condition.wait_until(lock,
                                 std::chrono::steady_clock::now() + std::chrono::nanoseconds(remaining));
        }
    }
    sleepers.erase(sleeper);
    lock.unlock();
    condition.notify_all();
}

void ZrClock::pause(qint64 ms)
{
    if (ms <= 0)
        return;
    if (zr::JobQueue* const queue = zr::JobQueue::current())
        queue->pause(zr::clampedNs(ms));
    else
        d->pauseHere(zr::clampedNs(ms));
}
