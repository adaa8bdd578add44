// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatformNotifications.h>

#include "services/Singleton.h"

LuPlatformNotifications* LuPlatformNotifications::instance()
{
    static LuPlatformNotifications* const self = services::onGuiThread(new LuPlatformNotifications);
    return self;
}
