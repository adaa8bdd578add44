// SPDX-License-Identifier: Apache-2.0
#include "ValueWriter.h"

#include "MetaTypes.h"
#include "RequestError.h"

#include <QAssociativeIterable>
#include <QAudioDevice>
#include <QColor>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeySequence>
#include <QMetaProperty>
#include <QRect>
#include <QSequentialIterable>
#include <QSize>
#include <QUrl>

#include <cmath>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace control {

namespace {

/// Walks through one value. Keeps its size in check: objects may point at each other.
class Writer
{
public:
    QJsonValue write(const QVariant& value);

private:
    QJsonValue writeEnumeration(const QVariant& value) const;
    QJsonValue writeObject(QObject* object);
    QJsonValue writeList(const QVariant& value);
    QJsonValue writeMap(const QVariant& value);
    QJsonValue writeGadget(const QVariant& value);
    QJsonValue writeOther(const QVariant& value);
    /// A member of an object: null where the value has no form.
    QJsonValue writeMember(const QVariant& value);

    static constexpr int MaximumValues = 20'000;
    static constexpr int MaximumDepth = 6;
    QList<const QObject*> m_around;
    int m_values = 0;
};

QJsonValue fromDouble(double number)
{
    return std::isfinite(number) ? QJsonValue(number) : QJsonValue();
}

template <class Size>
QJsonObject sizeObject(const Size& size)
{
    return {{u"width"_s, size.width()}, {u"height"_s, size.height()}};
}

template <class Point>
QJsonObject pointObject(const Point& point)
{
    return {{u"x"_s, point.x()}, {u"y"_s, point.y()}};
}

template <class Rect>
QJsonObject rectObject(const Rect& rect)
{
    return {{u"x"_s, rect.x()}, {u"y"_s, rect.y()}, {u"width"_s, rect.width()}, {u"height"_s, rect.height()}};
}

QJsonValue audioObject(const QAudioDevice& device)
{
    if (device.isNull())
        return {};
    return QJsonObject{{u"id"_s, QString::fromUtf8(device.id())}, {u"name"_s, device.description()}};
}

QJsonValue textOrNull(bool valid, const QString& text)
{
    return valid ? QJsonValue(text) : QJsonValue();
}

std::optional<QJsonValue> geometryOrTime(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QSize:
        return sizeObject(value.toSize());
    case QMetaType::QSizeF:
        return sizeObject(value.toSizeF());
    case QMetaType::QPoint:
        return pointObject(value.toPoint());
    case QMetaType::QPointF:
        return pointObject(value.toPointF());
    case QMetaType::QRect:
        return rectObject(value.toRect());
    case QMetaType::QRectF:
        return rectObject(value.toRectF());
    case QMetaType::QTime:
        return textOrNull(value.toTime().isValid(), value.toTime().toString(u"HH:mm:ss.zzz"_s));
    case QMetaType::QDate:
        return textOrNull(value.toDate().isValid(), value.toDate().toString(Qt::ISODate));
    case QMetaType::QDateTime:
        return textOrNull(value.toDateTime().isValid(),
                          value.toDateTime().toLocalTime().toString(Qt::ISODateWithMs));
    default:
        return std::nullopt;
    }
}

QJsonValue Writer::write(const QVariant& value)
{
    if (++m_values > MaximumValues)
        throw RequestError(WrongValue, u"the value is too large to be given whole: name a part of it"_s);
    if (!value.isValid())
        return {};
    switch (value.typeId()) {
    case QMetaType::Nullptr:
        return {};
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return value.toLongLong();
    case QMetaType::ULong:
    case QMetaType::ULongLong: {
        const quint64 number = value.toULongLong();
        return number <= quint64(std::numeric_limits<qint64>::max()) ? QJsonValue(qint64(number))
                                                                     : QJsonValue(double(number));
    }
    case QMetaType::Float:
    case QMetaType::Double:
        return fromDouble(value.toDouble());
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QByteArray:
        return QString::fromUtf8(value.toByteArray());
    case QMetaType::QUrl:
        return value.toUrl().toString();
    case QMetaType::QColor: {
        const auto color = value.value<QColor>();
        return textOrNull(color.isValid(), color.name(QColor::HexArgb));
    }
    case QMetaType::QKeySequence:
        return value.value<QKeySequence>().toString(QKeySequence::PortableText);
    case QMetaType::QJsonValue:
        return value.toJsonValue();
    case QMetaType::QJsonObject:
        return value.toJsonObject();
    case QMetaType::QJsonArray:
        return value.toJsonArray();
    case QMetaType::QVariant:
        return write(value.value<QVariant>());
    default:
        return writeOther(value);
    }
}

