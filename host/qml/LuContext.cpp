// SPDX-License-Identifier: Apache-2.0
#include "LuContext.h"

#include "LuAbsences.h"
#include "LuContrast.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFontInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QPalette>
#include <QQmlContext>
#include <QQmlEngine>
#include <QScreen>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {
Q_LOGGING_CATEGORY(lcContext, "lumen.qml")

constexpr double LayoutFontPixels = 13;
// Fonts of about the usual size keep the pixel grid of the layout; only a deliberate choice scales it.
constexpr double UsualScaleLow = 0.85;
constexpr double UsualScaleHigh = 1.2;

double desktopFontScale()
{
    const QString platform = QGuiApplication::platformName();
    if (platform == "offscreen"_L1 || platform == "minimal"_L1)
        return 1;
    const double scale = QFontInfo(QGuiApplication::font()).pixelSize() / LayoutFontPixels;
    return scale > UsualScaleLow && scale < UsualScaleHigh ? 1 : scale;
}

QString localPath(const QUrl& url)
{
    if (url.scheme() == "qrc"_L1)
        return u':' + url.path();
    return url.isLocalFile() ? url.toLocalFile() : QString();
}
} // namespace

LuContext* LuContext::instance()
{
    static QPointer<LuContext> context;
    if (!context)
        context = new LuContext(qGuiApp);
    return context;
}

LuContext::LuContext(QObject* parent) : QObject(parent), m_theme(u"system"_s)
{
    setFontScale(desktopFontScale());
    updateColorScheme();
    qGuiApp->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &LuContext::rightToLeftChanged);
}

LuContext::~LuContext() = default;

void LuContext::setCurrentMonitor(QObject* monitor)
{
    if (monitor == m_currentMonitor)
        return;
    if (monitor && !m_monitors.contains(monitor)) {
        qCWarning(lcContext) << "not a connected monitor:" << monitor;
        return;
    }
    m_currentMonitor = monitor;
    // The widgets of the old monitor go before the new one is announced, so that none of them sees it.
    if (!m_widgetUrls.isEmpty()) {
        m_widgetUrls.clear();
        Q_EMIT widgetUrlsChanged();
    }
    Q_EMIT currentMonitorChanged();
    updateWidgetUrls();
}

void LuContext::setMonitors(const QList<QObject*>& monitors)
{
    if (std::equal(monitors.cbegin(), monitors.cend(), m_monitors.cbegin(), m_monitors.cend()))
        return;
    for (QObject* monitor : std::as_const(m_monitors))
        monitor->disconnect(this);
    m_monitors = monitors;
    for (QObject* monitor : std::as_const(m_monitors)) {
        connect(monitor, &QObject::destroyed, this, [this, monitor] {
            QList<QObject*> rest = m_monitors;
            rest.removeAll(monitor);
            m_monitors.removeAll(monitor);
            Q_EMIT monitorsChanged();
            if (!m_currentMonitor) {
                m_widgetUrls.clear();
                Q_EMIT widgetUrlsChanged();
                Q_EMIT currentMonitorChanged();
                setCurrentMonitor(rest.value(0));
            }
        });
    }
    if (!m_currentMonitor || !m_monitors.contains(m_currentMonitor))
        setCurrentMonitor(m_monitors.value(0));
    Q_EMIT monitorsChanged();
}

void LuContext::setWidgetUrlSource(std::function<QList<QUrl>(QObject*)> source)
{
    m_widgetUrlSource = std::move(source);
    updateWidgetUrls();
}

void LuContext::updateWidgetUrls()
{
    QList<QUrl> urls;
    if (m_currentMonitor && m_widgetUrlSource)
        urls = m_widgetUrlSource(m_currentMonitor);
    if (urls == m_widgetUrls)
        return;
    m_widgetUrls = urls;
    Q_EMIT widgetUrlsChanged();
}

QUrl LuContext::packageFile(const QString& name) const
{
    if (m_widgetUrls.isEmpty())
        return {};
    const QUrl url = m_widgetUrls.first().resolved(QUrl(u"../"_s + name));
    return exists(url) ? url : QUrl();
}

