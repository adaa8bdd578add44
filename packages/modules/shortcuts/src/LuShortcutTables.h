// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuShortcutAction.h>

#include <QKeySequence>
#include <QList>
#include <QString>

/// What is fixed about shortcuts: words, names, refused combinations, defaults. Built once a process on first
/// use, read-only afterwards. GUI thread.
namespace LuShortcutTables {

using ActionName = LuShortcutAction::ActionName;
using ActionTitle = LuActionInterface::ActionTitle;

/// The word by which usage events call an action; empty for one that has none.
QString usageWord(ActionName name);

/// The colour mode to which an action switches, by its display name; empty for another action.
QString colorModeOf(ActionName name);

/// The action that switches to the colour mode of that display name, or ColorMode_NotSupported.
ActionName actionOfColorMode(const QString& displayName);

/// Combinations that nobody may choose, since programs and desktops live by them.
const QList<QKeySequence>& reserved();

/// Whether the actions of a title are carried out by the module that registered them.
bool hasOwner(ActionTitle title);

/// Key of the stored combination, the same for all monitors of a series: "Input/SwitchtoUSBC".
QString settingKey(ActionTitle title, ActionName name);

/// The combination with which the file @p resource begins, such as "Ctrl+Shift+1"; empty if it has none for
/// the action. A file is read once; one that cannot be read has no defaults.
QString defaultKeys(const QString& resource, ActionName name);

} // namespace LuShortcutTables
