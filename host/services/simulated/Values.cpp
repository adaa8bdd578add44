// SPDX-License-Identifier: Apache-2.0
#include "services/simulated/Values.h"

#include "services/simulated/Clipboard.h"

#include <LuShared/LuKvm.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QMetaEnum>
#include <QSet>
#include <QUrl>

#include <cmath>
#include <limits>

namespace services {

namespace {

using Result = std::optional<QJsonValue>;

// The largest whole number that JSON's numbers hold exactly.
constexpr qint64 exactMaximum = qint64(1) << 53;
constexpr int lengthMaximum = 1 << 20;

Result wrong(Error& error, const QString& expected)
{
    error = {Error::WrongType, QStringLiteral("expected %1").arg(expected)};
    return std::nullopt;
}

Result whole(const QJsonValue& value, qint64 minimum, qint64 maximum, Error& error)
{
    if (const auto number = wholeNumber(value, minimum, maximum))
        return QJsonValue(*number);
    if (maximum == exactMaximum)
        return wrong(error, QStringLiteral("a whole number of at least %1").arg(minimum));
    return wrong(error, QStringLiteral("a whole number from %1 to %2").arg(minimum).arg(maximum));
}

Result real(const QJsonValue& value, double minimum, double maximum, Error& error)
{
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (!(number >= minimum && number <= maximum))
        return wrong(error, QStringLiteral("a number from %1 to %2").arg(minimum).arg(maximum));
    return value;
}

Result boolean(const QJsonValue& value, Error& error)
{
    return value.isBool() ? Result(value) : wrong(error, QStringLiteral("true or false"));
}

Result text(const QJsonValue& value, Error& error)
{
    return value.isString() ? Result(value) : wrong(error, QStringLiteral("a text"));
}

Result rotation(const QJsonValue& value, Error& error)
{
    const auto degrees = wholeNumber(value, 0, 270);
    return degrees && *degrees % 90 == 0 ? Result(*degrees)
                                         : wrong(error, QStringLiteral("0, 90, 180 or 270"));
}

// The names of an object's members must be among the allowed ones, so that a misspelt member does not go
// unnoticed.
bool hasOnly(const QJsonObject& object, std::initializer_list<const char*> names, Error& error)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        const auto known = [&](const char* name) { return it.key() == QLatin1String(name); };
        if (std::none_of(names.begin(), names.end(), known)) {
            error = {Error::WrongType, QStringLiteral("unknown member \"%1\"").arg(it.key())};
            return false;
        }
    }
    return true;
}

Result size(const QJsonValue& value, Error& error)
{
    const QJsonObject object = value.toObject();
    const auto width = wholeNumber(object[u"width"], 1, lengthMaximum);
    const auto height = wholeNumber(object[u"height"], 1, lengthMaximum);
    if (!width || !height || object.size() != 2)
        return wrong(error, QStringLiteral("{\"width\",\"height\"}, whole numbers of at least 1"));
    return QJsonObject{{QStringLiteral("width"), *width}, {QStringLiteral("height"), *height}};
}

Result rect(const QJsonValue& value, Error& error)
{
    const QString form = QStringLiteral("{\"x\",\"y\",\"width\",\"height\"}, numbers");
    const QJsonObject object = value.toObject();
    if (object.size() != 4)
        return wrong(error, form);
    for (const char* name : {"x", "y", "width", "height"}) {
        const QJsonValue member = object[QLatin1String(name)];
        if (!member.isDouble() || std::abs(member.toDouble()) > lengthMaximum)
            return wrong(error, form);
    }
    if (object[u"width"].toDouble() < 0 || object[u"height"].toDouble() < 0)
        return wrong(error, QStringLiteral("a rectangle whose width and height are not negative"));
    return object;
}

template <typename EachItem>
Result list(const QJsonValue& value, Error& error, EachItem item)
{
    if (!value.isArray())
        return wrong(error, QStringLiteral("a list"));
    QJsonArray result;
    const QJsonArray given = value.toArray();
    for (const QJsonValue& entry : given) {
        const Result one = item(entry);
        if (!one) {
            error.message.prepend(QStringLiteral("entry %1: ").arg(result.size()));
            return std::nullopt;
        }
        result.append(*one);
    }
    return result;
}

// A member that may be missing: its value in the normal form, or the fallback.
template <typename Check>
bool optional(QJsonObject& result, const QJsonObject& given, const char* name, const QJsonValue& fallback,
              Error& error, Check check)
{
    const QString key = QLatin1String(name);
    if (!given.contains(key)) {
        result[key] = fallback;
        return true;
    }
    const Result value = check(given[key]);
    if (!value) {
        error.message.prepend(QStringLiteral("\"%1\": ").arg(key));
        return false;
    }
    result[key] = *value;
    return true;
}

