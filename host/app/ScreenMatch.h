// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// What the display system says about a screen.
struct ScreenFacts
{
    QString name;                     ///< QScreen::name().
    QString model;                    ///< QScreen::model(), empty where it is not known.
    QString serial;                   ///< QScreen::serialNumber(), as above.
    std::optional<int> connectorId{}; ///< The kernel's number of the connector, where the session tells it.
};

/// What the kernel and the EDID say about a monitor.
struct MonitorFacts
{
    QString connector; ///< Of the kernel, such as "card0-DP-1".
    QString model;
    QString serial;                   ///< Empty where the monitor has none.
    std::optional<int> connectorId{}; ///< On its card.
    bool connectorIsGuessed = false;  ///< An equal monitor may be there in its place.
};

/// The names of the screens that show on the monitors, in their order; empty where none can be told.
///
/// A pair is made only where nothing else would do as well, so that no screen is given to two monitors and
/// none to a twin by chance. These decide, one after the other: the model and serial number that both tell;
/// the kernel's number of the connector, by which X11's names of outputs behind a dock ("DP-2-8" for
/// "card0-DP-5") are told apart; the name (the kernel's "card0-HDMI-A-1" is "HDMI-A-1" on Wayland, "HDMI-1"
/// or "HDMI1" on X11, "HDMI-A-0" with a driver that counts from 0, "HDMI-1-1" at a second card), unless the
/// models contradict; and the model alone, where it is the last one left, as behind docks, whose outputs have
/// names of X11's own.
QStringList screensFor(const QList<MonitorFacts>& found, const QList<ScreenFacts>& screens);

/// For each monitor whether one of the screens that screensFor() has left over may be its own: it may be on
/// the desktop, but nothing tells it from an equal one.
QList<bool> doubtfulScreens(const QList<MonitorFacts>& monitors, const QList<ScreenFacts>& screens,
                            const QStringList& names);
