// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Options.h"
#include "Translations.h"

#include <QObject>

#include <functional>
#include <memory>

class LuMonitorRegistry;
class LuPackagesInterface;
class LuWindowBridge;
class QQmlApplicationEngine;
class Tray;

/// Everything that a person sees of the program: windows, tray, languages. GUI thread.
class DesktopShell : public QObject
{
    Q_OBJECT

public:
    DesktopShell(const Options& options, LuMonitorRegistry& registry);
    ~DesktopShell() override;

    /// Reads the user's choices and speaks their language. Once, before packages are loaded; without a window
    /// too.
    void prepare();
    void addPackage(LuPackagesInterface* package);

    /// Loads the window and shows it, unless the options hide it, and joins the tray.
    void open(const QList<LuPackagesInterface*>& packages);
    /// Takes the windows down; they read the models, which go after them.
    void close();

    /// Null without a window.
    LuWindowBridge* bridge() const { return m_bridge.get(); }

    /// A monitor's connector in a word, for those that the program finds by itself.
    void setConnectorSource(std::function<QString(const QString& id)> source);

Q_SIGNALS:
    void quitRequested();
    /// The window has been drawn for the first time.
    void drawn();

private:
    void fillContext(const QList<LuPackagesInterface*>& packages);
    void fillMonitors();
    void watchConnections();
    QString connectionOf(QObject* monitor) const;
    void openTray();
    /// Opens the introduction for a new user, once their monitor is there and the window is seen.
    void introduce();
    void toggleWindow();

    const Options& m_options;
    LuMonitorRegistry& m_registry;
    std::function<QString(const QString&)> m_connectors;
    Translations m_translations;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    std::unique_ptr<LuWindowBridge> m_bridge;
    std::unique_ptr<Tray> m_tray;
    bool m_isDrawn = false;
    bool m_isIntroduced = false; ///< The introduction was opened in this run.
    bool m_isFilling = false; ///< fillMonitors() runs: what the window then tells is no choice of a person.
};
