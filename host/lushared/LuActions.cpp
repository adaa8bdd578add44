// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuActionInterface.h>
#include <LuShared/LuFlowAction.h>
#include <LuShared/LuModelModuleInterface.h>
#include <LuShared/LuModuleAction.h>
#include <LuShared/LuShortcutAction.h>

#include "LuModelHost.h"

#include <QDebug>
#include <QKeyEvent>
#include <QMetaEnum>

LuActionInterface::LuActionInterface(ActionTitle title, QObject* parent) : QObject(parent), m_title(title) {}

LuActionInterface::~LuActionInterface() = default;

void LuActionInterface::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    Q_EMIT activeChanged();
}

struct LuShortcutAction::Private
{
    ActionName name;
    QSet<QKeyCombination> keys;
    Handler handler;
    bool duplicated = false;

    /// The combination that is shown: the smallest, so that the choice does not depend on the hash.
    QKeyCombination first() const
    {
        QKeyCombination found(Qt::Key_unknown);
        bool any = false;
        for (const QKeyCombination keyCombination : keys) {
            if (!any || keyCombination.toCombined() < found.toCombined())
                found = keyCombination;
            any = true;
        }
        return found;
    }
};

LuShortcutAction::LuShortcutAction(ActionName name, QObject* parent)
    : LuActionInterface(titleOf(name), parent), d(new Private{name, {}, {}, false})
{
}

LuShortcutAction::~LuShortcutAction() = default;

LuActionInterface::ActionTitle LuShortcutAction::titleOf(ActionName name)
{
    static constexpr struct
    {
        const char* prefix;
        ActionTitle title;
    } topics[] = {
        {"Input_", Input},
        {"ColorMode_", ColorMode},
        {"Brightness_", Brightness},
        {"Volume_", Volume},
        {"NightProtection_", NightProtection},
        {"EcoPrivacy_", EcoPrivacy},
        {"ExtraCopyPaste_", ExtraCopyPaste},
        {"Kvm_", KvmSwitch},
    };
    if (name == ColorMode_NotSupported)
        return NoTitle;
    const QLatin1String key(QMetaEnum::fromType<ActionName>().valueToKey(name));
    for (const auto& topic : topics) {
        if (key.startsWith(QLatin1String(topic.prefix)))
            return topic.title;
    }
    return NoTitle;
}

LuShortcutAction::ActionName LuShortcutAction::name() const
{
    return d->name;
}

Qt::Key LuShortcutAction::key() const
{
    return d->first().key();
}

Qt::KeyboardModifiers LuShortcutAction::modifiers() const
{
    return d->first().keyboardModifiers();
}

QSet<QKeyCombination> LuShortcutAction::keys() const
{
    return d->keys;
}

void LuShortcutAction::setKeys(const QSet<QKeyCombination>& keys)
{
    if (d->keys == keys)
        return;
    d->keys = keys;
    Q_EMIT keysChanged();
}

void LuShortcutAction::setHandler(Handler handler)
{
    d->handler = std::move(handler);
}

bool LuShortcutAction::handle(const QKeyEvent& event) const
{
    return isActive() && d->handler && d->handler(event);
}

bool LuShortcutAction::isDuplicated() const
{
    return d->duplicated;
}

void LuShortcutAction::setDuplicated(bool duplicated)
{
    if (d->duplicated == duplicated)
        return;
    d->duplicated = duplicated;
    Q_EMIT duplicatedChanged();
}

LuModuleAction::LuModuleAction(ActionTitle title, LuModelModuleInterface* module,
                               const QVariantMap& properties, QObject* parent)
    : LuActionInterface(title, parent), m_module(module), m_properties(properties)
{
}

LuModuleAction::~LuModuleAction() = default;

LuModelModuleInterface* LuModuleAction::module() const
{
    return m_module;
}

bool LuModuleAction::trigger()
{
    if (!m_module)
        return false;
    const QString problem = LuModelHost::trigger(m_module, m_properties);
    if (!problem.isEmpty())
        qWarning().noquote() << "[LuModuleAction]" << problem;
    return problem.isEmpty();
}

LuFlowAction::LuFlowAction(const QString& modeId, ActionTitle title, LuModelModuleInterface* module,
                           const QVariantMap& properties, QObject* parent)
    : LuModuleAction(title, module, properties, parent), m_modeId(modeId)
{
}

LuFlowAction::~LuFlowAction() = default;
