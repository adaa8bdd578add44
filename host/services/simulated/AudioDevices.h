// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAudioDevice>

namespace services {

/// An audio output that no sound server knows: id, name and whether it is the default, nothing else. Null if
/// this version of Qt lays its devices out in a way that cannot be found out. GUI thread.
QAudioDevice simulatedAudioDevice(const QString& id, const QString& name, bool isDefault);

} // namespace services
