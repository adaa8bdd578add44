// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QMimeData>
#include <QStringList>
#include <QUrl>

/// What a program in the tests puts on the clipboard, by its kind: "text", "html", "files", "url", "image",
/// or any other word as a text; null for "nothing". Owned by the caller.
inline QMimeData* contentOf(const QString& kind)
{
    if (kind == QStringLiteral("nothing"))
        return nullptr;
    auto* data = new QMimeData;
    if (kind == QStringLiteral("html")) {
        data->setHtml(QStringLiteral("<b>bold</b> \u00fc"));
        data->setText(QStringLiteral("bold \u00fc"));
    } else if (kind == QStringLiteral("files")) {
        data->setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/a b.txt")),
                       QUrl::fromLocalFile(QStringLiteral("/tmp/c.png"))});
    } else if (kind == QStringLiteral("url")) {
        data->setUrls({QUrl(QStringLiteral("https://example.org/?q=1&r=%20"))});
    } else if (kind == QStringLiteral("image")) {
        QImage image(7, 5, QImage::Format_ARGB32);
        image.fill(QColor(10, 200, 30));
        data->setImageData(image);
    } else {
        data->setText(kind);
    }
    return data;
}

/// A clipboard's content in one line.
inline QString describe(const QMimeData* data)
{
    QStringList parts;
    if (data && data->hasFormat(QStringLiteral("text/plain")) && !data->hasUrls())
        parts.append(QStringLiteral("text=") + data->text());
    if (data && data->hasHtml())
        parts.append(QStringLiteral("html=") + data->html());
    if (data && data->hasUrls()) {
        for (const QUrl& url : data->urls())
            parts.append(QStringLiteral("url=") + QString::fromLatin1(url.toEncoded()));
    }
    if (data && data->hasImage()) {
        const auto image = data->imageData().value<QImage>();
        if (image.isNull())
            return {}; // its owner has just changed
        parts.append(QStringLiteral("image=%1x%2 %3")
                         .arg(image.width())
                         .arg(image.height())
                         .arg(image.pixelColor(3, 2).name()));
    }
    return parts.join(QStringLiteral("; "));
}
