// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSharedPointer>

#include <memory>

class LuMonitorModel;
class MonitorInfo;
class ZrDispatch;

/// Destroys the models of monitors that have gone, as soon as the last job of each has ended, so that nobody
/// waits for a bus that hangs. GUI thread.
class LuRetirement
{
public:
    LuRetirement();
    /// As end() without patience.
    ~LuRetirement();

    /// Retires @p queue, and destroys @p model (which may be null) when its last job has ended; at once if
    /// none runs.
    void add(const QSharedPointer<ZrDispatch>& queue, const QSharedPointer<MonitorInfo>& info,
             LuMonitorModel* model);

    /// Waits at most @p limitMs in all for jobs that still run. False if one hangs even then: what it uses stays
    /// in memory until the process ends, since its thread may wake up at any time.
    bool end(qint64 limitMs);

private:
    struct Private;
    const std::shared_ptr<Private> d;
};
