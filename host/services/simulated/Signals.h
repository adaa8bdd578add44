// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/simulated/World.h"

namespace services {

/// Raises what belongs to a changed value. GUI thread.
void raise(Signal signal, World& world);

/// Raises a signal by its name, as SimulatedServices::emitSignal() does. GUI thread.
QJsonObject raiseByName(const QString& name, const QJsonValue& arguments, World& world, Error& error);

} // namespace services
