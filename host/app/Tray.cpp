// SPDX-License-Identifier: Apache-2.0
#include "Tray.h"

#include <lushared/LuMonitorRegistry.h>
#include <qml/LuContext.h>
#include <qml/LuPreferences.h>

#include <QGuiApplication>
#include <QIcon>

#include <algorithm>

namespace {

constexpr int Notch = 120;     // of a wheel
constexpr int StepPercent = 5; // of brightness, a notch
constexpr int WayMs = 1000;    // in which a value is on its way to the monitor

} // namespace

Tray::Tray(LuMonitorRegistry& registry, QObject* parent) : QObject(parent), m_registry(registry)
{
    connect(&m_notifier, &StatusNotifier::activated, this, &Tray::toggleRequested);
    connect(&m_notifier, &StatusNotifier::scrolled, this, &Tray::turn);
    connect(&m_notifier, &StatusNotifier::visibleChanged, this,
            [this] { LuPreferences::instance()->setTrayVisible(m_notifier.isVisible()); });
    connect(&registry, &LuMonitorRegistry::monitorsChanged, this, &Tray::refresh);
    connect(&registry, &LuMonitorRegistry::currentChanged, this, &Tray::refresh);
}

void Tray::start()
{
    m_notifier.setIcon(QGuiApplication::windowIcon());
    refresh();
    m_notifier.start();
}

void Tray::refresh()
{
    QList<TrayEntry> entries{{tr("Show Lumen Desk"), [this] { Q_EMIT showRequested(); }}};
    const QList<LuMonitorModel*> monitors = m_registry.monitors();
    const LuMonitorModel* current = m_registry.current();
    if (!monitors.isEmpty())
        entries.append(TrayEntry());
    for (const LuMonitorModel* monitor : monitors) {
        TrayEntry entry{monitor->nickName(), [this, id = monitor->id()] { m_registry.select(id); }};
        entry.isRadio = true;
        entry.isChecked = monitor == current;
        entries.append(entry);
    }
    entries.append(TrayEntry());
    entries.append({tr("Settings"), [this] { Q_EMIT settingsRequested(); }});
    entries.append(TrayEntry());
    entries.append({tr("Quit"), [this] { Q_EMIT quitRequested(); }});
    m_notifier.menu()->setEntries(entries);
    m_notifier.setToolTip(QGuiApplication::applicationDisplayName(),
                          current ? current->nickName() : QString());
}

void Tray::turn(int delta)
{
    // Told by its property alone: the program knows no package's modules.
    LuMonitorModel* monitor = m_registry.current();
    auto* module = monitor ? monitor->property("brightness").value<QObject*>() : nullptr;
    if (!module || !module->property("displayBrightness").isValid())
        return;
    m_rest += delta;
    const int notches = m_rest / Notch;
    m_rest -= notches * Notch;
    // A turn goes on from what the turn before has asked for, also while that is on its way.
    const bool goesOn = m_turned == module && m_sinceTurn.isValid() && !m_sinceTurn.hasExpired(WayMs);
    const int before = goesOn ? m_wanted : module->property("displayBrightness").toInt();
    m_wanted = std::clamp(before + notches * StepPercent, 0, 100);
    m_turned = module;
    m_sinceTurn.start();
    if (m_wanted != before)
        module->setProperty("displayBrightness", m_wanted);
}
