// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QRect>
#include <QSize>

namespace services::x11 {

/// Places screens anew after one of them got another size: what lay to the right of it or below it still
/// does, without a gap and without lying over it. The desktop begins at (0, 0) again.
/// @param changed index of the screen in @p screens.
QList<QRect> relaidOut(QList<QRect> screens, qsizetype changed, const QSize& size);

} // namespace services::x11
