// SPDX-License-Identifier: Apache-2.0
#include "LuKeyText.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace LuKeyText {

namespace {

struct ModifierRow
{
    const char* text;
    Qt::KeyboardModifier modifier; ///< None: the word is no key, and nothing more.
};

// In the order in which a combination is written.
constexpr ModifierRow modifierRows[] = {
    {"Ctrl", Qt::ControlModifier}, {"Alt", Qt::AltModifier}, {"Shift", Qt::ShiftModifier},
    {"Meta", Qt::NoModifier},      {"Opt", Qt::NoModifier},  {"Cmd", Qt::NoModifier},
};

const ModifierRow* rowOf(const QString& part)
{
    const auto* const found =
        std::find_if(std::begin(modifierRows), std::end(modifierRows), [&](const ModifierRow& row) {
            return part.compare(QLatin1String(row.text), Qt::CaseInsensitive) == 0;
        });
    return found == std::end(modifierRows) ? nullptr : found;
}

bool isUsable(Qt::Key key)
{
    return (key >= Qt::Key_Left && key <= Qt::Key_Down) || (key >= Qt::Key_F1 && key <= Qt::Key_F12) ||
           (key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z) ||
           key == Qt::Key_Space;
}

} // namespace

QString comboString(Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    QStringList parts;
    for (const ModifierRow& row : modifierRows) {
        if (modifiers & row.modifier)
            parts.append(QLatin1String(row.text));
    }
    if (key != Qt::Key_unknown)
        parts.append(QKeySequence(key).toString(QKeySequence::PortableText));
    return parts.join(QLatin1Char('+'));
}

bool accept(Qt::KeyboardModifiers modifiers, Qt::Key key, QKeySequence* sequence)
{
    if (!(modifiers & Counting) || !isUsable(key))
        return false;
    *sequence = QKeySequence::fromString(comboString(modifiers, key), QKeySequence::PortableText);
    return true;
}

Qt::KeyboardModifiers modifiersOf(const QString& text)
{
    Qt::KeyboardModifiers modifiers;
    const QStringList parts = text.split(QLatin1Char('+'));
    for (const QString& part : parts) {
        if (const ModifierRow* row = rowOf(part))
            modifiers |= row->modifier;
    }
    return modifiers;
}

Qt::Key keyOf(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char('+'));
    for (const QString& part : parts) {
        if (rowOf(part))
            continue;
        const QKeySequence keys = QKeySequence::fromString(part, QKeySequence::PortableText);
        return keys.isEmpty() ? Qt::Key_unknown : Qt::Key(keys[0].toCombined() & 0x01FFFFFF);
    }
    return Qt::Key_unknown;
}

} // namespace LuKeyText
