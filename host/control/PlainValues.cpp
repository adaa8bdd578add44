// SPDX-License-Identifier: Apache-2.0
#include "PlainValues.h"

#include "Parameters.h"
#include "RequestError.h"

#include <QColor>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QKeySequence>
#include <QRect>
#include <QSize>
#include <QUrl>

#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace control {

namespace {

QString kindOf(const QJsonValue& json)
{
    switch (json.type()) {
    case QJsonValue::Null:
        return u"null"_s;
    case QJsonValue::Bool:
        return u"a bool"_s;
    case QJsonValue::Double:
        return u"the number %1"_s.arg(json.toVariant().toString());
    case QJsonValue::String:
        return u"\"%1\""_s.arg(json.toString().left(100));
    case QJsonValue::Array:
        return u"a list"_s;
    case QJsonValue::Object:
        return u"an object"_s;
    default:
        return u"nothing"_s;
    }
}

bool isWholeType(int type)
{
    switch (type) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return true;
    default:
        return false;
    }
}

QVariant readWhole(const QJsonValue& json, QMetaType type, const QString& what)
{
    const std::optional<qint64> number = wholeNumber(json);
    if (!number)
        refuseValue(what, json, u"a whole number"_s);
    QVariant value(*number);
    const bool isWideUnsigned = type.id() == QMetaType::ULongLong || type.id() == QMetaType::ULong;
    if (!value.convert(type) || value.toLongLong() != *number || (isWideUnsigned && *number < 0))
        refuseValue(what, json, u"a number that its type holds"_s);
    return value;
}

/// The named numbers of an object, each of them there and no other.
template <std::size_t Count>
std::array<double, Count> readNumbers(const QJsonValue& json, const std::array<QLatin1String, Count>& names,
                                      bool whole, const QString& what)
{
    std::array<double, Count> numbers{};
    const QJsonObject object = json.toObject();
    bool fits = json.isObject() && std::size_t(object.size()) == Count;
    for (std::size_t i = 0; fits && i < Count; ++i) {
        const QJsonValue member = object.value(names[i]);
        numbers[i] = member.toDouble();
        const auto number = wholeNumber(member);
        fits = whole ? number && qAbs(*number) <= std::numeric_limits<int>::max() : member.isDouble();
    }
    if (!fits) {
        QStringList wanted;
        for (const QLatin1String name : names)
            wanted.append(u"\"%1\""_s.arg(name));
        refuseValue(
            what, json,
            u"an object of the %1numbers %2"_s.arg(whole ? u"whole "_s : QString(), wanted.join(u", "_s)));
    }
    return numbers;
}

constexpr std::array SizeNames{"width"_L1, "height"_L1};
constexpr std::array PointNames{"x"_L1, "y"_L1};
constexpr std::array RectNames{"x"_L1, "y"_L1, "width"_L1, "height"_L1};

QTime parseTime(const QString& text)
{
    for (const QString& format : {u"HH:mm:ss.zzz"_s, u"HH:mm:ss"_s, u"HH:mm"_s}) {
        const QTime time = QTime::fromString(text, format);
        if (time.isValid())
            return time;
    }
    return {};
}

std::optional<QVariant> readScalar(const QJsonValue& json, QMetaType type, const QString& what)
{
    switch (type.id()) {
    case QMetaType::Bool:
        if (!json.isBool())
            refuseValue(what, json, u"true or false"_s);
        return json.toBool();
    case QMetaType::Double:
    case QMetaType::Float: {
        if (!json.isDouble())
            refuseValue(what, json, u"a number"_s);
        QVariant value(json.toDouble());
        value.convert(type);
        return value;
    }
    case QMetaType::QString:
        if (!json.isString())
            refuseValue(what, json, u"a string"_s);
        return json.toString();
    case QMetaType::QByteArray:
        if (!json.isString())
            refuseValue(what, json, u"a string"_s);
        return json.toString().toUtf8();
    case QMetaType::QJsonValue:
        return QVariant::fromValue(json);
    case QMetaType::QJsonObject:
        if (!json.isObject())
            refuseValue(what, json, u"an object"_s);
        return json.toObject();
    case QMetaType::QJsonArray:
        if (!json.isArray())
            refuseValue(what, json, u"a list"_s);
        return json.toArray();
    default:
        return std::nullopt;
    }
}

