// SPDX-License-Identifier: Apache-2.0
#include "Application.h"

#include "ActionKeys.h"
#include "DesktopShell.h"
#include "InputNotice.h"
#include "RealMonitors.h"
#include "SimulatedMonitors.h"
#include "WindowKeys.h"
#include "adapters/ClockMethods.h"
#include "adapters/KvmMethods.h"
#include "adapters/PlaceSettings.h"
#include "adapters/SecondComputer.h"
#include "adapters/ServiceMethods.h"
#include "adapters/SimulatorMethods.h"
#include "adapters/WindowMethods.h"

#include <LuShared/LuMediaDevices.h>
#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuPlatformNotifications.h>
#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrEnvironment.h>
#include <ZrCore/ZrIdle.h>
#include <ZrCore/ZrS.h>
#include <control/MonitorAccess.h>
#include <control/Server.h>
#include <lushared/LuBrightnessSync.h>
#include <lushared/LuEventLog.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuLog.h>
#include <lushared/LuModelHost.h>
#include <lushared/LuMonitorRegistry.h>
#include <lushared/LuSettings.h>
#include <lushared/LuStatisticsStore.h>
#include <lushared/services/Abilities.h>
#include <lushared/services/ServiceRegistry.h>
#include <panelcore/MonitorLink.h>
#include <qml/LuComputers.h>
#include <qml/LuContext.h>
#include <qml/LuDiagnostics.h>
#include <qml/LuPreferences.h>
#include <qml/LuProgramIcons.h>
#include <qml/LuWindowBridge.h>
#include <services/api/DesktopEvents.h>
#include <services/api/ProgramService.h>
#include <services/api/WindowService.h>
#include <services/kvm/NativeKvm.h>
#include <services/linux/DesktopLook.h>
#include <services/native/NativeServices.h>
#include <services/native/Session.h>
#include <services/simulated/SimulatedServices.h>
#include <services/sun/SunForecast.h>

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QProcess>
#include <QStandardPaths>
#include <QSysInfo>

namespace {

/// How long the end waits for a search that hangs.
constexpr qint64 HangLimitMs = 1000;

} // namespace

Application::Application(const Options& options, bool hasDisplay)
    : m_options(options), m_hasDisplay(hasDisplay), m_signals([this] { quit(); })
{
}

Application::~Application()
{
    LuDiagnostics::instance()->setSource({});
    // The window goes first, since its bindings read the models; then the models, since they ask the
    // services.
    if (m_shell)
        m_shell->close();
    m_server.reset();
    m_real.reset();
    m_actionKeys.reset();
    // Nothing of the desktop reaches models that go.
    if (const auto events = services::Registry::current().events)
        events->stop();
    m_brightnessSync.reset();
    m_shell.reset();
    m_registry.reset();
    m_simulated.reset();
    m_services.reset();
    services::Registry::install({});
}

Application::Start Application::start()
{
    const QString socket =
        m_options.controlPath.isEmpty() ? control::defaultSocketPath() : m_options.controlPath;
    m_server = std::make_unique<control::Server>();
    switch (m_server->listen(socket)) {
    case control::Server::Result::Listening:
        break;
    case control::Server::Result::OtherRuns:
        qInfo().noquote() << "[Application] another instance serves" << socket << "- showing its window";
        (void)control::raiseOther(socket);
        return Start::OtherInstance;
    case control::Server::Result::Failed:
        qCritical().noquote() << "[Application] no control socket:" << m_server->errorString();
        return Start::Failed;
    }

    LuHostOptions& host = LuHostOptions::instance();
    host.autoSync = m_options.autoSync;
    host.loadSettings = m_options.loadSettings;
    host.restore = m_options.restore;
    host.syncPeriodMs = m_options.syncPeriodMs;
    host.schemaDirectory = m_options.schemaDirectory;

    LuSettings::instance().open(m_options.configDirectory);
    m_dataDirectory = m_options.dataDirectory.isEmpty()
                          ? QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
                          : QDir(m_options.dataDirectory).absolutePath();
    ZrS::setDataPath(m_dataDirectory);
    LuEventLog::instance().open(m_dataDirectory);
    LuStatisticsStore::instance().open(m_dataDirectory);
    const QString userEnvironment =
        QFileInfo(LuSettings::instance().fileName()).absolutePath() + QStringLiteral("/environment.json");
    QString problem;
    if (QFile::exists(userEnvironment) && !ZrEnvironment::addLayer(userEnvironment, &problem))
        qWarning().noquote() << "[Application]" << problem;
    if (!m_options.environmentFile.isEmpty() &&
        !ZrEnvironment::addLayer(m_options.environmentFile, &problem)) {
        qCritical().noquote() << "[Application] --environment:" << problem;
        return Start::Failed;
    }

    m_registry = std::make_unique<LuMonitorRegistry>();
    m_brightnessSync = std::make_unique<LuBrightnessSync>(m_registry.get());
    LuContext::instance()->setBrightnessSync(m_brightnessSync.get());
    qGuiApp->installEventFilter(new InputNotice(this));
    LuDiagnostics::instance()->setSource([this] { return diagnosticFacts(); });
    installServices();
    m_shell = std::make_unique<DesktopShell>(m_options, *m_registry);
    m_shell->prepare();
    m_packages.load(PackageLoader::defaultFolders());
    const QList<LuPackagesInterface*> packages = m_packages.packages();
    for (LuPackagesInterface* package : packages) {
        m_registry->addPackage(package);
        m_shell->addPackage(package);
    }
    if (m_options.simulate) {
        m_simulated = std::make_unique<SimulatedMonitors>(*m_registry, m_options.fastTiming, m_dataDirectory);
        problem = m_simulated->make(m_options.simulatedMonitors);
        if (!problem.isEmpty()) {
            qCritical().noquote() << "[Application] --simulate:" << problem;
            return Start::Failed;
        }
    }
    if (!loadState())
        return Start::Failed;
    addControlMethods();
    connect(m_registry.get(), &LuMonitorRegistry::settled, &m_server->dispatcher(),
            &control::Dispatcher::resume);
    if (m_simulated)
        m_simulated->plugAll();
    else
        findRealMonitors();
    if (!m_options.headless)
        openWindow();
    if (!m_options.screenshotFile.isEmpty()) {
        connect(m_registry.get(), &LuMonitorRegistry::settled, this, &Application::takePicture);
        if (m_real)
            connect(m_real.get(), &RealMonitors::discovered, this, &Application::takePicture);
        ZrDispatch::main()->post(this, [this] { takePicture(); });
    }
    return Start::Running;
}

