// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>

class QQuickWindow;

/// Looks at the texts and pictures that a window shows, as a proof-reader of layouts would. GUI thread only.
namespace LuTextAudit {

/// Texts that are cut, leave their place or the window, or lie over each other, and pictures that are
/// missing: a list of {"window","text","problem"}, empty where all is well. The window has been laid out.
QJsonArray problemsOf(QQuickWindow* window);

} // namespace LuTextAudit
