// SPDX-License-Identifier: Apache-2.0
#include "DesktopShell.h"

#include "Autostart.h"
#include "Tray.h"

#include <LuShared/LuMonitorModel.h>
#include <ZrCore/ZrEnvironment.h>
#include <lushared/LuMonitorRegistry.h>
#include <lushared/LuSettings.h>
#include <qml/LuContext.h>
#include <qml/LuPreferences.h>
#include <qml/LuWindowBridge.h>
#include <qml/LumenQml.h>
#include <services/native/Session.h>

#include <QDebug>
#include <QGuiApplication>
#include <QIcon>
#include <QMetaProperty>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

/// A connector of the kernel in the word that stands on the monitor's back, such as "DisplayPort" for
/// "card0-DP-1".
QString connectorWord(const QString& connector)
{
    struct Row
    {
        const char* part;
        const char* word;
    };
    constexpr Row Rows[] = {
        {"-eDP-", ""},        {"-LVDS-", ""},       {"-DSI-", ""},    {"-DP-", "DisplayPort"},
        {"-HDMI-A-", "HDMI"}, {"-HDMI-B-", "HDMI"}, {"-DVI-", "DVI"}, {"-VGA-", "VGA"},
    };
    for (const Row& row : Rows) {
        if (connector.contains(QLatin1StringView(row.part)))
            return QString::fromLatin1(row.word);
    }
    return {};
}

} // namespace

DesktopShell::DesktopShell(const Options& options, LuMonitorRegistry& registry)
    : m_options(options), m_registry(registry)
{
}

DesktopShell::~DesktopShell()
{
    close();
}

void DesktopShell::prepare()
{
    LuPreferences* preferences = LuPreferences::instance();
    LuSettings& settings = LuSettings::instance();
    preferences->setStore(
        [&settings](const QString& key, const QVariant& fallback) { return settings.value(key, fallback); },
        [&settings](const QString& key, const QVariant& value) { settings.setValue(key, value); });
    m_translations.setLanguage(preferences->language());
}

void DesktopShell::addPackage(LuPackagesInterface* package)
{
    m_translations.addPackage(package);
}

void DesktopShell::setConnectorSource(std::function<QString(const QString&)> source)
{
    m_connectors = std::move(source);
}

QString DesktopShell::connectionOf(QObject* monitor) const
{
    // The monitor's own word is better than the computer's: an adapter may stand between.
    const auto* input = monitor->property("inputSource").value<QObject*>();
    const QString name = input ? input->property("currentMainInputSource").toString() : QString();
    if (!name.isEmpty())
        return name;
    const auto* model = qobject_cast<LuMonitorModel*>(monitor);
    return model && m_connectors ? connectorWord(m_connectors(model->id())) : QString();
}

void DesktopShell::watchConnections()
{
    LuContext* context = LuContext::instance();
    const QMetaMethod touch =
        context->metaObject()->method(context->metaObject()->indexOfMethod("touchFacts()"));
    const QList<LuMonitorModel*> models = m_registry.monitors();
    for (const LuMonitorModel* model : models) {
        QObject* input = model->property("inputSource").value<QObject*>();
        const int index = input ? input->metaObject()->indexOfProperty("currentMainInputSource") : -1;
        if (index >= 0 && input->metaObject()->property(index).hasNotifySignal())
            connect(input, input->metaObject()->property(index).notifySignal(), context, touch,
                    Qt::ConnectionType(Qt::AutoConnection | Qt::UniqueConnection));
    }
}

void DesktopShell::fillContext(const QList<LuPackagesInterface*>& packages)
{
    QStringList names;
    for (LuPackagesInterface* package : packages)
        names.append(package->name());
    lumenQmlInit(m_engine.get(), names);

    LuContext* context = LuContext::instance();
    const QString themeKey = u"theme"_s;
    context->setTheme(m_options.theme.isEmpty()
                          ? LuSettings::instance().value(themeKey, u"system"_s).toString()
                          : m_options.theme);
    connect(context, &LuContext::themeChanged, this,
            [context, themeKey] { LuSettings::instance().setValue(themeKey, context->theme()); });
    context->setTranslucentWindows(services::sessionBlendsWindows());
    context->setEnvironment(&ZrEnvironment::var, &ZrEnvironment::varDeviceChoice);
    context->setScreenSource([](QObject* monitor) {
        const auto* model = qobject_cast<LuMonitorModel*>(monitor);
        return model ? model->screen() : nullptr;
    });
    context->setConnectionSource([this](QObject* monitor) { return connectionOf(monitor); });
    context->setWidgetUrlSource([this](QObject* monitor) {
        const auto* model = qobject_cast<LuMonitorModel*>(monitor);
        LuPackagesInterface* package = model ? m_registry.packageFor(model) : nullptr;
        return package ? package->widgetUrls() : QList<QUrl>();
    });
    connect(&m_registry, &LuMonitorRegistry::monitorsChanged, this, &DesktopShell::fillMonitors);
    connect(&m_registry, &LuMonitorRegistry::currentChanged, this, &DesktopShell::fillMonitors);
    connect(&m_registry, &LuMonitorRegistry::monitorAboutToBeRemoved, this, &DesktopShell::fillMonitors);
    // The window's monitor switcher and the registry name the same monitor.
    connect(context, &LuContext::currentMonitorChanged, this, [this, context] {
        if (m_isFilling)
            return; // the registry's own choice on its way to the window
        if (const auto* model = qobject_cast<LuMonitorModel*>(context->currentMonitor());
            model && model != m_registry.current())
            m_registry.select(model->id());
    });
    connect(context, &LuContext::quitRequested, this, &DesktopShell::quitRequested);
    LuPreferences* preferences = LuPreferences::instance();
    preferences->setLoginStart(&Autostart::isOn, [](bool on) {
        return Autostart::set(on, QCoreApplication::applicationFilePath());
    });
    connect(preferences, &LuPreferences::languageChanged, this, [this, preferences] {
        m_translations.setLanguage(preferences->language());
        m_engine->retranslate();
        if (m_tray)
            m_tray->refresh();
        LuContext::instance()->touchFacts();
        LuContext::instance()->touchAbsences();
    });
}

