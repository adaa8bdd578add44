// SPDX-License-Identifier: Apache-2.0
#include "services/ServiceRegistry.h"

#include <LuShared/LuPlatformProgram.h>

#include "services/api/ProgramService.h"

#include <QGuiApplication>

#include <mutex>

namespace services {

namespace {

struct Holder
{
    std::mutex mutex;
    ServiceSet set;
};

// Never destroyed: a queue's last job may still ask while the program ends.
Holder& holder()
{
    static Holder* const instance = new Holder;
    return *instance;
}

} // namespace

void Registry::install(const ServiceSet& set)
{
    ServiceSet previous; // destroyed after the lock is released
    {
        const std::lock_guard lock(holder().mutex);
        previous = std::exchange(holder().set, set);
    }
    LuPlatformProgram::instance()->appListReady = !set.programs || set.programs->isListReady();
}

ServiceSet Registry::current()
{
    const std::lock_guard lock(holder().mutex);
    return holder().set;
}

QString Registry::sessionName()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") ? QStringLiteral("x11") : platform;
}

} // namespace services
