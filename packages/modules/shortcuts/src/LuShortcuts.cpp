// SPDX-License-Identifier: Apache-2.0
#include "LuShortcuts.h"

#include "LuClipboard.h"
#include "LuKeyText.h"
#include "LuShortcutTables.h"

#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuPlatformNotifications.h>
#include <LuShared/LuUtils.h>
#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrEnvironment.h>

#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSettings>

#include <algorithm>

namespace {

using Actions = LuShortcutAction;
using Titles = LuActionInterface;

const QString ActiveKey = QStringLiteral("active");
/// The keys stay live this long when a choice of keys begins, and come back so long after it.
constexpr qint64 SettleMs = 50;

/// The actions in the order in which they get their keys; the colour modes come behind the loop through them.
constexpr Actions::ActionName actionNames[] = {
    Actions::Input_SwitchtoUSBC,
    Actions::Input_SwitchtoDisplayport,
    Actions::Input_SwitchtoHDMI,
    Actions::Input_SwitchtoHDMI1,
    Actions::Input_SwitchtoHDMI2,
    Actions::Input_SwitchtoHDMI3,
    Actions::Input_SwitchtoThunderbolt3,
    Actions::ColorMode_LoopAllColorMode,
    Actions::Brightness_Decrease,
    Actions::Brightness_Increase,
    Actions::Volume_Decrease,
    Actions::Volume_Increase,
    Actions::Volume_Mute,
    Actions::Volume_LoopAllSpeakerOutput,
    Actions::Volume_LoopAllAudioMode,
    Actions::NightProtection_Decrease,
    Actions::NightProtection_Increase,
    Actions::EcoPrivacy_TurnOnOff,
    Actions::ExtraCopyPaste_Copy,
    Actions::ExtraCopyPaste_Paste,
    Actions::Kvm_LoopAllKvmSwitch,
};

/// The next mode in the circle that is not of high dynamic range; -1 if there is no other.
int nextNonHdrIndex(int index, const QList<LuVCPNode*>& modes)
{
    for (int step = 1; step < modes.size(); ++step) {
        const int next = int((index + step) % modes.size());
        if (!modes[next]->isHdr())
            return next;
    }
    return -1;
}

} // namespace

LuShortcuts::LuShortcuts(LuMonitorModel* model)
    : LuModelModuleInterface(model),
      m_shortcutsEnable(ZrEnvironment::varDeviceChoice(QStringLiteral("using.shortcuts")).toBool()),
      m_clipboard(new LuClipboard(this, model->id()))
{
    registerAllShortcuts(false);
    m_active = moduleSetting(ActiveKey, false).toBool();
    connect(model, &LuMonitorModel::isCurrentModelChanged, this, [this] { registerAllShortcuts(false); });
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeKeyEvent, this,
            &LuShortcuts::takeKey);
}

LuShortcuts::~LuShortcuts() = default;

void LuShortcuts::readSchema(const QByteArray& schema)
{
    if (m_shortcutsEnable)
        m_shortcutsEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("Shortcuts"));
}

void LuShortcuts::setActive(bool active)
{
    if (!m_active.set(active))
        return;
    updateActionsActive();
    setModuleSetting(ActiveKey, active);
    Q_EMIT activeChanged();
    fireOnOffEvent(LuDataCollection::ACT_SHORTCUTS, active, LuDataCollection::SOURCE_USER, {});
}

void LuShortcuts::setRepeatShortcuts(bool repeated)
{
    if (m_repeatShortcuts == repeated)
        return;
    m_repeatShortcuts = repeated;
    Q_EMIT repeatShortcutsChanged();
}

void LuShortcuts::setModifyShortcuts(bool modify)
{
    if (m_modifyShortcuts == modify)
        return;
    m_modifyShortcuts = modify;
    ZrDispatch::main()->postLater(QStringLiteral("setModifyShortcuts"), SettleMs,
                                  [self = QPointer<LuShortcuts>(this)] {
                                      if (self)
                                          self->updateActionsActive();
                                  });
    Q_EMIT modifyShortcutsChanged();
}

void LuShortcuts::setPressKeyName(const QString& name)
{
    m_pressKeyName = name;
    Q_EMIT pressKeyNameChanged();
}

void LuShortcuts::setModifyIndex(int index)
{
    if (m_modifyIndex == index)
        return;
    m_modifyIndex = index;
    setModifyShortcuts(index != -1);
    if (index != -1)
        setRepeatShortcuts(false);
}

void LuShortcuts::registerShortcuts(ActionTitle title, ActionName name, bool)
{
    // Compared below with what it was, so that the same row can be clicked again after the page was left.
    m_modifyIndex = -1;
    const QList<LuShortcutAction*> actions = model()->shortcutActions();
    for (int i = 0; i < actions.size(); ++i) {
        if (actions[i]->title() == title && actions[i]->name() == name)
            setModifyIndex(i);
    }
    if (m_modifyIndex == -1)
        setModifyShortcuts(false);
}

bool LuShortcuts::checkModifyShortcuts(ActionTitle title, ActionName name) const
{
    const LuShortcutAction* action = model()->shortcutActions().value(m_modifyIndex);
    return action && action->title() == title && action->name() == name;
}

