// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LuContext.h"
#include "LuWindowBridge.h"
#include "Monitor.h"
#include "Patience.h"

#include <QJsonDocument>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <memory>

/// A running shell on doubles: engine, main window, bridge. Made anew by each test.
class Shell
{
public:
    /// @param monitors become the connected monitors; the first is current.
    explicit Shell(const QList<FakeMonitor*>& monitors);
    /// The same with monitors of any kind and other widgets of the package, such as "LuVolumeWidget".
    Shell(const QList<QObject*>& monitors, const QStringList& widgets);
    ~Shell();

    QQuickWindow* window() const;
    /// A widget's item, or null.
    QQuickItem* widget(const char* name) const;
    /// A visible item of that object name in any window, or null.
    QQuickItem* item(const QString& objectName) const;
    /// Opens a page of the settings; null if it does not come. @return the settings' window.
    QQuickWindow* openSettings(const QString& section);
    /// Whether a visible item of a window has a text with this part.
    static bool shows(const QQuickWindow* window, const QString& part);
    /// All warnings so far, of the engine and of the message log, and forgets them.
    static QStringList takeWarnings();
    /// Takes part of the widgets that the package lists.
    static QList<QUrl> widgetUrls();
    static QList<QUrl> widgetUrls(const QStringList& names);

    LuContext& context;

private:
    /// Outlives the engine: pictures that nothing shows any more stay cached for a while, which looks like a
    /// leak.
    struct PictureCache
    {
        ~PictureCache();
    };
    PictureCache m_pictures;

public:
    QQmlApplicationEngine engine;
    std::unique_ptr<LuWindowBridge> bridge;
};
