// SPDX-License-Identifier: Apache-2.0
#include "LuIconProvider.h"

#include <QBuffer>
#include <QColor>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {
constexpr QSize Grid{24, 24};

QImage read(QIODevice* device, const QSize& wanted, const QSize& fallback)
{
    QImageReader reader(device, "svg");
    QSize size = wanted.isValid() && !wanted.isEmpty() ? wanted : fallback;
    if (size.isEmpty())
        size = reader.size();
    reader.setScaledSize(size);
    return reader.read();
}

QImage glyph(const QString& name, const QColor& ink, const QSize& wanted)
{
    QFile file(u":/lumendesk/qml/LumenDesk/icons/%1.svg"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", ink.name(QColor::HexRgb).toLatin1() + "\" stroke-opacity=\"" +
                                        QByteArray::number(ink.alphaF(), 'f', 3));
    QBuffer buffer(&drawing);
    buffer.open(QIODevice::ReadOnly);
    return read(&buffer, wanted, Grid);
}

QImage drawing(const QString& address, const QColor& ink, const QSize& wanted)
{
    const QUrl url(address);
    QFile file(url.scheme() == "qrc"_L1 ? u':' + url.path() : url.toLocalFile());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QImage image = read(&file, wanted, {});
    if (ink.alpha() > 0 && !image.isNull()) {
        image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), ink);
    }
    return image;
}
} // namespace

LuIconProvider::LuIconProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage LuIconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const QColor ink(u'#' + id.section(u'/', 1, 1));
    const QString address = id.section(u'/', 2);
    const QImage image = address.isEmpty()
                             ? glyph(id.section(u'/', 0, 0), ink, requestedSize)
                             : drawing(QUrl::fromPercentEncoding(address.toUtf8()), ink, requestedSize);
    if (size)
        *size = image.size();
    return image;
}
