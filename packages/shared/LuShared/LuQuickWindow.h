// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QMetaObject>
#include <QQuickWindow>

/// A top-level window that a feature shows over the desktop, such as an overlay. GUI thread only.
class LUSHARED_EXPORT LuQuickWindow : public QQuickWindow
{
    Q_OBJECT

public:
    explicit LuQuickWindow(QWindow* parent = nullptr);
    ~LuQuickWindow() override;

    /// Replaces all flags.
    void setWindowFlags(Qt::WindowFlags flags);

    /// Switches one flag on or off and keeps the others.
    void setWindowFlag(Qt::WindowType flag, bool on = true);

    /// Covers the whole of the window's own screen, task bars included, and goes on doing so when that screen
    /// changes its geometry or the window its screen. With @p overlay the window is shown too, without taking
    /// the focus; without it a hidden window stays hidden.
    void enterFullScreen(bool overlay);

    /// Shows the window on all of its screen that task bars leave free.
    void enterMaximized();

protected:
    /// Called when the screen of the window changed its geometry. Covers the screen again if the window did
    /// so; an override calls it.
    virtual void onScreenGeometryChanged();

private:
    void followScreen();
    void coverScreen();
    void showCovering();

    QMetaObject::Connection m_geometryConnection;
    QMetaObject::Connection m_availableConnection;
};
