// SPDX-License-Identifier: Apache-2.0
#include "services/Abilities.h"

#include "services/ServiceRegistry.h"
#include "services/api/AudioService.h"
#include "services/api/DesktopEvents.h"
#include "services/api/DisplayService.h"
#include "services/api/ProgramService.h"
#include "services/api/WindowService.h"

#include <array>

namespace services {

namespace {

bool changesDisplays(const ServiceSet& set)
{
    return set.display && set.display->isAvailable();
}

struct Row
{
    const char* name;
    bool (*isThere)(const ServiceSet& set);
};

// clang-format off
constexpr std::array Rows = {
    Row{"displayModes",          changesDisplays},
    Row{"rotation",              changesDisplays},
    Row{"scaling",               changesDisplays},
    Row{"globalShortcuts",       [](const ServiceSet& set) { return set.events && set.events->takesActionKeys(); }},
    Row{"foregroundApplication", [](const ServiceSet& set) { return set.events && set.events->seesWindows(); }},
    Row{"windowPlacing",         [](const ServiceSet& set) { return set.programs && set.programs->placesWindows(); }},
    Row{"copyPasteKeys",         [](const ServiceSet& set) { return set.clipboardKeys != nullptr; }},
    Row{"pointerEdge",           [](const ServiceSet& set) { return set.kvm != nullptr; }},
    Row{"soundOutputs",          [](const ServiceSet& set) { return set.audio && !set.audio->outputs().isEmpty(); }},
    Row{"translucentWindows",    [](const ServiceSet& set) { return !set.windows || set.windows->blends(); }},
    Row{"overlayOnTop",          [](const ServiceSet& set) { return set.windows && set.windows->keepsAbove(); }},
};
// clang-format on

} // namespace

QStringList absentAbilities()
{
    const ServiceSet set = Registry::current();
    QStringList names;
    for (const Row& row : Rows) {
        if (!row.isThere(set))
            names.append(QString::fromLatin1(row.name));
    }
    return names;
}

} // namespace services
