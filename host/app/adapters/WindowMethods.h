// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

class LuWindowBridge;

namespace control {
class Server;
}

/// Adds "ui.*". @p bridge gives the windows, or null while there are none: the methods then answer so.
void addWindowMethods(control::Server* server, std::function<LuWindowBridge*()> bridge);
