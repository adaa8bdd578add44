// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// The program's entry among those that a desktop starts at login (XDG autostart). Any thread.
namespace Autostart {

/// Path of the user's entry.
QString file();

/// An entry of the user's starts the program at login.
bool isOn();

/// Writes or removes the user's entry; false, with the reason in the log, if the disk refuses it.
/// @param program path of the program.
bool set(bool on, const QString& program);

} // namespace Autostart