void Application::findRealMonitors()
{
    m_real = std::make_unique<RealMonitors>(*m_registry);
    control::Dispatcher& dispatcher = m_server->dispatcher();
    // Requests wait for the monitors that are there at the start.
    dispatcher.setBusy([this] { return isDiscovering(); });
    connect(m_real.get(), &RealMonitors::discovered, &dispatcher, &control::Dispatcher::resume,
            Qt::QueuedConnection);
    connect(m_real.get(), &RealMonitors::troublesChanged, this,
            [this] { LuContext::instance()->setNotices(m_real->shownTroubles()); });
    // After the texts of the new language have been loaded.
    connect(
        LuPreferences::instance(), &LuPreferences::languageChanged, m_real.get(),
        [this] { LuContext::instance()->setNotices(m_real->shownTroubles()); }, Qt::QueuedConnection);
    connect(m_real.get(), &RealMonitors::sleepChanged, m_registry.get(), &LuMonitorRegistry::setAsleep);
    connect(m_real.get(), &RealMonitors::disturbed, m_registry.get(), &LuMonitorRegistry::noteDisturbance);
    m_real->start();
}

bool Application::isDiscovering() const
{
    return m_registry->isBusy() || (m_real && !m_real->isDiscovered());
}

void Application::installServices()
{
    services::answerSunForecasts();
    chooseServices();
    const QString session = services::Registry::current().name;
    const bool simulated = m_services != nullptr;
    const bool wayland = session.startsWith(QLatin1String("wayland"));
    LuContext* context = LuContext::instance();
    context->setAbsenceSource(&services::absentAbilities,
                              simulated || wayland || session == QLatin1String("x11"), wayland);
    context->setFeedbackPlacer([](QQuickWindow* window, const QPoint& position) {
        const auto windows = services::Registry::current().windows;
        return windows && windows->placeFeedback(window, position);
    });
    connect(LuMediaDevices::instance(), &QMediaDevices::audioOutputsChanged, context,
            &LuContext::touchAbsences);
    // A compositor may tell its displays only some time after it was asked.
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged, context,
            &LuContext::touchAbsences);
    if (const auto kvm = std::dynamic_pointer_cast<services::NativeKvm>(services::Registry::current().kvm)) {
        LuComputers::instance()->setBackend(new SecondComputer(kvm, this));
        connect(kvm.get(), &services::NativeKvm::setUpRequested, context,
                [context] { context->openSettings(QStringLiteral("computers")); });
    }
    connectPlaceSettings();
    LuProgramIcons::setLookup([](const QString& appId) {
        const auto programs = services::Registry::current().programs;
        return programs ? programs->icon(appId) : QString();
    });
}

