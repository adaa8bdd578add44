// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLatin1StringView>
#include <QList>

#include <array>

// The default shortcuts of the four series, in the order of their files.

namespace SchemaTables {

using namespace Qt::StringLiterals;

struct Shortcut
{
    QLatin1StringView name;
    QLatin1StringView win;
    QLatin1StringView mac;
};

// clang-format off
inline constexpr std::array tkShortcuts{
    Shortcut{"Input_SwitchtoUSBC"_L1,                  "Ctrl+Shift+1"_L1,   "Cmd+Shift+1"_L1},
    Shortcut{"Input_SwitchtoDisplayport"_L1,           "Ctrl+Shift+2"_L1,   "Cmd+Shift+2"_L1},
    Shortcut{"Input_SwitchtoHDMI"_L1,                  "Ctrl+Shift+3"_L1,   "Cmd+Shift+3"_L1},
    Shortcut{"Input_SwitchtoHDMI1"_L1,                 "Ctrl+Shift+4"_L1,   "Cmd+Shift+4"_L1},
    Shortcut{"Input_SwitchtoHDMI2"_L1,                 "Ctrl+Shift+5"_L1,   "Cmd+Shift+5"_L1},
    Shortcut{"ColorMode_LoopAllColorMode"_L1,          "Ctrl+Alt+C"_L1,     "Opt+Ctrl+C"_L1},
    Shortcut{"ColorMode_SwitchtoCodingLightTheme"_L1,  "Ctrl+Alt+1"_L1,     "Opt+Ctrl+1"_L1},
    Shortcut{"ColorMode_SwitchtoCodingDarkTheme"_L1,   "Ctrl+Alt+2"_L1,     "Opt+Ctrl+2"_L1},
    Shortcut{"ColorMode_SwitchtoStandard"_L1,          "Ctrl+Alt+3"_L1,     "Opt+Ctrl+3"_L1},
    Shortcut{"ColorMode_SwitchtoMbook"_L1,             "Ctrl+Alt+4"_L1,     "Opt+Ctrl+4"_L1},
    Shortcut{"ColorMode_SwitchtoCinema"_L1,            "Ctrl+Alt+5"_L1,     "Opt+Ctrl+5"_L1},
    Shortcut{"ColorMode_SwitchtoePaper"_L1,            "Ctrl+Alt+6"_L1,     "Opt+Ctrl+6"_L1},
    Shortcut{"ColorMode_SwitchtoUser"_L1,              "Ctrl+Alt+7"_L1,     "Opt+Ctrl+7"_L1},
    Shortcut{"ColorMode_SwitchtosRGB"_L1,              "Ctrl+Alt+8"_L1,     "Opt+Ctrl+8"_L1},
    Shortcut{"ColorMode_SwitchtoGame"_L1,              "Ctrl+Alt+9"_L1,     "Opt+Ctrl+9"_L1},
    Shortcut{"ColorMode_SwitchtoCodingPaperColor"_L1,  "Ctrl+Alt+0"_L1,     "Opt+Ctrl+0"_L1},
    Shortcut{"Brightness_Decrease"_L1,                 "Ctrl+Shift+F4"_L1,  ""_L1},
    Shortcut{"Brightness_Increase"_L1,                 "Ctrl+Shift+F5"_L1,  ""_L1},
    Shortcut{"Volume_Decrease"_L1,                     "Ctrl+Shift+F2"_L1,  ""_L1},
    Shortcut{"Volume_Increase"_L1,                     "Ctrl+Shift+F3"_L1,  ""_L1},
    Shortcut{"Volume_Mute"_L1,                         "Ctrl+Shift+F1"_L1,  ""_L1},
    Shortcut{"Volume_LoopAllSpeakerOutput"_L1,         ""_L1,               "Shift+Ctrl+O"_L1},
    Shortcut{"NightProtection_Decrease"_L1,            "Ctrl+Alt+Left"_L1,  "Opt+Ctrl+Left"_L1},
    Shortcut{"NightProtection_Increase"_L1,            "Ctrl+Alt+Right"_L1, "Opt+Ctrl+Right"_L1},
    Shortcut{"EcoPrivacy_TurnOnOff"_L1,                "Ctrl+Alt+E"_L1,     "Opt+Ctrl+E"_L1},
    Shortcut{"ExtraCopyPaste_Copy"_L1,                 "Ctrl+Shift+C"_L1,   "Cmd+Shift+C"_L1},
    Shortcut{"ExtraCopyPaste_Paste"_L1,                "Ctrl+Shift+V"_L1,   "Cmd+Shift+V"_L1},
    Shortcut{"Kvm_LoopAllKvmSwitch"_L1,                "Ctrl+Alt+K"_L1,     "Opt+Cmd+K"_L1},
};

// What every other series has as well.
inline constexpr std::array sharedShortcuts{
    Shortcut{"Input_SwitchtoUSBC"_L1,                  "Ctrl+Shift+1"_L1,   "Cmd+Shift+1"_L1},
    Shortcut{"ColorMode_LoopAllColorMode"_L1,          "Ctrl+Alt+C"_L1,     "Opt+Ctrl+C"_L1},
    Shortcut{"Brightness_Decrease"_L1,                 "Ctrl+Shift+F4"_L1,  ""_L1},
    Shortcut{"Brightness_Increase"_L1,                 "Ctrl+Shift+F5"_L1,  ""_L1},
    Shortcut{"Volume_Decrease"_L1,                     "Ctrl+Shift+F2"_L1,  ""_L1},
    Shortcut{"Volume_Increase"_L1,                     "Ctrl+Shift+F3"_L1,  ""_L1},
    Shortcut{"Volume_Mute"_L1,                         "Ctrl+Shift+F1"_L1,  ""_L1},
    Shortcut{"Volume_LoopAllSpeakerOutput"_L1,         ""_L1,               "Shift+Ctrl+O"_L1},
    Shortcut{"ExtraCopyPaste_Copy"_L1,                 "Ctrl+Shift+C"_L1,   "Cmd+Shift+C"_L1},
    Shortcut{"ExtraCopyPaste_Paste"_L1,                "Ctrl+Shift+V"_L1,   "Cmd+Shift+V"_L1},
};

inline constexpr std::array zqShortcuts{
    Shortcut{"Input_SwitchtoHDMI1"_L1,                 "Ctrl+Shift+2"_L1,   "Cmd+Shift+2"_L1},
    Shortcut{"Input_SwitchtoHDMI2"_L1,                 "Ctrl+Shift+3"_L1,   "Cmd+Shift+3"_L1},
    Shortcut{"Input_SwitchtoHDMI3"_L1,                 "Ctrl+Shift+4"_L1,   "Cmd+Shift+4"_L1},
    Shortcut{"ColorMode_SwitchtosRGB"_L1,              "Ctrl+Alt+1"_L1,     "Opt+Ctrl+1"_L1},
    Shortcut{"ColorMode_SwitchtoDisplayP3"_L1,         "Ctrl+Alt+2"_L1,     "Opt+Ctrl+2"_L1},
    Shortcut{"ColorMode_SwitchtoDCIP3"_L1,             "Ctrl+Alt+3"_L1,     "Opt+Ctrl+3"_L1},
    Shortcut{"ColorMode_SwitchtoRec709"_L1,            "Ctrl+Alt+4"_L1,     "Opt+Ctrl+4"_L1},
    Shortcut{"ColorMode_SwitchtoMbook"_L1,             "Ctrl+Alt+5"_L1,     "Opt+Ctrl+5"_L1},
    Shortcut{"ColorMode_SwitchtoUser1"_L1,             "Ctrl+Alt+6"_L1,     "Opt+Ctrl+6"_L1},
    Shortcut{"ColorMode_SwitchtoUser2"_L1,             "Ctrl+Alt+7"_L1,     "Opt+Ctrl+7"_L1},
    Shortcut{"Volume_LoopAllAudioMode"_L1,             "Shift+Ctrl+A"_L1,   "Shift+Ctrl+A"_L1},
};

inline constexpr std::array fnShortcuts{
    Shortcut{"Input_SwitchtoHDMI1"_L1,                 "Ctrl+Shift+2"_L1,   "Cmd+Shift+2"_L1},
    Shortcut{"Input_SwitchtoHDMI2"_L1,                 "Ctrl+Shift+3"_L1,   "Cmd+Shift+3"_L1},
    Shortcut{"Input_SwitchtoThunderbolt3"_L1,          "Ctrl+Shift+4"_L1,   "Cmd+Shift+4"_L1},
    Shortcut{"ColorMode_SwitchtoMbook"_L1,             "Ctrl+Alt+1"_L1,     "Opt+Ctrl+1"_L1},
    Shortcut{"ColorMode_SwitchtoDisplayP3"_L1,         "Ctrl+Alt+2"_L1,     "Opt+Ctrl+2"_L1},
    Shortcut{"ColorMode_SwitchtosRGB"_L1,              "Ctrl+Alt+3"_L1,     "Opt+Ctrl+3"_L1},
    Shortcut{"ColorMode_SwitchtoCinema"_L1,            "Ctrl+Alt+4"_L1,     "Opt+Ctrl+4"_L1},
    Shortcut{"ColorMode_SwitchtoGame"_L1,              "Ctrl+Alt+5"_L1,     "Opt+Ctrl+5"_L1},
    Shortcut{"ColorMode_SwitchtoCoding"_L1,            "Ctrl+Alt+6"_L1,     "Opt+Ctrl+6"_L1},
    Shortcut{"ColorMode_SwitchtoePaper"_L1,            "Ctrl+Alt+7"_L1,     "Opt+Ctrl+7"_L1},
    Shortcut{"ColorMode_SwitchtoUser"_L1,              "Ctrl+Alt+8"_L1,     "Opt+Ctrl+8"_L1},
    Shortcut{"Volume_LoopAllAudioMode"_L1,             "Shift+Ctrl+A"_L1,   "Shift+Ctrl+A"_L1},
};

inline constexpr std::array yhShortcuts{
    Shortcut{"Input_SwitchtoHDMI1"_L1,                 "Ctrl+Shift+2"_L1,   "Cmd+Shift+2"_L1},
    Shortcut{"Input_SwitchtoHDMI"_L1,                  "Ctrl+Shift+2"_L1,   "Cmd+Shift+2"_L1},
    Shortcut{"Input_SwitchtoHDMI2"_L1,                 "Ctrl+Shift+3"_L1,   "Cmd+Shift+3"_L1},
    Shortcut{"Input_SwitchtoDisplayport"_L1,           "Ctrl+Shift+3"_L1,   "Cmd+Shift+3"_L1},
    Shortcut{"Input_SwitchtoHDMI3"_L1,                 "Ctrl+Shift+4"_L1,   "Cmd+Shift+4"_L1},
    Shortcut{"ColorMode_SwitchtoStandard"_L1,          "Ctrl+Alt+1"_L1,     "Opt+Ctrl+1"_L1},
    Shortcut{"ColorMode_SwitchtoCinemaHDRi"_L1,        "Ctrl+Alt+2"_L1,     "Opt+Ctrl+2"_L1},
    Shortcut{"ColorMode_SwitchtoGameHDRi"_L1,          "Ctrl+Alt+3"_L1,     "Opt+Ctrl+3"_L1},
    Shortcut{"ColorMode_SwitchtoHDR"_L1,               "Ctrl+Alt+4"_L1,     "Opt+Ctrl+4"_L1},
    Shortcut{"ColorMode_SwitchtoRec709"_L1,            "Ctrl+Alt+5"_L1,     "Opt+Ctrl+5"_L1},
    Shortcut{"ColorMode_SwitchtosRGB"_L1,              "Ctrl+Alt+6"_L1,     "Opt+Ctrl+6"_L1},
    Shortcut{"ColorMode_SwitchtoMbook"_L1,             "Ctrl+Alt+7"_L1,     "Opt+Ctrl+7"_L1},
    Shortcut{"ColorMode_SwitchtoGame"_L1,              "Ctrl+Alt+8"_L1,     "Opt+Ctrl+8"_L1},
    Shortcut{"ColorMode_SwitchtoUser"_L1,              "Ctrl+Alt+9"_L1,     "Opt+Ctrl+9"_L1},
};
// clang-format on

template <std::size_t Own>
QList<Shortcut> seriesShortcuts(const std::array<Shortcut, Own>& own)
{
    QList<Shortcut> entries(sharedShortcuts.begin(), sharedShortcuts.end());
    for (const Shortcut& shortcut : own)
        entries.append(shortcut);
    return entries;
}

} // namespace SchemaTables
