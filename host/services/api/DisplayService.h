// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

#include <optional>

class MonitorInfo;

namespace services {

/// Display modes, rotation and scaling of the desktop.
///
/// Called by LuPlatform: at a monitor's first read-back, on each screenGeometryChanged() and on a person's
/// choice, from the GUI thread and from monitors' queues. A change of any value raises
/// LuPlatformNotifications:: screenGeometryChanged() once, on the GUI thread, after the call that made it has
/// returned.
class DisplayService
{
public:
    virtual ~DisplayService() = default;

    /// Whether the display system lets programs change displays at all.
    virtual bool isAvailable() const { return true; }

    /// Rotation in degrees: 0, 90, 180, 270. The setter gets no other number.
    virtual int pivot(const MonitorInfo& monitor) const = 0;
    virtual void setPivot(const MonitorInfo& monitor, int degrees) = 0;

    /// Scalings in percent, ascending, and the present one.
    virtual QList<int> dpiScalings(const MonitorInfo& monitor) const = 0;
    virtual int dpiScaling(const MonitorInfo& monitor) const = 0;
    virtual void setDpiScaling(const MonitorInfo& monitor, int percent) = 0;

    /// HiDPI state; the setter returns false if the present resolution has no mode of the other kind.
    virtual bool hiDpi(const MonitorInfo& monitor) const = 0;
    virtual bool setHiDpi(const MonitorInfo& monitor, bool enabled) = 0;

    /// Sizes at a refresh rate in Hz (0 or less: at all), and the present size.
    virtual QList<QSize> resolutions(const MonitorInfo& monitor, int refreshRate) const = 0;
    virtual QSize resolution(const MonitorInfo& monitor) const = 0;

    /// @p hidpiMatch is a LuPlatform::HidpiMatchMode. False if there is no such mode; nothing has changed
    /// then.
    virtual bool setResolution(const MonitorInfo& monitor, const QSize& size, int refreshRate, bool permanent,
                               int hidpiMatch) = 0;

    /// Rectangle in native coordinates of the screen with a MonitorInfo::nativeHandle(); null if there is
    /// none.
    virtual QRect nativeScreenRect(const QString& nativeHandle) const = 0;

    /// The number that the kernel has for the connector of a screen, by QScreen::name(); nothing where the
    /// session does not tell it. GUI thread.
    virtual std::optional<int> connectorId(const QString& screen) const
    {
        Q_UNUSED(screen)
        return std::nullopt;
    }
};

} // namespace services
