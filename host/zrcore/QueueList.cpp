// SPDX-License-Identifier: Apache-2.0
#include "zrcore/QueueList.h"

#include "zrcore/JobQueue.h"

#include <mutex>

namespace zr {

namespace {

struct List
{
    std::mutex mutex;
    std::vector<std::weak_ptr<JobQueue>> queues;
};

// Never destroyed: queues may be statics of other libraries.
List& list()
{
    static auto* instance = new List;
    return *instance;
}

} // namespace

void enlist(const std::shared_ptr<JobQueue>& queue)
{
    const std::lock_guard lock(list().mutex);
    std::erase_if(list().queues, [](const auto& weak) { return weak.expired(); });
    list().queues.push_back(queue);
}

void delist(const std::shared_ptr<JobQueue>& queue)
{
    const std::lock_guard lock(list().mutex);
    std::erase_if(list().queues, [&queue](const auto& weak) { return weak.lock() == queue; });
}

std::vector<std::shared_ptr<JobQueue>> allQueues()
{
    std::vector<std::shared_ptr<JobQueue>> queues;
    const std::lock_guard lock(list().mutex);
    for (const auto& weak : list().queues) {
        if (auto queue = weak.lock())
            queues.push_back(std::move(queue));
    }
    return queues;
}

} // namespace zr
