// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>

/// What the display system says about a screen.
struct ScreenFacts
{
    QString name;   ///< QScreen::name().
    QString model;  ///< QScreen::model(), empty where it is not known.
    QString serial; ///< QScreen::serialNumber(), as above.
};

/// The name of the screen that shows on a monitor; empty if none can be told.
///
/// A screen that tells the monitor's own model and serial number, as no other does, is it. Else the names
/// decide, unless the models contradict: the kernel's "card0-HDMI-A-1" is "HDMI-A-1" on Wayland, "HDMI-1" or
/// "HDMI1" on X11, and "HDMI-A-0" with a driver that counts from 0.
/// @param connector of the kernel, such as "card0-DP-1".
QString screenFor(const QString& connector, const QString& model, const QString& serial,
                  const QList<ScreenFacts>& screens);
