// SPDX-License-Identifier: Apache-2.0
#include "LuAccessibleTree.h"

#include <QAccessible>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRectF>
#include <QUrl>

#include <cmath>

using namespace Qt::StringLiterals;

namespace LuAccessibleTree {
namespace {

struct RoleName
{
    QAccessible::Role role;
    QLatin1StringView name;
};

constexpr RoleName RoleNames[] = {
    {QAccessible::Window, "window"_L1},       {QAccessible::Dialog, "window"_L1},
    {QAccessible::AlertMessage, "window"_L1}, {QAccessible::Pane, "page"_L1},
    {QAccessible::Button, "button"_L1},       {QAccessible::CheckBox, "checkBox"_L1},
    {QAccessible::RadioButton, "radio"_L1},   {QAccessible::Slider, "slider"_L1},
    {QAccessible::ComboBox, "comboBox"_L1},   {QAccessible::EditableText, "textField"_L1},
    {QAccessible::List, "list"_L1},           {QAccessible::ListItem, "listItem"_L1},
    {QAccessible::StaticText, "label"_L1},    {QAccessible::Graphic, "image"_L1},
    {QAccessible::Link, "link"_L1},           {QAccessible::Grouping, "group"_L1},
    {QAccessible::SpinBox, "slider"_L1},      {QAccessible::PageTab, "button"_L1},
};

QQuickItem* itemOf(QAccessibleInterface* interface)
{
    return qobject_cast<QQuickItem*>(interface->object());
}

// The page slides in with a change of opacity that says nothing of its controls.
double opacityOf(const QQuickItem* item)
{
    double opacity = 1;
    for (; item && item->objectName() != "pagePanel"_L1; item = item->parentItem())
        opacity *= item->opacity();
    return std::round(opacity * 1000) / 1000;
}

QJsonObject rectOf(const QQuickItem* item)
{
    return toJson(item->mapRectToScene(QRectF(0, 0, item->width(), item->height())));
}

void addValue(QJsonObject& node, const QQuickItem* item, const QString& role)
{
    if (role == "slider"_L1) {
        node.insert(u"value"_s, item->property("value").toDouble());
        node.insert(u"minimum"_s, item->property("from").toDouble());
        node.insert(u"maximum"_s, item->property("to").toDouble());
        node.insert(u"step"_s, item->property("stepSize").toDouble());
    } else if (role == "comboBox"_L1) {
        node.insert(u"value"_s, item->property("displayText").toString());
    } else if (role == "textField"_L1) {
        node.insert(u"value"_s, item->property("text").toString());
    }
}

QJsonArray childrenOf(QAccessibleInterface* interface);

// The node itself, or what lies below it where it has no role.
QJsonArray nodeOf(QAccessibleInterface* interface)
{
    const QQuickItem* item = itemOf(interface);
    if (!item || !item->isVisible())
        return {};
    const QString role = roleOf(interface);
    if (role.isEmpty())
        return childrenOf(interface);
    QJsonObject node{{u"role"_s, role},
                     {u"name"_s, interface->text(QAccessible::Name)},
                     {u"enabled"_s, item->isEnabled()},
                     {u"focused"_s, item->hasActiveFocus()},
                     {u"opacity"_s, opacityOf(item)},
                     {u"rect"_s, rectOf(item)},
                     {u"children"_s, childrenOf(interface)}};
    addValue(node, item, role);
    if (const QAccessible::State state = interface->state(); state.checkable)
        node.insert(u"checked"_s, bool(state.checked));
    if (const QVariant image = item->property("image"); image.isValid() && !image.toUrl().isEmpty())
        node.insert(u"image"_s, image.toUrl().toString());
    else if (role == "image"_L1)
        node.insert(u"image"_s, item->property("source").toUrl().toString());
    if (const QString text = interface->text(QAccessible::Description); !text.isEmpty())
        node.insert(u"description"_s, text);
    return {node};
}

QJsonArray childrenOf(QAccessibleInterface* interface)
{
    QJsonArray children;
    for (int index = 0; index < interface->childCount(); ++index) {
        QAccessibleInterface* child = interface->child(index);
        if (!child || !child->isValid())
            continue;
        for (const QJsonValue& node : nodeOf(child))
            children.append(node);
    }
    return children;
}

void collect(QAccessibleInterface* interface, QList<Node>& nodes)
{
    if (QQuickItem* item = itemOf(interface)) {
        if (!item->isVisible())
            return;
        if (const QString role = roleOf(interface); !role.isEmpty())
            nodes.append({item, role, interface->text(QAccessible::Name)});
    }
    for (int index = 0; index < interface->childCount(); ++index) {
        if (QAccessibleInterface* child = interface->child(index); child && child->isValid())
            collect(child, nodes);
    }
}

// An item that has no accessibility of its own (a plain Item) is not in the tree: its children are asked.
template <class Visit>
void visitRoots(QQuickItem* item, const Visit& visit)
{
    if (!item->isVisible())
        return;
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(item);
    if (interface && interface->isValid() && !roleOf(interface).isEmpty()) {
        visit(interface);
        return;
    }
    const QList<QQuickItem*> children = item->childItems();
    for (QQuickItem* child : children)
        visitRoots(child, visit);
}

} // namespace

QJsonObject toJson(const QRectF& rect)
{
    return {{u"x"_s, rect.x()}, {u"y"_s, rect.y()}, {u"width"_s, rect.width()}, {u"height"_s, rect.height()}};
}

QString roleOf(QAccessibleInterface* interface)
{
    QAccessible::Role role = interface->role();
    QObject* object = interface->object();
    // A template's own role wins over the one that its QML gives it, so that a link would pass for a button.
    if (role == QAccessible::Button && object) {
        const QVariant own = QQmlProperty::read(object, u"Accessible.role"_s, qmlContext(object));
        if (own.isValid() && own.toInt() != QAccessible::NoRole)
            role = QAccessible::Role(own.toInt());
    }
    if (role == QAccessible::CheckBox && object && object->inherits("QQuickSwitch"))
        return u"switch"_s;
    for (const RoleName& row : RoleNames) {
        if (row.role == role)
            return QString(row.name);
    }
    return {};
}

QJsonObject ofWindow(QQuickWindow* window)
{
    const QRect rect = window->geometry();
    QJsonObject node{
        {u"role"_s, u"window"_s},
        {u"name"_s, window->title()},
        {u"enabled"_s, true},
        {u"focused"_s, window->isActive()},
        {u"opacity"_s, window->opacity()},
        {u"rect"_s,
         QJsonObject{{u"x"_s, 0}, {u"y"_s, 0}, {u"width"_s, rect.width()}, {u"height"_s, rect.height()}}}};
    node.insert(u"children"_s, ofItem(window->contentItem()));
    return node;
}

QJsonArray ofItem(QQuickItem* item)
{
    QJsonArray nodes;
    visitRoots(item, [&nodes](QAccessibleInterface* interface) {
        for (const QJsonValue& node : nodeOf(interface))
            nodes.append(node);
    });
    return nodes;
}

QList<Node> nodesBelow(QObject* object)
{
    QList<Node> nodes;
    auto* window = qobject_cast<QQuickWindow*>(object);
    if (QQuickItem* item = window ? window->contentItem() : qobject_cast<QQuickItem*>(object))
        visitRoots(item, [&nodes](QAccessibleInterface* interface) { collect(interface, nodes); });
    return nodes;
}

} // namespace LuAccessibleTree
