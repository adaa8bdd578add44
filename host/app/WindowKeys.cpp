// SPDX-License-Identifier: Apache-2.0
#include "WindowKeys.h"

#include <LuShared/LuPlatformNotifications.h>

#include <QKeyEvent>
#include <QWindow>

namespace {

/// A modifier counts from its own press on, and is no key.
Qt::KeyboardModifier ownModifier(int key)
{
    switch (key) {
    case Qt::Key_Control:
        return Qt::ControlModifier;
    case Qt::Key_Alt:
        return Qt::AltModifier;
    case Qt::Key_Shift:
        return Qt::ShiftModifier;
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
        return Qt::MetaModifier;
    default:
        return Qt::NoModifier;
    }
}

} // namespace

WindowKeys::WindowKeys(std::weak_ptr<services::DesktopEvents> session,
                       services::DesktopEvents::KeyHandler handler, QObject* parent)
    : QObject(parent), m_session(std::move(session)), m_handler(std::move(handler))
{
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event)
{
    // Items get the same event once more.
    if (event->type() != QEvent::KeyPress || !qobject_cast<QWindow*>(watched))
        return QObject::eventFilter(watched, event);
    const auto session = m_session.lock();
    if (session && !session->hearsEveryKey()) {
        const auto* press = static_cast<QKeyEvent*>(event);
        const Qt::KeyboardModifier own = ownModifier(press->key());
        const Qt::Key key = own == Qt::NoModifier ? Qt::Key(press->key()) : Qt::Key_unknown;
        const Qt::KeyboardModifiers modifiers = press->modifiers() | own;
        if (!session->takesActionKeys())
            m_handler(modifiers, key, press->isAutoRepeat());
        Q_EMIT LuPlatformNotifications::instance()->activeKeyEvent(modifiers, key, press->isAutoRepeat());
    }
    return QObject::eventFilter(watched, event);
}
