// SPDX-License-Identifier: Apache-2.0
#include "zrcore/JobQueue.h"

#include "zrcore/Asker.h"
#include "zrcore/IdleHub.h"
#include "zrcore/MainQueue.h"
#include "ZrCore/ZrQueueGate.h"

#include <QDateTime>
#include <QMetaObject>
#include <QObject>

#include <algorithm>
#include <chrono>

namespace zr {

namespace {

// A change of the system clock shows no later than this: only while a job waits for a wall-clock time.
constexpr qint64 WallCheckMs = 30'000;
constexpr std::array TimedLanes{Lane::Duration, Lane::Wall, Lane::Background};

thread_local JobQueue* t_current = nullptr;

qint64 dueNs(Lane lane, qint64 due, const ClockReading& now)
{
    if (lane != Lane::Wall)
        return due;
    return now.monotonicNs + (std::clamp(due - now.wallMs, -LongestMs, LongestMs)) * NsPerMs;
}

} // namespace

JobQueue::JobQueue(QString name, std::function<void()> wakeHook, QString group)
    : m_name(std::move(name)), m_group(std::move(group)), m_wakeHook(std::move(wakeHook))
{
}

JobQueue* JobQueue::current()
{
    return t_current;
}

void JobQueue::insert(std::unique_ptr<QueuedJob> job)
{
    QueuedJob* plain = job.get();
    plain->number = ++m_number;
    m_index.emplace(Identity(plain->context, plain->key, plain->number), plain);
    jobs(plain->lane).emplace(Slot(plain->due, plain->number), std::move(job));
}

std::unique_ptr<QueuedJob> JobQueue::take(const QueuedJob* job)
{
    m_index.erase(Identity(job->context, job->key, job->number));
    auto node = jobs(job->lane).extract(Slot(job->due, job->number));
    return std::move(node.mapped());
}

JobQueue::Dropped JobQueue::takeAll(const QObject* context, const QString& key)
{
    std::vector<const QueuedJob*> found;
    for (auto it = m_index.lower_bound(Identity(context, key, 0)); it != m_index.end(); ++it) {
        if (it->second->context != context || it->second->key != key)
            break;
        found.push_back(it->second);
    }
    Dropped dropped;
    for (const QueuedJob* job : found)
        dropped.push_back(take(job));
    return dropped;
}

JobQueue::Dropped JobQueue::takeEverything()
{
    Dropped dropped;
    m_index.clear();
    for (Jobs& lane : m_jobs) {
        for (auto& entry : lane)
            dropped.push_back(std::move(entry.second));
        lane.clear();
    }
    return dropped;
}

void JobQueue::post(QueuedJob job, bool unique)
{
    QObject* const context = job.context;
    const bool background = job.background;
    if (context)
        job.contextClass = context->metaObject()->className();
    job.generationsAsked = generationsAsked();
    auto owned = std::make_unique<QueuedJob>(std::move(job));
    Dropped dropped;
    bool watch = false;
    {
        const std::lock_guard lock(m_mutex);
        if (m_closed)
            return;
        watch = context && m_contexts.insert(context).second;
    }
    // Before the job can be seen: from then on the context may end at any time.
    if (watch)
        watchContext(context, weak_from_this());
    {
        const std::lock_guard lock(m_mutex);
        if (m_closed)
            return;
        if (unique)
            dropped = takeAll(context, owned->key);
        insert(std::move(owned));
        if (!background)
            ++m_activity;
    }
    m_condition.notify_all();
    if (m_wakeHook)
        m_wakeHook();
    if (!dropped.empty())
        changed();
}

bool JobQueue::has(QObject* context, const QString& key) const
{
    const std::lock_guard lock(m_mutex);
    const auto it = m_index.lower_bound(Identity(context, key, 0));
    return it != m_index.end() && it->second->context == context && it->second->key == key;
}

bool JobQueue::isRunning(QObject* context, const QString& key) const
{
    const std::lock_guard lock(m_mutex);
    return m_running.job && m_running.job->context == context && m_running.job->key == key;
}

void JobQueue::remove(QObject* context, const QString& key, bool waitForRunning)
{
    Dropped dropped;
    {
        std::unique_lock lock(m_mutex);
        dropped = takeAll(context, key);
        const QueuedJob* running = m_running.job;
        if (waitForRunning && running && running->context == context && running->key == key)
            waitForJob(lock, running);
    }
    changed();
}

void JobQueue::waitForJob(std::unique_lock<std::mutex>& lock, const QueuedJob* job)
{
    if (m_running.job != job || m_running.thread == std::this_thread::get_id())
        return;
    const quint64 finished = m_finished;
    m_condition.wait(lock, [&] { return m_finished != finished; });
}

void JobQueue::close()
{
    Dropped dropped;
    {
        std::unique_lock lock(m_mutex);
        m_closed = true;
        dropped = takeEverything();
        m_contexts.clear();
        m_condition.notify_all();
        if (m_running.job)
            waitForJob(lock, m_running.job);
    }
    forgetListener(weak_from_this());
    changed();
}

void JobQueue::retire(std::function<void()> ended)
{
    Dropped dropped;
    {
        const std::lock_guard lock(m_mutex);
        m_closed = true;
        dropped = takeEverything();
        // Contexts stay known: the job that runs may not lose its own.
        if (m_running.job)
            m_ended = std::exchange(ended, {});
        m_condition.notify_all();
    }
    if (ended)
        ended();
    changed();
}

bool JobQueue::waitForEnd(qint64 timeoutMs) const
{
    std::unique_lock lock(m_mutex);
    return m_condition.wait_for(lock, std::chrono::milliseconds(timeoutMs),
                                [this] { return m_closed && !m_running.job; });
}

void JobQueue::drop()
{
    Dropped dropped;
    {
        const std::lock_guard lock(m_mutex);
        dropped = takeEverything();
    }
    changed();
}

void JobQueue::contextGone(QObject* context)
{
    Dropped dropped;
    {
        std::unique_lock lock(m_mutex);
        m_contexts.erase(context);
        std::vector<const QueuedJob*> found;
        for (const Jobs& lane : m_jobs) {
            for (const auto& entry : lane) {
                if (entry.second->context == context)
                    found.push_back(entry.second.get());
            }
        }
        for (const QueuedJob* job : found)
            dropped.push_back(take(job));
        if (m_running.job && m_running.job->context == context) {
            m_running.contextGone = true;
            m_condition.notify_all();
            waitForJob(lock, m_running.job);
        }
    }
    changed();
}

QList<ZrDispatch::Waiting> JobQueue::waiting() const
{
    QList<ZrDispatch::Waiting> list;
    const std::lock_guard lock(m_mutex);
    const ClockReading now = readClock();
    const auto describe = [](const QueuedJob& job) {
        return ZrDispatch::Waiting{job.key, QString::fromLatin1(job.contextClass), job.background,
                                   std::nullopt};
    };
    for (const Lane lane : {Lane::Front, Lane::Back}) {
        for (const auto& entry : jobs(lane))
            list.append(describe(*entry.second));
    }
    std::map<Slot, const QueuedJob*> timed;
    for (const Lane lane : TimedLanes) {
        for (const auto& entry : jobs(lane))
            timed.emplace(Slot(dueNs(lane, entry.first.first, now), entry.first.second), entry.second.get());
    }
    for (const auto& [slot, job] : timed) {
        ZrDispatch::Waiting entry = describe(*job);
        const qint64 ms =
            job->lane == Lane::Wall ? job->due : now.wallMs + (slot.first - now.monotonicNs) / NsPerMs;
        entry.due = QDateTime::fromMSecsSinceEpoch(ms);
        list.append(entry);
    }
    return list;
}

bool JobQueue::isDue(Lane lane, const ClockReading& now) const
{
    const Jobs& timed = jobs(lane);
    if (timed.empty() || (lane == Lane::Background && now.stopped && !now.backgroundMoves))
        return false;
    return timed.begin()->first.first <= (lane == Lane::Wall ? now.wallMs : now.monotonicNs);
}

void JobQueue::moveDue(const ClockReading& now)
{
    for (;;) {
        const QueuedJob* next = nullptr;
        Slot nextSlot;
        for (const Lane lane : TimedLanes) {
            if (!isDue(lane, now))
                continue;
            const QueuedJob* job = jobs(lane).begin()->second.get();
            const Slot slot(dueNs(lane, job->due, now), job->number);
            if (!next || slot < nextSlot) {
                next = job;
                nextSlot = slot;
            }
        }
        if (!next)
            return;
        auto job = take(next);
        job->lane = Lane::Back;
        job->due = 0;
        insert(std::move(job));
    }
}

bool JobQueue::runNext(std::unique_lock<std::mutex>& lock)
{
    if (m_running.job || m_closed)
        return false;
    moveDue(readClock());
    if (!jobs(Lane::Front).empty()) {
        if (const std::function<void()> gate = queueGate(m_name)) {
            lock.unlock();
            gate();
            lock.lock();
            // What waited may have been replaced or dropped meanwhile.
            if (m_running.job || m_closed)
                return false;
        }
    }
    Jobs& lane = jobs(Lane::Front).empty() ? jobs(Lane::Back) : jobs(Lane::Front);
    if (lane.empty())
        return false;
    const auto job = take(lane.begin()->second.get());
    m_running = Running{job.get(), std::this_thread::get_id(), false, std::nullopt};
    lock.unlock();
    JobQueue* const outer = std::exchange(t_current, this);
    {
        const RunningFor origin(job->generationsAsked);
        job->run();
        job->run = nullptr; // what it holds ends before the job counts as ended
    }
    t_current = outer;
    lock.lock();
    m_running = Running{};
    ++m_finished;
    if (!job->background)
        ++m_activity;
    const std::function<void()> ended = std::exchange(m_ended, {});
    m_condition.notify_all();
    lock.unlock();
    if (ended)
        ended();
    changed();
    lock.lock();
    return true;
}

void JobQueue::runThread()
{
    std::unique_lock lock(m_mutex);
    while (!m_closed) {
        if (runNext(lock) || m_closed)
            continue;
        // The lock is held from this reading to the wait, so that a change of the clock, which wakes under
        // the lock, cannot fall between them; and what fell due since runNext() looked gives a wait of no
        // length.
        const auto wait = delay(readClock());
        if (!wait)
            m_condition.wait(lock);
        else if (wait->count() > 0)
            m_condition.wait_until(lock, std::chrono::steady_clock::now() + *wait);
    }
}

bool JobQueue::runOne()
{
    std::unique_lock lock(m_mutex);
    return runNext(lock);
}

std::optional<std::chrono::nanoseconds> JobQueue::delay(const ClockReading& now) const
{
    using std::chrono::nanoseconds;
    if (!jobs(Lane::Front).empty() || !jobs(Lane::Back).empty())
        return nanoseconds(0);
    std::optional<nanoseconds> shortest;
    for (const Lane lane : TimedLanes) {
        if (isDue(lane, now))
            return nanoseconds(0);
        if (jobs(lane).empty() || now.stopped)
            continue;
        nanoseconds wait(dueNs(lane, jobs(lane).begin()->first.first, now) - now.monotonicNs);
        if (lane == Lane::Wall)
            wait = std::min(wait, nanoseconds(WallCheckMs * NsPerMs));
        shortest = std::min(shortest.value_or(wait), wait);
    }
    return shortest;
}

std::optional<qint64> JobQueue::msUntilReady() const
{
    const std::lock_guard lock(m_mutex);
    const auto wait = delay(readClock());
    if (!wait)
        return std::nullopt;
    return (wait->count() + NsPerMs - 1) / NsPerMs;
}

void JobQueue::wake()
{
    {
        // Whoever holds the lock has not read the clock, or has begun to wait.
        const std::lock_guard lock(m_mutex);
    }
    m_condition.notify_all();
    if (m_wakeHook)
        m_wakeHook();
}

bool JobQueue::pauseIsOver(qint64 until, const ClockReading& now) const
{
    return m_closed || m_running.contextGone || now.monotonicNs >= until;
}

void JobQueue::pause(qint64 ns)
{
    std::unique_lock lock(m_mutex);
    const qint64 until = readClock().monotonicNs + ns;
    for (;;) {
        const ClockReading now = readClock();
        if (pauseIsOver(until, now))
            break;
        m_running.pausedUntil = until;
        // The clock may have been stopped meanwhile, which makes this a rest.
        lock.unlock();
        changed();
        lock.lock();
        const ClockReading again = readClock();
        if (pauseIsOver(until, again))
            break;
        if (onMainThread()) {
            lock.unlock();
            processMainEvents(again.stopped ? -1 : (until - again.monotonicNs) / NsPerMs + 1);
            lock.lock();
        } else if (again.stopped) {
            m_condition.wait(lock);
        } else {
            m_condition.wait_until(lock, std::chrono::steady_clock::now() +
                                             std::chrono::nanoseconds(until - again.monotonicNs));
        }
    }
    m_running.pausedUntil.reset();
}

std::optional<qint64> JobQueue::nextDueNs(const ClockReading& now) const
{
    const std::lock_guard lock(m_mutex);
    if (m_running.pausedUntil)
        return m_running.pausedUntil; // what is due behind it cannot run before
    std::optional<qint64> next;
    for (const Lane lane : TimedLanes) {
        if (jobs(lane).empty() || (lane == Lane::Background && !now.backgroundMoves))
            continue;
        const qint64 due = jobs(lane).begin()->first.first;
        // To the nanosecond at which the wall time reaches the millisecond: the wall time may stand between
        // two.
        const qint64 ns = lane == Lane::Wall ? due * NsPerMs + now.wallToMonotonicNs : due;
        next = std::min(next.value_or(ns), ns);
    }
    return next;
}

bool JobQueue::isAtRest() const
{
    const std::lock_guard lock(m_mutex);
    const ClockReading now = readClock();
    const bool countsBackground = now.stopped && now.backgroundMoves;
    if (m_running.job) {
        if (m_running.pausedUntil && now.stopped && !pauseIsOver(*m_running.pausedUntil, now))
            return true;
        if (!m_running.job->background || countsBackground)
            return false;
    }
    for (const Lane lane : {Lane::Front, Lane::Back}) {
        for (const auto& entry : jobs(lane)) {
            if (!entry.second->background || countsBackground)
                return false;
        }
    }
    return !isDue(Lane::Duration, now) && !isDue(Lane::Wall, now) &&
           !(countsBackground && isDue(Lane::Background, now));
}

quint64 JobQueue::activity() const
{
    const std::lock_guard lock(m_mutex);
    return m_activity;
}

void JobQueue::changed()
{
    IdleHub::instance().changed();
}

} // namespace zr
