// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuModelModuleInterface.h>
#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuUtils.h>

#include "LuHostOptions.h"

#include <QColor>
#include <QFileInfo>
#include <QImage>
#include <QMimeData>
#include <QUrl>

namespace {

/// The model in whose tree an object stands; null outside of one.
const LuMonitorModel* modelOf(const QObject* object)
{
    while (object) {
        if (const auto* model = qobject_cast<const LuMonitorModel*>(object))
            return model;
        object = object->parent();
    }
    return nullptr;
}

} // namespace

QString LuUtils::packageName(const QObject* object)
{
    // A series names its model class and its package alike: "TKMonitorModel" belongs to "TKPackage".
    static const QLatin1String suffix("MonitorModel");
    const LuMonitorModel* model = modelOf(object);
    if (!model)
        return {};
    const QLatin1String name(model->metaObject()->className());
    if (!name.endsWith(suffix) || name.size() == suffix.size())
        return {};
    return QString(name.chopped(suffix.size())) + QLatin1String("Package");
}

QString LuUtils::className(QObject* object)
{
    if (!object)
        return {};
    const QString name = QString::fromLatin1(object->metaObject()->className());
    return name.mid(name.lastIndexOf(QLatin1String("::")) < 0 ? 0
                                                              : name.lastIndexOf(QLatin1String("::")) + 2);
}

QMimeData* LuUtils::copyMimeData(const QMimeData* source)
{
    if (!source)
        return nullptr;
    auto* copy = new QMimeData;
    const QStringList formats = source->formats();
    for (const QString& format : formats)
        copy->setData(format, source->data(format));
    // Formats that QMimeData keeps as values and converts on demand.
    if (source->hasText())
        copy->setText(source->text());
    if (source->hasHtml())
        copy->setHtml(source->html());
    if (source->hasUrls())
        copy->setUrls(source->urls());
    if (source->hasImage())
        copy->setImageData(source->imageData());
    if (source->hasColor())
        copy->setColorData(source->colorData());
    return copy;
}

QString LuUtils::schemaFile(const QString& resourcePath)
{
    const QString& directory = LuHostOptions::instance().schemaDirectory;
    if (directory.isEmpty())
        return resourcePath;
    const QString replacement = directory + QLatin1Char('/') + QFileInfo(resourcePath).fileName();
    return QFileInfo::exists(replacement) ? replacement : resourcePath;
}
