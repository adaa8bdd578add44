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

std::optional<HardwareBrightness::Answer> HardwareBrightness::ask()
{
    Answer answer{};
    if (!m_link.getVCP(Code, answer.value, &answer.maximum) || answer.maximum <= 0) {
        if (!m_link.isSilent()) // who says nothing at all may have one
            ++m_vain;
        return std::nullopt;
    }
    m_vain = 0;
    return answer;
}

double HardwareBrightness::take(const Answer& answer)
{
    const double fraction = std::clamp(double(answer.value) / answer.maximum, 0.0, 1.0);
    m_maximum = answer.maximum;
    m_value = answer.value;
    m_known = fraction;
    return fraction;
}

std::optional<double> HardwareBrightness::read()
{
    const std::optional<Answer> answer = ask();
    return answer ? std::optional(take(*answer)) : std::nullopt;
}

bool HardwareBrightness::refresh()
{
    const unsigned asked = m_asked;
    const std::optional<Answer> answer = ask();
    if (!answer || asked != m_asked || (answer->value == m_value && answer->maximum == m_maximum))
        return false;
    take(*answer);
    return true;
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
    const int value = int(std::lround(fraction * m_maximum));
    if (!m_link.setVCP(Code, value)) {
        m_value = -1; // whatever it holds now is news
        qWarning() << "[HardwareBrightness] the monitor did not take the brightness";
        return false;
    }
    m_value = value;
    m_known = fraction;
    return true;
}
