// SPDX-License-Identifier: Apache-2.0
#include "LuWindowBridge.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

// Input that scripts send to the windows.

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

} // namespace

LuWindowBridge::Result LuWindowBridge::key(const QString& name, const QString& key, const QString& role,
                                           const QString& within)
{
    const QKeySequence sequence = QKeySequence::fromString(key, QKeySequence::PortableText);
    if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown)
        return failure(WrongValue, u"no such key: %1"_s.arg(key));
    QQuickItem* item = nullptr;
    if (name.isEmpty()) {
        auto* focused = qobject_cast<QQuickWindow*>(QGuiApplication::focusWindow());
        QQuickWindow* target = focused ? focused : window();
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
