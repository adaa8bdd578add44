// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <PanelCore/PanelCoreGlobal.h>

#include <QSharedPointer>
#include <QString>

#include <memory>

class MonitorInfoPrivate;

/// The host's handle of one connected monitor: who it is, and (for the host alone) the way to its bus.
///
/// Handles are made by the host when a monitor appears and shared with the monitor's model. All functions may
/// be called from any thread; the identity never changes during the handle's life.
class PANELCORE_EXPORT MonitorInfo
{
public:
    explicit MonitorInfo(std::unique_ptr<MonitorInfoPrivate> data);
    ~MonitorInfo();
    MonitorInfo(const MonitorInfo&) = delete;
    MonitorInfo& operator=(const MonitorInfo&) = delete;

    /// Address of the monitor among the connected ones: model, "@", serial number; a twin that has no serial
    /// number of its own carries "#2", "#3" behind it.
    QString id() const;

    /// Model name as the monitor reports it in its EDID, such as "TK30Z".
    QString modelName() const;

    /// Serial number of the EDID, its text before its number; empty if the monitor has none.
    QString serialNumber() const;

    /// Whether this is the panel built into a notebook.
    bool isBuiltIn() const;

    /// Whether a simulated device answers instead of a monitor.
    bool isSimulated() const;

    /// Name of the QScreen that shows on this monitor; empty while none does.
    QString screenName() const;

    /// The display system's own identifier of the output, such as an X11 RandR output name; empty where it
    /// has none.
    QString nativeHandle() const;

private:
    friend class MonitorInfoPrivate;
    std::unique_ptr<MonitorInfoPrivate> d;
};
