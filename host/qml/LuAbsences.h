// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// What a session cannot do, in the words that panels show. GUI thread.
namespace LuAbsences {

/// Why @p ability, a name such as "rotation", is missing, in the language in use. Without a desktop session
/// that is the reason of all; a Wayland session is told where it would be there. Empty for an unknown name.
QString text(const QString& ability, bool desktop, bool wayland);

} // namespace LuAbsences
