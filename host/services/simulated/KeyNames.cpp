// SPDX-License-Identifier: Apache-2.0
#include "services/simulated/KeyNames.h"

#include <QKeySequence>
#include <QMetaEnum>
#include <QStringList>

namespace services {

namespace {

struct ModifierName
{
    QLatin1String name;
    Qt::KeyboardModifier modifier;
};

constexpr ModifierName modifierNames[] = {
    {QLatin1String("Ctrl"), Qt::ControlModifier},  {QLatin1String("Control"), Qt::ControlModifier},
    {QLatin1String("Shift"), Qt::ShiftModifier},   {QLatin1String("Alt"), Qt::AltModifier},
    {QLatin1String("Opt"), Qt::AltModifier},       {QLatin1String("Meta"), Qt::MetaModifier},
    {QLatin1String("Win"), Qt::MetaModifier},      {QLatin1String("Num"), Qt::KeypadModifier},
    {QLatin1String("Keypad"), Qt::KeypadModifier},
};

} // namespace

std::optional<Qt::KeyboardModifiers> modifiersFromText(const QString& text)
{
    Qt::KeyboardModifiers modifiers;
    if (text.isEmpty())
        return modifiers;
    const QStringList names = text.split(u'+');
    for (const QString& name : names) {
        const auto* const known =
            std::find_if(std::begin(modifierNames), std::end(modifierNames), [&](const auto& row) {
                return name.trimmed().compare(row.name, Qt::CaseInsensitive) == 0;
            });
        if (known == std::end(modifierNames))
            return std::nullopt;
        modifiers |= known->modifier;
    }
    return modifiers;
}

std::optional<Qt::Key> keyFromText(const QString& text)
{
    if (text.isEmpty())
        return Qt::Key_unknown;
    const QKeySequence sequence = QKeySequence::fromString(text, QKeySequence::PortableText);
    if (sequence.count() == 1 && sequence[0].keyboardModifiers() == Qt::NoModifier &&
        sequence[0].key() != Qt::Key_unknown && sequence[0].key() != Qt::Key(0)) {
        return sequence[0].key();
    }
    const QByteArray enumerator = "Key_" + text.toLatin1();
    bool known = false;
    const int key = QMetaEnum::fromType<Qt::Key>().keyToValue(enumerator.constData(), &known);
    return known ? std::optional(Qt::Key(key)) : std::nullopt;
}

} // namespace services
