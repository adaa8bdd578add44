// SPDX-License-Identifier: Apache-2.0
#include "services/pulse/PulseState.h"

#include <algorithm>
#include <cmath>

namespace services {

namespace {

constexpr double FullVolume = 65536;

} // namespace

const PulseOutput* PulseState::defaultOutput() const
{
    const auto found = std::find_if(outputs.begin(), outputs.end(),
                                    [&](const PulseOutput& output) { return output.name == defaultName; });
    return found == outputs.end() ? nullptr : &*found;
}

bool PulseState::hasSameOutputs(const PulseState& other) const
{
    return defaultName == other.defaultName &&
           std::equal(outputs.begin(), outputs.end(), other.outputs.begin(), other.outputs.end(),
                      [](const PulseOutput& one, const PulseOutput& two) {
                          return one.name == two.name && one.description == two.description;
                      });
}

QString outputTitle(const QString& description, const QString& monitorName)
{
    if (monitorName.isEmpty() || description.contains(monitorName))
        return description;
    return monitorName + QStringLiteral(" (") + description + u')';
}

int percentOfVolume(quint32 volume)
{
    return std::clamp(int(std::lround(volume * 100 / FullVolume)), 0, 100);
}

quint32 volumeOfPercent(int percent)
{
    return quint32(std::lround(std::clamp(percent, 0, 100) * FullVolume / 100));
}

} // namespace services
