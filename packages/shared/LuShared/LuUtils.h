// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QString>

class QMimeData;
class QObject;

/// Small helpers that host and packages share.
class LUSHARED_EXPORT LuUtils
{
public:
    LuUtils() = delete;

    /// Name of the package that an object belongs to, such as "TKPackage": the package of its model's series.
    /// Empty for an object outside a package. Any thread.
    static QString packageName(const QObject* object);

    /// Class name without a namespace, as in the log and in force-sync pairs. Empty for null.
    static QString className(QObject* object);

    /// A deep copy of clipboard data, owned by the caller; null for null.
    static QMimeData* copyMimeData(const QMimeData* source);

    /// Path under which a schema resource is read: the file of the same name in the folder that the user
    /// named in place of the built-in ones, else @p resourcePath itself. Any thread.
    static QString schemaFile(const QString& resourcePath);
};