QJsonValue Writer::writeOther(const QVariant& value)
{
    if (const std::optional<QJsonValue> plain = geometryOrTime(value))
        return *plain;
    if (value.metaType() == QMetaType::fromType<QAudioDevice>())
        return audioObject(value.value<QAudioDevice>());
    if (value.metaType() == QMetaType::fromType<QKeyCombination>())
        return QKeySequence(value.value<QKeyCombination>()).toString(QKeySequence::PortableText);
    if (value.metaType().flags() & QMetaType::IsEnumeration)
        return writeEnumeration(value);
    if (isObjectPointer(value))
        return writeObject(objectOf(value));
    if (value.canConvert<QAssociativeIterable>())
        return writeMap(value);
    if (isList(value))
        return writeList(value);
    if (value.metaType().flags() & QMetaType::IsGadget)
        return writeGadget(value);
    if (value.canConvert<QString>())
        return value.toString();
    throw RequestError(WrongValue,
                       u"a value of type %1 has no JSON form"_s.arg(QLatin1String(value.typeName())));
}

QJsonValue Writer::writeEnumeration(const QVariant& value) const
{
    const bool isUnsigned = bool(value.metaType().flags() & QMetaType::IsUnsignedEnumeration);
    const void* const data = value.constData();
    switch (value.metaType().sizeOf()) {
    case 1:
        return isUnsigned ? *static_cast<const quint8*>(data) : *static_cast<const qint8*>(data);
    case 2:
        return isUnsigned ? *static_cast<const quint16*>(data) : *static_cast<const qint16*>(data);
    case 4: // Qt's own numbers of enumerations are int, whatever type the compiler has chosen
        return *static_cast<const qint32*>(data);
    default:
        return *static_cast<const qint64*>(data);
    }
}

QJsonValue Writer::writeMember(const QVariant& value)
{
    try {
        return write(value);
    } catch (const RequestError&) {
        if (m_values > MaximumValues)
            throw;
        return {};
    }
}

QJsonValue Writer::writeObject(QObject* object)
{
    if (!object)
        return {};
    const QMetaObject* const metaObject = object->metaObject();
    if (isNode(metaObject))
        return object->property("displayName").toString();
    if (m_around.contains(object) || m_around.size() >= MaximumDepth)
        return {};
    m_around.append(object);
    QJsonObject result;
    for (int i = QObject::staticMetaObject.propertyCount(); i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        if (property.isReadable())
            result.insert(QLatin1String(property.name()), writeMember(property.read(object)));
    }
    m_around.removeLast();
    return result;
}

QJsonValue Writer::writeGadget(const QVariant& value)
{
    const QMetaObject* const metaObject = value.metaType().metaObject();
    QJsonObject result;
    for (int i = 0; metaObject && i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        if (property.isReadable())
            result.insert(QLatin1String(property.name()),
                          writeMember(property.readOnGadget(value.constData())));
    }
    return result;
}

QJsonValue Writer::writeList(const QVariant& value)
{
    QJsonArray result;
    const auto list = value.value<QSequentialIterable>();
    for (const QVariant& entry : list)
        result.append(write(entry));
    return result;
}

QJsonValue Writer::writeMap(const QVariant& value)
{
    QJsonObject result;
    const auto map = value.value<QAssociativeIterable>();
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        const QVariant key = entry.key();
        const bool isEnumeration = bool(key.metaType().flags() & QMetaType::IsEnumeration);
        const QString name =
            isEnumeration ? QString::number(writeEnumeration(key).toInteger()) : key.toString();
        result.insert(name, write(entry.value()));
    }
    return result;
}

} // namespace

QJsonValue toJson(const QVariant& value)
{
    return Writer().write(value);
}

} // namespace control
