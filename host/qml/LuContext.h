// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRectF>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <QVariantMap>

#include <functional>

class QScreen;

/// What panels and the shell may ask of the program: the monitors, the windows, the look, resources and
/// environment.
///
/// The singleton `LuContext` of the QML module LumenDesk. It lives on the GUI thread as long as the
/// application object; the composition root fills it before the first window is loaded.
class LuContext : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        QObject* currentMonitor READ currentMonitor WRITE setCurrentMonitor NOTIFY currentMonitorChanged)
    Q_PROPERTY(QList<QObject*> monitors READ monitors NOTIFY monitorsChanged)
    Q_PROPERTY(QList<QUrl> widgetUrls READ widgetUrls NOTIFY widgetUrlsChanged)
    Q_PROPERTY(QList<QUrl> sectionUrls READ sectionUrls NOTIFY widgetUrlsChanged)
    Q_PROPERTY(QUrl walkthroughUrl READ walkthroughUrl NOTIFY widgetUrlsChanged)
    Q_PROPERTY(bool rightToLeft READ isRightToLeft WRITE setRightToLeft NOTIFY rightToLeftChanged)
    Q_PROPERTY(int factsStamp READ factsStamp NOTIFY factsChanged)
    Q_PROPERTY(bool discovering READ isDiscovering WRITE setDiscovering NOTIFY discoveringChanged)
    Q_PROPERTY(bool canSimulate READ canSimulate WRITE setCanSimulate NOTIFY canSimulateChanged)
    Q_PROPERTY(QQuickWindow* mainWindow READ mainWindow WRITE setMainWindow NOTIFY mainWindowChanged)
    Q_PROPERTY(QObject* multiMonitorSyncControl READ multiMonitorSyncControl WRITE setMultiMonitorSyncControl
                   NOTIFY multiMonitorSyncControlChanged)
    Q_PROPERTY(
        QObject* brightnessSync READ brightnessSync WRITE setBrightnessSync NOTIFY brightnessSyncChanged)
    Q_PROPERTY(bool isWindows READ isWindows CONSTANT)
    Q_PROPERTY(bool isMacOS READ isMacOS CONSTANT)
    Q_PROPERTY(bool isLinux READ isLinux CONSTANT)
    Q_PROPERTY(bool windowsLayout READ windowsLayout CONSTANT)
    Q_PROPERTY(bool canPlaceWindows READ canPlaceWindows CONSTANT)
    Q_PROPERTY(bool translucentWindows READ translucentWindows WRITE setTranslucentWindows NOTIFY
                   translucentWindowsChanged)
    Q_PROPERTY(bool endlessRoom READ hasEndlessRoom WRITE setEndlessRoom NOTIFY endlessRoomChanged)
    Q_PROPERTY(QString theme READ theme WRITE setTheme NOTIFY themeChanged)
    Q_PROPERTY(QString colorScheme READ colorScheme NOTIFY colorSchemeChanged)
    Q_PROPERTY(bool highContrast READ highContrast WRITE setHighContrast NOTIFY highContrastChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion WRITE setReducedMotion NOTIFY reducedMotionChanged)
    Q_PROPERTY(double fontScale READ fontScale WRITE setFontScale NOTIFY fontScaleChanged)
    Q_PROPERTY(QStringList notices READ notices NOTIFY noticesChanged)
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)
    Q_PROPERTY(QVariantMap absences READ absences NOTIFY absencesChanged)

