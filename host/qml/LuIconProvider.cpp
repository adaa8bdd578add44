// SPDX-License-Identifier: Apache-2.0
#include "LuIconProvider.h"

#include <QBuffer>
#include <QColor>
#include <QFile>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace {
constexpr QSize Grid{24, 24};
}

LuIconProvider::LuIconProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage LuIconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    QFile file(u":/lumendesk/qml/LumenDesk/icons/%1.svg"_s.arg(id.section(u'/', 0, 0)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QColor color(u'#' + id.section(u'/', 1, 1));
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", color.name(QColor::HexRgb).toLatin1() + "\" stroke-opacity=\"" +
                                        QByteArray::number(color.alphaF(), 'f', 3));
    QBuffer buffer(&drawing);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(requestedSize.isValid() && !requestedSize.isEmpty() ? requestedSize : Grid);
    const QImage image = reader.read();
    if (size)
        *size = image.size();
    return image;
}
