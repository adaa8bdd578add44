// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrQueueGate.h"

#include <QHash>

#include <mutex>

namespace {

struct Gates
{
    std::mutex mutex;
    QHash<QString, std::function<void()>> byName;
};

Gates& gates()
{
    static Gates all;
    return all;
}

} // namespace

void zr::setQueueGate(const QString& name, std::function<void()> gate)
{
    Gates& all = gates();
    const std::lock_guard lock(all.mutex);
    if (gate)
        all.byName.insert(name, std::move(gate));
    else
        all.byName.remove(name);
}

std::function<void()> zr::queueGate(const QString& name)
{
    Gates& all = gates();
    const std::lock_guard lock(all.mutex);
    return all.byName.value(name);
}
