// SPDX-License-Identifier: Apache-2.0
#include "ObjectAccess.h"

#include "MetaTypes.h"
#include "RequestError.h"
#include "ValueReader.h"
#include "ValueWriter.h"

#include <QMetaMethod>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace control {

namespace {

bool isOperation(const QMetaMethod& method)
{
    return method.access() == QMetaMethod::Public &&
           (method.methodType() == QMetaMethod::Method || method.methodType() == QMetaMethod::Slot);
}

QList<QMetaMethod> operationsNamed(const QMetaObject* metaObject, const QByteArray& name)
{
    QList<QMetaMethod> found;
    for (int i = QObject::staticMetaObject.methodCount(); i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        if (isOperation(method) && method.name() == name)
            found.append(method);
    }
    return found;
}

/// Calls the method with arguments of exactly its types.
QJsonValue invoke(QObject* object, const QMetaMethod& method, std::vector<QVariant>& arguments)
{
    const QMetaType resultType = method.returnMetaType();
    QVariant result;
    if (resultType.isValid() && resultType.id() != QMetaType::Void && resultType.id() != QMetaType::QVariant)
        result = QVariant(resultType);
    const bool isVariant = resultType.id() == QMetaType::QVariant;

    std::vector<void*> pointers;
    pointers.push_back(isVariant ? static_cast<void*>(&result) : result.data());
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool takesVariant = method.parameterMetaType(int(i)).id() == QMetaType::QVariant;
        pointers.push_back(takesVariant ? static_cast<void*>(&arguments[i]) : arguments[i].data());
    }
    QMetaObject::metacall(object, QMetaObject::InvokeMetaMethod, method.methodIndex(), pointers.data());
    return toJson(result);
}

QString countsOf(const QList<QMetaMethod>& methods)
{
    QList<int> counts;
    for (const QMetaMethod& method : methods)
        counts.append(method.parameterCount());
    std::sort(counts.begin(), counts.end());
    counts.erase(std::unique(counts.begin(), counts.end()), counts.end());
    QStringList texts;
    for (const int count : counts)
        texts.append(QString::number(count));
    return texts.join(u" or "_s);
}

QJsonArray parameterNames(const QMetaMethod& method)
{
    QJsonArray names;
    for (int i = 0; i < method.parameterCount(); ++i)
        names.append(QLatin1String(method.parameterTypeName(i)));
    return names;
}

QJsonObject describeProperty(const QMetaProperty& property)
{
    QJsonObject result{
        {u"name"_s, QLatin1String(property.name())}, {u"type"_s, QLatin1String(property.typeName())},
        {u"readable"_s, property.isReadable()},      {u"writable"_s, property.isWritable()},
        {u"constant"_s, property.isConstant()},
    };
    if (property.hasNotifySignal())
        result.insert(u"notify"_s, QString::fromLatin1(property.notifySignal().name()));
    if (property.isEnumType()) {
        const QMetaEnum enumerator = property.enumerator();
        QJsonObject keys;
        for (int i = 0; i < enumerator.keyCount(); ++i)
            keys.insert(QLatin1String(enumerator.key(i)), enumerator.value(i));
        result.insert(u"keys"_s, keys);
    }
    return result;
}

QVariant readFor(const ValueReader& reader, const QMetaProperty& property, const QJsonValue& value)
{
    return reader.read(value, property.metaType(), QLatin1String(property.name()),
                       property.isEnumType() ? property.enumerator() : QMetaEnum());
}

} // namespace

QJsonValue ObjectAccess::get(const QString& path) const
{
    const Location location = m_resolver.resolve(path);
    if (path.isEmpty() || !location.property.isValid())
        throw RequestError(NoSuchPath, u"no such path \"%1\": it names no property"_s.arg(path));
    if (!location.property.isReadable())
        throw RequestError(NoSuchPath, u"\"%1\" cannot be read"_s.arg(path));
    return toJson(location.value);
}

