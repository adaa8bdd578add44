// SPDX-License-Identifier: Apache-2.0
#include "TrayMenu.h"

#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

TrayMenu::TrayMenu(QObject* parent) : QObject(parent)
{
    m_nodes.insert(0, {});
}

int TrayMenu::add(const TrayEntry& entry)
{
    // Numbers are never used twice, so that a click on a menu that has been replaced meets nothing.
    const int id = m_next++;
    Node node{entry, {}};
    for (const TrayEntry& child : entry.children)
        node.children.append(add(child));
    m_nodes.insert(id, node);
    return id;
}

void TrayMenu::setEntries(const QList<TrayEntry>& entries)
{
    m_nodes.clear();
    Node root;
    for (const TrayEntry& entry : entries)
        root.children.append(add(entry));
    m_nodes.insert(0, root);
    ++m_revision;
    Q_EMIT changed();
}

QList<int> TrayMenu::ids() const
{
    QList<int> list = m_nodes.keys();
    std::sort(list.begin(), list.end());
    return list;
}

QVariantMap TrayMenu::properties(int id) const
{
    const auto node = m_nodes.constFind(id);
    if (node == m_nodes.cend())
        return {};
    if (id == 0)
        return {{u"children-display"_s, u"submenu"_s}};
    const TrayEntry& entry = node->entry;
    if (entry.text.isEmpty())
        return {{u"type"_s, u"separator"_s}};
    // An underscore marks a key in this protocol.
    QVariantMap map{{u"label"_s, QString(entry.text).replace(u'_', u"__"_s)},
                    {u"enabled"_s, entry.isEnabled}};
    if (entry.isRadio) {
        map.insert(u"toggle-type"_s, u"radio"_s);
        map.insert(u"toggle-state"_s, entry.isChecked ? 1 : 0);
    }
    if (!node->children.isEmpty())
        map.insert(u"children-display"_s, u"submenu"_s);
    return map;
}

TrayLayout TrayMenu::layout(int parent, int depth) const
{
    TrayLayout layout;
    const auto node = m_nodes.constFind(parent);
    if (node == m_nodes.cend())
        return layout;
    layout.id = parent;
    layout.properties = properties(parent);
    if (depth == 0)
        return layout;
    for (const int child : node->children)
        layout.children.append(QVariant::fromValue(this->layout(child, depth - 1)));
    return layout;
}

void TrayMenu::activate(int id)
{
    const auto node = m_nodes.constFind(id);
    if (node == m_nodes.cend() || !node->entry.action || !node->entry.isEnabled)
        return;
    // The action may replace the menu.
    const std::function<void()> action = node->entry.action;
    action();
}

TrayMenuAdaptor::TrayMenuAdaptor(TrayMenu* menu) : QDBusAbstractAdaptor(menu), m_menu(menu)
{
    connect(menu, &TrayMenu::changed, this, [this] { Q_EMIT LayoutUpdated(m_menu->revision(), 0); });
}

QString TrayMenuAdaptor::status() const
{
    return u"normal"_s;
}

QString TrayMenuAdaptor::textDirection() const
{
    return QGuiApplication::isRightToLeft() ? u"rtl"_s : u"ltr"_s;
}

uint TrayMenuAdaptor::GetLayout(int parentId, int recursionDepth, const QStringList&, TrayLayout& layout)
{
    layout = m_menu->layout(parentId, recursionDepth);
    return m_menu->revision();
}

TrayPropertiesList TrayMenuAdaptor::GetGroupProperties(const QList<int>& ids, const QStringList&)
{
    TrayPropertiesList list;
    const QList<int> wanted = ids.isEmpty() ? m_menu->ids() : ids;
    for (const int id : wanted)
        list.append({id, m_menu->properties(id)});
    return list;
}

QDBusVariant TrayMenuAdaptor::GetProperty(int id, const QString& name)
{
    return QDBusVariant(m_menu->properties(id).value(name, QString()));
}

void TrayMenuAdaptor::Event(int id, const QString& eventId, const QDBusVariant&, uint)
{
    if (eventId == "clicked"_L1)
        m_menu->activate(id);
}

bool TrayMenuAdaptor::AboutToShow(int)
{
    return false;
}
