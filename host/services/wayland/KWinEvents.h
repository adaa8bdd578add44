// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/ApplicationWindows.h"
#include "services/api/DesktopEvents.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace services::wayland {

/// Foreground and dragged windows of a Plasma desktop through a script in KWin, and the program's own key
/// combinations through KGlobalAccel. Keys that are nobody's combination cannot be seen here.
class KWinEvents : public QObject, public DesktopEvents, public ApplicationWindows
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.lumen_desk.KWin")

public:
    /// Null if the session has no KWin.
    static std::shared_ptr<KWinEvents> make(const QDBusConnection& sessionBus);

    explicit KWinEvents(const QDBusConnection& sessionBus);
    ~KWinEvents() override;

    void setKeyHandler(KeyHandler handler) override { m_handler = std::move(handler); }
    void setActionKeys(const QSet<QKeyCombination>& keys) override;
    bool hearsEveryKey() const override { return false; }
    void start() override;
    void stop() override;

    /// KWin names the process alone.
    QStringList applicationNames(unsigned long) const override { return {}; }
    void setGeometry(unsigned long pid, const QRectF& geometry) override;

public Q_SLOTS:
    /// Called by the script that watches.
    Q_SCRIPTABLE void activated(const QString& text);
    Q_SCRIPTABLE void dragged(const QString& text);
    Q_SCRIPTABLE void released(const QString& text);
    /// Called by a script of setGeometry() that has done all it does; of any other name nothing happens.
    Q_SCRIPTABLE void ended(const QString& script);

private Q_SLOTS:
    void onShortcut(const QString& component, const QString& action, qlonglong time);

private:
    void watch();
    using Next = std::function<void(const QDBusMessage& reply)>;
    void call(const QDBusMessage& message, Next next);
    void runScript(const QString& name, const QString& text);
    QString fileOf(const QString& script) const;
    void dropForgottenKeys();
    void registerKey(const QString& name, int key);
    void listenToShortcuts();

    QDBusConnection m_bus;
    KeyHandler m_handler;
    QTemporaryDir m_folder;
    bool m_started = false;
    bool m_listening = false;
    int m_scripts = 0;
    QSet<QString> m_placing; ///< Scripts of setGeometry() that have not ended.
    int m_tries = 0;
    unsigned long m_active = 0; ///< In the foreground, this program too; 0 before the first was told.
    unsigned long m_draggedPid = 0;
    QString m_draggedWindow;                ///< The last one that was dragged, as KWin names it.
    QHash<QString, QKeyCombination> m_keys; ///< By their text, which is the name of their action.
};

} // namespace services::wayland
