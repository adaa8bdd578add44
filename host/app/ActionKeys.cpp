// SPDX-License-Identifier: Apache-2.0
#include "ActionKeys.h"

#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuShortcutAction.h>
#include <lushared/LuMonitorRegistry.h>

#include <QEvent>

ActionKeys::ActionKeys(LuMonitorRegistry& registry, Receiver receiver)
    : m_registry(registry), m_receiver(std::move(receiver))
{
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &ActionKeys::tell);
    connect(&registry, &LuMonitorRegistry::currentChanged, this, &ActionKeys::follow);
    follow();
}

bool ActionKeys::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded)
        m_soon.start();
    return QObject::eventFilter(object, event);
}

void ActionKeys::follow()
{
    if (LuMonitorModel* current = m_registry.current(); current != m_model) {
        if (m_model)
            m_model->removeEventFilter(this);
        m_model = current;
        if (m_model)
            m_model->installEventFilter(this);
    }
    m_soon.start();
}

void ActionKeys::tell()
{
    QSet<QKeyCombination> keys;
    if (m_model) {
        const QList<LuShortcutAction*> actions = m_model->shortcutActions();
        for (LuShortcutAction* action : actions) {
            const auto soon = static_cast<void (QTimer::*)()>(&QTimer::start);
            connect(action, &LuShortcutAction::keysChanged, &m_soon, soon, Qt::UniqueConnection);
            connect(action, &LuShortcutAction::activeChanged, &m_soon, soon, Qt::UniqueConnection);
            if (action->isActive())
                keys.unite(action->keys());
        }
    }
    if (keys == m_told)
        return;
    m_told = keys;
    m_receiver(keys);
}
