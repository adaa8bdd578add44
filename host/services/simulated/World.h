// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/DesktopEvents.h"
#include "services/simulated/Clipboard.h"
#include "services/simulated/Values.h"

#include <QHash>
#include <QJsonObject>
#include <QList>

#include <functional>
#include <memory>
#include <mutex>

class QObject;

namespace services {

/// What is raised to the program when a value of the session changes.
enum class Signal {
    None,
    ScreenGeometry,
    SystemBrightness,
    AppList,
    ActiveApp,
    AudioOutputs,
    SystemVolume,
    Location,
    KvmChanged,
    KvmLocation,
    Copy ///< Not a signal: the foreground application puts its selection on the clipboard.
};

/// One value of the session.
struct PathRow
{
    QLatin1String name;
    Kind kind;
    bool isPerMonitor;
    Signal signal; ///< Raised when the value is set from outside.
};

/// The simulated session's values, shared by the services that answer from them. All functions may be called
/// from any thread.
class World
{
public:
    World();

    /// The row of a path without its monitor; null if there is none.
    static const PathRow* find(const QString& path);
    static QList<QString> paths();

    /// A value of the session; of a path that each monitor has, the one that was written last.
    QJsonValue value(QLatin1String path) const;

    /// A monitor's value: that of its id, else that of its model, else that of all.
    QJsonValue value(QLatin1String path, const QString& monitor) const;

    /// Stores a normalised value, for all monitors where each has one. Returns whether it differs.
    bool setValue(QLatin1String path, const QJsonValue& value);

    /// Stores a monitor's value, given its id or its model's name.
    bool setValue(QLatin1String path, const QString& monitor, const QJsonValue& value);

    /// Changes a value in place, with nobody in between. Returns whether it differs.
    bool change(QLatin1String path, const std::function<QJsonValue(const QJsonValue&)>& step);

    /// Has @p signal raised on the GUI thread once the caller is through. Each call raises it once.
    void raiseLater(Signal signal);

    /// Who raises them: an object of the GUI thread that gets a QEvent::User whenever something waits; null
    /// for none.
    void setReceiver(QObject* receiver);
    QList<Signal> takePending();

    /// The clipboard as it was last seen, for threads that may not ask the clipboard itself.
    void setClipboard(const ClipboardContent& content);

    /// The foreground application takes what is on the clipboard.
    void paste();

    /// Contents that were pasted; those that paste() added as well as those that were set.
    QJsonValue pasted() const;
    void setPasted(const QJsonValue& list);

    /// GUI thread only.
    DesktopEvents::KeyHandler keyHandler;

private:
    QJsonValue ofMonitor(QLatin1String path, const QString& monitor) const; // with the lock held

    mutable std::mutex m_mutex;
    QHash<QString, QJsonValue> m_shared;
    QHash<QString, QHash<QString, QJsonValue>> m_perMonitor; // by path, by monitor
    QHash<QString, QJsonValue> m_latest;                     // of paths that each monitor has
    QList<Signal> m_pending;
    QObject* m_receiver = nullptr;
    ClipboardContent m_clipboard;
    QList<ClipboardContent> m_pasted;
};

/// Names of the paths.
namespace path {
inline constexpr QLatin1String pivot("pivot");
inline constexpr QLatin1String resolution("resolution");
inline constexpr QLatin1String resolutions("resolutions");
inline constexpr QLatin1String dpiScaling("dpiScaling");
inline constexpr QLatin1String dpiScalings("dpiScalings");
inline constexpr QLatin1String hiDpi("hiDpi");
inline constexpr QLatin1String hiDpiRefused("hiDpiRefused");
inline constexpr QLatin1String systemBrightness("systemBrightness");
inline constexpr QLatin1String openRefused("openRefused");
inline constexpr QLatin1String applicationsReady("applicationsReady");
inline constexpr QLatin1String applications("applications");
inline constexpr QLatin1String windows("windows");
inline constexpr QLatin1String activePid("activePid");
inline constexpr QLatin1String audioOutputs("audioOutputs");
inline constexpr QLatin1String defaultAudioOutput("defaultAudioOutput");
inline constexpr QLatin1String systemVolume("systemVolume");
inline constexpr QLatin1String location("location");
inline constexpr QLatin1String selection("selection");
inline constexpr QLatin1String pasted("pasted");
inline constexpr QLatin1String clipboard("clipboard");
inline constexpr QLatin1String kvm("kvm");
inline constexpr QLatin1String screens("screens");
inline constexpr QLatin1String deviceModel("deviceModel");
inline constexpr QLatin1String opened("opened");
} // namespace path

} // namespace services
