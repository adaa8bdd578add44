// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QKeySequence>
#include <QStringList>

#include <QtQml/qqmlregistration.h>

class LuClipboard;
class QSettings;

/// Global shortcuts for the functions of the monitor: which keys belong to which action, the choice of other
/// keys, and the actions that switch colour modes and use the second clipboard.
///
/// Only the current monitor answers to keys. The combinations are shared by all monitors of the series, the
/// switch is each monitor's own. GUI thread.
class LuShortcuts : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool shortcutsEnable READ shortcutsEnable CONSTANT)
    /// The combination that is being typed, in the present choice of keys.
    Q_PROPERTY(QString pressKeyName READ pressKeyName NOTIFY pressKeyNameChanged)
    Q_PROPERTY(bool active READ active WRITE setActive NOTIFY activeChanged)
    /// The last combination that was typed is used by something else: the panel warns.
    Q_PROPERTY(bool repeatShortcuts READ repeatShortcuts WRITE setRepeatShortcuts NOTIFY
                   repeatShortcutsChanged STORED false)
    /// The next combination that is typed becomes that of an action.
    Q_PROPERTY(bool modifyShortcuts READ modifyShortcuts WRITE setModifyShortcuts NOTIFY
                   modifyShortcutsChanged STORED false)

public:
    using ActionTitle = LuActionInterface::ActionTitle;
    using ActionName = LuShortcutAction::ActionName;

    explicit LuShortcuts(LuMonitorModel* model);
    ~LuShortcuts() override;

    bool shortcutsEnable() const { return m_shortcutsEnable; }
    QString pressKeyName() const { return m_pressKeyName; }
    bool active() const { return m_active; }
    void setActive(bool active);
    bool repeatShortcuts() const { return m_repeatShortcuts; }
    void setRepeatShortcuts(bool repeated);
    bool modifyShortcuts() const { return m_modifyShortcuts; }
    void setModifyShortcuts(bool modify);

    /// Begins the choice of keys for the action; ends it if the monitor has no such action.
    Q_INVOKABLE void registerShortcuts(LuActionInterface::ActionTitle title,
                                       LuShortcutAction::ActionName name, bool modifyShortcuts);
    /// Whether it is this action whose keys are chosen, or were last.
    Q_INVOKABLE bool checkModifyShortcuts(LuActionInterface::ActionTitle title,
                                          LuShortcutAction::ActionName name) const;
    /// All actions of the current monitor get the keys of their series again, and lose them where it has
    /// none; of another monitor nothing happens.
    Q_INVOKABLE void resetToDefaultSetting();
    Q_INVOKABLE void clearSetShortcutsName();
    /// "Ctrl+Shift+1"; empty for an action without keys, or that the monitor lacks.
    Q_INVOKABLE QString shortcutCombo(LuActionInterface::ActionTitle title,
                                      LuShortcutAction::ActionName name) const;
    /// The parts of a combination as they are shown, arrows as such.
    Q_INVOKABLE QStringList displayKeyList(const QString& keyName) const;
    /// Another action of this monitor has the same keys.
    Q_INVOKABLE bool isShortcutDuplicated(LuActionInterface::ActionTitle title,
                                          LuShortcutAction::ActionName name) const;
    /// The action that switches to the colour mode of that display name, or ColorMode_NotSupported.
    Q_INVOKABLE LuShortcutAction::ActionName stringToColorMode(const QString& name) const;
    /// Whether the monitor has the action, with or without keys.
    Q_INVOKABLE bool hasShortcut(LuShortcutAction::ActionName name) const;
    /// Whether the package has the widget of that name.
    Q_INVOKABLE bool hasWidget(const QString& widget) const;

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void fireExitEvent() override;

Q_SIGNALS:
    void pressKeyNameChanged();
    void activeChanged();
    void repeatShortcutsChanged();
    void modifyShortcutsChanged();
    /// A press of this monitor's keys set the action off, or repeats it.
    void shortcutUsed(LuShortcutAction::ActionName name);

private:
    // Keys of the actions
    void registerAllShortcuts(bool useDefaults);
    void loadShortcut(QSettings& settings, ActionTitle title, ActionName name, bool useDefaults);
    void setShortcuts(QSettings& settings, ActionTitle title, ActionName name,
                      Qt::KeyboardModifiers modifiers, Qt::Key key);
    void saveShortcut(QSettings& settings, ActionTitle title, ActionName name);
    QString defaultKeys(ActionName name) const;
    void updateActionsActive();

    // A press
    void takeKey(Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated);
    void capture(Qt::KeyboardModifiers modifiers, Qt::Key key);
    void executeShortcut(int index, bool repeated);
    bool switchColorMode(ActionName name);
    void useClipboard(ActionName name);
    void fireUsage(const QString& event, ActionName name);

    void setPressKeyName(const QString& name);
    void setModifyIndex(int index);
    LuShortcutAction* findAction(ActionName name) const;
    int findActionIndex(const QKeySequence& sequence) const;
    bool isUsed(const QKeySequence& sequence) const { return findActionIndex(sequence) >= 0; }

    bool m_shortcutsEnable;
    ZrShared<bool> m_active{false};
    bool m_repeated = false;
    QKeySequence m_currentKeys;
    QString m_pressKeyName;
    bool m_keyAccepted = false;
    bool m_executing = false;
    bool m_modifyShortcuts = false;
    int m_modifyIndex = -1;
    bool m_repeatShortcuts = false;
    bool m_clipboardBusy = false;
    LuClipboard* const m_clipboard;
};