Result application(const QJsonValue& value, Error& error)
{
    const QJsonObject given = value.toObject();
    if (given[u"id"].toString().isEmpty())
        return wrong(error, QStringLiteral("{\"pid\",\"id\",\"name\",\"url\"} with an id"));
    if (!hasOnly(given, {"pid", "id", "name", "url"}, error))
        return std::nullopt;
    const auto asText = [&](const QJsonValue& member) { return text(member, error); };
    const auto asPid = [&](const QJsonValue& member) { return whole(member, 0, exactMaximum, error); };
    QJsonObject result{{QStringLiteral("id"), given[u"id"]}};
    if (!optional(result, given, "pid", 0, error, asPid) ||
        !optional(result, given, "name", QString(), error, asText) ||
        !optional(result, given, "url", QString(), error, asText)) {
        return std::nullopt;
    }
    return result;
}

Result windows(const QJsonValue& value, Error& error)
{
    if (!value.isObject())
        return wrong(error, QStringLiteral("an object from process number to rectangle"));
    const QJsonObject given = value.toObject();
    QJsonObject result;
    for (auto it = given.begin(); it != given.end(); ++it) {
        bool isNumber = false;
        it.key().toULongLong(&isNumber);
        if (!isNumber)
            return wrong(error, QStringLiteral("a process number in place of \"%1\"").arg(it.key()));
        const Result one = rect(it.value(), error);
        if (!one)
            return std::nullopt;
        result[it.key()] = *one;
    }
    return result;
}

Result audioDevice(const QJsonValue& value, Error& error)
{
    const QJsonObject given = value.toObject();
    const QString id = given[u"id"].toString();
    if (id.isEmpty())
        return wrong(error, QStringLiteral("{\"id\",\"name\"} with an id"));
    if (!hasOnly(given, {"id", "name"}, error))
        return std::nullopt;
    QJsonObject result{{QStringLiteral("id"), id}};
    if (!optional(result, given, "name", id, error,
                  [&](const QJsonValue& member) { return text(member, error); }))
        return std::nullopt;
    return result;
}

Result audioDevices(const QJsonValue& value, Error& error)
{
    QSet<QString> ids;
    return list(value, error, [&](const QJsonValue& entry) -> Result {
        const Result device = audioDevice(entry, error);
        if (device && ids.contains((*device)[u"id"].toString()))
            return wrong(error, QStringLiteral("ids that differ"));
        if (device)
            ids.insert((*device)[u"id"].toString());
        return device;
    });
}

Result audioDeviceId(const QJsonValue& value, Error& error)
{
    if (value.isString())
        return value;
    if (value[u"id"].isString())
        return value[u"id"];
    return wrong(error, QStringLiteral("the id of an audio output"));
}

Result location(const QJsonValue& value, const QJsonValue& current, Error& error)
{
    if (!value.isObject())
        return wrong(error, QStringLiteral("{\"latitude\",\"longitude\",\"status\"}"));
    const QJsonObject given = value.toObject();
    if (!hasOnly(given, {"latitude", "longitude", "status"}, error))
        return std::nullopt;
    QJsonObject result;
    const auto degrees = [&](double limit) {
        return [&error, limit](const QJsonValue& member) { return real(member, -limit, limit, error); };
    };
    const auto status = [&](const QJsonValue& member) { return whole(member, -1000, 1000, error); };
    if (!optional(result, given, "latitude", current[u"latitude"], error, degrees(90)) ||
        !optional(result, given, "longitude", current[u"longitude"], error, degrees(180)) ||
        !optional(result, given, "status", current[u"status"], error, status)) {
        return std::nullopt;
    }
    return result;
}

template <typename Enum>
Result enumerator(const QJsonValue& value, Error& error)
{
    const QMetaEnum meta = QMetaEnum::fromType<Enum>();
    bool known = false;
    int number = -1;
    if (value.isString())
        number = meta.keyToValue(value.toString().toLatin1().constData(), &known);
    else if (const auto given = wholeNumber(value, 0, std::numeric_limits<int>::max()))
        known = meta.valueToKey(number = int(*given)) != nullptr;
    if (!known)
        return wrong(error, QStringLiteral("a %1").arg(QLatin1String(meta.name())));
    return number;
}

Result kvm(const QJsonValue& value, const QJsonValue& current, Error& error)
{
    if (!value.isObject())
        return wrong(error, QStringLiteral("an object"));
    const QJsonObject given = value.toObject();
    if (!hasOnly(given, {"active", "type", "rect", "location", "connected", "driverInstalled", "calls"},
                 error))
        return std::nullopt;
    const auto isBool = [&](const QJsonValue& member) { return boolean(member, error); };
    const auto isType = [&](const QJsonValue& member) { return enumerator<LuKvm::KvmType>(member, error); };
    const auto isSide = [&](const QJsonValue& member) {
        return enumerator<LuKvm::KvmDeviceLocation>(member, error);
    };
    const auto isRect = [&](const QJsonValue& member) { return rect(member, error); };
    const auto isText = [&](const QJsonValue& member) { return text(member, error); };
    const auto isList = [&](const QJsonValue& member) { return list(member, error, isText); };
    QJsonObject result;
    if (!optional(result, given, "active", current[u"active"], error, isBool) ||
        !optional(result, given, "type", current[u"type"], error, isType) ||
        !optional(result, given, "rect", current[u"rect"], error, isRect) ||
        !optional(result, given, "location", current[u"location"], error, isSide) ||
        !optional(result, given, "connected", current[u"connected"], error, isBool) ||
        !optional(result, given, "driverInstalled", current[u"driverInstalled"], error, isBool) ||
        !optional(result, given, "calls", current[u"calls"], error, isList)) {
        return std::nullopt;
    }
    return result;
}

