# SPDX-License-Identifier: Apache-2.0
# Fronts of the operating-system services, relative to host/lushared.
set(LUSHARED_SERVICE_SOURCES
    services/Abilities.cpp
    services/LuKvm.cpp
    services/LuMediaDevices.cpp
    services/LuPlatform.cpp
    services/LuPlatformNotifications.cpp
    services/LuPlatformProgram.cpp
    services/LuQuickWindow.cpp
    services/LuServerLocation.cpp
    services/ServiceRegistry.cpp)
