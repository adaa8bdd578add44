// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

namespace zr {

class JobQueue;

/// All queues of the process, the main queue among them from its first use on.
void enlist(const std::shared_ptr<JobQueue>& queue);
std::vector<std::shared_ptr<JobQueue>> allQueues();
/// @p queue belongs to nobody any more and is not awaited.
void delist(const std::shared_ptr<JobQueue>& queue);

} // namespace zr