QList<QUrl> LuContext::sectionUrls() const
{
    QList<QUrl> urls;
    if (m_widgetUrls.isEmpty())
        return urls;
    const QUrl folder = m_widgetUrls.first().resolved(QUrl(u"../Settings/Advanced/"_s));
    const QStringList files = QDir(localPath(folder)).entryList({u"Section*.qml"_s}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        urls << folder.resolved(QUrl(file));
    return urls;
}

QUrl LuContext::walkthroughUrl() const
{
    return packageFile(u"Helpers/Walkthrough.qml"_s);
}

bool LuContext::isRightToLeft() const
{
    return QGuiApplication::isRightToLeft();
}

QVariantMap LuContext::absences() const
{
    QVariantMap all;
    const QStringList absent = m_absent ? m_absent() : QStringList();
    for (const QString& ability : absent)
        all.insert(ability, LuAbsences::text(ability, m_hasDesktop, m_isWayland));
    if (!m_notices.isEmpty())
        all.insert(u"monitorControl"_s, m_notices.join(u'\n'));
    return all;
}

void LuContext::setAbsenceSource(std::function<QStringList()> absent, bool desktop, bool wayland)
{
    m_absent = std::move(absent);
    m_hasDesktop = desktop;
    m_isWayland = wayland;
    Q_EMIT absencesChanged();
}

void LuContext::setRightToLeft(bool on)
{
    QGuiApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
}

void LuContext::setDiscovering(bool on)
{
    if (on == m_discovering)
        return;
    m_discovering = on;
    Q_EMIT discoveringChanged();
}

void LuContext::setCanSimulate(bool on)
{
    if (on == m_canSimulate)
        return;
    m_canSimulate = on;
    Q_EMIT canSimulateChanged();
}

void LuContext::openSettings(const QString& section)
{
    Q_EMIT settingsRequested(section);
}

QRectF LuContext::screenGeometry(QObject* monitor) const
{
    const QScreen* screen = monitor && m_screenSource ? m_screenSource(monitor) : nullptr;
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? QRectF(screen->geometry()) : QRectF();
}

QQuickWindow* LuContext::mainWindow() const
{
    return m_mainWindow;
}

void LuContext::setMainWindow(QQuickWindow* window)
{
    if (window == m_mainWindow)
        return;
    m_mainWindow = window;
    Q_EMIT mainWindowChanged();
}

void LuContext::setMultiMonitorSyncControl(QObject* control)
{
    if (control == m_multiMonitorSyncControl)
        return;
    m_multiMonitorSyncControl = control;
    Q_EMIT multiMonitorSyncControlChanged();
}

void LuContext::setBrightnessSync(QObject* sync)
{
    if (sync == m_brightnessSync)
        return;
    m_brightnessSync = sync;
    Q_EMIT brightnessSyncChanged();
}

bool LuContext::isWindows() const
{
#ifdef Q_OS_WIN
    return true;
#else
    return false;
#endif
}

bool LuContext::isMacOS() const
{
#ifdef Q_OS_MACOS
    return true;
#else
    return false;
#endif
}

bool LuContext::isLinux() const
{
    return !isWindows() && !isMacOS();
}

bool LuContext::canPlaceWindows() const
{
    return !QGuiApplication::platformName().startsWith("wayland"_L1);
}

bool LuContext::placeFeedback(QQuickWindow* window, const QPointF& position) const
{
    return window && m_feedbackPlacer && m_feedbackPlacer(window, position.toPoint());
}

void LuContext::setFeedbackPlacer(std::function<bool(QQuickWindow*, const QPoint&)> placer)
{
    m_feedbackPlacer = std::move(placer);
}

void LuContext::setTranslucentWindows(bool on)
{
    if (on == m_translucentWindows)
        return;
    m_translucentWindows = on;
    Q_EMIT translucentWindowsChanged();
}

void LuContext::setEndlessRoom(bool on)
{
    if (on == m_endlessRoom)
        return;
    m_endlessRoom = on;
    Q_EMIT endlessRoomChanged();
}

void LuContext::setNotices(const QStringList& notices)
{
    if (notices == m_notices)
        return;
    m_notices = notices;
    Q_EMIT noticesChanged();
    Q_EMIT absencesChanged();
}

void LuContext::setTheme(const QString& theme)
{
    if (theme == m_theme)
        return;
    if (theme != "system"_L1 && theme != "light"_L1 && theme != "dark"_L1 && theme != "contrast"_L1) {
        qCWarning(lcContext) << "unknown theme:" << theme;
        return;
    }
    const bool contrast = highContrast();
    m_theme = theme;
    Q_EMIT themeChanged();
    if (contrast != highContrast())
        Q_EMIT highContrastChanged();
    updateColorScheme();
}

void LuContext::setDesktopColorScheme(const QString& scheme)
{
    m_desktopColorScheme = scheme;
    updateColorScheme();
}

void LuContext::updateColorScheme()
{
    QString scheme = m_theme;
    if (scheme == "system"_L1 || scheme == "contrast"_L1) {
        const QPalette palette = QGuiApplication::palette();
        const bool dark =
            palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
        scheme = dark ? u"dark"_s : u"light"_s;
        if (!m_desktopColorScheme.isEmpty())
            scheme = m_desktopColorScheme;
    }
    if (scheme == m_colorScheme)
        return;
    m_colorScheme = scheme;
    Q_EMIT colorSchemeChanged();
}

bool LuContext::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        updateColorScheme();
    else if (watched == qGuiApp && event->type() == QEvent::ApplicationFontChange)
        setFontScale(desktopFontScale());
    return QObject::eventFilter(watched, event);
}

void LuContext::setHighContrast(bool on)
{
    if (on == m_highContrast)
        return;
    m_highContrast = on;
    Q_EMIT highContrastChanged();
}

void LuContext::setReducedMotion(bool on)
{
    if (on == m_reducedMotion)
        return;
    m_reducedMotion = on;
    Q_EMIT reducedMotionChanged();
}

void LuContext::setFontScale(double scale)
{
    const double bounded = std::clamp(std::isfinite(scale) ? scale : 1, 0.75, 3.0);
    if (qFuzzyCompare(bounded, m_fontScale))
        return;
    m_fontScale = bounded;
    Q_EMIT fontScaleChanged();
}

