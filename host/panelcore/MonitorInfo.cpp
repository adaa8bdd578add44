// SPDX-License-Identifier: Apache-2.0
#include <PanelCore/MonitorInfo.h>

#include "MonitorInfoPrivate.h"

MonitorInfo::MonitorInfo(std::unique_ptr<MonitorInfoPrivate> data) : d(std::move(data)) {}

MonitorInfo::~MonitorInfo() = default;

QString MonitorInfo::id() const
{
    return d->description().id;
}

QString MonitorInfo::modelName() const
{
    return d->description().modelName;
}

QString MonitorInfo::serialNumber() const
{
    return d->description().serialNumber;
}

bool MonitorInfo::isBuiltIn() const
{
    return d->description().builtIn;
}

bool MonitorInfo::isSimulated() const
{
    return d->description().simulated;
}

QString MonitorInfo::screenName() const
{
    return d->link().screenName();
}

QString MonitorInfo::nativeHandle() const
{
    // A screen may come after its monitor.
    const QString& given = d->description().nativeHandle;
    return given.isEmpty() ? d->link().screenName() : given;
}