void DesktopShell::open(const QList<LuPackagesInterface*>& packages)
{
    m_engine = std::make_unique<QQmlApplicationEngine>();
    m_bridge = std::make_unique<LuWindowBridge>(m_engine.get());
    fillContext(packages);
    QGuiApplication::setWindowIcon(QIcon(u":/lumendesk/qml/LumenDesk/icons/app/lumen-desk.svg"_s));
    fillMonitors();
    m_engine->load(lumenMainWindowUrl());
    if (m_engine->rootObjects().isEmpty()) {
        qCritical() << "[DesktopShell] the window could not be made";
        return;
    }
    QQuickWindow* window = LuContext::instance()->mainWindow();
    // After the first picture comes what can wait for it.
    connect(
        window, &QQuickWindow::frameSwapped, this,
        [this] {
            m_isDrawn = true;
            Q_EMIT drawn();
            introduce();
        },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    // Monitors are found, and the window is opened, at any time after.
    connect(LuContext::instance(), &LuContext::currentMonitorChanged, this, &DesktopShell::introduce,
            Qt::QueuedConnection);
    connect(window, &QWindow::visibleChanged, this, &DesktopShell::introduce, Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &DesktopShell::openTray, Qt::QueuedConnection);
    if (!m_options.hidden)
        m_bridge->show();
}

void DesktopShell::openTray()
{
    // A picture needs none.
    if (!m_engine || !m_options.screenshotFile.isEmpty())
        return;
    m_tray = std::make_unique<Tray>(m_registry);
    connect(m_tray.get(), &Tray::toggleRequested, this, &DesktopShell::toggleWindow);
    connect(m_tray.get(), &Tray::showRequested, this, [this] { m_bridge->show(); });
    connect(m_tray.get(), &Tray::settingsRequested, LuContext::instance(),
            [] { LuContext::instance()->openSettings(); });
    connect(m_tray.get(), &Tray::quitRequested, this, &DesktopShell::quitRequested);
    m_tray->start();
}

void DesktopShell::toggleWindow()
{
    const QQuickWindow* window = LuContext::instance()->mainWindow();
    if (window && window->isVisible())
        m_bridge->hide();
    else
        m_bridge->show();
}

void DesktopShell::introduce()
{
    // A new user is one with a real monitor in front of them, not a script.
    const LuContext* context = LuContext::instance();
    QQuickWindow* window = context->mainWindow();
    if (m_isIntroduced || !m_isDrawn || !window || !window->isVisible() ||
        LuPreferences::instance()->introductionSeen() || m_options.simulate ||
        !m_options.screenshotFile.isEmpty() || QGuiApplication::platformName() == "offscreen"_L1)
        return;
    const auto* model = qobject_cast<LuMonitorModel*>(context->currentMonitor());
    if (!model || !model->isModelSupported())
        return;
    m_isIntroduced = true;
    QMetaObject::invokeMethod(window, "openWalkthrough");
}

void DesktopShell::fillMonitors()
{
    QList<QObject*> monitors;
    const QList<LuMonitorModel*> models = m_registry.monitors();
    for (LuMonitorModel* model : models)
        monitors.append(model);
    LuContext* context = LuContext::instance();
    const QScopedValueRollback filling(m_isFilling, true);
    context->setMonitors(monitors);
    if (m_registry.current())
        context->setCurrentMonitor(m_registry.current());
    watchConnections();
    context->touchFacts();
}

void DesktopShell::close()
{
    m_tray.reset();
    m_bridge.reset();
    if (m_engine) {
        m_engine.reset();
        lumenQmlRelease();
    }
}
