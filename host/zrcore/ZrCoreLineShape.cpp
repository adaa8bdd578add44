// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrCoreLineShape.h"

#include "NanoShape.h"

#include <QMatrix4x4>
#include <QQuickWindow>
#include <QSGRectangleNode>
#include <QSGTransformNode>

#include <algorithm>

class ZrCoreLineShape::Private
{
public:
    QPointF start;
    QPointF end;
    QColor strokeColor = Qt::black;
    qreal strokeWidth = 1.0;
    bool following = false; ///< The geometry is set from the points.
};

ZrCoreLineShape::ZrCoreLineShape(QQuickItem* parent) : QQuickItem(parent), d(std::make_unique<Private>())
{
    setFlag(ItemHasContents);
}

ZrCoreLineShape::~ZrCoreLineShape() = default;

QPointF ZrCoreLineShape::startPoint() const
{
    return d->start;
}

void ZrCoreLineShape::setStartPoint(const QPointF& point)
{
    setLine(point, d->end);
}

QPointF ZrCoreLineShape::endPoint() const
{
    return d->end;
}

void ZrCoreLineShape::setEndPoint(const QPointF& point)
{
    setLine(d->start, point);
}

QLineF ZrCoreLineShape::line() const
{
    return QLineF(d->start, d->end);
}

void ZrCoreLineShape::setLine(const QPointF& start, const QPointF& end)
{
    if (d->start == start && d->end == end)
        return;
    d->start = start;
    d->end = end;
    d->following = true;
    setPosition(QPointF(std::min(start.x(), end.x()), std::min(start.y(), end.y())));
    setSize(QSizeF(std::abs(end.x() - start.x()), std::abs(end.y() - start.y())));
    d->following = false;
    update();
    Q_EMIT lineChanged();
}

QColor ZrCoreLineShape::strokeColor() const
{
    return d->strokeColor;
}

void ZrCoreLineShape::setStrokeColor(const QColor& color)
{
    if (d->strokeColor == color)
        return;
    d->strokeColor = color;
    update();
    Q_EMIT strokeColorChanged();
}

qreal ZrCoreLineShape::strokeWidth() const
{
    return d->strokeWidth;
}

void ZrCoreLineShape::setStrokeWidth(qreal width)
{
    const qreal positive = width > 0.0 ? width : 0.0;
    if (d->strokeWidth == positive)
        return;
    d->strokeWidth = positive;
    update();
    Q_EMIT strokeWidthChanged();
}

void ZrCoreLineShape::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    const QPointF moved = newGeometry.topLeft() - oldGeometry.topLeft();
    if (d->following || moved.isNull())
        return;
    d->start += moved;
    d->end += moved;
    Q_EMIT lineChanged();
}

namespace {

// With the shaders: a stroke with soft edges at any angle.
QSGNode* updateNanoLine(QSGNode* old, const QLineF& line, qreal width, const QColor& color, qreal pixelRatio)
{
    auto* node = dynamic_cast<zr::NanoShapeNode*>(old);
    if (!node) {
        delete old;
        node = new zr::NanoShapeNode;
    }
    const QPointF along = (line.p2() - line.p1()) / line.length();
    const QPointF side = QPointF(along.y(), -along.x()) * width / 2.0;
    node->begin(pixelRatio);
    node->addFill({line.p1() + side, line.p2() + side, line.p2() - side, line.p1() - side}, color);
    node->end();
    return node;
}

// Without them: a rectangle along the x axis, turned about the start, which every renderer draws.
QSGNode* updatePlainLine(QSGNode* old, QQuickWindow* window, const QLineF& line, qreal width,
                         const QColor& color)
{
    auto* turn = dynamic_cast<QSGTransformNode*>(old);
    if (!turn) {
        delete old;
        turn = new QSGTransformNode;
        QSGRectangleNode* created = window->createRectangleNode();
        created->setFlag(QSGNode::OwnedByParent);
        turn->appendChildNode(created);
    }
    auto* stroke = static_cast<QSGRectangleNode*>(turn->firstChild());
    stroke->setRect(QRectF(0, -width / 2.0, line.length(), width));
    stroke->setColor(color);
    QMatrix4x4 matrix;
    matrix.translate(static_cast<float>(line.x1()), static_cast<float>(line.y1()));
    matrix.rotate(static_cast<float>(-line.angle()), 0, 0, 1);
    turn->setMatrix(matrix);
    return turn;
}

} // namespace

QSGNode* ZrCoreLineShape::updatePaintNode(QSGNode* old, UpdatePaintNodeData*)
{
    const QLineF own = line().translated(-position());
    if (own.length() <= 0.0 || d->strokeWidth <= 0.0 || d->strokeColor.alpha() == 0) {
        delete old;
        return nullptr;
    }
    if (zr::drawsNanoShapes(window()))
        return updateNanoLine(old, own, d->strokeWidth, d->strokeColor,
                              window()->effectiveDevicePixelRatio());
    return updatePlainLine(old, window(), own, d->strokeWidth, d->strokeColor);
}
