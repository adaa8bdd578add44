// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "lushared/services/ServiceRegistry.h"

namespace services {

/// The services of the session that the program runs in. What the session does not offer is absent, with a
/// line in the log. GUI thread, after the QGuiApplication was constructed; the services go before it does.
ServiceSet nativeServices();

} // namespace services
