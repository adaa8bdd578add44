// SPDX-License-Identifier: Apache-2.0
#include "services/simulated/Clipboard.h"

#include <QBuffer>
#include <QJsonArray>
#include <QMimeData>
#include <QUrl>

namespace services {

namespace {

constexpr char pngFormat[] = "PNG";

std::optional<QByteArray> decodedImage(const QJsonValue& value)
{
    if (!value.isString())
        return std::nullopt;
    const auto decoded =
        QByteArray::fromBase64Encoding(value.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(*decoded) : std::nullopt;
}

} // namespace

ClipboardContent ClipboardContent::fromMimeData(const QMimeData* data)
{
    ClipboardContent content;
    if (!data)
        return content;
    // hasText() also holds for addresses, which are no text of their own.
    if (data->hasFormat(QStringLiteral("text/plain")))
        content.parts[u"text"] = data->text();
    if (data->hasHtml())
        content.parts[u"html"] = data->html();
    if (data->hasUrls()) {
        QJsonArray addresses;
        const QList<QUrl> urls = data->urls();
        for (const QUrl& url : urls)
            addresses.append(url.toString());
        content.parts[u"urls"] = addresses;
    }
    if (data->hasImage())
        content.image = data->imageData().value<QImage>();
    return content;
}

QMimeData* ClipboardContent::toMimeData() const
{
    auto* data = new QMimeData;
    if (parts.contains(u"text"))
        data->setText(parts[u"text"].toString());
    if (parts.contains(u"html"))
        data->setHtml(parts[u"html"].toString());
    if (parts.contains(u"urls")) {
        QList<QUrl> urls;
        const QJsonArray addresses = parts[u"urls"].toArray();
        for (const QJsonValue& address : addresses)
            urls.append(QUrl(address.toString()));
        data->setUrls(urls);
    }
    if (!image.isNull())
        data->setImageData(image);
    return data;
}

ClipboardContent ClipboardContent::fromJson(const QJsonValue& value)
{
    ClipboardContent content;
    content.parts = value.toObject();
    if (const auto bytes = decodedImage(content.parts.take(u"image")))
        content.image.loadFromData(*bytes, pngFormat);
    return content;
}

QJsonValue ClipboardContent::toJson() const
{
    QJsonObject result = parts;
    if (!image.isNull()) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, pngFormat);
        result[u"image"] = QString::fromLatin1(buffer.data().toBase64());
    }
    return result;
}

std::optional<QJsonValue> normalisedContent(const QJsonValue& value, Error& error)
{
    const auto wrong = [&](const QString& expected) -> std::optional<QJsonValue> {
        error = {Error::WrongType, QStringLiteral("expected %1").arg(expected)};
        return std::nullopt;
    };
    if (value.isNull())
        return QJsonObject();
    if (!value.isObject())
        return wrong(QStringLiteral("{\"text\"?,\"html\"?,\"urls\"?,\"image\"?}"));
    const QJsonObject content = value.toObject();
    for (auto it = content.begin(); it != content.end(); ++it) {
        if (it.key() == u"text" || it.key() == u"html") {
            if (!it->isString())
                return wrong(QStringLiteral("\"%1\" as a text").arg(it.key()));
        } else if (it.key() == u"urls") {
            const QJsonArray urls = it->toArray();
            const auto isAddress = [](const QJsonValue& url) {
                return url.isString() && QUrl(url.toString()).isValid();
            };
            if (!it->isArray() || !std::all_of(urls.begin(), urls.end(), isAddress))
                return wrong(QStringLiteral("\"urls\" as a list of addresses"));
        } else if (it.key() == u"image") {
            const auto bytes = decodedImage(*it);
            if (!bytes || QImage::fromData(*bytes, pngFormat).isNull())
                return wrong(QStringLiteral("\"image\" as a PNG in base64"));
        } else {
            return wrong(QStringLiteral("no member \"%1\"").arg(it.key()));
        }
    }
    return value;
}

} // namespace services
