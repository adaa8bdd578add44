// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrIdle.h"

#include "zrcore/IdleHub.h"
#include "zrcore/QueueList.h"
#include "zrcore/ZrDispatch_p.h"

zr::Queues ZrDispatch::Private::queuesOf(const QList<QSharedPointer<ZrDispatch>>& list)
{
    zr::Queues queues;
    for (const auto& dispatch : list) {
        if (dispatch)
            queues.push_back(dispatch->d->queue);
    }
    return queues;
}

bool ZrIdle::wait(const QList<QSharedPointer<ZrDispatch>>& queues, qint64 timeoutMs)
{
    return zr::IdleHub::instance().wait(ZrDispatch::Private::queuesOf(queues), timeoutMs);
}

bool ZrIdle::wait(qint64 timeoutMs)
{
    return zr::IdleHub::instance().wait({}, timeoutMs);
}

void ZrIdle::notifyGroup(const QString& group, QObject* context, std::function<void()> done)
{
    if (done)
        zr::IdleHub::instance().notifyGroup(group, context, std::move(done));
}

void ZrIdle::notify(const QList<QSharedPointer<ZrDispatch>>& queues, QObject* context,
                    std::function<void()> done)
{
    if (done)
        zr::IdleHub::instance().notify(ZrDispatch::Private::queuesOf(queues), context, std::move(done));
}

QList<ZrIdle::Waiting> ZrIdle::waitingOf(const QString& group)
{
    QList<Waiting> result;
    const auto add = [&result](const QString& wanted) {
        for (const auto& queue : zr::allQueues()) {
            if (queue->group() != wanted)
                continue;
            const QList<ZrDispatch::Waiting> jobs = queue->waiting();
            for (const ZrDispatch::Waiting& job : jobs)
                result.append({queue->name(), job});
        }
    };
    add(group);
    if (!group.isEmpty())
        add({});
    return result;
}
