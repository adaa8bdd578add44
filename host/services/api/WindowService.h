// SPDX-License-Identifier: Apache-2.0
#pragma once

class QPoint;
class QQuickWindow;

namespace services {

/// What a display system can do to the program's own windows beyond Qt. Called by LuPlatform on the GUI
/// thread, also for windows that have never been shown; the window is not null.
class WindowService
{
public:
    virtual ~WindowService() = default;

    /// 0 normal, 3 above everything.
    virtual void setLayer(QQuickWindow* window, int layer) = 0;

    /// Whether the window shows on every virtual desktop.
    virtual void setJoinActiveSpaces(QQuickWindow* window, bool join) = 0;

    /// False where a window cannot be kept above those that come to the front later.
    virtual bool keepsAbove() const { return true; }

    /// For sessions whose programs may neither place their windows nor refuse the focus (Wayland): has the
    /// window stand at @p position of the desktop, above all others and without ever getting the focus.
    /// Called before the window is shown, and again for another position.
    /// @return false where the session cannot do so: the window is not to be shown.
    virtual bool placeFeedback(QQuickWindow*, const QPoint&) { return false; }

    /// False where nothing composes the desktop: a translucent window is opaque there.
    virtual bool blends() const { return true; }
};

} // namespace services
