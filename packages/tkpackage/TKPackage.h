// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuPackage.h>

/// The feature package of the TK series, as the application's loader meets it.
class TKPackage : public LuPackage
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LuPackagesInterface_iid)
    Q_INTERFACES(LuPackagesInterface)

public:
    TKPackage();
    ~TKPackage() override;

    /// Version of the package; a monitor that this version has not met yet counts as new.
    static QString versionText();

    ModelConstructor modelConstructor() override;
    QList<QUrl> widgetUrls() override;
    QStringList supportedModels() override;
    int packageKind() override;

private:
    const QString m_version;
};
