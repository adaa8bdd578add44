// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrCoreSolidShape.h"

class ZrCoreSolidShape::Private
{
public:
    QColor color = Qt::white;
};

ZrCoreSolidShape::ZrCoreSolidShape(QQuickItem* parent) : QQuickItem(parent), d(std::make_unique<Private>())
{
    setFlag(ItemHasContents);
}

ZrCoreSolidShape::~ZrCoreSolidShape() = default;

QColor ZrCoreSolidShape::color() const
{
    return d->color;
}

void ZrCoreSolidShape::setColor(const QColor& color)
{
    if (d->color == color)
        return;
    d->color = color;
    update();
    Q_EMIT colorChanged();
}
