// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuModelModuleInterface.h>
#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuUtils.h>

#include "LuHostOptions.h"

#include <QColor>
#include <QFileInfo>
#include <QImage>
#include <QMimeData>
#include <QSet>
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

/// A picture without loss in a form that Qt makes of every image by itself. A screen shot is offered in a
/// dozen of them, and each would cost its owner an encoding and this program its transfer.
bool isOfferedAnyway(const QString& format)
{
    static const QSet<QString> formats{QStringLiteral("image/bmp"),
                                       QStringLiteral("image/x-bmp"),
                                       QStringLiteral("image/x-MS-bmp"),
                                       QStringLiteral("image/cur"),
                                       QStringLiteral("image/tiff"),
                                       QStringLiteral("image/vnd.microsoft.icon"),
                                       QStringLiteral("image/ico"),
                                       QStringLiteral("image/x-ico"),
                                       QStringLiteral("image/x-portable-bitmap"),
                                       QStringLiteral("image/x-xbitmap"),
                                       QStringLiteral("image/x-portable-graymap"),
                                       QStringLiteral("image/x-portable-pixmap"),
                                       QStringLiteral("image/x-xpixmap")};
    return formats.contains(format);
}

/// Copies one format: as the value that QMimeData keeps and converts on demand where it is one of those,
/// since its bytes alone would not be taken for an image or a colour again, else as bytes.
void copyFormat(const QMimeData& source, const QString& format, QMimeData* copy)
{
    if (format == QLatin1String("application/x-qt-image") && source.hasImage()) {
        const QVariant value = source.imageData();
        // The pixels of a clipboard's image may be somebody else's memory.
        const QImage image = value.canConvert<QImage>() ? value.value<QImage>().copy() : QImage();
        copy->setImageData(image.isNull() ? value : QVariant(image));
    } else if (format == QLatin1String("application/x-color") && source.hasColor()) {
        copy->setColorData(source.colorData());
    } else if (format == QLatin1String("text/uri-list") && source.hasUrls()) {
        copy->setUrls(source.urls());
    } else if (format == QLatin1String("text/plain") && source.hasText()) {
        copy->setText(source.text());
    } else if (format == QLatin1String("text/html") && source.hasHtml()) {
        copy->setHtml(source.html());
    } else {
        copy->setData(format, source.data(format));
    }
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
    // In the source's order, which is its order of preference, and none that it does not offer.
    const QStringList formats = source->formats();
    for (const QString& format : formats) {
        if (!source->hasImage() || !isOfferedAnyway(format))
            copyFormat(*source, format, copy);
    }
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
