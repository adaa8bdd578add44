// SPDX-License-Identifier: Apache-2.0
#include "PathResolver.h"

#include "MetaTypes.h"
#include "RequestError.h"
#include "ValueWriter.h"

#include <QAssociativeIterable>
#include <QJsonArray>
#include <QJsonObject>
#include <QSequentialIterable>

#include <optional>

using namespace Qt::StringLiterals;

namespace control {

namespace {

constexpr auto ContextName = "context"_L1;

[[noreturn]] void notThere(const QString& path, const QString& reason)
{
    throw RequestError(NoSuchPath, u"no such path \"%1\": %2"_s.arg(path.left(200), reason));
}

QString stepText(const PathStep& step)
{
    return step.name.isEmpty() ? u"[%1]"_s.arg(step.index) : u"\"%1\""_s.arg(step.name);
}

/// Own properties of QObject are no part of the interface.
int propertyIndex(const QMetaObject* metaObject, const QString& name)
{
    const int index = metaObject->indexOfProperty(name.toUtf8().constData());
    return index < QObject::staticMetaObject.propertyCount() ? -1 : index;
}

std::optional<QVariant> elementOf(const QVariant& value, qsizetype index)
{
    if (value.typeId() == QMetaType::QJsonValue || value.typeId() == QMetaType::QJsonArray) {
        const QJsonArray array = value.toJsonArray();
        return index < array.size() ? std::optional<QVariant>(QVariant::fromValue(array[index]))
                                    : std::nullopt;
    }
    if (!isList(value))
        return std::nullopt;
    const auto list = value.value<QSequentialIterable>();
    return index < list.size() ? std::optional(list.at(index)) : std::nullopt;
}

std::optional<QVariant> memberOf(const QVariant& value, const QString& name)
{
    const bool isJson = value.typeId() == QMetaType::QJsonValue || value.typeId() == QMetaType::QJsonObject;
    if (!isJson && value.canConvert<QAssociativeIterable>()) {
        const auto map = value.value<QAssociativeIterable>();
        for (auto entry = map.begin(); entry != map.end(); ++entry) {
            if (toJson(QVariant::fromValue(entry.key())).toVariant().toString() == name)
                return entry.value();
        }
        return std::nullopt;
    }
    const QJsonValue json = isJson ? value.toJsonValue() : toJson(value);
    const QJsonObject object = json.toObject();
    const auto member = object.constFind(name);
    return member == object.constEnd() ? std::nullopt
                                       : std::optional<QVariant>(QVariant::fromValue(QJsonValue(*member)));
}

std::optional<QVariant> stepInto(const QVariant& value, const PathStep& step)
{
    if (value.typeId() == QMetaType::QVariant)
        return stepInto(value.value<QVariant>(), step);
    return step.name.isEmpty() ? elementOf(value, step.index) : memberOf(value, step.name);
}

} // namespace

QList<PathStep> PathResolver::parse(const QString& path)
{
    QList<PathStep> steps;
    const QStringList parts = path.split(u'.');
    for (const QString& part : parts) {
        const qsizetype bracket = part.indexOf(u'[');
        const QString name = part.left(bracket < 0 ? part.size() : bracket);
        if (name.isEmpty())
            notThere(path, u"a name is missing"_s);
        steps.append({name, -1});
        for (qsizetype at = bracket; at >= 0 && at < part.size();) {
            const qsizetype end = part.indexOf(u']', at);
            bool ok = false;
            const uint index = end > at + 1 ? QStringView(part).mid(at + 1, end - at - 1).toUInt(&ok) : 0;
            if (part[at] != u'[' || !ok)
                notThere(path, u"after \"%1\" a place in a list must stand as [0], [1], ..."_s.arg(name));
            steps.append({QString(), qsizetype(index)});
            at = end + 1;
        }
    }
    return steps;
}

QObject* PathResolver::root(const QString& path) const
{
    const bool fromContext = path == ContextName || path.startsWith("context."_L1);
    QObject* const object = fromContext ? m_context.data() : m_model.data();
    if (!object)
        notThere(path, fromContext ? u"the program has no context"_s : u"there is no monitor"_s);
    return object;
}

Location PathResolver::resolve(const QString& path) const
{
    Location location{root(path), {}, {}, {}};
    location.value = QVariant::fromValue<QObject*>(location.object);
    if (path.isEmpty())
        return location;
    QList<PathStep> steps = parse(path);
    if (steps.first().name == ContextName)
        steps.removeFirst();
    if (!steps.isEmpty() && steps.first().name.isEmpty())
        notThere(path, u"the context is no list"_s);

    QString walked;
    for (const PathStep& step : steps) {
        if (!isObjectPointer(location.value)) {
            const std::optional<QVariant> inner = stepInto(location.value, step);
            if (!inner)
                notThere(path, u"%1 has no %2"_s.arg(walked, stepText(step)));
            location.rest.append(step);
            location.value = *inner;
        } else {
            QObject* const object = objectOf(location.value);
            if (!object)
                notThere(path, u"%1 is null"_s.arg(walked));
            const int index = step.name.isEmpty() ? -1 : propertyIndex(object->metaObject(), step.name);
            if (index < 0)
                notThere(path, u"%1 has no %2"_s.arg(QLatin1String(object->metaObject()->className()),
                                                     stepText(step)));
            location = {object, object->metaObject()->property(index), {}, {}};
            if (location.property.isReadable())
                location.value = location.property.read(object);
        }
        walked = stepText(step);
    }
    return location;
}

QObject* PathResolver::object(const QString& path) const
{
    const Location location = resolve(path);
    if (!isObjectPointer(location.value))
        notThere(path, u"it leads to a value, not to an object"_s);
    QObject* const object = objectOf(location.value);
    if (!object)
        notThere(path, u"it is null"_s);
    return object;
}

QVariant PathResolver::read(const Location& location)
{
    if (!location.object || !location.property.isReadable())
        return {};
    QVariant value = location.property.read(location.object);
    for (const PathStep& step : location.rest) {
        const std::optional<QVariant> inner = stepInto(value, step);
        if (!inner)
            return {};
        value = *inner;
    }
    return value;
}

void PathResolver::splitLast(const QString& path, QString* front, QString* last)
{
    const qsizetype dot = path.lastIndexOf(u'.');
    *front = dot < 0 ? QString() : path.left(dot);
    *last = path.mid(dot + 1);
    if (dot == 0 || last->isEmpty())
        notThere(path, u"a name is missing"_s);
}

} // namespace control
