// SPDX-License-Identifier: Apache-2.0
#pragma once

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

    /// False where nothing composes the desktop: a translucent window is opaque there.
    virtual bool blends() const { return true; }
};

} // namespace services
