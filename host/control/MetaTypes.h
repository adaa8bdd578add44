// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaEnum>
#include <QMetaObject>
#include <QMetaType>
#include <QString>
#include <QVariant>

namespace control {

/// Whether a class is @p name or derives from it.
bool inherits(const QMetaObject* metaObject, const char* name);

/// Whether the object is an entry of a colour-mode list, which travels as its display name.
bool isNode(const QMetaObject* metaObject);

/// The enumeration behind an enumeration's or flags' type; invalid if the type's class does not declare it.
QMetaEnum enumeratorOf(QMetaType type);

/// Whether a list of values can be taken out of @p value by index.
bool isList(const QVariant& value);

/// The QObject that the value points to; null for null and for values that are no QObject pointers.
QObject* objectOf(const QVariant& value);
bool isObjectPointer(const QVariant& value);

} // namespace control
