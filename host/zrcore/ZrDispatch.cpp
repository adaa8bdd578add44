// SPDX-License-Identifier: Apache-2.0
#include "zrcore/ZrDispatch_p.h"

#include "zrcore/ClockReading.h"
#include "zrcore/MainQueue.h"
#include "zrcore/QueueList.h"

#include <QDebug>

#include <algorithm>

#if defined(Q_OS_LINUX)
#include <pthread.h>
#endif

namespace {

// A wall-clock time in nanoseconds still fits up to here (the year 2255).
constexpr qint64 LastWallMs = 9'000'000'000'000;

zr::QueuedJob makeJob(QObject* context, const QString& key, ZrDispatch::Job&& job,
                      zr::Lane lane = zr::Lane::Back)
{
    zr::QueuedJob queued;
    queued.context = context;
    queued.key = key;
    queued.run = job ? std::move(job) : [] {};
    queued.lane = lane;
    return queued;
}

zr::QueuedJob makeLater(QObject* context, const QString& key, qint64 ms, ZrDispatch::Job&& job,
                        zr::Lane lane = zr::Lane::Duration)
{
    zr::QueuedJob queued = makeJob(context, key, std::move(job), lane);
    queued.due = zr::readClock().monotonicNs + zr::clampedNs(ms);
    return queued;
}

void nameThread(const QString& name)
{
#if defined(Q_OS_LINUX)
    // The system keeps 15 characters.
    pthread_setname_np(pthread_self(), name.toUtf8().left(15).constData());
#else
    Q_UNUSED(name)
#endif
}

} // namespace

ZrDispatch::ZrDispatch(std::unique_ptr<Private> dd) : d(std::move(dd)) {}

ZrDispatch::ZrDispatch(const QString& name, const QString& group) : d(std::make_unique<Private>())
{
    d->queue = std::make_shared<zr::JobQueue>(name, std::function<void()>(), group);
    zr::enlist(d->queue);
    d->thread = std::thread([queue = d->queue] {
        nameThread(queue->name());
        queue->runThread();
    });
}

ZrDispatch::~ZrDispatch()
{
    if (!d->thread.joinable())
        return;
    close();
    if (d->thread.get_id() == std::this_thread::get_id())
        d->thread.detach();
    else
        d->thread.join();
}

QSharedPointer<ZrDispatch> ZrDispatch::main()
{
    static const auto* const instance = [] {
        auto dd = std::make_unique<Private>();
        dd->queue = zr::mainJobs();
        return new QSharedPointer<ZrDispatch>(new ZrDispatch(std::move(dd)));
    }();
    return *instance;
}

void ZrDispatch::post(QObject* context, Job&& job)
{
    d->queue->post(makeJob(context, QString(), std::move(job)), false);
}

void ZrDispatch::postUnique(QObject* context, const QString& key, Job&& job)
{
    d->queue->post(makeJob(context, key, std::move(job)), true);
}

void ZrDispatch::postLater(const QString& key, qint64 ms, Job&& job)
{
    d->queue->post(makeLater(nullptr, key, ms, std::move(job)), false);
}

void ZrDispatch::postUniqueLater(QObject* context, const QString& key, qint64 ms, Job&& job)
{
    d->queue->post(makeLater(context, key, ms, std::move(job)), true);
}

void ZrDispatch::postUniqueAtTime(QObject* context, const QString& key, const QDateTime& time, Job&& job)
{
    if (!time.isValid()) {
        qWarning().noquote() << "[ZrDispatch] job" << key << "refused: its time is invalid";
        return;
    }
    zr::QueuedJob queued = makeJob(context, key, std::move(job), zr::Lane::Wall);
    queued.due = std::clamp<qint64>(time.toMSecsSinceEpoch(), 0, LastWallMs) + 1;
    d->queue->post(std::move(queued), true);
}

bool ZrDispatch::has(QObject* context, const QString& key) const
{
    return d->queue->has(context, key);
}

bool ZrDispatch::isRunning(QObject* context, const QString& key) const
{
    return d->queue->isRunning(context, key);
}

void ZrDispatch::remove(QObject* context, const QString& key, bool waitForRunning)
{
    d->queue->remove(context, key, waitForRunning);
}

void ZrDispatch::runInContextLater(QObject* context, qint64 ms, Job&& job)
{
    zr::mainJobs()->post(makeLater(context, QString(), ms, std::move(job)), false);
}

void ZrDispatch::postUniqueAtFront(QObject* context, const QString& key, Job&& job)
{
    d->queue->post(makeJob(context, key, std::move(job), zr::Lane::Front), true);
}

void ZrDispatch::postBackground(QObject* context, const QString& key, Job&& job)
{
    zr::QueuedJob queued = makeJob(context, key, std::move(job));
    queued.background = true;
    d->queue->post(std::move(queued), false);
}

void ZrDispatch::postUniqueBackgroundLater(QObject* context, const QString& key, qint64 ms, Job&& job)
{
    zr::QueuedJob queued = makeLater(context, key, ms, std::move(job), zr::Lane::Background);
    queued.background = true;
    d->queue->post(std::move(queued), true);
}

QString ZrDispatch::name() const
{
    return d->queue->name();
}

bool ZrDispatch::isCurrentThread() const
{
    if (d->queue == zr::mainJobs())
        return zr::onMainThread();
    return d->thread.get_id() == std::this_thread::get_id();
}

void ZrDispatch::close()
{
    if (d->queue == zr::mainJobs()) {
        qWarning() << "[ZrDispatch] the main queue cannot be closed";
        return;
    }
    d->queue->close();
}

void ZrDispatch::retire(Job&& ended)
{
    if (d->queue == zr::mainJobs()) {
        qWarning() << "[ZrDispatch] the main queue cannot be retired";
        return;
    }
    zr::delist(d->queue);
    d->queue->retire([ended = std::move(ended)]() mutable {
        if (ended)
            main()->post(nullptr, std::move(ended));
    });
}

bool ZrDispatch::hasEnded() const
{
    return d->queue->waitForEnd(0);
}

bool ZrDispatch::waitForEnd(qint64 timeoutMs) const
{
    return d->queue->waitForEnd(timeoutMs);
}

QList<ZrDispatch::Waiting> ZrDispatch::waiting() const
{
    return d->queue->waiting();
}
