// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The gains of the equaliser by frequency.
class LuFrequencyGainHash : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")

public:
    explicit LuFrequencyGainHash(QObject* parent = nullptr);
    ~LuFrequencyGainHash() override;
};
