// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ObjectAccess.h"
#include "Server.h"

#include <QObject>
#include <QString>

#include <functional>

class LuModelModuleInterface;
class LuMonitorModel;
class LuMonitorRegistry;

namespace control {

/// What the methods of the control socket need of the program.
struct Backend
{
    LuMonitorRegistry* registry = nullptr;
    /// The object of paths behind "context."; empty or null: there is none.
    std::function<QObject*()> context;
    /// Version of the feature package, empty without one.
    std::function<QString()> packageVersion;
    /// The report on monitors for a bug ticket, without personal data. Empty: there is none.
    std::function<QString()> report;
    /// Ends the program as the user's "Quit" does.
    std::function<void()> quit;
};

/// Finds the monitor and the module that a request is about, and holds requests back while monitors appear.
/// GUI thread; lives as long as the server.
class MonitorAccess : public QObject
{
    Q_OBJECT

public:
    MonitorAccess(Server* server, Backend backend);

    /// The monitor of an address; empty for the current one. Throws RequestError (NoSuchMonitor).
    LuMonitorModel* monitor(const QString& address) const;
    /// The one that the parameter "monitor" names, else the current one.
    LuMonitorModel* monitor(const Request& request) const;
    /// The module of the class that the parameter "module" names. Throws RequestError (NoSuchPath).
    LuModelModuleInterface* module(LuMonitorModel* model, const QString& className) const;

    /// Access to the objects of the monitor that the request names. Paths of the context need no monitor.
    ObjectAccess objects(const Request& request, const QString& path) const;
    QObject* context() const;
    const Backend& backend() const { return m_backend; }

private:
    Backend m_backend;
};

/// Each adds a group of the protocol's methods. @p access outlives the server's last request.
void addProgramMethods(Server* server, MonitorAccess* access);
void addModelMethods(Server* server, MonitorAccess* access);
void addStoreMethods(Server* server, MonitorAccess* access);
void addFlowMethods(Server* server, MonitorAccess* access);

/// All of the above.
MonitorAccess* addAllMethods(Server* server, const Backend& backend);

} // namespace control
