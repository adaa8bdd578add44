// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QJsonArray>

class QQuickWindow;

/// Looks at the texts and pictures that a window shows, as a proof-reader of layouts would. GUI thread only.
namespace LuTextAudit {

/// Texts that are cut, leave their place or the window, or lie over each other, texts and icons that are
/// hard to see before what is behind them (WCAG AA: 4.5, large texts and icons 3; what is disabled may be
/// faint), and pictures that are missing: a list of {"window","item","text","problem"}, empty where all is
/// well.
/// @param image the window as it is drawn now; a null one leaves contrast alone.
QJsonArray problemsOf(QQuickWindow* window, const QImage& image = {});

} // namespace LuTextAudit
