// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuPackagesInterface.h>
#include <LuShared/LuSharedGlobal.h>

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QUrl>

#include <memory>

/// The connected monitors with their models, and the packages that serve them. GUI thread.
class LUSHARED_EXPORT LuMonitorRegistry : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<LuMonitorModel*> monitors READ monitors NOTIFY monitorsChanged)
    Q_PROPERTY(LuMonitorModel* current READ current NOTIFY currentChanged)

public:
    explicit LuMonitorRegistry(QObject* parent = nullptr);
    ~LuMonitorRegistry() override;

    /// Packages are added before monitors, in the order in which they were loaded.
    void addPackage(LuPackagesInterface* package);
    QList<LuPackagesInterface*> packages() const;
    /// The package that serves a model; the first package for one that none serves; null without packages.
    LuPackagesInterface* packageFor(const LuMonitorModel* model) const;

    /// The search for the monitors that are there at the program's start goes on, or is over. What is added
    /// meanwhile belongs to the launch, what comes later does not, and is only read. Without a search the
    /// launch ends when the first monitors have their models.
    void setSearching(bool searching);

    /// Learns the monitor's colour mode without blocking, then constructs and launches its model.
    void addMonitor(const QSharedPointer<MonitorInfo>& info);
    /// Takes the monitor out: its transfers are cancelled, what waits for it is dropped, and its model is
    /// destroyed as soon as the job that runs has ended, which a bus that hangs may delay. Returns at once.
    /// False if there is none of that id.
    bool removeMonitor(const QString& id);
    /// The display of that monitor fell asleep, or woke: see LuModelHost::setAsleep().
    void setAsleep(const QString& id, bool asleep);
    /// Something happened at the outputs: monitors that gave no answer are tried again now.
    void noteDisturbance();
    /// Ends all models: exit events, queues drained, settings and statistics written. Waits for a bus that
    /// hangs at most two seconds; false if one hangs even then: what it holds is left to the end of the
    /// process.
    bool shutDown();

    /// Models in the order in which their monitors appeared.
    QList<LuMonitorModel*> monitors() const;
    /// True while a monitor that was added has no model yet.
    bool isBusy() const;
    LuMonitorModel* current() const;
    /// Makes the monitor of that address current; false if there is none.
    bool select(const QString& address);
    /// The monitor of an id, or of a model name that only one has; empty for the current one. Null if there
    /// is none.
    LuMonitorModel* find(const QString& address) const;

Q_SIGNALS:
    void monitorsChanged();
    void currentChanged();
    void monitorAdded(LuMonitorModel* model);
    /// The model still stands, for the last time.
    void monitorAboutToBeRemoved(LuMonitorModel* model);
    /// Every monitor that was added so far has a model.
    void settled();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
