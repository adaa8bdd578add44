// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "TrayTypes.h"

#include <QDBusAbstractAdaptor>
#include <QDBusVariant>
#include <QObject>
#include <QStringList>

#include <functional>

/// One line of the tray's menu.
struct TrayEntry
{
    QString text; ///< Empty: a line between entries.
    std::function<void()> action;
    bool isRadio = false;
    bool isChecked = false;
    bool isEnabled = true;
    QList<TrayEntry> children = {};
};

/// The tray's menu as the desktop shows it ("com.canonical.dbusmenu"). GUI thread.
class TrayMenu : public QObject
{
    Q_OBJECT

public:
    explicit TrayMenu(QObject* parent = nullptr);
    /// Replaces the menu and tells the desktop.
    void setEntries(const QList<TrayEntry>& entries);

    uint revision() const { return m_revision; }
    TrayLayout layout(int parent, int depth) const;
    QVariantMap properties(int id) const;
    QList<int> ids() const;
    void activate(int id);

Q_SIGNALS:
    void changed();

private:
    struct Node
    {
        TrayEntry entry;
        QList<int> children;
    };
    int add(const TrayEntry& entry);

    QHash<int, Node> m_nodes; ///< 0 is the menu itself.
    int m_next = 1;
    uint m_revision = 1;
};

/// D-Bus face of a TrayMenu.
class TrayMenuAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    explicit TrayMenuAdaptor(TrayMenu* menu);
    uint version() const { return 3; }
    QString status() const;
    QString textDirection() const;
    QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames, TrayLayout& layout);
    TrayPropertiesList GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    bool AboutToShow(int id);

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent);

private:
    TrayMenu* const m_menu;
};
