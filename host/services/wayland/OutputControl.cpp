// SPDX-License-Identifier: Apache-2.0
#include "services/wayland/OutputControl.h"

#include <algorithm>

namespace services::wayland {

const OutputMode* Output::mode(const QString& id) const
{
    const auto found =
        std::find_if(modes.begin(), modes.end(), [&](const OutputMode& each) { return each.id == id; });
    return id.isEmpty() || found == modes.end() ? nullptr : &*found;
}

QList<QRect> arranged(QList<QRect> rectangles, qsizetype changed, const QSize& newSize)
{
    const QRect before = rectangles[changed];
    const int right = before.x() + before.width();
    const int bottom = before.y() + before.height();
    for (qsizetype i = 0; i < rectangles.size(); ++i) {
        QRect& each = rectangles[i];
        if (i == changed)
            each.setSize(newSize);
        else if (each.x() >= right)
            each.translate(newSize.width() - before.width(), 0);
        else if (each.y() >= bottom)
            each.translate(0, newSize.height() - before.height());
    }
    return rectangles;
}

} // namespace services::wayland