void LuShortcuts::resetToDefaultSetting()
{
    // Only the current monitor gets keys.
    if (!model()->isCurrentModel())
        return;
    const QList<LuShortcutAction*> actions = model()->shortcutActions();
    for (const LuShortcutAction* action : actions)
        registerShortcutKeys(action->name(), {});
    registerAllShortcuts(true);
    Q_EMIT modifyShortcutsChanged();
}

void LuShortcuts::clearSetShortcutsName()
{
    setPressKeyName({});
}

QString LuShortcuts::shortcutCombo(ActionTitle, ActionName name) const
{
    const LuShortcutAction* action = findAction(name);
    return action ? LuKeyText::comboString(action->modifiers(), action->key()) : QString();
}

QStringList LuShortcuts::displayKeyList(const QString& keyName) const
{
    static constexpr struct
    {
        const char* key;
        char16_t sign;
    } signs[] = {{"Left", u'←'}, {"Right", u'→'}, {"Up", u'↑'}, {"Down", u'↓'}};
    QStringList parts = keyName.split(QLatin1Char('+'));
    for (QString& part : parts) {
        for (const auto& each : signs) {
            if (part == QLatin1String(each.key)) {
                part = QChar(each.sign);
                break;
            }
        }
    }
    return parts;
}

bool LuShortcuts::isShortcutDuplicated(ActionTitle, ActionName name) const
{
    const LuShortcutAction* action = findAction(name);
    return action && action->isDuplicated();
}

LuShortcuts::ActionName LuShortcuts::stringToColorMode(const QString& name) const
{
    return LuShortcutTables::actionOfColorMode(name);
}

bool LuShortcuts::hasShortcut(ActionName name) const
{
    return findAction(name);
}

bool LuShortcuts::hasWidget(const QString& widget) const
{
    return model()->inWidgets(widget);
}

LuSyncTasks* LuShortcuts::syncPeriodically()
{
    if (m_active && model()->isFirstTimeConnected())
        fireOnOffEvent(LuDataCollection::ACT_SHORTCUTS, m_active, LuDataCollection::SOURCE_FIRST_CONNECT, {});
    return nullptr;
}

void LuShortcuts::fireExitEvent()
{
    if (m_active)
        fireOnOffEvent(LuDataCollection::ACT_SHORTCUTS, false, LuDataCollection::SOURCE_EXIT, {});
}

LuShortcutAction* LuShortcuts::findAction(ActionName name) const
{
    const QList<LuShortcutAction*> actions = model()->shortcutActions();
    const auto found = std::find_if(actions.begin(), actions.end(), [name](const LuShortcutAction* action) {
        return action->name() == name;
    });
    return found == actions.end() ? nullptr : *found;
}

int LuShortcuts::findActionIndex(const QKeySequence& sequence) const
{
    const QList<LuShortcutAction*> actions = model()->shortcutActions();
    for (int i = 0; i < actions.size(); ++i) {
        const QKeySequence keys(QKeyCombination(actions[i]->modifiers(), actions[i]->key()));
        if (keys.matches(sequence) == QKeySequence::ExactMatch)
            return i;
    }
    return -1;
}

void LuShortcuts::registerAllShortcuts(bool useDefaults)
{
    if (!model()->isCurrentModel())
        return;
    QSettings settings;
    for (const ActionName name : actionNames) {
        const ActionTitle title = LuShortcutAction::titleOf(name);
        loadShortcut(settings, title, name, useDefaults);
        if (name != LuShortcutAction::ColorMode_LoopAllColorMode)
            continue;
        const QList<LuVCPNode*> modes = model()->colorModeList();
        for (const LuVCPNode* mode : modes) {
            const ActionName switching = stringToColorMode(mode->displayName());
            if (switching != LuShortcutAction::ColorMode_NotSupported)
                loadShortcut(settings, title, switching, useDefaults);
        }
    }
    updateActionsActive();
}

void LuShortcuts::loadShortcut(QSettings& settings, ActionTitle title, ActionName name, bool useDefaults)
{
    const bool owned = LuShortcutTables::hasOwner(title);
    // The keys of an action that this monitor lacks belong to monitors that have it.
    if (owned && !findAction(name))
        return;
    QString text = defaultKeys(name);
    if (!useDefaults)
        text = settings.value(LuShortcutTables::settingKey(title, name), text).toString();
    if (!text.isEmpty()) {
        setShortcuts(settings, title, name, LuKeyText::modifiersOf(text), LuKeyText::keyOf(text));
        return;
    }
    // Another monitor may have taken the shared keys away, as a reset does here.
    registerShortcutKeys(name, {});
    saveShortcut(settings, title, name);
}

