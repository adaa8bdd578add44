// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>

namespace services::x11 {

/// Native pixels to and from the coordinates of QScreen, which differ where Qt scales a screen. GUI thread.
QPointF toDesktop(QPoint native);
QRect toNative(const QRectF& desktop);

} // namespace services::x11
