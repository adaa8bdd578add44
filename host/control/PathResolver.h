// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QMetaProperty>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

namespace control {

/// One part of a path: a name, or the place in a list.
struct PathStep
{
    QString name; ///< Empty for a place in a list.
    qsizetype index = -1;
};

/// Where a path leads.
struct Location
{
    QPointer<QObject>
        object;             ///< The last object on the way; the path's end itself where property is invalid.
    QMetaProperty property; ///< Property of the object that the path goes on with.
    QList<PathStep> rest;   ///< What follows inside of the property's value.
    QVariant value;         ///< Present value at the end of the path.
};

/// Finds what a path names: properties of a monitor's model, or of the program's context behind "context.".
///
/// What is not there throws RequestError (NoSuchPath) with a message that names the part. GUI thread.
class PathResolver
{
public:
    /// Either may be null: paths that start there then lead nowhere.
    PathResolver(QObject* model, QObject* context) : m_model(model), m_context(context) {}

    /// The object that paths of this form start from.
    QObject* root(const QString& path) const;

    /// An empty path and "context" are the roots themselves.
    Location resolve(const QString& path) const;

    /// The object that the path leads to, never null.
    QObject* object(const QString& path) const;

    /// The value at the end of a location now; invalid if it is no longer there.
    static QVariant read(const Location& location);

    /// Splits "a.b[0].c" at its last name: "a.b[0]" and "c".
    static void splitLast(const QString& path, QString* front, QString* last);

private:
    static QList<PathStep> parse(const QString& path);

    QPointer<QObject> m_model;
    QPointer<QObject> m_context;
};

} // namespace control