void LuShortcuts::setShortcuts(QSettings& settings, ActionTitle title, ActionName name,
                               Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    QKeySequence sequence;
    if (!LuKeyText::accept(modifiers, key, &sequence))
        return;
    if (!LuShortcutTables::hasOwner(title)) {
        // The work is done in takeKey(). What it asks for is taken from the press itself, since it may be
        // asked before takeKey() has seen it.
        registerShortcutAction(name, [this](const QKeyEvent& event) {
            QKeySequence pressed;
            return m_active && !event.isAutoRepeat() &&
                   LuKeyText::accept(event.modifiers(), Qt::Key(event.key()), &pressed) && isUsed(pressed);
        });
    }
    registerShortcutKeys(name, {QKeyCombination(modifiers & LuKeyText::Counting, key)});
    saveShortcut(settings, title, name);
}

void LuShortcuts::saveShortcut(QSettings& settings, ActionTitle title, ActionName name)
{
    const QString key = LuShortcutTables::settingKey(title, name);
    const QString text = shortcutCombo(title, name);
    if (text.isEmpty())
        settings.remove(key);
    else if (settings.value(key).toString() != text)
        settings.setValue(key, text);
}

QString LuShortcuts::defaultKeys(ActionName name) const
{
    const QString series =
        QString::fromLatin1(model()->metaObject()->className()).section(QStringLiteral("MonitorModel"), 0, 0);
    const QString resource =
        QStringLiteral(":/%1/schema/%2DefaultShortcuts.xml").arg(LuUtils::packageName(model()), series);
    return LuShortcutTables::defaultKeys(resource, name);
}

void LuShortcuts::updateActionsActive()
{
    const QList<LuShortcutAction*> actions = model()->shortcutActions();
    for (LuShortcutAction* action : actions)
        action->setActive(m_shortcutsEnable && m_active && !m_modifyShortcuts);
}

void LuShortcuts::takeKey(Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated)
{
    if (!model()->isCurrentModel())
        return;
    m_keyAccepted = LuKeyText::accept(modifiers, key, &m_currentKeys);
    m_repeated = repeated;
    if (m_shortcutsEnable && m_active && m_keyAccepted) {
        if (m_modifyShortcuts) {
            capture(modifiers, key);
        } else if (!m_clipboardBusy && !m_executing) {
            const QScopedValueRollback guard(m_executing, true);
            executeShortcut(findActionIndex(m_currentKeys), m_repeated);
        }
    } else if (m_modifyShortcuts) {
        setPressKeyName(LuKeyText::comboString(modifiers, key));
    }
}

void LuShortcuts::capture(Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    const LuShortcutAction* action = model()->shortcutActions().value(m_modifyIndex);
    if (!action) {
        setModifyShortcuts(false);
        return;
    }
    const QList<QKeySequence>& reserved = LuShortcutTables::reserved();
    const bool isReserved = std::any_of(reserved.begin(), reserved.end(), [this](const QKeySequence& keys) {
        return keys.matches(m_currentKeys) == QKeySequence::ExactMatch;
    });
    if (isReserved || isUsed(m_currentKeys)) {
        setPressKeyName(shortcutCombo(action->title(), action->name()));
        setRepeatShortcuts(true);
        setModifyIndex(-1);
        return;
    }
    QSettings settings;
    setShortcuts(settings, action->title(), action->name(), modifiers, key);
    setModifyIndex(-1);
    clearSetShortcutsName();
    fireUsage(QStringLiteral("customize_hotkey"), action->name());
}

void LuShortcuts::executeShortcut(int index, bool repeated)
{
    const LuShortcutAction* action = model()->shortcutActions().value(index);
    if (!action)
        return;
    if (!LuShortcutTables::hasOwner(action->title())) {
        if (repeated)
            return;
        if (action->title() == Titles::ColorMode && !switchColorMode(action->name()))
            return;
        if (action->title() == Titles::ExtraCopyPaste)
            useClipboard(action->name());
    }
    fireUsage(QStringLiteral("use_hotkey"), action->name());
    Q_EMIT shortcutUsed(action->name());
}

bool LuShortcuts::switchColorMode(ActionName name)
{
    LuVCPNode* const current = model()->colorMode();
    if (current && current->isHdr())
        return false;
    const QList<LuVCPNode*> modes = model()->colorModeList();
    LuVCPNode* mode = nullptr;
    if (name != LuShortcutAction::ColorMode_LoopAllColorMode) {
        mode = model()->getColorModeByName(LuShortcutTables::colorModeOf(name));
    } else if (const int place = int(modes.indexOf(current)); place >= 0) {
        const int next = nextNonHdrIndex(place, modes);
        if (next < 0)
            return false;
        mode = modes[next];
    }
    if (mode)
        model()->setColorMode(mode);
    return true;
}

void LuShortcuts::useClipboard(ActionName name)
{
    const QScopedValueRollback guard(m_clipboardBusy, true);
    if (name == LuShortcutAction::ExtraCopyPaste_Copy)
        m_clipboard->independentCopy();
    else if (name == LuShortcutAction::ExtraCopyPaste_Paste)
        m_clipboard->independentPaste();
}

void LuShortcuts::fireUsage(const QString& event, ActionName name)
{
    fireCustomEvent(LuDataCollection::ACT_SHORTCUTS, event, LuDataCollection::SOURCE_USER,
                    {LuShortcutTables::usageWord(name)});
}
