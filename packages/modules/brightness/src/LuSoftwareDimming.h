// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Brightness below the back-light's minimum through an overlay.
class LuSoftwareDimming : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")

public:
    explicit LuSoftwareDimming(QObject* parent = nullptr);
    ~LuSoftwareDimming() override;
};
