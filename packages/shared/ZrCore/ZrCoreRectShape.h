// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreSolidShape.h"
#include "ZrCore/ZrCoreSolidShapeBorder.h"

/// A rectangle with a fill and a border. The border lies inside the item's edge, the fill inside the border,
/// so that translucent colours do not add up.
class ZRCORE_EXPORT ZrCoreRectShape : public ZrCoreSolidShape
{
    Q_OBJECT
    Q_PROPERTY(ZrCoreSolidShapeBorder* border READ border CONSTANT FINAL)
    Q_PROPERTY(Qt::PenJoinStyle joinStyle READ joinStyle WRITE setJoinStyle NOTIFY joinStyleChanged FINAL)

public:
    explicit ZrCoreRectShape(QQuickItem* parent = nullptr);
    ~ZrCoreRectShape() override;

    /// Owned by the shape.
    ZrCoreSolidShapeBorder* border() const;

    /// The outer corners of the border: Qt::MiterJoin (0, at first) square, Qt::BevelJoin cut, Qt::RoundJoin
    /// round with the border's width as radius. Any other value counts as Qt::MiterJoin.
    Qt::PenJoinStyle joinStyle() const;
    void setJoinStyle(Qt::PenJoinStyle style);

Q_SIGNALS:
    void joinStyleChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
