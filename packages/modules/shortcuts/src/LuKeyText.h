// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QKeySequence>
#include <QString>
#include <Qt>

/// Key combinations and their text form, "Ctrl+Alt+Shift+Key".
namespace LuKeyText {

/// The text of a combination; of an unknown key only the modifiers.
QString comboString(Qt::KeyboardModifiers modifiers, Qt::Key key);

/// Whether an action may have the combination: Ctrl, Alt or Shift with an arrow, F1 to F12, a digit, a letter
/// or the space bar. @p sequence is set only then.
bool accept(Qt::KeyboardModifiers modifiers, Qt::Key key, QKeySequence* sequence);

/// The modifiers that a text names, in upper or lower case; others are none.
Qt::KeyboardModifiers modifiersOf(const QString& text);

/// The first part of a text that is no modifier; Qt::Key_unknown without one.
Qt::Key keyOf(const QString& text);

/// The modifiers that make a combination; the rest, such as that of the number pad, does not count.
constexpr Qt::KeyboardModifiers Counting = Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier;

} // namespace LuKeyText
