// SPDX-License-Identifier: Apache-2.0
#include "zrcore/IdleHub.h"

#include "zrcore/JobQueue.h"
#include "zrcore/MainQueue.h"
#include "zrcore/QueueList.h"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace zr {

const std::shared_ptr<IdleHub>& IdleHub::shared()
{
    // Never destroyed: queues may be statics of other libraries.
    static const auto* const hub = new std::shared_ptr<IdleHub>(new IdleHub);
    return *hub;
}

IdleHub& IdleHub::instance()
{
    return *shared();
}

void IdleHub::changed()
{
    if (m_waiting == 0)
        return;
    {
        const std::lock_guard lock(m_mutex);
        ++m_changes;
    }
    m_condition.notify_all();
    wakeMain();
}

bool IdleHub::isAtRest(const Watcher& watcher, quint64* activity)
{
    Queues queues = watcher.queues;
    if (queues.empty())
        queues = allQueues();
    else if (std::find(queues.begin(), queues.end(), mainJobs()) == queues.end())
        queues.push_back(mainJobs());
    *activity = 0;
    for (const auto& queue : queues) {
        // Without an application nothing runs what waits in the main queue.
        if (watcher.group && !queue->group().isEmpty() && queue->group() != *watcher.group)
            continue;
        if (queue.get() == watcher.left || (queue == mainJobs() && !hasApplication()))
            continue;
        if (!queue->isAtRest())
            return false;
        *activity += queue->activity();
    }
    return true;
}

std::shared_ptr<IdleHub::Watcher> IdleHub::add(Watcher watcher)
{
    auto shared = std::make_shared<Watcher>(std::move(watcher));
    {
        const std::lock_guard lock(m_mutex);
        m_watchers.push_back(shared);
        ++m_waiting;
    }
    wakeMain();
    return shared;
}

void IdleHub::forget(const std::shared_ptr<Watcher>& watcher)
{
    const std::lock_guard lock(m_mutex);
    m_waiting -= static_cast<int>(m_watchers.remove(watcher));
}

void IdleHub::look()
{
    if (m_waiting == 0)
        return;
    Watchers watchers;
    {
        const std::lock_guard lock(m_mutex);
        std::copy_if(m_watchers.begin(), m_watchers.end(), std::back_inserter(watchers),
                     [](const auto& watcher) { return watcher->probe == 0; });
    }
    for (const auto& watcher : watchers) {
        quint64 activity = 0;
        if (!isAtRest(*watcher, &activity))
            continue;
        quint64 number = 0;
        {
            const std::lock_guard lock(m_mutex);
            watcher->activity = activity;
            watcher->probe = number = ++m_probe;
        }
        probeMain(number);
    }
}

bool IdleHub::probed(quint64 number, bool second)
{
    std::shared_ptr<Watcher> watcher;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = std::find_if(m_watchers.begin(), m_watchers.end(),
                                        [number](const auto& other) { return other->probe == number; });
        if (found == m_watchers.end())
            return false;
        watcher = *found;
    }
    quint64 activity = 0;
    const bool rest = isAtRest(*watcher, &activity) && activity == watcher->activity;
    if (rest && !second) {
        watcher->delivered = m_delivered;
        return true;
    }
    if (!rest || watcher->delivered != m_delivered) {
        {
            const std::lock_guard lock(m_mutex);
            watcher->probe = 0;
        }
        look();
        return false;
    }
    forget(watcher);
    watcher->done();
    return false;
}

bool IdleHub::wait(const Queues& queues, qint64 timeoutMs)
{
    Watcher watcher;
    watcher.queues = queues;
    watcher.left = JobQueue::current();
    if (!hasApplication())
        return waitWithoutApplication(watcher, timeoutMs);
    if (onMainThread())
        return waitOnMain(std::make_shared<Watcher>(std::move(watcher)), timeoutMs);

    struct State
    {
        std::mutex mutex;
        std::condition_variable condition;
        bool done = false;
    };
    const auto state = std::make_shared<State>();
    watcher.done = [state] {
        const std::lock_guard lock(state->mutex);
        state->done = true;
        state->condition.notify_all();
    };
    const auto added = add(std::move(watcher));
    std::unique_lock lock(state->mutex);
    const auto isDone = [&state] { return state->done; };
    if (timeoutMs < 0)
        state->condition.wait(lock, isDone);
    else
        state->condition.wait_until(
            lock, std::chrono::steady_clock::now() + std::chrono::nanoseconds(clampedNs(timeoutMs)), isDone);
    const bool done = state->done;
    lock.unlock();
    forget(added);
    return done;
}

bool IdleHub::waitOnMain(const std::shared_ptr<Watcher>& watcher, qint64 timeoutMs)
{
    QEventLoop loop;
    bool done = false;
    watcher->done = [&] {
        done = true;
        loop.quit();
    };
    const auto added = add(*watcher);
    QTimer timer;
    if (timeoutMs >= 0) {
        timer.setSingleShot(true);
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        timer.start(static_cast<int>(std::min<qint64>(timeoutMs, 1'000'000'000)));
    }
    loop.exec();
    forget(added);
    return done;
}

bool IdleHub::waitWithoutApplication(const Watcher& watcher, qint64 timeoutMs)
{
    using std::chrono::steady_clock;
    const auto end =
        steady_clock::now() + std::chrono::nanoseconds(clampedNs(timeoutMs < 0 ? LongestMs : timeoutMs));
    ++m_waiting;
    bool rest = false;
    for (;;) {
        quint64 changes = 0;
        {
            const std::lock_guard lock(m_mutex);
            changes = m_changes;
        }
        quint64 first = 0;
        quint64 second = 0;
        rest = isAtRest(watcher, &first) && isAtRest(watcher, &second) && first == second;
        if (rest || steady_clock::now() >= end)
            break;
        std::unique_lock lock(m_mutex);
        m_condition.wait_until(lock, end, [&] { return m_changes != changes; });
    }
    --m_waiting;
    return rest;
}

void IdleHub::notify(const Queues& queues, QObject* context, std::function<void()> done)
{
    Watcher watcher;
    watcher.queues = queues;
    watcher.context = context;
    watcher.done = std::move(done);
    if (context)
        watchContext(context, shared());
    add(std::move(watcher));
}

void IdleHub::notifyGroup(const QString& group, QObject* context, std::function<void()> done)
{
    Watcher watcher;
    watcher.group = group;
    watcher.context = context;
    watcher.done = std::move(done);
    if (context)
        watchContext(context, shared());
    add(std::move(watcher));
}

void IdleHub::contextGone(QObject* context)
{
    Watchers gone;
    const std::lock_guard lock(m_mutex);
    for (auto it = m_watchers.begin(); it != m_watchers.end();) {
        const auto next = std::next(it);
        if ((*it)->context == context) {
            gone.splice(gone.end(), m_watchers, it);
            --m_waiting;
        }
        it = next;
    }
}

} // namespace zr
