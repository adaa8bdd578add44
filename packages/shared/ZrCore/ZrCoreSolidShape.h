// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QColor>
#include <QQuickItem>

#include <memory>

/// Base of the vector shapes that are filled with one colour.
///
/// With a renderer on a graphics processor the shapes are drawn by the NanoShape shaders of a package, with
/// soft edges. With the software renderer, and without those shaders, they are put together from rectangle
/// nodes of the scene graph, which every renderer draws.
class ZRCORE_EXPORT ZrCoreSolidShape : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)

public:
    explicit ZrCoreSolidShape(QQuickItem* parent = nullptr);
    ~ZrCoreSolidShape() override;

    /// The fill; opaque white at first.
    QColor color() const;
    void setColor(const QColor& color);

Q_SIGNALS:
    void colorChanged();

private:
    class Private;
    std::unique_ptr<Private> d;
};