void ObjectAccess::set(const QString& path, const QJsonValue& value) const
{
    const Location location = m_resolver.resolve(path);
    if (!location.property.isValid())
        throw RequestError(NoSuchPath, u"no such path \"%1\": it names no property"_s.arg(path));
    if (!location.rest.isEmpty())
        throw RequestError(NotWritable, u"\"%1\" is part of a value: set \"%2\" as a whole"_s.arg(
                                            path, QLatin1String(location.property.name())));
    if (!location.property.isWritable())
        throw RequestError(NotWritable, u"\"%1\" is not writable"_s.arg(path));
    QVariant converted =
        readFor(ValueReader(m_resolver.root(path), location.object), location.property, value);
    // As QMetaProperty::write(), which does not take every enumeration in its own type.
    const bool isVariant = location.property.metaType().id() == QMetaType::QVariant;
    int status = -1;
    int flags = 0;
    void* pointers[] = {isVariant ? static_cast<void*>(&converted) : converted.data(), &converted, &status,
                        &flags};
    QMetaObject::metacall(location.object, QMetaObject::WriteProperty, location.property.propertyIndex(),
                          pointers);
}

QJsonValue ObjectAccess::call(const QString& path, const QJsonArray& arguments) const
{
    QString front;
    QString name;
    PathResolver::splitLast(path, &front, &name);
    if (front.isEmpty() && path.startsWith("context."_L1))
        front = u"context"_s;
    QObject* const object = m_resolver.object(front);
    const QList<QMetaMethod> named = operationsNamed(object->metaObject(), name.toUtf8());
    if (named.isEmpty())
        throw RequestError(NoSuchPath, u"no such path \"%1\": %2 has no operation \"%3\""_s.arg(
                                           path, QLatin1String(object->metaObject()->className()), name));

    const ValueReader reader(m_resolver.root(path), object);
    std::optional<RequestError> misfit;
    for (const QMetaMethod& method : named) {
        if (method.parameterCount() != arguments.size())
            continue;
        std::vector<QVariant> values;
        try {
            for (int i = 0; i < method.parameterCount(); ++i)
                values.push_back(
                    reader.read(arguments[i], method.parameterMetaType(i), u"argument %1"_s.arg(i + 1)));
        } catch (const RequestError& error) {
            if (!misfit)
                misfit = error;
            continue;
        }
        return invoke(object, method, values);
    }
    if (misfit)
        throw RequestError(*misfit);
    throw RequestError(
        InvalidParameters,
        u"\"%1\" takes %2 arguments, not %3"_s.arg(path, countsOf(named)).arg(arguments.size()));
}

QJsonObject ObjectAccess::describe(const QString& path) const
{
    const QMetaObject* const metaObject = m_resolver.object(path)->metaObject();
    QJsonArray properties;
    for (int i = QObject::staticMetaObject.propertyCount(); i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        // A property that a derived class declares anew is told where that class has it.
        if (metaObject->indexOfProperty(property.name()) == i)
            properties.append(describeProperty(property));
    }
    QJsonArray operations;
    QJsonArray signalList;
    for (int i = QObject::staticMetaObject.methodCount(); i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        if (method.attributes() & QMetaMethod::Cloned) // the same declaration, with fewer arguments
            continue;
        QJsonObject entry{{u"name"_s, QString::fromLatin1(method.name())},
                          {u"parameters"_s, parameterNames(method)}};
        if (method.methodType() == QMetaMethod::Signal) {
            signalList.append(entry);
        } else if (isOperation(method)) {
            entry.insert(u"returns"_s, QLatin1String(method.typeName()));
            operations.append(entry);
        }
    }
    return {{u"class"_s, QLatin1String(metaObject->className())},
            {u"properties"_s, properties},
            {u"operations"_s, operations},
            {u"signals"_s, signalList}};
}

QVariantMap ObjectAccess::readProperties(QObject* object, const QJsonObject& properties) const
{
    QVariantMap result;
    const ValueReader reader(m_resolver.root({}), object);
    const QMetaObject* const metaObject = object->metaObject();
    for (auto entry = properties.constBegin(); entry != properties.constEnd(); ++entry) {
        const int index = metaObject->indexOfProperty(entry.key().toUtf8().constData());
        if (index < QObject::staticMetaObject.propertyCount())
            throw RequestError(NoSuchPath,
                               u"%1 has no property \"%2\""_s.arg(QLatin1String(metaObject->className()),
                                                                  entry.key().left(100)));
        const QMetaProperty property = metaObject->property(index);
        if (!property.isWritable())
            throw RequestError(NotWritable, u"\"%1\" is not writable"_s.arg(entry.key()));
        QVariant value = readFor(reader, property, entry.value());
        // Kept in settings and compared there, where a number is what an enumeration is.
        if (value.metaType().flags() & QMetaType::IsEnumeration)
            value = toJson(value).toVariant().toInt();
        result.insert(entry.key(), value);
    }
    return result;
}

} // namespace control