public:
    using Lookup = std::function<QVariant(const QString& key)>;

    /// The one object; made on the first call, which needs a QGuiApplication.
    static LuContext* instance();
    ~LuContext() override;

    /// The monitor that the window shows, or null.
    QObject* currentMonitor() const { return m_currentMonitor; }
    /// Null or one of monitors(); another object is refused with a warning.
    void setCurrentMonitor(QObject* monitor);
    QList<QObject*> monitors() const { return m_monitors; }
    /// Replaces the list. A current monitor that is not in it gives way to the first one.
    /// Call it before a model is deleted; a model that is deleted all the same leaves the list by itself.
    void setMonitors(const QList<QObject*>& monitors);

    /// The widgets of the current monitor's package, in its order.
    QList<QUrl> widgetUrls() const { return m_widgetUrls; }
    /// Names of the loaded packages: their pictures are looked up in this order.
    void setPackages(const QStringList& names);
    /// How the widgets of a monitor are found. Asked whenever the current monitor changes.
    void setWidgetUrlSource(std::function<QList<QUrl>(QObject* monitor)> source);

    /// The advanced settings of the current monitor's package, by name.
    QList<QUrl> sectionUrls() const;
    /// The introduction of the current monitor's package; empty without one.
    QUrl walkthroughUrl() const;
    /// The file @p name, such as "Popups/LuPopupFlowNotify.qml", of the current monitor's package; empty if
    /// it has none.
    Q_INVOKABLE QUrl packageFile(const QString& name) const;

    /// The first search for monitors is not over.
    bool isDiscovering() const { return m_discovering; }
    void setDiscovering(bool on);
    /// A simulated monitor can be had in place of a real one.
    bool canSimulate() const { return m_canSimulate; }
    void setCanSimulate(bool on);

    QQuickWindow* mainWindow() const;
    void setMainWindow(QQuickWindow* window);
    QObject* multiMonitorSyncControl() const { return m_multiMonitorSyncControl; }
    void setMultiMonitorSyncControl(QObject* control);
    /// Keeps the brightness of several monitors alike; null until the program has set it.
    QObject* brightnessSync() const { return m_brightnessSync; }
    void setBrightnessSync(QObject* sync);

    bool isWindows() const;
    bool isMacOS() const;
    bool isLinux() const;
    /// Panels differ between macOS and the rest: every other platform shows them as on Windows.
    bool windowsLayout() const { return !isMacOS(); }
    /// False where a client may not position its own windows (Wayland).
    bool canPlaceWindows() const;
    /// For where canPlaceWindows is false: has the session show feedback at @p position of the desktop, above
    /// all windows and never with the focus, once it becomes visible. False where it cannot: @p window is not
    /// to be shown.
    Q_INVOKABLE bool placeFeedback(QQuickWindow* window, const QPointF& position) const;
    void setFeedbackPlacer(std::function<bool(QQuickWindow* window, const QPoint& position)> placer);
    /// Whether a window may have see-through corners: not where nothing composes the desktop.
    bool translucentWindows() const { return m_translucentWindows; }
    void setTranslucentWindows(bool on);

    /// Windows are as large as what they hold, whatever the screen's size, and stay where they are: for
    /// pictures of them.
    bool hasEndlessRoom() const { return m_endlessRoom; }
    void setEndlessRoom(bool on);

    /// "system", "light", "dark", or "contrast": high contrast, light or dark as the desktop.
    QString theme() const { return m_theme; }
    void setTheme(const QString& theme);
    /// What the desktop wishes where the theme is left to it: "light", "dark", or empty for its palette.
    void setDesktopColorScheme(const QString& scheme);
    /// "light" or "dark": the theme, or what the desktop shows.
    QString colorScheme() const { return m_colorScheme; }
    /// The theme is that of high contrast, or the desktop asks for it.
    bool highContrast() const { return m_highContrast || m_theme == u"contrast"; }
    void setHighContrast(bool on);
    bool reducedMotion() const { return m_reducedMotion; }
    void setReducedMotion(bool on);
    /// Size of the desktop's font relative to the size that the layout is drawn for, 0.75 to 3.
    double fontScale() const { return m_fontScale; }
    void setFontScale(double scale);

    /// What keeps monitors from being controlled until the user does something about it, in plain words.
    QStringList notices() const { return m_notices; }
    void setNotices(const QStringList& notices);
    /// What this session cannot do, in plain words: names of services::absentAbilities(), and
    /// "monitorControl" where notices() keep monitors from being controlled. Looked up at each call.
    QVariantMap absences() const;
    /// @param absent names what is missing now. @param wayland the session is one of a Wayland compositor,
    /// @param desktop there is a session at all.
    void setAbsenceSource(std::function<QStringList()> absent, bool desktop, bool wayland);
    /// Services or the language have changed.
    void touchAbsences() { Q_EMIT absencesChanged(); }
    /// The language in use is written from right to left: windows are mirrored.
    bool isRightToLeft() const;
    /// Mirrors the windows, or not, whatever the language in use is written like.
    void setRightToLeft(bool on);

    /// The family that the window is drawn in: Inter where it is installed, else the desktop's.
    QString fontFamily() const;

    /// @param values looks a key up for env(), @p choices for envDeviceChoice(); an invalid result means "not
    /// there".
    void setEnvironment(Lookup values, Lookup choices);
    /// The screen that shows a monitor; without it the facts leave the resolution out.
    void setScreenSource(std::function<QScreen*(QObject* monitor)> source);
    /// How a monitor is connected, in a word such as "USB-C"; an empty text for one that is not known.
    void setConnectionSource(std::function<QString(QObject* monitor)> source);

    /// The file that stands behind "qrc:/images/packages/x.svg" of a package, in the variant of @p
    /// colorScheme.
    /// @param item an item of the package that asks. A file that is missing gives an empty URL and one
    /// warning.
    Q_INVOKABLE QUrl resolvedResourceUrl(const QUrl& url, QObject* item, const QString& colorScheme) const;
    /// Name of the package whose file made @p item, or an empty text for an item of the shell.
    Q_INVOKABLE QString packageOf(QObject* item) const;
    Q_INVOKABLE QVariant env(const QString& key, const QVariant& fallback = {}) const;
    Q_INVOKABLE QVariant envDeviceChoice(const QString& key, const QVariant& fallback = {}) const;
    /// Whether the file of a "qrc:" or "file:" URL is there.
    Q_INVOKABLE bool exists(const QUrl& url) const;
    /// The part of the screen that windows may cover, for the screen that @p window is on. A boundless
    /// rectangle where there is endlessRoom.
    Q_INVOKABLE QRectF availableGeometry(QWindow* window) const;
    /// A panel made the monitor lay its screen out anew: its bus may drop for a moment, and the system may
    /// see it go and come. Asks the program to look who is there and to read the monitor back.
    Q_INVOKABLE void checkToUpdateMonitorList();
    /// The whole screen that shows @p monitor; the first screen for one that none is known to show.
    Q_INVOKABLE QRectF screenGeometry(QObject* monitor) const;
    /// Opens the settings window, at the section of that name if it is given.
    Q_INVOKABLE void openSettings(const QString& section = {});
    /// A short line under the monitor's name: connection, size and rate of its screen, else its serial
    /// number.
    /// @param stamp unused; a binding gives factsStamp, so that it is asked again when facts change.
    Q_INVOKABLE QString monitorFacts(QObject* monitor, int stamp = 0) const;
    /// The monitor's desktop is higher than wide. @p stamp as of monitorFacts().
    Q_INVOKABLE bool isUpright(QObject* monitor, int stamp = 0) const;
    int factsStamp() const { return m_factsStamp; }
    /// The facts of a monitor have changed.
    Q_INVOKABLE void touchFacts();
    /// WCAG contrast ratio of two opaque colours, 1 to 21.
    Q_INVOKABLE double contrastRatio(const QColor& a, const QColor& b) const;

