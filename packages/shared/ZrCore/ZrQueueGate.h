// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ZrCore/ZrCoreGlobal.h>

#include <QString>

#include <functional>

namespace zr {

/// Lets the queue of that name run @p gate on its thread before it takes a job of its front lane. While the
/// gate waits the job still waits too, and a newer one of its key takes its place: a slider's last move does
/// not wait behind an older one that only waits for the bus. An empty gate ends it. Any thread.
ZRCORE_EXPORT void setQueueGate(const QString& name, std::function<void()> gate);

/// The gate of the queue of that name; empty if it has none. Any thread.
std::function<void()> queueGate(const QString& name);

} // namespace zr
