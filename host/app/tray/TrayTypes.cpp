// SPDX-License-Identifier: Apache-2.0
#include "TrayTypes.h"

#include <QDBusMetaType>
#include <QImage>
#include <QPixmap>
#include <QtEndian>

namespace {

constexpr int TraySizes[] = {16, 22, 24, 32, 48};

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const TrayImage& image)
{
    argument.beginStructure();
    argument << image.width << image.height << image.data;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayImage& image)
{
    argument.beginStructure();
    argument >> image.width >> image.height >> image.data;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& toolTip)
{
    argument.beginStructure();
    argument << toolTip.icon << toolTip.images << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& toolTip)
{
    argument.beginStructure();
    argument >> toolTip.icon >> toolTip.images >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayLayout& layout)
{
    argument.beginStructure();
    argument << layout.id << layout.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const QVariant& child : layout.children)
        argument << QDBusVariant(child);
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayLayout& layout)
{
    layout = {};
    argument.beginStructure();
    argument >> layout.id >> layout.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        layout.children.append(QVariant::fromValue(qdbus_cast<TrayLayout>(child.variant())));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayProperties& properties)
{
    argument.beginStructure();
    argument << properties.id << properties.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayProperties& properties)
{
    argument.beginStructure();
    argument >> properties.id >> properties.properties;
    argument.endStructure();
    return argument;
}

void registerTrayTypes()
{
    qDBusRegisterMetaType<TrayImage>();
    qDBusRegisterMetaType<TrayImages>();
    qDBusRegisterMetaType<TrayToolTip>();
    qDBusRegisterMetaType<TrayLayout>();
    qDBusRegisterMetaType<TrayProperties>();
    qDBusRegisterMetaType<TrayPropertiesList>();
}

TrayImages trayImages(const QIcon& icon)
{
    TrayImages images;
    for (const int size : TraySizes) {
        const QImage image =
            icon.pixmap(QSize(size, size), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
        if (image.isNull())
            continue;
        QByteArray data;
        data.reserve(image.width() * image.height() * 4);
        for (int y = 0; y < image.height(); ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                const quint32 pixel = qToBigEndian<quint32>(line[x]);
                data.append(reinterpret_cast<const char*>(&pixel), sizeof pixel);
            }
        }
        images.append({image.width(), image.height(), data});
    }
    return images;
}
