// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrCoreRectShape.h"

#include "NanoShape.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>
#include <QSGTexture>

#include <algorithm>
#include <array>
#include <cmath>

class ZrCoreRectShape::Private
{
public:
    ZrCoreSolidShapeBorder* border = nullptr;
    Qt::PenJoinStyle joinStyle = Qt::MiterJoin;
};

namespace {

struct Corner
{
    bool right;
    bool bottom;
};

constexpr std::array Corners{
    Corner{false, false},
    Corner{true, false},
    Corner{false, true},
    Corner{true, true},
};

void appendRectangle(QQuickWindow* window, QSGNode* parent, const QRectF& rect, const QColor& color)
{
    if (rect.isEmpty() || color.alpha() == 0)
        return;
    QSGRectangleNode* node = window->createRectangleNode();
    node->setRect(rect);
    node->setColor(color);
    node->setFlag(QSGNode::OwnedByParent);
    parent->appendChildNode(node);
}

// The upper left corner of the border, smooth at its outer edge; the other three are its mirror images.
QImage cornerImage(qreal width, qreal ratio, Qt::PenJoinStyle style, const QColor& color)
{
    const int size = std::max(1, static_cast<int>(std::ceil(width * ratio)));
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    if (style == Qt::RoundJoin)
        painter.drawEllipse(QRectF(0, 0, 2.0 * size, 2.0 * size));
    else
        painter.drawPolygon(QPolygonF{QPointF(size, 0), QPointF(size, size), QPointF(0, size)});
    return image;
}

void appendCorners(QQuickWindow* window, QSGNode* parent, const QSizeF& item, qreal width,
                   const QImage& image)
{
    for (const Corner corner : Corners) {
        QSGImageNode* node = window->createImageNode();
        node->setOwnsTexture(true);
        node->setTexture(window->createTextureFromImage(image));
        node->setRect(corner.right ? item.width() - width : 0.0, corner.bottom ? item.height() - width : 0.0,
                      width, width);
        QSGImageNode::TextureCoordinatesTransformMode mode = QSGImageNode::NoTransform;
        mode.setFlag(QSGImageNode::MirrorHorizontally, corner.right);
        mode.setFlag(QSGImageNode::MirrorVertically, corner.bottom);
        node->setTextureCoordinatesTransform(mode);
        node->setFlag(QSGNode::OwnedByParent);
        parent->appendChildNode(node);
    }
}

} // namespace

ZrCoreRectShape::ZrCoreRectShape(QQuickItem* parent)
    : ZrCoreSolidShape(parent), d(std::make_unique<Private>())
{
    d->border = new ZrCoreSolidShapeBorder(this);
    connect(d->border, &ZrCoreSolidShapeBorder::colorChanged, this, &QQuickItem::update);
    connect(d->border, &ZrCoreSolidShapeBorder::widthChanged, this, &QQuickItem::update);
}

ZrCoreRectShape::~ZrCoreRectShape() = default;

ZrCoreSolidShapeBorder* ZrCoreRectShape::border() const
{
    return d->border;
}

Qt::PenJoinStyle ZrCoreRectShape::joinStyle() const
{
    return d->joinStyle;
}

void ZrCoreRectShape::setJoinStyle(Qt::PenJoinStyle style)
{
    const bool known = style == Qt::BevelJoin || style == Qt::RoundJoin;
    const Qt::PenJoinStyle join = known ? style : Qt::MiterJoin;
    if (d->joinStyle == join)
        return;
    d->joinStyle = join;
    update();
    Q_EMIT joinStyleChanged();
}

namespace {

/// What a shape looks like, on its way to the scene graph.
struct RectLook
{
    QSizeF size;
    qreal line = 0; ///< Width of the border.
    QColor fill;
    QColor stroke;
    Qt::PenJoinStyle joinStyle = Qt::MiterJoin;

    QRectF inner() const { return QRectF(QPointF(), size).adjusted(line, line, -line, -line); }
    bool hasBorder() const { return line > 0.0 && stroke.alpha() > 0; }
};

QList<QPointF> cornersOf(const QRectF& rect)
{
    return {rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()};
}

// The outline of the border, and for each of its points the corner of the inside that belongs to it.
void appendBorder(zr::NanoShapeNode* node, const RectLook& look)
{
    const QList<QPointF> innerCorners = cornersOf(look.inner());
    if (look.joinStyle == Qt::MiterJoin) {
        node->addRing(cornersOf(QRectF(QPointF(), look.size)), innerCorners, look.stroke);
        return;
    }
    // A cut corner is an arc of one step.
    const int steps = look.joinStyle == Qt::BevelJoin ? 1 : 4 + int(look.line);
    QList<QPointF> outer;
    QList<QPointF> inner;
    for (int corner = 0; corner < 4; ++corner) {
        for (int step = 0; step <= steps; ++step) {
            const qreal angle = (corner - 2 + qreal(step) / steps) * M_PI / 2;
            outer.append(innerCorners[corner] + look.line * QPointF(std::cos(angle), std::sin(angle)));
            inner.append(innerCorners[corner]);
        }
    }
    node->addRing(outer, inner, look.stroke);
}

// With the shaders: one node, whose edges are soft where they do not lie on a pixel's border.
QSGNode* updateNanoShape(QSGNode* old, const RectLook& look, qreal pixelRatio)
{
    auto* node = dynamic_cast<zr::NanoShapeNode*>(old);
    if (!node) {
        delete old;
        node = new zr::NanoShapeNode;
    }
    node->begin(pixelRatio);
    if (look.hasBorder()) {
        node->addHardFill(cornersOf(look.inner()), look.fill);
        appendBorder(node, look);
    } else {
        node->addFill(cornersOf(look.inner()), look.fill);
    }
    node->end();
    return node;
}

// Without them: rectangles, which every renderer draws.
QSGNode* makePlainShape(QQuickWindow* window, const RectLook& look)
{
    // A handful of nodes that change rarely: made anew each time.
    auto* root = new QSGNode;
    const QRectF inner = look.inner();
    appendRectangle(window, root, inner, look.fill);
    if (!look.hasBorder())
        return root;
    const qreal line = look.line;
    const QSizeF size = look.size;
    const bool square = look.joinStyle == Qt::MiterJoin;
    const qreal left = square ? 0.0 : line;
    for (const qreal y : {0.0, size.height() - line})
        appendRectangle(window, root, QRectF(left, y, size.width() - 2.0 * left, line), look.stroke);
    for (const qreal x : {0.0, size.width() - line})
        appendRectangle(window, root, QRectF(x, line, line, inner.height()), look.stroke);
    if (!square)
        appendCorners(window, root, size, line,
                      cornerImage(line, window->effectiveDevicePixelRatio(), look.joinStyle, look.stroke));
    return root;
}

} // namespace

QSGNode* ZrCoreRectShape::updatePaintNode(QSGNode* old, UpdatePaintNodeData*)
{
    if (width() <= 0.0 || height() <= 0.0) {
        delete old;
        return nullptr;
    }
    const qreal line = std::min(d->border->width(), std::min(width(), height()) / 2.0);
    const RectLook look{size(), line, color(), d->border->color(), d->joinStyle};
    if (zr::drawsNanoShapes(window()))
        return updateNanoShape(old, look, window()->effectiveDevicePixelRatio());
    delete old;
    return makePlainShape(window(), look);
}
