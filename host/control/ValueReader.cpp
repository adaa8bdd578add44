// SPDX-License-Identifier: Apache-2.0
#include "ValueReader.h"

#include "MetaTypes.h"
#include "Parameters.h"
#include "PathResolver.h"
#include "PlainValues.h"
#include "RequestError.h"

#include <QAssociativeIterable>
#include <QJsonArray>
#include <QMediaDevices>
#include <QMetaProperty>
#include <QSequentialIterable>

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
    if (type.flags() & QMetaType::PointerToQObject)
        return readObject(json, type, what);

    const std::optional<QVariant> plain = readPlain(json, type, what);
    return plain ? *plain : readStructured(json, type, what);
}

QVariant ValueReader::readStructured(const QJsonValue& json, QMetaType type, const QString& what) const
{
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
        refuseValue(what, json, u"a number or a name of the enumeration"_s);
    }
    const auto size = type.sizeOf();
    const int bits = int(size) * 8;
    if (bits < 64 && (number < -(qint64(1) << (bits - 1)) || number >= (qint64(1) << bits)))
        refuseValue(what, json, u"a number that the enumeration's type holds"_s);
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
        refuseValue(what, json, u"an audio device: an object with its \"id\", or the id"_s);
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
        refuseValue(what, json,
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
        refuseValue(what, json, u"a list"_s);
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
        refuseValue(what, json, u"an object"_s);
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
        refuseValue(what, json, u"an object"_s);
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
