// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuPackagesInterface.h>
#include <LuShared/LuSharedGlobal.h>

#include <QObject>

#include <memory>

/// Base of a feature package: its name, the folder of its QML module and its translations.
class LUSHARED_EXPORT LuPackage : public QObject, public LuPackagesInterface
{
    Q_OBJECT
    Q_INTERFACES(LuPackagesInterface)

public:
    explicit LuPackage(QObject* parent = nullptr);
    ~LuPackage() override;

    QString name() override;

    /// The translator, loaded for the application's language at the first call.
    QObject* translator() override;

    /// Folder of the package's QML module in the resources, without a slash in front:
    /// "TKPackage/qml/TKPackage".
    QString qmlBasePath() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
