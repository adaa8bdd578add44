// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Options.h"
#include "PackageLoader.h"
#include "UnixSignals.h"

#include <QObject>
#include <QStringList>

#include <memory>

class ActionKeys;
class LuBrightnessSync;
struct LuDiagnosticFacts;
class DesktopShell;
class LuMonitorRegistry;
class RealMonitors;
class SimulatedMonitors;

namespace control {
class Server;
}
namespace services {
class SimulatedServices;
}

/// The composition root: makes the parts of the program from the options, connects them, and ends them in
/// order. Lives in main(), on the GUI thread.
class Application : public QObject
{
    Q_OBJECT

public:
    /// How the start ended.
    enum class Start {
        Running,
        OtherInstance, ///< Another instance was shown instead.
        Failed,        ///< What was wrong is in the log.
    };

    Application(const Options& options, bool hasDisplay);
    ~Application() override;

    Start start();

    /// After the end: a bus still holds one of the program's threads, which may wake up at any time. The
    /// process is to end without taking apart what that thread uses.
    bool hangs() const { return m_hangs; }

private:
    bool loadState();
    void findRealMonitors();
    /// Monitors that are there at the start have no model yet.
    bool isDiscovering() const;
    void installServices();
    void chooseServices();
    void installNativeServices();
    LuDiagnosticFacts diagnosticFacts() const;
    void openWindow();
    /// A panel changed what may make a monitor go and come.
    void checkMonitors();
    void simulateInstead();
    void takePicture();
    void addControlMethods();
    void quit();
    void end();

    const Options m_options;
    const bool m_hasDisplay;
    QString m_dataDirectory;
    PackageLoader m_packages;
    std::unique_ptr<services::SimulatedServices> m_services;
    std::unique_ptr<LuMonitorRegistry> m_registry;
    std::unique_ptr<ActionKeys> m_actionKeys;
    std::unique_ptr<LuBrightnessSync> m_brightnessSync;
    std::unique_ptr<SimulatedMonitors> m_simulated;
    std::unique_ptr<RealMonitors> m_real;
    std::unique_ptr<control::Server> m_server;
    std::unique_ptr<DesktopShell> m_shell;
    UnixSignals m_signals;
    bool m_pictureTaken = false;
    bool m_ending = false;
    bool m_hangs = false;
};