Result screen(const QJsonValue& value, QSet<QString>& names, Error& error)
{
    const QJsonObject given = value.toObject();
    if (!given[u"name"].isString() || !given.contains(u"rect"))
        return wrong(error, QStringLiteral("{\"name\",\"rect\",\"available\",\"monitor\"?}"));
    if (!hasOnly(given, {"name", "rect", "available", "monitor"}, error))
        return std::nullopt;
    // Names are what the display system tells screens apart by.
    if (names.contains(given[u"name"].toString()))
        return wrong(error, QStringLiteral("names that differ"));
    names.insert(given[u"name"].toString());
    const Result area = rect(given[u"rect"], error);
    if (!area)
        return std::nullopt;
    QJsonObject result{{QStringLiteral("name"), given[u"name"]}, {QStringLiteral("rect"), *area}};
    const auto isRect = [&](const QJsonValue& member) { return rect(member, error); };
    if (!optional(result, given, "available", *area, error, isRect))
        return std::nullopt;
    if (toRect(*area).isEmpty() || !toRect(*area).contains(toRect(result[u"available"])))
        return wrong(error, QStringLiteral("an area that is not empty, with the available part inside"));
    if (given.contains(u"monitor")) {
        if (!given[u"monitor"].isString())
            return wrong(error, QStringLiteral("a monitor's id as \"monitor\""));
        result[u"monitor"] = given[u"monitor"];
    }
    return result;
}

Result screens(const QJsonValue& value, Error& error)
{
    if (value.isNull())
        return value;
    QSet<QString> names;
    const Result result =
        list(value, error, [&](const QJsonValue& entry) { return screen(entry, names, error); });
    if (result && result->toArray().isEmpty())
        return wrong(error, QStringLiteral("at least one screen"));
    return result;
}

} // namespace

std::optional<qint64> wholeNumber(const QJsonValue& value, qint64 minimum, qint64 maximum)
{
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (!(number >= double(minimum) && number <= double(maximum)) || std::floor(number) != number)
        return std::nullopt;
    return qint64(number);
}

Result normalised(Kind kind, const QJsonValue& value, const QJsonValue& current, Error& error)
{
    switch (kind) {
    case Kind::Rotation:
        return rotation(value, error);
    case Kind::Size:
        return size(value, error);
    case Kind::SizeList:
        return list(value, error, [&](const QJsonValue& entry) { return size(entry, error); });
    case Kind::Percentage:
        return whole(value, 1, exactMaximum, error);
    case Kind::PercentageList:
        return list(value, error,
                    [&](const QJsonValue& entry) { return whole(entry, 1, exactMaximum, error); });
    case Kind::Bool:
        return boolean(value, error);
    case Kind::Fraction:
        return real(value, 0, 1, error);
    case Kind::Volume:
        return whole(value, 0, 100, error);
    case Kind::ProcessId:
        return whole(value, 0, exactMaximum, error);
    case Kind::Text:
        return text(value, error);
    case Kind::TextList:
        return list(value, error, [&](const QJsonValue& entry) { return text(entry, error); });
    case Kind::Applications:
        return list(value, error, [&](const QJsonValue& entry) { return application(entry, error); });
    case Kind::Windows:
        return windows(value, error);
    case Kind::AudioDevices:
        return audioDevices(value, error);
    case Kind::AudioDevice:
        return audioDeviceId(value, error);
    case Kind::Location:
        return location(value, current, error);
    case Kind::Content:
        return normalisedContent(value, error);
    case Kind::ContentList:
        return list(value, error, [&](const QJsonValue& entry) { return normalisedContent(entry, error); });
    case Kind::Kvm:
        return kvm(value, current, error);
    case Kind::Screens:
        return screens(value, error);
    }
    Q_UNREACHABLE();
    return std::nullopt;
}

QSize toSize(const QJsonValue& value)
{
    return {value[u"width"].toInt(-1), value[u"height"].toInt(-1)};
}

QRectF toRect(const QJsonValue& value)
{
    return {value[u"x"].toDouble(), value[u"y"].toDouble(), value[u"width"].toDouble(),
            value[u"height"].toDouble()};
}

QJsonValue toJson(const QSize& size)
{
    return QJsonObject{{QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}};
}

QJsonValue toJson(const QRect& rect)
{
    return toJson(QRectF(rect));
}

QJsonValue toJson(const QRectF& rect)
{
    return QJsonObject{{QStringLiteral("x"), rect.x()},
                       {QStringLiteral("y"), rect.y()},
                       {QStringLiteral("width"), rect.width()},
                       {QStringLiteral("height"), rect.height()}};
}

} // namespace services
