// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuQuickWindow.h>
#include <QtQml/qqmlregistration.h>

/// The overlay through which a window is dropped into a zone.
class LuPartitionView : public LuQuickWindow
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")

public:
    explicit LuPartitionView(QWindow* parent = nullptr);
    ~LuPartitionView() override;
};
