// SPDX-License-Identifier: Apache-2.0
#include "Layout.h"

namespace services::x11 {

namespace {

QRect unitedAll(const QList<QRect>& screens)
{
    QRect all;
    for (const QRect& screen : screens)
        all |= screen;
    return all;
}

} // namespace

QList<QRect> relaidOut(QList<QRect> screens, qsizetype changed, const QSize& size)
{
    const QList<QRect> before = screens;
    const QRect old = before[changed];
    const QSize growth = size - old.size();
    for (qsizetype i = 0; i < screens.size(); ++i) {
        if (i == changed)
            continue;
        if (before[i].left() > old.right())
            screens[i].translate(growth.width(), 0);
        if (before[i].top() > old.bottom())
            screens[i].translate(0, growth.height());
    }
    screens[changed].setSize(size);

    // Mirrored screens lay over each other before and still may; one that now would goes to the right end.
    for (qsizetype i = 0; i < screens.size(); ++i) {
        bool isInTheWay = false;
        int end = 0;
        for (qsizetype other = 0; other < screens.size(); ++other) {
            if (other == i)
                continue;
            isInTheWay =
                isInTheWay || (screens[i].intersects(screens[other]) && !before[i].intersects(before[other]));
            end = qMax(end, screens[other].right() + 1);
        }
        if (isInTheWay && i != changed)
            screens[i].moveLeft(end);
    }
    const QPoint origin = unitedAll(screens).topLeft();
    for (QRect& screen : screens)
        screen.translate(-origin);
    return screens;
}

} // namespace services::x11
