// SPDX-License-Identifier: Apache-2.0
#include "ScreenCoordinates.h"

#include <QGuiApplication>
#include <QScreen>

namespace services::x11 {

namespace {

// Qt keeps the corner of a screen where it is and scales its inside.
QRect nativeRect(const QScreen& screen)
{
    return QRect(screen.geometry().topLeft(),
                 (QSizeF(screen.geometry().size()) * screen.devicePixelRatio()).toSize());
}

} // namespace

QPointF toDesktop(QPoint native)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QPoint origin = screen->geometry().topLeft();
        if (nativeRect(*screen).contains(native))
            return origin + QPointF(native - origin) / screen->devicePixelRatio();
    }
    return native;
}

QRect toNative(const QRectF& desktop)
{
    const QScreen* screen = QGuiApplication::screenAt(desktop.center().toPoint());
    if (!screen)
        return desktop.toRect();
    const QPointF origin = screen->geometry().topLeft();
    const qreal ratio = screen->devicePixelRatio();
    return QRectF(origin + (desktop.topLeft() - origin) * ratio, desktop.size() * ratio).toRect();
}

} // namespace services::x11
