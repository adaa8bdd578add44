// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLatin1StringView>

#include <array>

// What the seven models can do, written down a second time: the schema files are compared with these tables.

namespace SchemaTables {

using namespace Qt::StringLiterals;

// A feature that a model does not mention; it differs from one that is written as off.
inline constexpr QLatin1StringView absent;

inline constexpr std::array models{"TK10"_L1,  "TK20"_L1, "TK30"_L1, "TK30X"_L1,
                                   "TK30Z"_L1, "TK40"_L1, "TK40X"_L1};

struct Mode
{
    QLatin1StringView name;
    QLatin1StringView code;
    QLatin1StringView models; // blank-separated, in one text with a blank at both ends
};

inline constexpr auto all = " TK10 TK20 TK30 TK30X TK30Z TK40 TK40X "_L1;
inline constexpr auto withGame = " TK20 TK30Z TK40 TK40X "_L1;
inline constexpr auto withSrgb = " TK20 TK30 TK30X TK30Z TK40 TK40X "_L1;
inline constexpr auto withAi = " TK20 TK30Z "_L1;

// In the order of the combo box.
inline constexpr std::array modes{
    Mode{"Coding - Light Theme"_L1, "0x31"_L1, all},
    Mode{"Coding - Dark Theme"_L1, "0x30"_L1, all},
    Mode{"Coding - Paper Color"_L1, "0x3A"_L1, withAi},
    Mode{"M-book"_L1, "0x0F"_L1, all},
    Mode{"Cinema"_L1, "0x32"_L1, all},
    Mode{"Game"_L1, "0x28"_L1, withGame},
    Mode{"ePaper"_L1, "0x1F"_L1, all},
    Mode{"sRGB"_L1, "0x0A"_L1, withSrgb},
    Mode{"User"_L1, "0x12"_L1, all},
    Mode{"HDR"_L1, "0x23"_L1, all},
};

struct Flag
{
    QLatin1StringView name;
    QLatin1StringView models;
    QLatin1StringView on;  // modes, each between bars
    QLatin1StringView off; // modes that say "off"; in all others the flag is not written
};

inline constexpr auto codingUser = "|Coding - Light Theme|Coding - Dark Theme|Coding - Paper Color|User|"_L1;
inline constexpr auto tempered =
    "|Coding - Light Theme|Coding - Dark Theme|Coding - Paper Color|User|M-book|"_L1;
inline constexpr auto weakness =
    "|Coding - Light Theme|Coding - Dark Theme|Coding - Paper Color|User|Cinema|Game|"_L1;
inline constexpr auto based =
    "|Coding - Light Theme|Coding - Dark Theme|Coding - Paper Color|User|M-book|Cinema|Game|ePaper|"_L1;
inline constexpr auto basedSrgb =
    "|Coding - Light Theme|Coding - Dark Theme|Coding - Paper Color|User|M-book|Cinema|Game|ePaper|sRGB|"_L1;
inline constexpr auto every =
    "|Coding - Light Theme|Coding - Dark Theme|Coding - Paper Color|User|M-book|Cinema|Game|ePaper|sRGB|HDR|"_L1;
inline constexpr auto hdr = "|HDR|"_L1;
inline constexpr auto none = "|"_L1;
inline constexpr auto brightHdr = " TK10 TK20 "_L1;
inline constexpr auto darkHdr = " TK30 TK30X TK30Z TK40 TK40X "_L1;

inline constexpr std::array flags{
    Flag{"BrightnessEnable"_L1, brightHdr, every, none},
    Flag{"BrightnessEnable"_L1, darkHdr, basedSrgb, hdr},
    Flag{"ContrastEnable"_L1, brightHdr, every, none},
    Flag{"ContrastEnable"_L1, darkHdr, basedSrgb, hdr},
    Flag{"SharpnessEnable"_L1, all, every, none},
    Flag{"SaturationEnable"_L1, all, codingUser, none},
    Flag{"ColorTempCustomEnable"_L1, all, tempered, none},
    Flag{"ColorTempDefaultEnable"_L1, all, tempered, none},
    Flag{"GammaEnable"_L1, all, "|User|"_L1, none},
    Flag{"ABEnable"_L1, all, based, "|sRGB|HDR|"_L1},
    Flag{"ABOnBrightnessEnable"_L1, all, based, "|sRGB|HDR|"_L1},
    Flag{"ABOnColorTempDefaultEnable"_L1, withAi, tempered, none},
    Flag{"ABOnColorTempCustomEnable"_L1, withAi, tempered, none},
    Flag{"ABOnSharpnessEnable"_L1, withAi, tempered, none},
    Flag{"LowBlueLightEnable"_L1, all, based, "|sRGB|HDR|"_L1},
    Flag{"ColorWeaknessEnable"_L1, all, weakness, none},
    Flag{"DualViewEnable"_L1, " TK20 "_L1, basedSrgb, none},
    Flag{"DualViewEnable"_L1, " TK30Z TK40 TK40X "_L1, every, none},
    Flag{"AiContrastEnable"_L1, withAi, based, "|sRGB|HDR|"_L1},
    Flag{"BacklightControlEnable"_L1, withAi, hdr, none},
    Flag{"isHDR"_L1, all, hdr, none},
};

struct Feature
{
    QLatin1StringView category;
    QLatin1StringView type;
    std::array<QLatin1StringView, 5> values; // TK10, TK20, TK30 and TK30X, TK30Z, TK40 and TK40X
};

inline constexpr auto on = "on"_L1;
inline constexpr auto off = "off"_L1;
inline constexpr auto shortPrivacy = "5,10,20,30,60"_L1;
inline constexpr auto synced = "LuBrightness,LuNightProtection,LuLowBlueLight,LuColorWeakness"_L1;
inline constexpr auto syncedAi =
    "LuAiContrast,LuBrightness,LuNightProtection,LuLowBlueLight,LuColorWeakness"_L1;

constexpr Feature feature(QLatin1StringView category, QLatin1StringView type, QLatin1StringView tk10,
                          QLatin1StringView tk20, QLatin1StringView tk30, QLatin1StringView tk30z,
                          QLatin1StringView tk40)
{
    return Feature{category, type, {tk10, tk20, tk30, tk30z, tk40}};
}

// clang-format off
inline constexpr std::array features{
    //      category                      type                          TK10            TK20            TK30            TK30Z                   TK40
    feature("Gamma"_L1,                   "1.8"_L1,                     on,             on,             on,             on,                     on),
    feature("Gamma"_L1,                   "2.0"_L1,                     on,             on,             on,             on,                     on),
    feature("Gamma"_L1,                   "2.2"_L1,                     on,             on,             on,             on,                     on),
    feature("Gamma"_L1,                   "2.4"_L1,                     on,             on,             on,             on,                     on),
    feature("Gamma"_L1,                   "2.6"_L1,                     on,             on,             on,             on,                     on),
    feature("Gamma"_L1,                   "sRGB"_L1,                    off,            absent,         off,            off,                    off),
    feature("Volume"_L1,                  "Volume"_L1,                  on,             on,             on,             on,                     on),
    feature("MaxVolume"_L1,               "MaxVolume"_L1,               "50"_L1,        "50"_L1,        "50"_L1,        "50"_L1,                "50"_L1),
    feature("Audio Mode"_L1,              "Standard"_L1,                absent,         on,             absent,         on,                     absent),
    feature("Audio Mode"_L1,              "Dialogue"_L1,                absent,         on,             absent,         on,                     absent),
    feature("Audio Mode"_L1,              "Music"_L1,                   absent,         on,             absent,         on,                     absent),
    feature("Auto Pivot"_L1,              "Auto Pivot"_L1,              on,             absent,         off,            on,                     on),
    feature("AB Type"_L1,                 "AB Type"_L1,                 "AB"_L1,        "VO"_L1,        "AB"_L1,        "VO"_L1,                "AB"_L1),
    feature("AB Sensor"_L1,               "AB Sensor"_L1,               on,             on,             on,             on,                     on),
    feature("MinABSensitivity"_L1,        "MinABSensitivity"_L1,        absent,         "0"_L1,         absent,         "0"_L1,                 absent),
    feature("MaxABSensitivity"_L1,        "MaxABSensitivity"_L1,        "10"_L1,        "10"_L1,        "10"_L1,        "10"_L1,                absent),
    feature("VOLightMeter"_L1,            "VOLightMeter"_L1,            absent,         on,             absent,         on,                     absent),
    feature("PIP PBP AB"_L1,              "PIP"_L1,                     off,            absent,         off,            on,                     on),
    feature("PIP PBP AB"_L1,              "PBP"_L1,                     off,            absent,         off,            on,                     on),
    feature("PIP PBP AB"_L1,              "PBP 3:1"_L1,                 absent,         absent,         absent,         on,                     on),
    feature("PIP PBP AB"_L1,              "PBP 2:1"_L1,                 absent,         absent,         absent,         on,                     absent),
    feature("PIP PBP AB"_L1,              "PBP 5:9"_L1,                 off,            absent,         off,            absent,                 off),
    feature("PIP PBP AB"_L1,              "PBPx4"_L1,                   off,            absent,         off,            off,                    off),
    feature("SwapPipPbpEnable"_L1,        "SwapPipPbpEnable"_L1,        absent,         absent,         absent,         on,                     on),
    feature("Input Source"_L1,            "DVI"_L1,                     off,            absent,         off,            absent,                 off),
    feature("Input Source"_L1,            "MiniDisplayPort"_L1,         off,            absent,         off,            absent,                 off),
    feature("Input Source"_L1,            "Thunderbolt3"_L1,            off,            absent,         off,            absent,                 off),
    feature("Input Source"_L1,            "HDMI"_L1,                    on,             on,             on,             on,                     absent),
    feature("Input Source"_L1,            "HDMI1"_L1,                   absent,         absent,         absent,         absent,                 on),
    feature("Input Source"_L1,            "HDMI2"_L1,                   absent,         absent,         absent,         absent,                 on),
    feature("Input Source"_L1,            "DisplayPort"_L1,             on,             on,             on,             on,                     on),
    feature("Input Source"_L1,            "USB-C"_L1,                   on,             on,             on,             on,                     on),
    feature("ICCSync"_L1,                 "ICCSync"_L1,                 off,            absent,         off,            absent,                 off),
    feature("Dualview"_L1,                "Dualview"_L1,                off,            absent,         off,            absent,                 absent),
    feature("DualviewPlus"_L1,            "DualviewPlus"_L1,            absent,         absent,         absent,         on,                     on),
    feature("SixAxis"_L1,                 "SixAxis"_L1,                 off,            absent,         off,            off,                    off),
    feature("NightProtection"_L1,         "NightProtection"_L1,         on,             on,             on,             on,                     on),
    feature("Shortcuts"_L1,               "Shortcuts"_L1,               on,             on,             on,             on,                     on),
    feature("Hidpi"_L1,                   "Hidpi"_L1,                   on,             on,             on,             on,                     on),
    feature("Resolution"_L1,              "Resolution"_L1,              on,             on,             on,             on,                     on),
    feature("ColorWeakness"_L1,           "ColorWeakness"_L1,           on,             on,             on,             on,                     on),
    feature("Brightness Sync"_L1,         "Brightness Sync"_L1,         on,             on,             on,             on,                     on),
    feature("Brightness"_L1,              "Brightness"_L1,              on,             on,             on,             on,                     on),
    feature("LowBlueLight"_L1,            "LowBlueLight"_L1,            "plus"_L1,      "normal"_L1,    "plus"_L1,      "normal"_L1,            "plus"_L1),
    feature("EcoPrivacy"_L1,              "EcoPrivacy"_L1,              on,             absent,         on,             on,                     on),
    feature("EcoPrivacy Options"_L1,      "EcoPrivacy Options"_L1,      shortPrivacy,   absent,         shortPrivacy,   "5,10,20,30,60,300,600"_L1, shortPrivacy),
    feature("EcoPrivacy Type"_L1,         "EcoPrivacy Type"_L1,         "Normal"_L1,    absent,         "Normal"_L1,    "BackGlow"_L1,          "Normal"_L1),
    feature("DaisyChain"_L1,              "DaisyChain"_L1,              on,             absent,         on,             on,                     on),
    feature("DaisyChainMacOS"_L1,         "DaisyChainMacOS"_L1,         off,            absent,         off,            off,                    off),
    feature("BackLightEnable"_L1,         "BackLightEnable"_L1,         absent,         absent,         on,             on,                     on),
    feature("AiContrast"_L1,              "AiContrast"_L1,              absent,         on,             absent,         on,                     absent),
    feature("AiContrast Type"_L1,         "AiContrast Type"_L1,         absent,         "LocalContrast"_L1, absent,     "LocalContrast"_L1,     absent),
    feature("ErpLot5"_L1,                 "ErpLot5"_L1,                 absent,         on,             absent,         on,                     absent),
    feature("LockStandardVersion"_L1,     "LockStandardVersion"_L1,     absent,         "2.0"_L1,       absent,         "2.0"_L1,               absent),
    feature("EcoLocking"_L1,              "EcoLocking"_L1,              absent,         on,             absent,         on,                     absent),
    feature("SmartKvm Type"_L1,           "SmartKvm Type"_L1,           absent,         absent,         absent,         "SmartKvmBasic"_L1,     absent),
    feature("Kvm"_L1,                     "Auto"_L1,                    absent,         absent,         absent,         on,                     absent),
    feature("Kvm"_L1,                     "TypeC"_L1,                   absent,         absent,         absent,         on,                     absent),
    feature("Kvm"_L1,                     "TypeB"_L1,                   absent,         absent,         absent,         on,                     absent),
    feature("Multi Monitor Sync"_L1,      "Multi Monitor Sync"_L1,      "TK10"_L1,      "TK20"_L1,      "TK30"_L1,      "TK30Z"_L1,             "TK40"_L1),
    feature("Multi Monitor Sync Modules"_L1, "Multi Monitor Sync Modules"_L1, synced,  syncedAi,       synced,         syncedAi,               synced),
};
// clang-format on

inline std::size_t featureColumn(QLatin1StringView model)
{
    constexpr std::array columns{"TK10"_L1, "TK20"_L1, "TK30"_L1, "TK30Z"_L1, "TK40"_L1};
    const QLatin1StringView first = model == "TK30X"_L1 ? "TK30"_L1 : model == "TK40X"_L1 ? "TK40"_L1 : model;
    for (std::size_t column = 0; column < columns.size(); ++column) {
        if (columns[column] == first)
            return column;
    }
    return columns.size();
}

} // namespace SchemaTables
