// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace control {
class Server;
}

/// Adds "clock.*". Where services are not simulated they answer so.
void addClockMethods(control::Server* server, bool simulated);
