// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "adapters/SimulatedWorld.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>
#include <vector>

class LuMonitorRegistry;

/// The simulated monitors of this run: makes the devices, plugs them into the registry, and keeps their
/// values across runs. GUI thread.
class SimulatedMonitors : public QObject, public SimulatedWorld
{
    Q_OBJECT

public:
    SimulatedMonitors(LuMonitorRegistry& registry, bool fastTiming, const QString& dataDirectory);
    ~SimulatedMonitors() override;

    /// Makes the devices of a comma-separated list. An empty result: done; else what was wrong.
    QString make(const QString& list);

    /// Sets values ({MONITOR: {"0x12": 40}}) and arms faults before anything is plugged in. An empty result:
    /// done; else what was wrong.
    QString applyState(const QJsonObject& vcp, const QJsonArray& faults);

    /// Plugs every device that was made into the registry.
    void plugAll();

    /// Writes the values of all devices.
    void persist();

    sim::Monitor* monitor(const QString& id) const override;
    QStringList ids() const override;
    QString plug(const QString& name, const QJsonObject& vcp, QString* error) override;
    bool unplug(const QString& id) override;

private:
    struct Device
    {
        QString id;
        std::unique_ptr<sim::Monitor> monitor;
        bool connected = false;
    };

    Device* device(const QString& id);
    Device* makeDevice(const QString& text, QString* error);
    void connectDevice(Device& device);
    /// The device of an id, or of a model name that only one has; empty for the only device.
    sim::Monitor* addressed(const QString& address) const;
    /// The screen on which the window shows a monitor's overlay: the screens in turn.
    QString screenFor(const Device& device) const;

    LuMonitorRegistry& m_registry;
    const bool m_fastTiming;
    const QString m_dataDirectory;
    std::vector<std::unique_ptr<Device>> m_devices;
    QTimer m_persistTimer;
};
