// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace control {
class Server;
}
namespace services {
class SimulatedServices;
}

/// Adds "services.*". With null they all answer that nothing is simulated. The services outlive the server.
void addServiceMethods(control::Server* server, services::SimulatedServices* session);
