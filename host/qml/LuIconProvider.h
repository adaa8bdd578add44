// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickImageProvider>

/// Draws the shell's own line icons in any colour: "image://lumen/<name>/<aarrggbb>".
///
/// The drawings hold the word currentColor, which the plain SVG reader cannot be told from outside.
class LuIconProvider : public QQuickImageProvider
{
public:
    LuIconProvider();
    /// A drawing that does not exist gives a null image, which QML reports.
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};
