// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QObject>
#include <QRect>

/// Driver side of sharing one keyboard and mouse between two computers on a monitor: it watches the screen's
/// edge and talks to the other computer. Operations may be called from any thread; signals are raised on the
/// GUI thread.
class LUSHARED_EXPORT LuKvm : public QObject
{
    Q_OBJECT

public:
    /// Which way of sharing the driver serves.
    enum KvmType : int {
        NoKvm = 0,
        SmartKvm = 1,     ///< With a driver on both computers.
        SmartKvmBasic = 2 ///< The monitor's USB hub follows the pointer; no driver.
    };
    Q_ENUM(KvmType)

    /// Side of the monitor on which this computer's picture lies.
    enum KvmDeviceLocation : int { LeftLocation = 0, RightLocation = 1, TopLocation = 2, BottomLocation = 3 };
    Q_ENUM(KvmDeviceLocation)

    static LuKvm* instance();

    /// Whether the driver is on this computer, and whether it talks to the other one.
    bool isDriverInstalled() const;
    bool isConnected() const;

    /// Installs the driver, with whatever permission the system asks for.
    void installDriver();

    /// Starts and ends the watch at the edge.
    void activate();
    void deactivate();

    /// The shared monitor's rectangle in native coordinates (LuPlatform::getNativeScreenRect()).
    void setScreenRect(const QRect& rect);

    void setKvmType(LuKvm::KvmType type);

    /// LeftLocation where the session has no such service.
    LuKvm::KvmDeviceLocation getKvmDeviceLocation() const;
    void setKvmDeviceLocation(LuKvm::KvmDeviceLocation location);

Q_SIGNALS:
    /// The pointer crossed the edge towards the other computer, or the connection or the driver changed.
    void kvmChanged();

    void deviceLocationChanged();

private:
    LuKvm() = default;
};
