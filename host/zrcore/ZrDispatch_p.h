// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrDispatch.h"
#include "zrcore/IdleHub.h"
#include "zrcore/JobQueue.h"

#include <thread>

class ZrDispatch::Private
{
public:
    static zr::Queues queuesOf(const QList<QSharedPointer<ZrDispatch>>& list);

    std::shared_ptr<zr::JobQueue> queue;
    std::thread thread; ///< None for the main queue.
};
