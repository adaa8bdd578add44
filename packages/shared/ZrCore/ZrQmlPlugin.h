// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QQmlExtensionPlugin>

/// Base of the QML plug-in of a feature package.
class ZRCORE_EXPORT ZrQmlPlugin : public QQmlExtensionPlugin
{
    Q_OBJECT

public:
    explicit ZrQmlPlugin(QObject* parent = nullptr);
    ~ZrQmlPlugin() override;

    /// Registers nothing: a package registers its types in the order that its own registration function has.
    void registerTypes(const char* uri) override;
};
