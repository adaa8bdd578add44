// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OutputChange.h"
#include "SettingsDaemon.h"
#include "services/api/DisplayService.h"

#include <functional>
#include <mutex>

namespace services::x11 {

/// Display modes and rotation through RandR, scaling through the X resources; see docs/services.md for what
/// each operation means on X11.
class Display : public DisplayService
{
public:
    /// On the GUI thread; everything else from any thread.
    explicit Display(std::shared_ptr<Connection> connection)
        : m_connection(std::move(connection)), m_daemon(m_connection)
    {
    }

    /// Not without the RandR extension.
    bool isAvailable() const override;

    int pivot(const MonitorInfo& monitor) const override;
    void setPivot(const MonitorInfo& monitor, int degrees) override;

    QList<int> dpiScalings(const MonitorInfo& monitor) const override;
    int dpiScaling(const MonitorInfo& monitor) const override;
    void setDpiScaling(const MonitorInfo& monitor, int percent) override;

    bool hiDpi(const MonitorInfo& monitor) const override;
    bool setHiDpi(const MonitorInfo& monitor, bool enabled) override;

    QList<QSize> resolutions(const MonitorInfo& monitor, int refreshRate) const override;
    QSize resolution(const MonitorInfo& monitor) const override;
    bool setResolution(const MonitorInfo& monitor, const QSize& size, int refreshRate, bool permanent,
                       int hidpiMatch) override;

    QRect nativeScreenRect(const QString& nativeHandle) const override;

    std::optional<int> connectorId(const QString& screen) const override;

private:
    /// A monitor's output that is on, with all the rest.
    struct Target
    {
        Outputs all;
        Output output;
        Crtc crtc;
    };
    std::optional<Target> find(const MonitorInfo& monitor) const;
    bool change(const Target& target, const OutputChange::Wish& wish);

    const std::shared_ptr<Connection> m_connection;
    SettingsDaemon m_daemon;
    std::mutex m_changing; ///< A change is made from what was read just before.
};

} // namespace services::x11