void Application::chooseServices()
{
    const bool native =
        m_options.nativeServices.value_or(m_hasDisplay && !(m_options.headless && m_options.simulate));
    if (native) {
        installNativeServices();
        return;
    }
    m_services = std::make_unique<services::SimulatedServices>();
    m_services->install();
    LuMonitorRegistry* registry = m_registry.get();
    m_services->setKeyHandler([registry](Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated) {
        LuMonitorModel* current = registry->current();
        return current && LuModelHost::handleKey(current, modifiers, key, repeated);
    });
    services::SimulatedServices* session = m_services.get();
    m_services->setMonitors({
        [this](const QString& address) -> std::optional<QString> {
            if (const LuMonitorModel* model = m_registry->find(address))
                return model->id();
            // A monitor that has no model yet, or is unplugged at the moment.
            if (m_simulated && m_simulated->ids().contains(address))
                return address;
            return std::nullopt;
        },
        [registry] { return registry->current() ? registry->current()->id() : QString(); },
        [registry, session] {
            const QList<LuMonitorModel*> models = registry->monitors();
            for (LuMonitorModel* model : models) {
                const QString screen = session->screenOf(model->id());
                if (!screen.isEmpty())
                    MonitorLink::of(*model->info()).setScreenName(screen);
            }
        },
    });
}

void Application::installNativeServices()
{
    const services::ServiceSet set = services::nativeServices();
    services::Registry::install(set);
    // Without the address a bus would be started for the question.
    if (!m_options.headless && qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) {
        auto* look = new services::DesktopLook(QDBusConnection::sessionBus(), this);
        LuContext* context = LuContext::instance();
        connect(look, &services::DesktopLook::colorSchemeWished, context, &LuContext::setDesktopColorScheme);
        connect(look, &services::DesktopLook::contrastWished, context, &LuContext::setHighContrast);
        connect(look, &services::DesktopLook::motionWished, context, &LuContext::setReducedMotion);
        look->start();
    }
    if (!set.events)
        return;
    LuMonitorRegistry* registry = m_registry.get();
    const auto handler = [registry](Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated) {
        LuMonitorModel* current = registry->current();
        return current && LuModelHost::handleKey(current, modifiers, key, repeated);
    };
    set.events->setKeyHandler(handler);
    set.events->setAbilityListener([] { LuContext::instance()->touchAbsences(); });
    const std::weak_ptr<services::DesktopEvents> events = set.events;
    qGuiApp->installEventFilter(new WindowKeys(events, handler, this));
    m_actionKeys = std::make_unique<ActionKeys>(*registry, [events](const QSet<QKeyCombination>& keys) {
        if (const auto session = events.lock())
            session->setActionKeys(keys);
    });
    connect(
        registry, &LuMonitorRegistry::monitorAdded, this,
        [events] {
            if (const auto session = events.lock())
                session->start();
        },
        Qt::SingleShotConnection);
}

bool Application::loadState()
{
    if (m_options.stateFile.isEmpty())
        return true;
    const auto fail = [this](const QString& why) {
        qCritical().noquote() << "[Application] --state" << m_options.stateFile + QLatin1Char(':') << why;
        return false;
    };
    QFile file(m_options.stateFile);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject())
        return fail(error.error != QJsonParseError::NoError ? error.errorString()
                                                            : QStringLiteral("not an object"));
    const QJsonObject state = document.object();
    const QJsonObject servicesState = state.value(QLatin1String("services")).toObject();
    if (!servicesState.isEmpty()) {
        services::Error problem;
        if (!m_services)
            return fail(QStringLiteral("\"services\" needs simulated services"));
        if (!m_services->loadState(servicesState, &problem))
            return fail(problem.message);
    }
    const QJsonObject vcp = state.value(QLatin1String("vcp")).toObject();
    const QJsonArray faults = state.value(QLatin1String("faults")).toArray();
    if (!m_simulated)
        return vcp.isEmpty() && faults.isEmpty()
                   ? true
                   : fail(QStringLiteral("\"vcp\" and \"faults\" need simulated monitors"));
    const QString problem = m_simulated->applyState(vcp, faults);
    return problem.isEmpty() ? true : fail(problem);
}

void Application::addControlMethods()
{
    control::Backend backend;
    backend.registry = m_registry.get();
    backend.context = []() -> QObject* { return LuContext::instance(); };
    backend.packageVersion = [this] { return m_packages.version(); };
    backend.report = [] { return LuDiagnostics::instance()->report(); };
    backend.quit = [this] { quit(); };
    control::MonitorAccess* access = control::addAllMethods(m_server.get(), backend);
    addClockMethods(m_server.get(), m_services != nullptr);
    addKvmMethods(m_server.get());
    addServiceMethods(m_server.get(), m_services.get());
    addSimulatorMethods(m_server.get(), access, m_simulated.get());
    addWindowMethods(m_server.get(), [this] { return m_shell->bridge(); });
}

