// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAudioDevice>

namespace services {

/// An audio output that Qt's own back end does not know, or not as it is now: id, name and whether it is the
/// default, nothing else. Equal arguments give equal values. Null if this version of Qt lays its devices out
/// in a way that cannot be found out. GUI thread.
QAudioDevice madeAudioDevice(const QString& id, const QString& name, bool isDefault);

} // namespace services
