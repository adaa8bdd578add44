// SPDX-License-Identifier: Apache-2.0
#include "LuWindowBridge.h"

#include "LuAccessibleTree.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

// Input that scripts send to the windows, and where it goes.

namespace {

// As the window does it for the item that has the focus, so that it also works while the desktop has the
// focus elsewhere.
void deliverKey(QQuickItem* item, QKeyEvent* event)
{
    event->accept();
    QCoreApplication::sendEvent(item, event);
    while (!event->isAccepted() && (item = item->parentItem())) {
        event->accept();
        QCoreApplication::sendEvent(item, event);
    }
}

bool isOfType(const QQuickItem* item, const char* type)
{
    return QByteArray(item->metaObject()->className()).startsWith(type);
}

// Whether a ring is drawn around the item, or a cursor stands in it.
bool showsFocus(const QQuickItem* item)
{
    if (item->inherits("QQuickTextInput"))
        return true;
    const QList<QQuickItem*> children = item->childItems();
    return std::any_of(children.cbegin(), children.cend(), [](const QQuickItem* child) {
        return child->isVisible() && (isOfType(child, "LuFocusRing_QML") || showsFocus(child));
    });
}

bool canBeSeen(const QQuickItem* item)
{
    constexpr double Slack = 1;
    const QRectF place = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    QRectF view(QPointF(), QSizeF(item->window()->size()));
    for (const QQuickItem* above = item->parentItem(); above; above = above->parentItem()) {
        if (above->clip() || above->inherits("QQuickFlickable"))
            view = view.intersected(above->mapRectToScene(QRectF(0, 0, above->width(), above->height())));
    }
    const QRectF seen = place.intersected(view);
    return seen.width() >= std::min(place.width(), view.width()) - Slack &&
           seen.height() >= std::min(place.height(), view.height()) - Slack;
}

} // namespace

QQuickWindow* LuWindowBridge::focusedWindow() const
{
    auto* focused = qobject_cast<QQuickWindow*>(QGuiApplication::focusWindow());
    return focused ? focused : window();
}

LuWindowBridge::Result LuWindowBridge::focus() const
{
    QQuickWindow* target = focusedWindow();
    if (!target)
        return noWindow();
    QQuickItem* item = target->activeFocusItem();
    if (!item)
        return failure(NoSuchThing, u"nothing has the focus"_s);
    // A part of a control, such as the text of a number, speaks through the control.
    QQuickItem* control = item;
    QAccessibleInterface* interface = nullptr;
    for (; control; control = control->parentItem()) {
        interface = QAccessible::queryAccessibleInterface(control);
        if (interface && !LuAccessibleTree::roleOf(interface).isEmpty() &&
            !interface->text(QAccessible::Name).isEmpty())
            break;
    }
    if (!control)
        return failure(NoSuchThing, u"what has the focus has no name"_s);
    const QRectF rect = control->mapRectToScene(QRectF(0, 0, control->width(), control->height()));
    return {NoError,
            {},
            QJsonObject{{u"window"_s, windowName(target)},
                        {u"role"_s, LuAccessibleTree::roleOf(interface)},
                        {u"name"_s, interface->text(QAccessible::Name)},
                        {u"item"_s, item->objectName()},
                        {u"rect"_s, LuAccessibleTree::toJson(rect)},
                        {u"marked"_s, showsFocus(control)},
                        {u"seen"_s, canBeSeen(control)}}};
}

LuWindowBridge::Result LuWindowBridge::key(const QString& name, const QString& key, const QString& role,
                                           const QString& within)
{
    const QKeySequence sequence = QKeySequence::fromString(key, QKeySequence::PortableText);
    if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown)
        return failure(WrongValue, u"no such key: %1"_s.arg(key));
    QQuickItem* item = nullptr;
    if (name.isEmpty()) {
        QQuickWindow* target = focusedWindow();
        if (!target)
            return noWindow();
        item = target->activeFocusItem() ? target->activeFocusItem() : target->contentItem();
    } else {
        const Found found = find(name, role, within);
        if (!found.item)
            return found.error;
        item = found.item;
        item->forceActiveFocus(Qt::TabFocusReason);
    }
    const QKeyCombination combination = sequence[0];
    const bool printable =
        combination.key() < Qt::Key_Escape && !(combination.keyboardModifiers() & Qt::ControlModifier);
    const QString text = printable ? QString(QChar(char16_t(combination.key()))).toLower() : QString();
    const QPointer<QQuickItem> target = item;
    QKeyEvent down(QEvent::KeyPress, combination.key(), combination.keyboardModifiers(), text);
    deliverKey(item, &down);
    if (target) {
        QKeyEvent up(QEvent::KeyRelease, combination.key(), combination.keyboardModifiers(), text);
        deliverKey(target, &up);
    }
    return {};
}

LuWindowBridge::Result LuWindowBridge::mouse(const QString& name, const QString& kind,
                                             const QPointF& position)
{
    QWindow* target = nullptr;
    const QList<QWindow*> all = QGuiApplication::topLevelWindows();
    for (QWindow* one : all) {
        if (windowName(one) == name || one->title() == name)
            target = one;
    }
    if (!target)
        return failure(NoSuchThing, u"no such window: %1"_s.arg(name));
    const auto send = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons) {
        m_buttons = buttons;
        QMouseEvent event(type, position, target->mapToGlobal(position), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    };
    if (kind != "press"_L1 && kind != "move"_L1 && kind != "release"_L1 && kind != "click"_L1)
        return failure(WrongValue, u"no such kind of pointer input: %1"_s.arg(kind));
    if (kind == "move"_L1)
        send(QEvent::MouseMove, Qt::NoButton, m_buttons);
    if (kind == "press"_L1 || kind == "click"_L1)
        send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    if (kind == "release"_L1 || kind == "click"_L1)
        send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    return {};
}
