// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ModelDescription.h"

#include <QByteArray>

namespace sim {

/// The capabilities string of MCCS 2.2 for this model: its codes, and behind a code its values where they are
/// bytes and few.
QByteArray makeCapabilities(const ModelDescription& model);

} // namespace sim
