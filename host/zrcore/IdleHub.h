// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "zrcore/ContextRegistry.h"

#include <QString>
#include <QtGlobal>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace zr {

class JobQueue;
using Queues = std::vector<std::shared_ptr<JobQueue>>;

/// Those who wait until queues are at rest (ZrIdle), and the looks that decide it.
///
/// A first look that finds rest notes the queues' activity and sends a probe behind the posted events of the
/// main thread. Qt delivers events in batches, and what an event posts belongs to the next batch: so the
/// probe is sent a second time when it arrives, and a second look after that decides. It finds rest when no
/// posted event was delivered between the two, for then none can follow. Without an application the two looks
/// follow each other.
class IdleHub final : public ContextListener
{
public:
    static IdleHub& instance();

    /// Something has changed that may bring rest. Any thread, no lock held; cheap while nobody waits.
    void changed();

    /// As ZrIdle::wait(); @p queues empty for all.
    bool wait(const Queues& queues, qint64 timeoutMs);
    /// As ZrIdle::notify().
    void notify(const Queues& queues, QObject* context, std::function<void()> done);
    /// As ZrIdle::notifyGroup().
    void notifyGroup(const QString& group, QObject* context, std::function<void()> done);

    /// Looks for those who wait; main thread.
    void look();
    /// The probe @p number has come for the first or the second time; main thread. Returns whether to send it
    /// again.
    bool probed(quint64 number, bool second);
    /// A posted event was delivered; main thread.
    void delivered() { ++m_delivered; }

    void contextGone(QObject* context) override;

private:
    struct Watcher
    {
        Queues queues;                ///< Empty for all.
        std::optional<QString> group; ///< Only its queues and those of none.
        const JobQueue* left = nullptr;
        QObject* context = nullptr;
        std::function<void()> done; ///< Called on the main thread without locks.
        quint64 activity = 0;
        quint64 probe = 0;     ///< On its way; 0 for none.
        quint64 delivered = 0; ///< Events at the first coming of the probe.
    };
    using Watchers = std::list<std::shared_ptr<Watcher>>;

    IdleHub() = default;
    static const std::shared_ptr<IdleHub>& shared();
    std::shared_ptr<Watcher> add(Watcher watcher);
    void forget(const std::shared_ptr<Watcher>& watcher);
    bool waitOnMain(const std::shared_ptr<Watcher>& watcher, qint64 timeoutMs);
    bool waitWithoutApplication(const Watcher& watcher, qint64 timeoutMs);
    static bool isAtRest(const Watcher& watcher, quint64* activity);

    std::atomic<int> m_waiting = 0;
    std::mutex m_mutex;
    std::condition_variable m_condition;
    Watchers m_watchers;
    quint64 m_probe = 0;
    quint64 m_delivered = 0; ///< Main thread only.
    quint64 m_changes = 0;
};

} // namespace zr
