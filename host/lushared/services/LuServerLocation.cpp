// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuServerLocation.h>
#include <ZrCore/ZrDispatch.h>

#include "services/ServiceRegistry.h"
#include "services/Singleton.h"
#include "services/api/LocationService.h"

#include <QMetaMethod>

namespace {

services::LocationService::Location where()
{
    const auto service = services::Registry::current().location;
    return service ? service->location() : services::LocationService::Location();
}

} // namespace

LuServerLocation* LuServerLocation::instance()
{
    static LuServerLocation* const self = services::onGuiThread(new LuServerLocation);
    return self;
}

void LuServerLocation::connectNotify(const QMetaMethod& signal)
{
    static const QMetaMethod report = QMetaMethod::fromSignal(&LuServerLocation::locationStatusChanged);
    if (signal != report)
        return;
    // Also called on a queue's thread, where a module may connect.
    ZrDispatch::main()->post(this, [] {
        if (const auto service = services::Registry::current().location)
            service->listenerAdded();
    });
}

double LuServerLocation::latitude() const
{
    return where().latitude;
}

double LuServerLocation::longitude() const
{
    return where().longitude;
}

int LuServerLocation::status() const
{
    return where().status;
}
