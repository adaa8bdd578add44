// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/DesktopEvents.h"
#include "services/simulated/Error.h"
#include "services/simulated/OffscreenScreens.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace services {

class World;
struct PathRow;

/// A desktop session in memory: the services answer from it, and the control socket reads, writes and raises
/// what it holds. GUI thread only; the services themselves may be asked from any thread meanwhile.
///
/// A value that is set here raises its signal before set() returns, changed or not. One that the program
/// changes through a service raises it if it changed, once, after the call has returned.
class SimulatedServices : public QObject
{
    Q_OBJECT

public:
    /// What the session asks the host about its monitors.
    struct Monitors
    {
        /// The id of the monitor that a client means; nothing if there is none. Without it every address is
        /// taken.
        std::function<std::optional<QString>(const QString& address)> resolve;

        /// The current monitor's id, whose values are read where a client names no monitor; empty if there is
        /// none.
        std::function<QString()> current;

        /// Screens were set: screenOf() answers anew.
        std::function<void()> screensChanged;
    };

    explicit SimulatedServices(QObject* parent = nullptr);

    /// Takes the services out of use, and gives the off-screen platform its own screens back.
    ~SimulatedServices() override;

    /// Takes the services into use, and addresses of web pages and files that the program opens into
    /// "opened".
    void install();

    void setMonitors(Monitors monitors);

    /// Who answers whether a key belongs to an action of the program; DesktopEvents::setKeyHandler() sets the
    /// same.
    void setKeyHandler(DesktopEvents::KeyHandler handler);

    /// The value at a path of the control protocol; undefined, with @p error, if there is none.
    QJsonValue get(const QString& path, Error* error = nullptr) const;

    /// Sets it; false, with @p error and nothing changed, for an unknown path, monitor or a value of the
    /// wrong type.
    bool set(const QString& path, const QJsonValue& value, Error* error = nullptr);

    /// Raises a signal by its name, with its arguments as an object or a list. The answer is empty but for
    /// "activeKeyEvent": {"handled"}.
    QJsonObject emitSignal(const QString& name, const QJsonValue& arguments, Error* error = nullptr);

    /// Sets many paths, as the file of --state has them. Stops at the first that fails, which @p error names.
    bool loadState(const QJsonObject& values, Error* error = nullptr);

    /// Name of the screen that "screens" gives to a monitor; empty if it gives none.
    QString screenOf(const QString& monitor) const;

protected:
    bool event(QEvent* event) override;

private Q_SLOTS:
    void openAddress(const QUrl& address);

private:
    struct Address;
    std::optional<Address> parse(const QString& path, Error& error) const;
    std::optional<Error> apply(const PathRow& row, const QJsonValue& value, const QJsonValue& given);
    void keepDefaultOutput();

    std::shared_ptr<World> m_world;
    Monitors m_monitors;
    OffscreenScreens m_screens;
    bool m_installed = false;
};

} // namespace services
