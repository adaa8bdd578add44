// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PathResolver.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

namespace control {

/// What the control protocol does with the objects behind paths. Failures throw RequestError. GUI thread.
class ObjectAccess
{
public:
    /// @param model where paths start; @param context where those behind "context." do. Either may be null.
    ObjectAccess(QObject* model, QObject* context) : m_resolver(model, context) {}

    QJsonValue get(const QString& path) const;

    /// Returns once the property's setter has.
    void set(const QString& path, const QJsonValue& value) const;

    /// Calls an invokable operation. Of several with one name the number of arguments decides, then whether
    /// they fit.
    QJsonValue call(const QString& path, const QJsonArray& arguments) const;

    /// Class, properties, operations and signals in order of declaration, from the base class above QObject
    /// on.
    QJsonObject describe(const QString& path) const;

    /// Sets several properties of one object, or none if one of them is not there or does not fit: then it
    /// throws. The values are of the properties' own types.
    QVariantMap readProperties(QObject* object, const QJsonObject& properties) const;

    const PathResolver& resolver() const { return m_resolver; }

private:
    PathResolver m_resolver;
};

} // namespace control
