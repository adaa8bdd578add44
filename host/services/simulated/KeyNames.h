// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <Qt>

#include <optional>

namespace services {

/// Modifiers from a text such as "Ctrl+Alt", whatever its case; empty is none. Nothing for an unknown name.
std::optional<Qt::KeyboardModifiers> modifiersFromText(const QString& text);

/// A key from its portable name ("C", "F5", "Left", "PgUp", "Space") or its enumerator's ("PageUp",
/// "Escape"); empty is Qt::Key_unknown. Nothing for an unknown name.
std::optional<Qt::Key> keyFromText(const QString& text);

} // namespace services
