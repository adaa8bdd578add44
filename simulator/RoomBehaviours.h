// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Behaviour.h"
#include "BehaviourSettings.h"

namespace sim {

// Strategies that follow the room: its light and the person in front of the monitor.

std::unique_ptr<Behaviour> makeAmbientLight(BehaviourSettings& settings);
std::unique_ptr<Behaviour> makePresence(BehaviourSettings& settings);
std::unique_ptr<Behaviour> makeNightProtection(BehaviourSettings& settings);
std::unique_ptr<Behaviour> makeRearLight(BehaviourSettings& settings);

} // namespace sim
