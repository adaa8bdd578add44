// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QList>
#include <QRect>
#include <QSharedPointer>
#include <QSize>
#include <QString>
#include <Qt>

class MonitorInfo;
class QQuickWindow;

/// The operating system as a monitor's features see it: display modes, brightness of a built-in panel,
/// windows, and the keys of copy and paste.
///
/// Where the session lacks a service, its operation reports nothing: 0, false, an empty list or an invalid
/// size, and a setter changes nothing. A null handle is answered in the same way. Operations that take a
/// monitor, and simulateCopy() and simulatePaste(), may be called from any thread; those that take a window
/// from the GUI thread.
class LUSHARED_EXPORT LuPlatform
{
public:
    /// How setResolution() chooses where the system offers a size both with and without HiDPI.
    enum HidpiMatchMode : int {
        AnyHidpi = 0, ///< The first mode of that size, whatever its HiDPI state.
        PreferSameHidpi =
            1, ///< The mode with the present HiDPI state; one of the other state if there is none.
        RequireSameHidpi = 2 ///< The mode with the present HiDPI state, or none.
    };

    LuPlatform() = delete;

    /// Base flags of top-level windows that the package shows by itself.
    static const Qt::WindowFlags windowFlags;

    /// Desktop rotation in degrees: 0, 90, 180 or 270. Setting another number does nothing.
    static int getMonitorPivot(const QSharedPointer<MonitorInfo>& monitor);
    static void setMonitorPivot(const QSharedPointer<MonitorInfo>& monitor, int degrees);

    /// The system's brightness of a built-in panel, 0 to 1; of any other monitor its own brightness as a
    /// fraction of its maximum.
    ///
    /// Another monitor is asked over its bus, which takes as long as it takes; on the GUI thread the getter
    /// tells what is known already, and the setter returns at once. The getter gives a negative number where
    /// nothing is known.
    static double getMonitorBrightness(const QSharedPointer<MonitorInfo>& monitor);
    static void setMonitorBrightness(const QSharedPointer<MonitorInfo>& monitor, double brightness);

    /// From this call on LuPlatformNotifications::systemBrightnessChanged() fires for the monitor.
    static void registerBrightnessChangeNotifications(const QSharedPointer<MonitorInfo>& monitor);

    /// Scalings of the desktop in percent, ascending, and the present one; 0 where the system has none.
    static QList<int> availableMonitorDpiScalings(const QSharedPointer<MonitorInfo>& monitor);
    static int getMonitorDpiScaling(const QSharedPointer<MonitorInfo>& monitor);
    static void setMonitorDpiScaling(const QSharedPointer<MonitorInfo>& monitor, int percent);

    /// Whether the system runs the monitor in its HiDPI mode. The setter returns false, and changes nothing,
    /// if the present resolution has no mode of the other kind.
    static bool getMonitorHiDPI(const QSharedPointer<MonitorInfo>& monitor);
    static bool setMonitorHiDPI(const QSharedPointer<MonitorInfo>& monitor, bool enabled);

    /// Sizes in pixels of the desktop that the system offers at a refresh rate, in Hz rounded to the nearest
    /// integer, in the system's order. With a rate of 0 or less those of all rates.
    static QList<QSize> availableMonitorResolutions(const QSharedPointer<MonitorInfo>& monitor,
                                                    int refreshRate);

    /// Present size of the desktop on the monitor; invalid if unknown.
    static QSize getMonitorResolution(const QSharedPointer<MonitorInfo>& monitor);

    /// Sets the display mode. @p permanent keeps it beyond the session. Returns false, and changes nothing,
    /// if the system has no such mode.
    static bool setResolution(const QSharedPointer<MonitorInfo>& monitor, const QSize& size, int refreshRate,
                              bool permanent, HidpiMatchMode mode);

    /// Rectangle of a screen in the display system's own coordinates, not scaled. @p nativeHandle is
    /// MonitorInfo::nativeHandle(); a null rectangle if no screen has it.
    static QRect getNativeScreenRect(const QString& nativeHandle);

    /// Raises a window to a layer of the display system: 0 normal, 3 above everything, task bars included.
    static void setWindowLayer(QQuickWindow* window, int layer);

    /// Whether a window shows on every virtual desktop.
    static void setWindowJoinActiveSpaces(QQuickWindow* window, bool join);

    /// Whether the session lets what lies below a translucent window show through.
    static bool windowsBlend();

    /// Sends the system's key stroke for copy or paste to the application in the foreground.
    static void simulateCopy();
    static void simulatePaste();
    /// Whether the session lets them be sent; if not, the two above do nothing. Any thread.
    static bool hasCopyPasteKeys();
};
