// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuMonitorModel.h>

#include <QMetaEnum>
#include <QMetaProperty>

/// Enumerations as their numbers, as the settings and the control socket have them.
inline QVariant valueOf(const QMetaProperty& property, const QObject* object)
{
    const QVariant value = property.read(object);
    return property.isEnumType() ? QVariant(value.toInt()) : value;
}

/// A value that a property does not hold now and that its monitor takes; invalid for a type of which none can
/// be made up.
inline QVariant anotherValue(const QMetaProperty& property, const QVariant& present)
{
    // Off is what the state says: as a time it is none.
    if (QLatin1String(property.name()) == QLatin1String("activeTime"))
        return present.toInt() == 20 ? 30 : 20;
    // The ports that the monitor has.
    if (QLatin1String(property.name()) == QLatin1String("kvmSwitch"))
        return present.toInt() == 3 ? 2 : 3;
    if (property.isEnumType()) {
        const QMetaEnum names = property.enumerator();
        return names.value(0) == present.toInt() ? names.value(1) : names.value(0);
    }
    if (const auto* node = present.value<LuVCPNode*>()) {
        const QList<LuVCPNode*> nodes = qobject_cast<LuMonitorModel*>(node->parent())->colorModeList();
        return QVariant::fromValue(nodes.at((nodes.indexOf(node) + 1) % nodes.size()));
    }
    const QLatin1String name(property.name());
    const auto oneOf = [&present](const QVariant& a, const QVariant& b) { return present == a ? b : a; };
    switch (property.metaType().id()) {
    case QMetaType::Bool:
        return !present.toBool();
    case QMetaType::Int:
        if (name == QLatin1String("currentPivot"))
            return oneOf(90, 270);
        // Below 31 several values look the same and read back as the highest of them.
        if (name == QLatin1String("displayBrightness"))
            return oneOf(60, 70);
        return oneOf(3, 4);
    case QMetaType::QString:
        if (name == QLatin1String("colorModeName"))
            return oneOf(QStringLiteral("Cinema"), QStringLiteral("Game"));
        if (name == QLatin1String("audioMode"))
            return oneOf(QStringLiteral("Music"), QStringLiteral("Dialogue"));
        if (name.endsWith(QLatin1String("Source")))
            return oneOf(QStringLiteral("HDMI"), QStringLiteral("DisplayPort"));
        return present.toString() + QStringLiteral("x");
    default:
        return {};
    }
}
