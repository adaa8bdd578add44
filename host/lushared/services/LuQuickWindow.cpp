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
        showCovering();
}

void LuQuickWindow::enterMaximized()
{
    setWindowStates(Qt::WindowMaximized);
    coverScreen();
    showCovering();
}

void LuQuickWindow::onScreenGeometryChanged()
{
    coverScreen();
}

// A platform without a window manager gives a window that it begins to show the size that it thinks right.
void LuQuickWindow::showCovering()
{
    setVisible(true);
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
    QRect target = geometry();
    if (windowStates() & Qt::WindowFullScreen)
        target = screen()->geometry();
    else if (windowStates() & Qt::WindowMaximized)
        target = screen()->availableGeometry().marginsRemoved(frameMargins());
    if (target == geometry())
        return;
    setGeometry(target);
    // A platform without a window manager keeps a covering window as it is until it is told its state again.
    if (handle())
        setWindowStates(windowStates());
}
