// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "MonitorLink.h"

/// What a MonitorInfo holds: the identity, which never changes, and the way to the bus.
class MonitorInfoPrivate
{
public:
    MonitorInfoPrivate(MonitorDescription description, std::unique_ptr<MonitorLink> link)
        : m_description(std::move(description)), m_link(std::move(link))
    {
    }

    static const MonitorInfoPrivate& of(const MonitorInfo& info) { return *info.d; }

    const MonitorDescription& description() const { return m_description; }
    MonitorLink& link() const { return *m_link; }

private:
    const MonitorDescription m_description;
    const std::unique_ptr<MonitorLink> m_link;
};
