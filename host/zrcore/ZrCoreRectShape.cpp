// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrCoreRectShape.h"

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

QSGNode* ZrCoreRectShape::updatePaintNode(QSGNode* old, UpdatePaintNodeData*)
{
    // A handful of nodes that change rarely: made anew each time.
    delete old;
    if (width() <= 0.0 || height() <= 0.0)
        return nullptr;
    auto* root = new QSGNode;
    const QSizeF size(width(), height());
    const qreal line = std::min(d->border->width(), std::min(size.width(), size.height()) / 2.0);
    const QRectF inner(line, line, size.width() - 2.0 * line, size.height() - 2.0 * line);
    appendRectangle(window(), root, inner, color());
    const QColor stroke = d->border->color();
    if (line <= 0.0 || stroke.alpha() == 0)
        return root;
    const bool square = d->joinStyle == Qt::MiterJoin;
    const qreal left = square ? 0.0 : line;
    appendRectangle(window(), root, QRectF(left, 0, size.width() - 2.0 * left, line), stroke);
    appendRectangle(window(), root, QRectF(left, size.height() - line, size.width() - 2.0 * left, line),
                    stroke);
    appendRectangle(window(), root, QRectF(0, line, line, inner.height()), stroke);
    appendRectangle(window(), root, QRectF(size.width() - line, line, line, inner.height()), stroke);
    if (!square)
        appendCorners(window(), root, size, line,
                      cornerImage(line, window()->effectiveDevicePixelRatio(), d->joinStyle, stroke));
    return root;
}
