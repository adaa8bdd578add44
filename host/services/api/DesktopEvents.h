// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QKeyCombination>
#include <QSet>
#include <Qt>

#include <functional>

namespace services {

/// Source of what happens on the desktop outside the program's own windows: keys, the application in the
/// foreground, windows that are dragged. It raises activeKeyEvent(), activeAppChanged(), activeAppDragged()
/// and activeAppReleased() of LuPlatformNotifications. GUI thread only.
class DesktopEvents
{
public:
    /// Answers whether one of the program's own actions took a key.
    using KeyHandler = std::function<bool(Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated)>;

    virtual ~DesktopEvents() = default;

    /// Called once by the application, before start(). Every key goes to the handler and then out as
    /// activeKeyEvent(), whatever the handler answers.
    virtual void setKeyHandler(KeyHandler handler) = 0;

    /// Key combinations that set off an action now. Where the session can keep them from the application with
    /// the focus it does; the key handler gets them as before. Called whenever they change, before start()
    /// too.
    virtual void setActionKeys(const QSet<QKeyCombination>& keys) { Q_UNUSED(keys) }

    /// Whether it raises every key, and not only those of setActionKeys().
    virtual bool hearsEveryKey() const { return true; }

    /// Whether the keys of setActionKeys() are heard while another program has the focus.
    virtual bool takesActionKeys() const { return true; }

    /// Called on the GUI thread when what it can do has become different. Set once, before start().
    virtual void setAbilityListener(std::function<void()> listener) { Q_UNUSED(listener) }

    /// Whether it tells of the application in the foreground and of windows that are dragged.
    virtual bool seesWindows() const { return true; }

    /// Called once when the first model exists, and once as the program ends. Nothing is raised outside of
    /// the two by itself.
    virtual void start() = 0;
    virtual void stop() = 0;
};

} // namespace services
