// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tray/StatusNotifier.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class LuMonitorRegistry;

/// What the icon in the tray shows and does: the window, the monitors, the settings, the end; and the wheel,
/// which changes the current monitor's brightness. GUI thread.
class Tray : public QObject
{
    Q_OBJECT

public:
    explicit Tray(LuMonitorRegistry& registry, QObject* parent = nullptr);

    /// Looks for a tray. Without one nothing happens.
    void start();
    /// Texts and entries anew, in the language in use.
    void refresh();

Q_SIGNALS:
    void toggleRequested();
    void showRequested();
    void settingsRequested();
    void quitRequested();

private:
    void turn(int delta);

    LuMonitorRegistry& m_registry;
    StatusNotifier m_notifier;
    int m_rest = 0;             ///< What fine wheels have turned short of a step.
    QPointer<QObject> m_turned; ///< What the last turn was for, what it asked for, and when.
    int m_wanted = 0;
    QElapsedTimer m_sinceTurn;
};
