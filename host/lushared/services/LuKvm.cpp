// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuKvm.h>

#include "services/ServiceRegistry.h"
#include "services/Singleton.h"
#include "services/api/KvmService.h"

using services::Registry;

LuKvm* LuKvm::instance()
{
    static LuKvm* const self = services::onGuiThread(new LuKvm);
    return self;
}

bool LuKvm::isDriverInstalled() const
{
    const auto kvm = Registry::current().kvm;
    return kvm && kvm->isDriverInstalled();
}

bool LuKvm::isConnected() const
{
    const auto kvm = Registry::current().kvm;
    return kvm && kvm->isConnected();
}

void LuKvm::installDriver()
{
    if (const auto kvm = Registry::current().kvm)
        kvm->installDriver();
}

void LuKvm::activate()
{
    if (const auto kvm = Registry::current().kvm)
        kvm->activate();
}

void LuKvm::deactivate()
{
    if (const auto kvm = Registry::current().kvm)
        kvm->deactivate();
}

void LuKvm::setScreenRect(const QRect& rect)
{
    if (const auto kvm = Registry::current().kvm)
        kvm->setScreenRect(rect);
}

void LuKvm::setKvmType(LuKvm::KvmType type)
{
    if (const auto kvm = Registry::current().kvm)
        kvm->setType(type);
}

LuKvm::KvmDeviceLocation LuKvm::getKvmDeviceLocation() const
{
    const auto kvm = Registry::current().kvm;
    return kvm ? static_cast<KvmDeviceLocation>(kvm->deviceLocation()) : LeftLocation;
}

void LuKvm::setKvmDeviceLocation(LuKvm::KvmDeviceLocation location)
{
    // A stored setting may hold any number.
    if (location < LeftLocation || location > BottomLocation)
        return;
    if (const auto kvm = Registry::current().kvm)
        kvm->setDeviceLocation(location);
}
