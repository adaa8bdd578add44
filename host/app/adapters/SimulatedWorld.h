// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace sim {
class Monitor;
}

/// The simulated monitors of this run, as the control socket reaches them. GUI thread.
class SimulatedWorld
{
public:
    virtual ~SimulatedWorld() = default;

    /// The device behind the monitor of that id, plugged in or not; null if there is none.
    virtual sim::Monitor* monitor(const QString& id) const = 0;
    virtual QStringList ids() const = 0;

    /// Plugs in "MODEL", "MODEL@SERIAL" or "builtin", with values ({"0x12": 40}) that it has by then.
    /// @return the monitor's id; empty with the reason in @p error, and then nothing has changed.
    virtual QString plug(const QString& name, const QJsonObject& vcp, QString* error) = 0;

    /// False if no such monitor is plugged in.
    virtual bool unplug(const QString& id) = 0;
};
