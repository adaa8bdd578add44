// SPDX-License-Identifier: Apache-2.0
#include "HardwareBrightness.h"

#include "MonitorLink.h"

#include <ZrCore/ZrDispatch.h>

#include <QDebug>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Code = 0x10;

} // namespace

HardwareBrightness::HardwareBrightness(MonitorLink& link) : m_link(link) {}

HardwareBrightness::~HardwareBrightness() = default;

std::optional<double> HardwareBrightness::read()
{
    int value = 0;
    int maximum = 0;
    if (!m_link.getVCP(Code, value, &maximum) || maximum <= 0)
        return std::nullopt;
    m_maximum = maximum;
    m_known = std::clamp(double(value) / maximum, 0.0, 1.0);
    return m_known.load();
}

std::optional<double> HardwareBrightness::known() const
{
    const double known = m_known;
    return known < 0 ? std::nullopt : std::optional(known);
}

bool HardwareBrightness::write(double fraction)
{
    ++m_asked; // what waits in the queue is older
    return transfer(fraction);
}

void HardwareBrightness::writeLater(double fraction)
{
    const unsigned asked = ++m_asked;
    m_link.makeOwnQueue()->postUnique(nullptr, QStringLiteral("write"), [this, fraction, asked] {
        if (asked == m_asked)
            transfer(fraction);
    });
}

bool HardwareBrightness::transfer(double fraction)
{
    if (m_maximum == 0 && !read()) {
        qWarning() << "[HardwareBrightness] the monitor tells no brightness: none is written";
        return false;
    }
    fraction = std::clamp(fraction, 0.0, 1.0);
    if (!m_link.setVCP(Code, int(std::lround(fraction * m_maximum)))) {
        qWarning() << "[HardwareBrightness] the monitor did not take the brightness";
        return false;
    }
    m_known = fraction;
    return true;
}
