// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <functional>

class QAccessibleInterface;
class QObject;
class QQuickItem;
class QQuickWindow;
class QRectF;

/// Reads what the windows show from Qt's accessibility tree, as assistive software would. GUI thread only.
namespace LuAccessibleTree {

/// One thing that a person can see or act on.
struct Node
{
    QQuickItem* item = nullptr;
    QString role;
    QString name;
};

QJsonObject toJson(const QRectF& rect);

/// The role as the control protocol names it; empty for parts that only hold others together.
QString roleOf(QAccessibleInterface* interface);

/// The tree of a window, as an object with "children".
QJsonObject ofWindow(QQuickWindow* window);

/// The visible things at @p item and below; an item without a role of its own gives those below it.
QJsonArray ofItem(QQuickItem* item);

/// Every visible node at @p object (a window or an item) and below, in reading order.
QList<Node> nodesBelow(QObject* object);

} // namespace LuAccessibleTree
