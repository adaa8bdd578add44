// SPDX-License-Identifier: Apache-2.0
#pragma once

class SimulatedWorld;

namespace control {
class MonitorAccess;
class Server;
} // namespace control

/// Adds "sim.*". Without a world (null) they all answer that nothing is simulated. Both outlive the server.
void addSimulatorMethods(control::Server* server, control::MonitorAccess* access, SimulatedWorld* world);
