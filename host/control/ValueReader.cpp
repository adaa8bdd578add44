// SPDX-License-Identifier: Apache-2.0
#include "ValueReader.h"

#include "MetaTypes.h"
#include "Parameters.h"
#include "PathResolver.h"
#include "RequestError.h"

#include <QAssociativeIterable>
#include <QColor>
#include <QDateTime>
#include <QJsonArray>
#include <QKeySequence>
#include <QMediaDevices>
#include <QMetaProperty>
#include <QRect>
#include <QSequentialIterable>
#include <QSize>
#include <QUrl>

#include <array>
#include <cstring>
#include <limits>

using namespace Qt::StringLiterals;

namespace control {

namespace {

ValueReader::AudioLookup& audioLookup()
{
    static ValueReader::AudioLookup lookup;
    return lookup;
}

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

[[noreturn]] void wrong(const QString& what, const QJsonValue& json, const QString& wanted)
{
    throw RequestError(WrongValue, u"%1 must be %2, not %3"_s.arg(what, wanted, kindOf(json)));
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
        wrong(what, json, u"a whole number"_s);
    QVariant value(*number);
    const bool isWideUnsigned = type.id() == QMetaType::ULongLong || type.id() == QMetaType::ULong;
    if (!value.convert(type) || value.toLongLong() != *number || (isWideUnsigned && *number < 0))
        wrong(what, json, u"a number that its type holds"_s);
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
        wrong(what, json,
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

} // namespace

void ValueReader::setAudioLookup(AudioLookup lookup)
{
    audioLookup() = std::move(lookup);
}

QVariant ValueReader::readAny(const QJsonValue& json)
{
    if (const std::optional<qint64> number = wholeNumber(json)) {
        if (*number >= std::numeric_limits<int>::min() && *number <= std::numeric_limits<int>::max())
            return int(*number);
        return *number;
    }
    if (json.isNull() || json.isUndefined())
        return {};
    if (json.isArray()) {
        QVariantList list;
        const QJsonArray array = json.toArray();
        for (const QJsonValue& entry : array)
            list.append(readAny(entry));
        return list;
    }
    if (json.isObject()) {
        QVariantMap map;
        const QJsonObject object = json.toObject();
        for (auto member = object.constBegin(); member != object.constEnd(); ++member)
            map.insert(member.key(), readAny(member.value()));
        return map;
    }
    return json.toVariant();
}

QVariant ValueReader::read(const QJsonValue& json, QMetaType type, const QString& what,
                           QMetaEnum enumerator) const
{
    if (!type.isValid())
        throw RequestError(WrongValue, u"%1 is of a type that no value can be made of"_s.arg(what));
    if (type.id() == QMetaType::QVariant)
        return readAny(json);
    if (enumerator.isValid() || (type.flags() & QMetaType::IsEnumeration))
        return readEnumeration(json, type, what, enumerator.isValid() ? enumerator : enumeratorOf(type));
    if (isWholeType(type.id()))
        return readWhole(json, type, what);
    if (type.flags() & QMetaType::PointerToQObject)
        return readObject(json, type, what);

    switch (type.id()) {
    case QMetaType::Bool:
        if (!json.isBool())
            wrong(what, json, u"true or false"_s);
        return json.toBool();
    case QMetaType::Double:
    case QMetaType::Float: {
        if (!json.isDouble())
            wrong(what, json, u"a number"_s);
        QVariant value(json.toDouble());
        value.convert(type);
        return value;
    }
    case QMetaType::QString:
        if (!json.isString())
            wrong(what, json, u"a string"_s);
        return json.toString();
    case QMetaType::QByteArray:
        if (!json.isString())
            wrong(what, json, u"a string"_s);
        return json.toString().toUtf8();
    case QMetaType::QJsonValue:
        return QVariant::fromValue(json);
    default:
        return readStructured(json, type, what);
    }
}

QVariant ValueReader::readStructured(const QJsonValue& json, QMetaType type, const QString& what) const
{
    switch (type.id()) {
    case QMetaType::QUrl: {
        const QUrl url(json.toString(), QUrl::TolerantMode);
        if (!json.isString() || (!url.isValid() && !url.isEmpty()))
            wrong(what, json, u"an address"_s);
        return url;
    }
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
    case QMetaType::QColor: {
        const QColor color = QColor::fromString(json.toString());
        if (!json.isString() || !color.isValid())
            wrong(what, json, u"a colour as \"#AARRGGBB\""_s);
        return color;
    }
    case QMetaType::QTime: {
        const QTime time = parseTime(json.toString());
        if (!time.isValid())
            wrong(what, json, u"a time as \"HH:mm:ss.zzz\""_s);
        return time;
    }
    case QMetaType::QDate: {
        const QDate date = QDate::fromString(json.toString(), Qt::ISODate);
        if (!date.isValid())
            wrong(what, json, u"a date as \"yyyy-MM-dd\""_s);
        return date;
    }
    case QMetaType::QDateTime: {
        const QDateTime time = QDateTime::fromString(json.toString(), Qt::ISODateWithMs);
        if (!time.isValid())
            wrong(what, json, u"a date and time as in ISO 8601"_s);
        return time;
    }
    case QMetaType::QKeySequence: {
        const auto keys = QKeySequence::fromString(json.toString(), QKeySequence::PortableText);
        if (!json.isString() || keys.toString().contains("Unknown"_L1))
            wrong(what, json, u"a combination of keys as \"Ctrl+C\""_s);
        return keys;
    }
    case QMetaType::QJsonObject:
        if (!json.isObject())
            wrong(what, json, u"an object"_s);
        return json.toObject();
    case QMetaType::QJsonArray:
        if (!json.isArray())
            wrong(what, json, u"a list"_s);
        return json.toArray();
    default:
        break;
    }
    if (type == QMetaType::fromType<QAudioDevice>())
        return readAudioDevice(json, what);
    const QVariant empty(type);
    if (empty.canConvert<QAssociativeIterable>())
        return readMap(json, type, what);
    if (isList(empty))
        return readList(json, type, what);
    if (type.flags() & QMetaType::IsGadget)
        return readGadget(json, type, what);
    throw RequestError(WrongValue, u"%1 is of type %2, of which no value can be made"_s.arg(
                                       what, QLatin1String(type.name())));
}

QVariant ValueReader::readEnumeration(const QJsonValue& json, QMetaType type, const QString& what,
                                      QMetaEnum enumerator) const
{
    qint64 number = 0;
    if (json.isString() && enumerator.isValid()) {
        bool ok = false;
        const QByteArray keys = json.toString().toUtf8();
        number = enumerator.isFlag() ? enumerator.keysToValue(keys.constData(), &ok)
                                     : enumerator.keyToValue(keys.constData(), &ok);
        if (!ok)
            throw RequestError(WrongValue,
                               u"%1: \"%2\" is no name of %3"_s.arg(what, json.toString().left(100),
                                                                    QLatin1String(enumerator.enumName())));
    } else if (const std::optional<qint64> whole = wholeNumber(json)) {
        number = *whole;
    } else {
        wrong(what, json, u"a number or a name of the enumeration"_s);
    }
    const auto size = type.sizeOf();
    const int bits = int(size) * 8;
    if (bits < 64 && (number < -(qint64(1) << (bits - 1)) || number >= (qint64(1) << bits)))
        wrong(what, json, u"a number that the enumeration's type holds"_s);
    if (!(type.flags() & QMetaType::IsEnumeration)) { // an enumeration in the guise of a number
        QVariant value(number);
        value.convert(type);
        return value;
    }
    QVariant value(type);
    switch (size) {
    case 1:
        *static_cast<quint8*>(value.data()) = quint8(number);
        break;
    case 2:
        *static_cast<quint16*>(value.data()) = quint16(number);
        break;
    case 4:
        *static_cast<quint32*>(value.data()) = quint32(number);
        break;
    default:
        *static_cast<qint64*>(value.data()) = number;
    }
    return value;
}

QVariant ValueReader::readAudioDevice(const QJsonValue& json, const QString& what) const
{
    if (json.isNull())
        return QVariant::fromValue(QAudioDevice());
    const QJsonValue id = json.isObject() ? json.toObject().value("id"_L1) : json;
    if (!id.isString())
        wrong(what, json, u"an audio device: an object with its \"id\", or the id"_s);
    QAudioDevice found;
    if (audioLookup()) {
        found = audioLookup()(id.toString());
    } else {
        const QList<QAudioDevice> outputs = QMediaDevices::audioOutputs();
        for (const QAudioDevice& device : outputs) {
            if (QString::fromUtf8(device.id()) == id.toString())
                found = device;
        }
    }
    if (found.isNull())
        throw RequestError(WrongValue,
                           u"%1: there is no audio output \"%2\""_s.arg(what, id.toString().left(100)));
    return QVariant::fromValue(found);
}

QVariant ValueReader::readObject(const QJsonValue& json, QMetaType type, const QString& what) const
{
    QObject* object = nullptr;
    const QMetaObject* const wanted = type.metaObject();
    if (json.isString()) {
        const QString text = json.toString();
        if (isNode(wanted)) {
            object = findNode(text);
            if (!object)
                throw RequestError(WrongValue,
                                   u"%1: there is no colour mode \"%2\""_s.arg(what, text.left(100)));
        } else {
            object = findById(text, wanted);
            if (!object && !text.isEmpty()) {
                try {
                    object = PathResolver(m_root, nullptr).object(text);
                } catch (const RequestError&) {
                    throw RequestError(
                        WrongValue,
                        u"%1: \"%2\" is neither an id nor a path of an object"_s.arg(what, text.left(100)));
                }
            }
        }
        if (object && wanted && !inherits(object->metaObject(), wanted->className()))
            throw RequestError(WrongValue,
                               u"%1: \"%2\" is a %3, not a %4"_s.arg(
                                   what, text.left(100), QLatin1String(object->metaObject()->className()),
                                   QLatin1String(wanted->className())));
    } else if (!json.isNull()) {
        wrong(what, json,
              isNode(wanted) ? u"the name of a colour mode"_s : u"the id or the path of an object"_s);
    }
    return QVariant(type, &object);
}

QObject* ValueReader::findNode(const QString& name) const
{
    const QVariant nodes = m_root ? m_root->property("colorModeList") : QVariant();
    if (!isList(nodes))
        return nullptr;
    const auto list = nodes.value<QSequentialIterable>();
    for (const QVariant& entry : list) {
        QObject* const node = objectOf(entry);
        if (node && node->property("displayName").toString() == name)
            return node;
    }
    return nullptr;
}

/// Looks at the objects that properties of the owner, then of the root's parts, hold: by themselves or in a
/// list.
QObject* ValueReader::findById(const QString& id, const QMetaObject* wanted) const
{
    const auto fits = [&](QObject* object) {
        return object && (!wanted || inherits(object->metaObject(), wanted->className())) &&
               object->property("id").typeId() == QMetaType::QString &&
               object->property("id").toString() == id;
    };
    QList<QObject*> holders;
    if (m_owner)
        holders.append(m_owner);
    for (qsizetype i = 0; i <= holders.size(); ++i) {
        if (i == holders.size()) { // the root's parts come last
            if (!m_root || holders.contains(m_root))
                break;
            holders.append(m_root);
            const QMetaObject* const metaObject = m_root->metaObject();
            for (int p = 0; p < metaObject->propertyCount(); ++p) {
                QObject* const part = objectOf(metaObject->property(p).read(m_root));
                if (part && !holders.contains(part))
                    holders.append(part);
            }
        }
        const QMetaObject* const metaObject = holders[i]->metaObject();
        for (int p = QObject::staticMetaObject.propertyCount(); p < metaObject->propertyCount(); ++p) {
            const QVariant value = metaObject->property(p).read(holders[i]);
            if (fits(objectOf(value)))
                return objectOf(value);
            if (!isList(value))
                continue;
            const auto list = value.value<QSequentialIterable>();
            for (const QVariant& entry : list) {
                if (fits(objectOf(entry)))
                    return objectOf(entry);
            }
        }
    }
    return nullptr;
}

QVariant ValueReader::readList(const QJsonValue& json, QMetaType type, const QString& what) const
{
    if (!json.isArray())
        wrong(what, json, u"a list"_s);
    QVariant result(type);
    auto list = result.view<QSequentialIterable>();
    const QMetaType entryType = list.metaContainer().valueMetaType();
    const QJsonArray array = json.toArray();
    for (qsizetype i = 0; i < array.size(); ++i)
        list.addValue(read(array[i], entryType, u"%1[%2]"_s.arg(what).arg(i)));
    return result;
}

QVariant ValueReader::readMap(const QJsonValue& json, QMetaType type, const QString& what) const
{
    if (!json.isObject())
        wrong(what, json, u"an object"_s);
    QVariant result(type);
    auto map = result.view<QAssociativeIterable>();
    const QMetaType keyType = map.metaContainer().keyMetaType();
    const QMetaType valueType = map.metaContainer().mappedMetaType();
    const QJsonObject object = json.toObject();
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        const QString name = u"%1.%2"_s.arg(what, member.key());
        bool isNumber = false;
        const qint64 number = member.key().toLongLong(&isNumber);
        const bool textKey = keyType.id() == QMetaType::QString || !isNumber;
        const QVariant key = read(textKey ? QJsonValue(member.key()) : QJsonValue(number), keyType, name);
        map.setValue(key, read(member.value(), valueType, name));
    }
    return result;
}

QVariant ValueReader::readGadget(const QJsonValue& json, QMetaType type, const QString& what) const
{
    if (!json.isObject())
        wrong(what, json, u"an object"_s);
    QVariant result(type);
    const QMetaObject* const metaObject = type.metaObject();
    const QJsonObject object = json.toObject();
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        const int index = metaObject->indexOfProperty(member.key().toUtf8().constData());
        if (index < 0 || !metaObject->property(index).isWritable())
            throw RequestError(
                WrongValue, u"%1 has no member \"%2\" that can be set"_s.arg(what, member.key().left(100)));
        const QMetaProperty property = metaObject->property(index);
        const QVariant value = read(member.value(), property.metaType(), u"%1.%2"_s.arg(what, member.key()),
                                    property.isEnumType() ? property.enumerator() : QMetaEnum());
        property.writeOnGadget(result.data(), value);
    }
    return result;
}

} // namespace control
