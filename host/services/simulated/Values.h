// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/simulated/Error.h"

#include <QJsonValue>
#include <QRect>
#include <QRectF>
#include <QSize>

#include <optional>

namespace services {

/// What a path of the simulated session holds.
enum class Kind {
    Rotation, ///< 0, 90, 180, 270
    Size,     ///< {"width","height"}, each at least 1
    SizeList,
    Percentage, ///< whole number of at least 1
    PercentageList,
    Bool,
    Fraction,  ///< 0 to 1
    Volume,    ///< whole number, 0 to 100
    ProcessId, ///< whole number of at least 0
    Text,
    TextList,
    Applications, ///< list of {"id","pid"?,"name"?,"url"?}
    Windows,      ///< process number, as a text, to rectangle
    AudioDevices, ///< list of {"id","name"?}
    AudioDevice,  ///< an id, or {"id"}; kept as the id
    Location,     ///< {"latitude"?,"longitude"?,"status"?}; what is not given stays
    Content,      ///< of a clipboard
    ContentList,
    Kvm,    ///< {"active"?,"type"?,...}; what is not given stays
    Screens ///< list of {"name","rect","available"?,"monitor"?}, or null for the real ones
};

/// Brings a value to the one form in which the session keeps it: whole numbers whole, optional members
/// present, members that are not given taken from @p current. Nothing, with @p error naming what was wrong,
/// for a value of another type or out of range. Any thread.
std::optional<QJsonValue> normalised(Kind kind, const QJsonValue& value, const QJsonValue& current,
                                     Error& error);

/// Conversions of normalised values.
QSize toSize(const QJsonValue& value);
QRectF toRect(const QJsonValue& value);
QJsonValue toJson(const QSize& size);
QJsonValue toJson(const QRect& rect);
QJsonValue toJson(const QRectF& rect);

/// A whole number from @p minimum to @p maximum, or nothing.
std::optional<qint64> wholeNumber(const QJsonValue& value, qint64 minimum, qint64 maximum);

} // namespace services
