// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

/// The first control of a role and a name in what "ui.tree" answers, depth first; empty if there is none.
inline QJsonObject findInTree(const QJsonValue& tree, const QString& role, const QString& name)
{
    if (tree.isArray()) {
        const QJsonArray list = tree.toArray();
        for (const QJsonValue& each : list) {
            if (const QJsonObject found = findInTree(each, role, name); !found.isEmpty())
                return found;
        }
        return {};
    }
    const QJsonObject object = tree.toObject();
    if (object.value(QLatin1String("role")).toString() == role &&
        object.value(QLatin1String("name")).toString() == name)
        return object;
    return findInTree(object.value(QLatin1String("children")), role, name);
}

/// The names of all objects of a role, depth first.
inline QStringList namesInTree(const QJsonValue& tree, const QString& role)
{
    QStringList names;
    if (tree[QLatin1String("role")].toString() == role)
        names << tree[QLatin1String("name")].toString();
    const QJsonArray children = tree[QLatin1String("children")].toArray();
    for (const QJsonValue& child : children)
        names << namesInTree(child, role);
    return names;
}
