// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QtPlugin>

#include <functional>

class LuMonitorModel;
class MonitorInfo;
class QObject;

/// What a feature package tells the application. The order of the operations is part of the binary interface.
class LuPackagesInterface
{
public:
    using ModelConstructor = std::function<LuMonitorModel*(QObject*, QSharedPointer<MonitorInfo>)>;

    virtual ~LuPackagesInterface() = default;

    /// Name of the package, also the base name of its translation files.
    virtual QString name() = 0;

    /// Makes the model of a monitor; the caller owns it through the parent. GUI thread.
    virtual ModelConstructor modelConstructor() = 0;

    /// Panel widgets of the package in the order in which they are shown.
    virtual QList<QUrl> widgetUrls() = 0;

    /// Model names that the package serves, as monitors report them.
    virtual QStringList supportedModels() = 0;

    /// Kind of the package.
    virtual int packageKind() = 0;

    /// The QTranslator of the package's texts, owned by the package; null without one.
    virtual QObject* translator() = 0;
};

#define LuPackagesInterface_iid "com.orvane.lupackagesinterface/1.10"
Q_DECLARE_INTERFACE(LuPackagesInterface, LuPackagesInterface_iid)
