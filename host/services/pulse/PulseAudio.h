// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "services/api/AudioService.h"

#include <memory>

namespace services {

/// Audio outputs and the system volume of a session with PulseAudio or PipeWire. Device ids are the server's
/// names of the outputs, which are those of Qt's own devices and last across runs. GUI thread.
std::shared_ptr<AudioService> makePulseAudio();

} // namespace services
