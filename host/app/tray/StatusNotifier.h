// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "TrayMenu.h"
#include "TrayTypes.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>

#include <memory>

class QDBusServiceWatcher;

/// The program's icon in the desktop's tray ("org.kde.StatusNotifierItem"). GUI thread.
///
/// It is there while a tray is: it comes with the tray, also after the program's start, and goes with it. A
/// desktop without a tray of this kind, or without a session bus, has none.
class StatusNotifier : public QObject
{
    Q_OBJECT

public:
    explicit StatusNotifier(QObject* parent = nullptr);
    ~StatusNotifier() override;

    /// Joins the session bus and looks for a tray; false without a bus. Blocks for a call to the bus.
    bool start();
    bool isVisible() const { return m_visible; }

    TrayMenu* menu() { return &m_menu; }
    void setIcon(const QIcon& icon);
    void setToolTip(const QString& title, const QString& text);
    const TrayImages& images() const { return m_images; }
    const TrayToolTip& toolTip() const { return m_toolTip; }

Q_SIGNALS:
    void visibleChanged();
    void activated();
    /// The wheel was turned over the icon: 120 is one notch, up is positive.
    void scrolled(int delta);
    void iconChanged();
    void toolTipChanged();

private:
    static bool hasSessionBus();
    void announce();
    void setVisible(bool visible);

    TrayMenu m_menu;
    TrayImages m_images;
    TrayToolTip m_toolTip;
    std::unique_ptr<QDBusServiceWatcher> m_watcher;
    QDBusConnection m_bus;
    QString m_service;
    bool m_visible = false;
};

/// D-Bus face of a StatusNotifier.
class StatusNotifierAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(TrayImages IconPixmap READ iconPixmap)
    Q_PROPERTY(TrayToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)

public:
    explicit StatusNotifierAdaptor(StatusNotifier* notifier);
    QString category() const;
    QString id() const;
    QString title() const;
    QString status() const;
    QString iconName() const { return {}; }
    TrayImages iconPixmap() const { return m_notifier->images(); }
    TrayToolTip toolTip() const { return m_notifier->toolTip(); }
    bool itemIsMenu() const { return false; }
    QDBusObjectPath menu() const;

public Q_SLOTS:
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString& orientation);

Q_SIGNALS:
    void NewIcon();
    void NewToolTip();
    void NewStatus(const QString& status);

private:
    StatusNotifier* const m_notifier;
};
