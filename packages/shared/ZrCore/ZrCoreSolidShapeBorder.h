// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QColor>
#include <QObject>

#include <memory>

/// The border of a shape: a colour and a width.
class ZRCORE_EXPORT ZrCoreSolidShapeBorder : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    Q_PROPERTY(qreal width READ width WRITE setWidth NOTIFY widthChanged FINAL)

public:
    explicit ZrCoreSolidShapeBorder(QObject* parent = nullptr);
    ~ZrCoreSolidShapeBorder() override;

    /// Opaque black at first.
    QColor color() const;
    void setColor(const QColor& color);

    /// In device-independent pixels, 0 (no border) at first; under 0 counts as 0.
    qreal width() const;
    void setWidth(qreal width);

Q_SIGNALS:
    void colorChanged();
    void widthChanged();

private:
    class Private;
    std::unique_ptr<Private> d;
};
