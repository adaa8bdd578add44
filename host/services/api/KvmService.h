// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRect>

namespace services {

/// Driver side of sharing keyboard and mouse between two computers.
///
/// Called by LuKvm, from the GUI thread and from monitors' queues. Raises LuKvm::kvmChanged() and
/// deviceLocationChanged() on the GUI thread.
class KvmService
{
public:
    virtual ~KvmService() = default;

    virtual bool isDriverInstalled() const = 0;
    virtual bool isConnected() const = 0;
    virtual void installDriver() = 0;
    virtual void activate() = 0;
    virtual void deactivate() = 0;
    virtual void setScreenRect(const QRect& rect) = 0;

    /// A LuKvm::KvmType.
    virtual void setType(int type) = 0;

    /// A LuKvm::KvmDeviceLocation; the setter gets no other number.
    virtual int deviceLocation() const = 0;
    virtual void setDeviceLocation(int location) = 0;
};

} // namespace services
