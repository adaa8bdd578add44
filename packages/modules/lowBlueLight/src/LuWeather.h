// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Sunrise and sunset as a curve of filter levels.
class LuWeather : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")

public:
    explicit LuWeather(QObject* parent = nullptr);
    ~LuWeather() override;
};
