// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuPackagesInterface.h>
#include <lushared/LuEventLog.h>
#include <services/simulated/SimulatedServices.h>
#include <simulator/Monitor.h>

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// The package on simulated monitors, without a window and without waits on the wire.
///
/// One bed per test program: it opens the settings and events in a folder of its own, loads the package as
/// the application does, and installs simulated services.
class TestBed
{
public:
    TestBed();
    ~TestBed();

    static TestBed& instance();

    LuPackagesInterface* package() const { return m_package; }
    services::SimulatedServices& services() { return *m_services; }
    static QString packageFile();

private:
    QTemporaryDir m_directory;
    std::unique_ptr<services::SimulatedServices> m_services;
    LuPackagesInterface* m_package = nullptr;
};

/// One simulated monitor with its model.
class SimulatedBed
{
public:
    enum class Timing {
        Fast,
        Real, ///< The waits of DDC/CI, enforced by the device.
    };

    /// @param name "TK30Z" or "TK30Z@SERIAL"; a name without a serial gets one that no other bed has.
    explicit SimulatedBed(const QString& name = QStringLiteral("TK30Z"), Timing timing = Timing::Fast);
    ~SimulatedBed();

    sim::Monitor& monitor() { return *m_monitor; }
    /// Zero of the wire log's milliseconds, in milliseconds of the steady clock.
    double epochMs() const { return m_epochMs; }
    /// A new handle of the monitor, which has told its colour mode.
    QSharedPointer<MonitorInfo> makeInfo();

    /// Constructs the model as at the program's launch; an older one is destroyed first.
    LuMonitorModel& launch();
    /// As after a hot-plug: nothing is restored.
    LuMonitorModel& hotplug();
    LuMonitorModel& model() { return *m_model; }
    void destroy();

    /// Restarts as the same monitor: the settings are found again.
    LuMonitorModel& relaunch()
    {
        destroy();
        return launch();
    }

    LuModelModuleInterface* module(const char* className);
    QVariant get(const char* className, const char* property);
    bool set(const char* className, const char* property, const QVariant& value);

    /// Waits until everything that was asked for has run. False after ten seconds.
    bool idle();
    /// Reads everything back and waits for it.
    bool sync(const char* className = nullptr);
    bool apply();

    /// What went over the wire since the last call, as "get 0xF3 1" or "set 0xF3 0 failed".
    QStringList wire();
    /// Usage events since the last call, as "LuAutoPivot 6 on 0 []".
    QStringList events();
    /// Texts of the log since the last call.
    QStringList log();
    /// Drops what wire(), events() and log() would tell.
    void forget();

    /// A persisted key of the monitor, "LuAiContrast/state"; invalid if it is not stored.
    QVariant setting(const QString& key) const;
    void storeSetting(const QString& key, const QVariant& value);

private:
    LuMonitorModel& construct(bool launching);
    QString section() const;

    const Timing m_timing;
    double m_epochMs = 0;
    std::unique_ptr<sim::Monitor> m_monitor;
    LuMonitorModel* m_model = nullptr;
    quint64 m_wireSeen = 0;
    quint64 m_eventsSeen = 0;
    quint64 m_logSeen = 0;
};

/// Drops everything that waits and waits for the rest.
bool waitForRest();
