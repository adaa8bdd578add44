// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/DesktopEvents.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QHash>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace services::wayland {

/// The program's own key combinations through the desktop portal (org.freedesktop.portal.GlobalShortcuts,
/// version 1): the desktop asks the person once and may give other keys than those that were wished for.
/// Keys that are nobody's combination, repetitions and windows of other applications cannot be seen here.
class PortalKeys : public QObject, public DesktopEvents
{
    Q_OBJECT

public:
    /// Asks the session's portal, if there is one, whether it has global shortcuts, and does not wait for it.
    explicit PortalKeys(const QDBusConnection& sessionBus);
    ~PortalKeys() override;

    void setKeyHandler(KeyHandler handler) override { m_handler = std::move(handler); }
    void setActionKeys(const QSet<QKeyCombination>& keys) override;
    bool hearsEveryKey() const override { return false; }
    /// False until the portal has said that it has global shortcuts.
    bool takesActionKeys() const override { return m_offered; }
    void setAbilityListener(std::function<void()> listener) override { m_listener = std::move(listener); }
    bool seesWindows() const override { return false; }
    void start() override;
    void stop() override;

    /// A combination as the portal reads it, "CTRL+ALT+Left" (XDG shortcuts standard); empty for a key
    /// without a name there.
    static QString trigger(QKeyCombination keys);

private Q_SLOTS:
    void onResponse(uint code, const QVariantMap& results, const QDBusMessage& message);
    void onActivated(const QDBusObjectPath& session, const QString& shortcut, qulonglong time,
                     const QVariantMap& options);

private:
    /// Takes the results of a request that was granted.
    using Next = std::function<void(const QVariantMap& results)>;

    void ask();
    /// The portal has come, been replaced or gone: what it knew of this program went with it.
    void meet(const QString& owner);
    QString request(Next next);
    void send(const QDBusMessage& message, const QString& path);
    void forget(const QString& path);
    void renew();
    void bind();
    void closeSession();
    void forgetRequests();

    QDBusConnection m_bus;
    KeyHandler m_handler;
    bool m_started = false;
    bool m_offered = false;
    bool m_asking = false;
    bool m_isAbsenceTold = false;
    std::function<void()> m_listener;
    int m_tokens = 0;
    QHash<QString, Next> m_requests;          ///< By the path of the portal's request object.
    QString m_session;                        ///< Path of the portal's session; empty while there is none.
    QHash<QString, QKeyCombination> m_wanted; ///< By the identifier that the portal knows them under.
};

} // namespace services::wayland
