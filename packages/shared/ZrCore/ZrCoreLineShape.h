// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QColor>
#include <QLineF>
#include <QPointF>
#include <QQuickItem>

#include <memory>

/// A straight line between two points of its parent item.
///
/// Setting a point sets the item's geometry: x and y the smaller coordinates of the two points, width and
/// height the distances, so that a vertical line has width 0 and a horizontal one height 0. Moving the item
/// moves the line and its points with it. The stroke is centred on the line and drawn beyond the item's
/// bounds.
class ZRCORE_EXPORT ZrCoreLineShape : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QPointF startPoint READ startPoint WRITE setStartPoint NOTIFY lineChanged FINAL)
    Q_PROPERTY(QPointF endPoint READ endPoint WRITE setEndPoint NOTIFY lineChanged FINAL)
    Q_PROPERTY(QColor strokeColor READ strokeColor WRITE setStrokeColor NOTIFY strokeColorChanged FINAL)
    Q_PROPERTY(qreal strokeWidth READ strokeWidth WRITE setStrokeWidth NOTIFY strokeWidthChanged FINAL)

public:
    explicit ZrCoreLineShape(QQuickItem* parent = nullptr);
    ~ZrCoreLineShape() override;

    /// In the parent's coordinates.
    QPointF startPoint() const;
    void setStartPoint(const QPointF& point);
    QPointF endPoint() const;
    void setEndPoint(const QPointF& point);
    /// Both points as they lie now.
    QLineF line() const;
    void setLine(const QPointF& start, const QPointF& end);

    /// Opaque black at first.
    QColor strokeColor() const;
    void setStrokeColor(const QColor& color);
    /// In device-independent pixels, 1 at first; under 0 counts as 0.
    qreal strokeWidth() const;
    void setStrokeWidth(qreal width);

Q_SIGNALS:
    void lineChanged();
    void strokeColorChanged();
    void strokeWidthChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
