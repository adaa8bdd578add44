// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

/// What a user has chosen for the program itself: language, start, tray, and which widgets the window shows
/// in which order.
///
/// The singleton `LuPreferences` of the QML module LumenDesk. GUI thread. Every value is written to the store
/// as it changes; without a store it lives as long as the program.
class LuPreferences : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
    Q_PROPERTY(QVariantList languages READ languages CONSTANT)
    Q_PROPERTY(bool startAtLogin READ startAtLogin WRITE setStartAtLogin NOTIFY startAtLoginChanged)
    Q_PROPERTY(bool canStartAtLogin READ canStartAtLogin NOTIFY startAtLoginChanged)
    Q_PROPERTY(bool closeToTray READ closeToTray WRITE setCloseToTray NOTIFY closeToTrayChanged)
    Q_PROPERTY(bool trayVisible READ trayVisible WRITE setTrayVisible NOTIFY trayVisibleChanged)
    Q_PROPERTY(bool restoreAtStart READ restoreAtStart WRITE setRestoreAtStart NOTIFY restoreAtStartChanged)
    Q_PROPERTY(
        bool introductionSeen READ introductionSeen WRITE setIntroductionSeen NOTIFY introductionSeenChanged)
    Q_PROPERTY(QStringList hiddenWidgets READ hiddenWidgets NOTIFY arrangementChanged)
    Q_PROPERTY(QStringList widgetOrder READ widgetOrder NOTIFY arrangementChanged)

public:
    using Read = std::function<QVariant(const QString& key, const QVariant& fallback)>;
    using Write = std::function<void(const QString& key, const QVariant& value)>;

    /// The one object; made on the first call, which needs an application object.
    static LuPreferences* instance();
    ~LuPreferences() override;

    /// Where the values come from and go to; all are read anew.
    void setStore(Read read, Write write);

    /// Makes starting at login possible: @p state tells whether it is on, @p change switches it and tells
    /// whether that worked.
    void setLoginStart(std::function<bool()> state, std::function<bool(bool on)> change);

    /// Code of a language that the program speaks, such as "de" or "zh_TW"; empty follows the desktop.
    QString language() const;
    /// A code that languages() does not list is refused with a warning.
    void setLanguage(const QString& code);
    /// {"code","name"} of each language in its own words, by name; the first, with an empty code, stands for
    /// the desktop's.
    QVariantList languages() const;

    bool startAtLogin() const;
    void setStartAtLogin(bool on);
    bool canStartAtLogin() const { return bool(m_changeLogin); }

    /// Closing the window leaves the program running.
    bool closeToTray() const;
    void setCloseToTray(bool on);
    /// The desktop shows the program's tray icon.
    bool trayVisible() const { return m_trayVisible; }
    void setTrayVisible(bool visible);

    /// Values of the last run are written to a monitor at the program's start.
    bool restoreAtStart() const;
    void setRestoreAtStart(bool on);

    /// The user has been through the introduction, or has closed it.
    bool introductionSeen() const;
    void setIntroductionSeen(bool seen);

    /// Names of the widgets that the user took out of the window.
    QStringList hiddenWidgets() const;
    Q_INVOKABLE bool isWidgetHidden(const QString& name) const;
    Q_INVOKABLE void setWidgetHidden(const QString& name, bool hidden);

    /// Names of widgets in the user's order; empty while it is the package's.
    QStringList widgetOrder() const;
    /// @p names in the user's order. One that the user never moved stands behind its predecessor in @p names.
    Q_INVOKABLE QStringList arranged(const QStringList& names) const;
    /// Puts @p name to the place @p index (0 is the first) among @p group, its neighbours in their present
    /// order; @p all are the names of every widget in the package's order. False for a name or place that is
    /// not there.
    Q_INVOKABLE bool moveWidget(const QString& name, int index, const QStringList& group,
                                const QStringList& all);
    /// Shows every widget in the package's order again.
    Q_INVOKABLE void resetArrangement();

Q_SIGNALS:
    void languageChanged();
    void startAtLoginChanged();
    void closeToTrayChanged();
    void trayVisibleChanged();
    void restoreAtStartChanged();
    void introductionSeenChanged();
    void arrangementChanged();

private:
    explicit LuPreferences(QObject* parent);
    QVariant value(const QString& key, const QVariant& fallback) const;
    void setValue(const QString& key, const QVariant& value);
    bool replace(const QString& key, bool fallback, bool on);

    Read m_read;
    Write m_write;
    mutable QHash<QString, QVariant> m_values;
    std::function<bool()> m_loginState;
    std::function<bool(bool)> m_changeLogin;
    bool m_trayVisible = false;
};
