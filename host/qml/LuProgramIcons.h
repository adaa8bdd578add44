// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickImageProvider>
#include <QString>

#include <functional>

/// Icons of applications: "image://programicon/" and the application's id, percent-encoded. An application
/// whose icon is not known or not installed gets a generic one. GUI thread, since the icon theme is asked.
class LuProgramIcons : public QQuickImageProvider
{
public:
    /// Tells the name in the icon theme, or the path, of the icon of an application's id; empty where it is
    /// not known.
    using Lookup = std::function<QString(const QString& appId)>;

    LuProgramIcons();

    /// For all engines; at first nothing is known.
    static void setLookup(Lookup lookup);

    QPixmap requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) override;
};