QString LuContext::fontFamily() const
{
    // Asks for one match; a list of all families would cost the start of the program.
    static const QString family = [] {
        const QString wanted = u"Inter"_s;
        return QFontInfo(QFont(wanted)).family() == wanted ? wanted : QGuiApplication::font().family();
    }();
    return family;
}

void LuContext::setEnvironment(Lookup values, Lookup choices)
{
    m_values = std::move(values);
    m_choices = std::move(choices);
}

void LuContext::setPackages(const QStringList& names)
{
    m_packages = names;
}

QString LuContext::packageOf(QObject* item) const
{
    // A package's files stand below its name.
    const QQmlContext* context = item ? qmlContext(item) : nullptr;
    const QString name = context ? context->baseUrl().path().section(u'/', 1, 1) : QString();
    return m_packages.contains(name) ? name : QString();
}

QStringList LuContext::imageFolders(QObject* item) const
{
    // A panel's own package goes before the others.
    const QString own = packageOf(item);
    QStringList names = m_packages;
    if (names.removeOne(own))
        names.prepend(own);
    QStringList folders;
    for (const QString& name : std::as_const(names))
        folders.append(u"/%1/images/packages/"_s.arg(name));
    return folders;
}

QUrl LuContext::resolvedResourceUrl(const QUrl& url, QObject* item, const QString& colorScheme) const
{
    static const QString shared = u"/images/packages/"_s;
    if (url.isEmpty())
        return {};
    if (url.scheme() != "qrc"_L1 || !url.path().startsWith(shared))
        return url;
    const QString name = url.path().mid(shared.size());
    const auto found = [](const QString& path) { return QFile::exists(u':' + path); };
    const auto address = [](const QString& path) { return QUrl(u"qrc:"_s + path); };
    const QStringList folders = imageFolders(item);
    for (const QString& folder : folders) {
        if (colorScheme == "dark"_L1 && found(folder + "+dark/"_L1 + name))
            return address(folder + "+dark/"_L1 + name);
        if (found(folder + name))
            return address(folder + name);
    }
    if (!m_missing.contains(name)) {
        m_missing.insert(name);
        qCWarning(lcContext).noquote() << "image missing:" << name;
    }
    return {};
}

QVariant LuContext::env(const QString& key, const QVariant& fallback) const
{
    const QVariant value = m_values ? m_values(key) : QVariant();
    return value.isValid() ? value : fallback;
}

QVariant LuContext::envDeviceChoice(const QString& key, const QVariant& fallback) const
{
    const QVariant value = m_choices ? m_choices(key) : QVariant();
    return value.isValid() ? value : fallback;
}

bool LuContext::exists(const QUrl& url) const
{
    const QString path = localPath(url);
    return !path.isEmpty() && QFile::exists(path);
}

QRectF LuContext::availableGeometry(QWindow* window) const
{
    // More than any window asks for, less than a window system refuses.
    constexpr double Far = 16000;
    if (m_endlessRoom)
        return {-Far, -Far, 2 * Far, 2 * Far};
    const QScreen* screen = window && window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    return screen ? QRectF(screen->availableGeometry()) : QRectF();
}

void LuContext::checkToUpdateMonitorList()
{
    Q_EMIT monitorListCheckRequested();
}

void LuContext::setScreenSource(std::function<QScreen*(QObject*)> source)
{
    m_screenSource = std::move(source);
    touchFacts();
}

void LuContext::setConnectionSource(std::function<QString(QObject*)> source)
{
    m_connectionSource = std::move(source);
    touchFacts();
}

void LuContext::touchFacts()
{
    ++m_factsStamp;
    Q_EMIT factsChanged();
}

QString LuContext::monitorFacts(QObject* monitor, int) const
{
    QStringList facts;
    if (!monitor)
        return {};
    const bool builtIn = monitor->property("isModelBuiltIn").toBool();
    if (builtIn)
        facts << tr("Built-in");
    else if (const QString connection = m_connectionSource ? m_connectionSource(monitor) : QString();
             !connection.isEmpty())
        facts << connection;
    if (const QScreen* screen = m_screenSource ? m_screenSource(monitor) : nullptr) {
        const QSize size = screen->size() * screen->devicePixelRatio();
        facts << u"%1 × %2"_s.arg(size.width()).arg(size.height());
        if (screen->refreshRate() > 0)
            facts << u"%1 Hz"_s.arg(qRound(screen->refreshRate()));
    } else if (const QString serial = monitor->property("serialNumber").toString();
               !serial.isEmpty() && !builtIn) {
        facts << tr("S/N %1").arg(serial);
    }
    return facts.join(u" · "_s);
}

bool LuContext::isUpright(QObject* monitor, int) const
{
    const QScreen* screen = monitor && m_screenSource ? m_screenSource(monitor) : nullptr;
    return screen && screen->size().height() > screen->size().width();
}

double LuContext::contrastRatio(const QColor& a, const QColor& b) const
{
    return LuContrast::ratio(a, b);
}