LuDiagnosticFacts Application::diagnosticFacts() const
{
    LuDiagnosticFacts facts;
    const QList<LuMonitorModel*> models = m_registry->monitors();
    for (const LuMonitorModel* model : models) {
        LuDiagnosticFacts::Monitor monitor;
        monitor.id = model->id();
        monitor.model = model->modelName();
        monitor.serial = model->info()->serialNumber();
        monitor.nickName = model->nickName();
        if (m_real) {
            monitor.connection = m_real->connectorOf(model->id());
            const QString screen = m_real->screenOf(model->id());
            monitor.screen = m_real->isScreenDoubtful(model->id()) ? LuReport::doubtfulScreen()
                             : screen.isEmpty()                    ? LuReport::noScreen()
                                                                   : screen;
        }
        monitor.supported = model->isModelSupported();
        monitor.builtIn = model->isModelBuiltIn();
        monitor.statistics = LuModelHost::statistics(model);
        facts.monitors.append(monitor);
    }
    if (m_real) {
        facts.troubles = m_real->troubles();
        facts.shownTroubles = m_real->shownTroubles();
    }
    facts.versions = {QStringLiteral("Lumen Desk %1, package %2, Qt %3")
                          .arg(QGuiApplication::applicationVersion(), m_packages.version(),
                               QString::fromLatin1(qVersion())),
                      QStringLiteral("%1, kernel %2, session %3")
                          .arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion(),
                               m_services ? QStringLiteral("simulated") : services::Registry::sessionName())};
    const QList<LuLogLine> lines = LuLog::lines();
    for (const LuLogLine& line : lines) {
        if (LuReport::isOfInterest(line.text))
            facts.log.append(line.text);
    }
    return facts;
}

void Application::openWindow()
{
    connect(m_shell.get(), &DesktopShell::quitRequested, this, &Application::quit);
    LuContext* context = LuContext::instance();
    connect(context, &LuContext::monitorListCheckRequested, this, &Application::checkMonitors);
    if (m_real) {
        RealMonitors* real = m_real.get();
        m_shell->setConnectorSource([real](const QString& id) { return real->connectorOf(id); });
        context->setDiscovering(isDiscovering());
        const auto follow = [this, context] { context->setDiscovering(isDiscovering()); };
        connect(real, &RealMonitors::discovered, context, follow, Qt::QueuedConnection);
        connect(m_registry.get(), &LuMonitorRegistry::settled, context, follow, Qt::QueuedConnection);
        connect(context, &LuContext::searchRequested, real, &RealMonitors::refresh);
        connect(context, &LuContext::simulationRequested, this, &Application::simulateInstead,
                Qt::QueuedConnection);
        context->setCanSimulate(true);
    }
    m_shell->open(m_packages.packages());
}

void Application::simulateInstead()
{
    // A program of its own on the same display: its socket, settings and values are apart from the real ones.
    const QString folder = m_dataDirectory + QStringLiteral("/demonstration");
    const QStringList arguments{QStringLiteral("--simulate"),   QStringLiteral("TK30Z"),
                                QStringLiteral("--services"),   QStringLiteral("simulated"),
                                QStringLiteral("--control"),    folder + QStringLiteral("/control.sock"),
                                QStringLiteral("--config-dir"), folder + QStringLiteral("/config"),
                                QStringLiteral("--data-dir"),   folder + QStringLiteral("/data")};
    if (!QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments))
        qWarning() << "[Application] the demonstration could not be started";
}

void Application::checkMonitors()
{
    if (m_real)
        m_real->refresh();
    if (LuMonitorModel* model = m_registry->current())
        LuModelHost::lookAgain(model);
}

void Application::takePicture()
{
    if (isDiscovering() || m_pictureTaken)
        return;
    m_pictureTaken = true;
    // Everything that the window is to show has been read by then.
    ZrIdle::notify({}, this, [this] {
        const LuWindowBridge::Result result =
            m_shell->bridge()->screenshot(m_options.screenshotFile, m_options.page);
        if (!result.ok())
            qCritical().noquote() << "[Application] --screenshot:" << result.message;
        m_ending = true;
        end();
        QGuiApplication::exit(result.ok() ? 0 : 1);
    });
}

void Application::end()
{
    m_hangs = !m_registry->shutDown();
    if (m_real && !m_real->end(HangLimitMs)) {
        m_hangs = true;
        (void)m_real.release(); // its queues are in use
    }
    m_real.reset();
}

void Application::quit()
{
    if (m_ending)
        return;
    m_ending = true;
    qInfo() << "[Application] ending";
    // Clients are answered no more: the models go.
    m_server->dispatcher().setBusy([] { return true; });
    if (const auto events = services::Registry::current().events)
        events->stop();
    end();
    if (m_simulated)
        m_simulated->persist();
    m_server->close();
    QGuiApplication::exit(0);
}