std::optional<QVariant> readGeometry(const QJsonValue& json, QMetaType type, const QString& what)
{
    switch (type.id()) {
    case QMetaType::QSize: {
        const auto n = readNumbers(json, SizeNames, true, what);
        return QSize(int(n[0]), int(n[1]));
    }
    case QMetaType::QSizeF: {
        const auto n = readNumbers(json, SizeNames, false, what);
        return QSizeF(n[0], n[1]);
    }
    case QMetaType::QPoint: {
        const auto n = readNumbers(json, PointNames, true, what);
        return QPoint(int(n[0]), int(n[1]));
    }
    case QMetaType::QPointF: {
        const auto n = readNumbers(json, PointNames, false, what);
        return QPointF(n[0], n[1]);
    }
    case QMetaType::QRect: {
        const auto n = readNumbers(json, RectNames, true, what);
        return QRect(int(n[0]), int(n[1]), int(n[2]), int(n[3]));
    }
    case QMetaType::QRectF: {
        const auto n = readNumbers(json, RectNames, false, what);
        return QRectF(n[0], n[1], n[2], n[3]);
    }
    default:
        return std::nullopt;
    }
}

std::optional<QVariant> readTime(const QJsonValue& json, QMetaType type, const QString& what)
{
    switch (type.id()) {
    case QMetaType::QTime: {
        const QTime time = parseTime(json.toString());
        if (!time.isValid())
            refuseValue(what, json, u"a time as \"HH:mm:ss.zzz\""_s);
        return time;
    }
    case QMetaType::QDate: {
        const QDate date = QDate::fromString(json.toString(), Qt::ISODate);
        if (!date.isValid())
            refuseValue(what, json, u"a date as \"yyyy-MM-dd\""_s);
        return date;
    }
    case QMetaType::QDateTime: {
        const QDateTime time = QDateTime::fromString(json.toString(), Qt::ISODateWithMs);
        if (!time.isValid())
            refuseValue(what, json, u"a date and time as in ISO 8601"_s);
        return time;
    }
    default:
        return std::nullopt;
    }
}

/// Values that travel as a string of a form of their own.
std::optional<QVariant> readText(const QJsonValue& json, QMetaType type, const QString& what)
{
    switch (type.id()) {
    case QMetaType::QUrl: {
        const QUrl url(json.toString(), QUrl::TolerantMode);
        if (!json.isString() || (!url.isValid() && !url.isEmpty()))
            refuseValue(what, json, u"an address"_s);
        return url;
    }
    case QMetaType::QColor: {
        const QColor color = QColor::fromString(json.toString());
        if (!json.isString() || !color.isValid())
            refuseValue(what, json, u"a colour as \"#AARRGGBB\""_s);
        return color;
    }
    case QMetaType::QKeySequence: {
        const auto keys = QKeySequence::fromString(json.toString(), QKeySequence::PortableText);
        if (!json.isString() || keys.toString().contains("Unknown"_L1))
            refuseValue(what, json, u"a combination of keys as \"Ctrl+C\""_s);
        return keys;
    }
    default:
        return std::nullopt;
    }
}

} // namespace

void refuseValue(const QString& what, const QJsonValue& json, const QString& wanted)
{
    throw RequestError(WrongValue, u"%1 must be %2, not %3"_s.arg(what, wanted, kindOf(json)));
}

std::optional<QVariant> readPlain(const QJsonValue& json, QMetaType type, const QString& what)
{
    if (isWholeType(type.id()))
        return readWhole(json, type, what);
    for (const auto read : {readScalar, readGeometry, readTime, readText}) {
        if (std::optional<QVariant> value = read(json, type, what))
            return value;
    }
    return std::nullopt;
}

} // namespace control
