// SPDX-License-Identifier: Apache-2.0
#include "zrcore/ContextRegistry.h"

#include <QObject>

#include <algorithm>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace zr {

namespace {

using Listeners = std::vector<std::weak_ptr<ContextListener>>;

struct Registry
{
    std::mutex mutex;
    std::unordered_map<QObject*, Listeners> listeners;
};

// Never destroyed: contexts may end after the statics of this library.
Registry& registry()
{
    static auto* instance = new Registry;
    return *instance;
}

bool same(const std::weak_ptr<ContextListener>& a, const std::weak_ptr<ContextListener>& b)
{
    return !a.owner_before(b) && !b.owner_before(a);
}

void onDestroyed(QObject* context)
{
    Listeners listeners;
    {
        const std::lock_guard lock(registry().mutex);
        const auto found = registry().listeners.find(context);
        if (found == registry().listeners.end())
            return;
        listeners = std::move(found->second);
        registry().listeners.erase(found);
    }
    for (const auto& weak : listeners) {
        if (const auto listener = weak.lock())
            listener->contextGone(context);
    }
}

} // namespace

void watchContext(QObject* context, const std::weak_ptr<ContextListener>& listener)
{
    bool first = false;
    {
        const std::lock_guard lock(registry().mutex);
        const auto [entry, inserted] = registry().listeners.try_emplace(context);
        Listeners& known = entry->second;
        first = inserted;
        if (std::none_of(known.begin(), known.end(),
                         [&](const auto& other) { return same(listener, other); }))
            known.push_back(listener);
    }
    if (!first)
        return;
    // Without captures the slot reads nothing that this thread wrote before it takes the registry's lock.
    QObject::connect(context, &QObject::destroyed, [](QObject* gone) { onDestroyed(gone); });
    const std::lock_guard publishConnection(registry().mutex);
}

void forgetListener(const std::weak_ptr<ContextListener>& listener)
{
    const std::lock_guard lock(registry().mutex);
    // An entry that becomes empty stays: its context is connected.
    for (auto& entry : registry().listeners)
        std::erase_if(entry.second, [&](const auto& other) { return same(listener, other); });
}

} // namespace zr
