// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <PanelCore/MonitorInfo.h>

#include "ddc/Bus.h"
#include "panelcore/MonitorLink.h"

/// A monitor's handle without a bus.
inline QSharedPointer<MonitorInfo> testMonitor(const QString& id, bool builtIn = false)
{
    MonitorDescription description;
    description.id = id;
    description.modelName = id.section(u'@', 0, 0);
    description.serialNumber = id.section(u'@', 1, 1);
    description.nativeHandle = id;
    description.builtIn = builtIn;
    return MonitorLink::create(description, nullptr, MonitorLink::Waits::None);
}