Q_SIGNALS:
    void currentMonitorChanged();
    void monitorsChanged();
    void widgetUrlsChanged();
    void noticesChanged();
    void absencesChanged();
    void mainWindowChanged();
    void multiMonitorSyncControlChanged();
    void brightnessSyncChanged();
    void translucentWindowsChanged();
    void endlessRoomChanged();
    void themeChanged();
    void colorSchemeChanged();
    void highContrastChanged();
    void reducedMotionChanged();
    void fontScaleChanged();
    /// See checkToUpdateMonitorList().
    void monitorListCheckRequested();
    void rightToLeftChanged();
    void factsChanged();
    void discoveringChanged();
    void canSimulateChanged();
    /// The user asks for the settings window, at @p section where it is not empty.
    void settingsRequested(const QString& section);
    /// The user asks for a simulated monitor to look around with.
    void simulationRequested();
    /// The user wants monitors to be looked for again.
    void searchRequested();
    /// The user closes the window for good: the program is to end.
    void quitRequested();
    /// The user asks for help on monitors that are not found.
    void helpRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit LuContext(QObject* parent);
    QStringList imageFolders(QObject* item) const;
    void updateColorScheme();
    void updateWidgetUrls();

    QList<QObject*> m_monitors;
    QPointer<QObject> m_currentMonitor;
    QList<QUrl> m_widgetUrls;
    std::function<QList<QUrl>(QObject*)> m_widgetUrlSource;
    std::function<QScreen*(QObject*)> m_screenSource;
    std::function<QString(QObject*)> m_connectionSource;
    std::function<QStringList()> m_absent;
    std::function<bool(QQuickWindow*, const QPoint&)> m_feedbackPlacer;
    bool m_hasDesktop = true;
    bool m_isWayland = false;
    int m_factsStamp = 0;
    bool m_discovering = false;
    bool m_canSimulate = false;
    QPointer<QQuickWindow> m_mainWindow;
    QPointer<QObject> m_multiMonitorSyncControl;
    QPointer<QObject> m_brightnessSync;
    QStringList m_notices;
    QString m_theme;
    QString m_desktopColorScheme;
    QString m_colorScheme;
    bool m_translucentWindows = true;
    bool m_endlessRoom = false;
    bool m_highContrast = false;
    bool m_reducedMotion = false;
    double m_fontScale = 1;
    Lookup m_values;
    Lookup m_choices;
    QStringList m_packages;
    mutable QSet<QString> m_missing;
};
