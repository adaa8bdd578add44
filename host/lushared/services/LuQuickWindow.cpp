// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuQuickWindow.h>

#include <QScreen>

LuQuickWindow::LuQuickWindow(QWindow* parent) : QQuickWindow(parent)
{
    connect(this, &QWindow::screenChanged, this, [this] {
        followScreen();
        coverScreen();
    });
    followScreen();
}

LuQuickWindow::~LuQuickWindow() = default;

void LuQuickWindow::setWindowFlags(Qt::WindowFlags flags)
{
    setFlags(flags);
}

void LuQuickWindow::setWindowFlag(Qt::WindowType flag, bool on)
{
    setFlag(flag, on);
}

void LuQuickWindow::enterFullScreen(bool overlay)
{
    setWindowStates(Qt::WindowFullScreen);
    coverScreen();
    // showFullScreen() would also ask for the focus, which belongs to the application below the overlay.
    if (overlay)
        setVisible(true);
}

void LuQuickWindow::enterMaximized()
{
    setWindowStates(Qt::WindowMaximized);
    coverScreen();
    setVisible(true);
}

void LuQuickWindow::onScreenGeometryChanged()
{
    coverScreen();
}

void LuQuickWindow::followScreen()
{
    disconnect(m_geometryConnection);
    disconnect(m_availableConnection);
    if (!screen())
        return;
    m_geometryConnection =
        connect(screen(), &QScreen::geometryChanged, this, [this] { onScreenGeometryChanged(); });
    // A task bar that comes or goes changes what a maximised window may cover, but not the screen itself.
    m_availableConnection =
        connect(screen(), &QScreen::availableGeometryChanged, this, [this] { coverScreen(); });
}

// Window managers do this by themselves for a window that they show; a hidden window and a display system
// without a window manager need it done.
void LuQuickWindow::coverScreen()
{
    if (!screen())
        return;
    if (windowStates() & Qt::WindowFullScreen)
        setGeometry(screen()->geometry());
    else if (windowStates() & Qt::WindowMaximized)
        setGeometry(screen()->availableGeometry());
}
