// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/simulated/Error.h"

#include <QImage>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>

class QMimeData;

namespace services {

/// What a clipboard holds, in the control protocol's form or in Qt's: text, HTML, addresses and a picture,
/// each of which may be missing.
struct ClipboardContent
{
    QJsonObject parts; ///< "text", "html", "urls".
    QImage image;

    /// GUI thread.
    static ClipboardContent fromMimeData(const QMimeData* data);

    /// A new object that the caller owns.
    QMimeData* toMimeData() const;

    /// From a normalised value; any thread.
    static ClipboardContent fromJson(const QJsonValue& value);
    QJsonValue toJson() const;
};

/// Checks a content in the protocol's form: {"text"?,"html"?,"urls"?,"image"?}, the picture as a PNG in
/// base64. Null stands for an empty one.
std::optional<QJsonValue> normalisedContent(const QJsonValue& value, Error& error);

} // namespace services
