// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrCoreSolidShapeBorder.h"

class ZrCoreSolidShapeBorder::Private
{
public:
    QColor color = Qt::black;
    qreal width = 0.0;
};

ZrCoreSolidShapeBorder::ZrCoreSolidShapeBorder(QObject* parent)
    : QObject(parent), d(std::make_unique<Private>())
{
}

ZrCoreSolidShapeBorder::~ZrCoreSolidShapeBorder() = default;

QColor ZrCoreSolidShapeBorder::color() const
{
    return d->color;
}

void ZrCoreSolidShapeBorder::setColor(const QColor& color)
{
    if (d->color == color)
        return;
    d->color = color;
    Q_EMIT colorChanged();
}

qreal ZrCoreSolidShapeBorder::width() const
{
    return d->width;
}

void ZrCoreSolidShapeBorder::setWidth(qreal width)
{
    const qreal positive = width > 0.0 ? width : 0.0;
    if (d->width == positive)
        return;
    d->width = positive;
    Q_EMIT widthChanged();
}
