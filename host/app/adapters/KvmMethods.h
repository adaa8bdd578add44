// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace control {
class Server;
}

/// Adds "kvm.*": the channel to the other computer, and its pairing. Where the session has no such service,
/// or services are simulated, they answer so.
void addKvmMethods(control::Server* server);
