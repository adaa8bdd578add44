// SPDX-License-Identifier: Apache-2.0
#include "MetaTypes.h"

#include <QSequentialIterable>

#include <cstring>

namespace control {

bool inherits(const QMetaObject* metaObject, const char* name)
{
    for (; metaObject; metaObject = metaObject->superClass()) {
        if (std::strcmp(metaObject->className(), name) == 0)
            return true;
    }
    return false;
}

bool isNode(const QMetaObject* metaObject)
{
    return inherits(metaObject, "VCPNode");
}

QMetaEnum enumeratorOf(QMetaType type)
{
    const QMetaObject* const scope = type.metaObject();
    if (!scope || !(type.flags() & QMetaType::IsEnumeration))
        return {};
    QByteArray name = type.name();
    if (name.startsWith("QFlags<") && name.endsWith('>'))
        name = name.mid(7, name.size() - 8);
    const qsizetype colon = name.lastIndexOf(':');
    const int index = scope->indexOfEnumerator(name.mid(colon + 1).constData());
    return index < 0 ? QMetaEnum() : scope->enumerator(index);
}

bool isList(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::QByteArray:
        return false;
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return true;
    default:
        return value.canConvert<QSequentialIterable>();
    }
}

bool isObjectPointer(const QVariant& value)
{
    return bool(value.metaType().flags() & QMetaType::PointerToQObject);
}

QObject* objectOf(const QVariant& value)
{
    return isObjectPointer(value) ? *static_cast<QObject* const*>(value.constData()) : nullptr;
}

} // namespace control
