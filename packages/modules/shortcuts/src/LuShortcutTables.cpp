// SPDX-License-Identifier: Apache-2.0
#include "LuShortcutTables.h"

#include <LuShared/LuUtils.h>
#include <ZrCore/ZrEnvironment.h>

#include <QFile>
#include <QHash>
#include <QMetaEnum>
#include <QXmlStreamReader>

#include <algorithm>
#include <iterator>

namespace LuShortcutTables {

namespace {

struct Row
{
    ActionName name;
    const char* text;
};

constexpr Row usageWords[] = {
    // clang-format off
    {LuShortcutAction::Input_SwitchtoUSBC,                 "input_usbc"},
    {LuShortcutAction::Input_SwitchtoDisplayport,          "input_dp"},
    {LuShortcutAction::Input_SwitchtoHDMI,                 "input_hdmi"},
    {LuShortcutAction::Input_SwitchtoHDMI1,                "input_hdmi1"},
    {LuShortcutAction::Input_SwitchtoHDMI2,                "input_hdmi2"},
    {LuShortcutAction::Input_SwitchtoHDMI3,                "input_hdmi3"},
    {LuShortcutAction::Input_SwitchtoThunderbolt3,         "input_thunderbolt3"},
    {LuShortcutAction::ColorMode_LoopAllColorMode,         "colorMode_loop"},
    {LuShortcutAction::ColorMode_SwitchtoCoding,           "colorMode_coding"},
    {LuShortcutAction::ColorMode_SwitchtoCodingLightTheme, "colorMode_codingLight"},
    {LuShortcutAction::ColorMode_SwitchtoCodingDarkTheme,  "colorMode_codingDark"},
    {LuShortcutAction::ColorMode_SwitchtoStandard,         "colorMode_standard"},
    {LuShortcutAction::ColorMode_SwitchtoMbook,            "colorMode_mBook"},
    {LuShortcutAction::ColorMode_SwitchtoCinema,           "colorMode_cinema"},
    {LuShortcutAction::ColorMode_SwitchtoePaper,           "colorMode_ePaper"},
    {LuShortcutAction::ColorMode_SwitchtoUser,             "colorMode_user"},
    {LuShortcutAction::ColorMode_SwitchtosRGB,             "colorMode_sRGB"},
    {LuShortcutAction::ColorMode_SwitchtoGame,             "colorMode_game"},
    {LuShortcutAction::ColorMode_SwitchtoCinemaHDRi,       "colorMode_cinemaHdri"},
    {LuShortcutAction::ColorMode_SwitchtoGameHDRi,         "colorMode_gameHdri"},
    {LuShortcutAction::ColorMode_SwitchtoHDR,              "colorMode_hdr"},
    {LuShortcutAction::ColorMode_SwitchtoRec709,           "colorMode_rec709"},
    {LuShortcutAction::ColorMode_SwitchtoDisplayP3,        "colorMode_displayP3"},
    {LuShortcutAction::ColorMode_SwitchtoDCIP3,            "colorMode_dcip3"},
    {LuShortcutAction::ColorMode_SwitchtoUser1,            "colorMode_user1"},
    {LuShortcutAction::ColorMode_SwitchtoUser2,            "colorMode_user1"}, // counted with the first
    {LuShortcutAction::ColorMode_SwitchtoCodingPaperColor, "colorMode_codingPaperColor"},
    {LuShortcutAction::Brightness_Decrease,                "brightness_decrease"},
    {LuShortcutAction::Brightness_Increase,                "brightness_increase"},
    {LuShortcutAction::Volume_Decrease,                    "volume_decrease"},
    {LuShortcutAction::Volume_Increase,                    "volume_increase"},
    {LuShortcutAction::Volume_Mute,                        "volume_mute"},
    {LuShortcutAction::Volume_LoopAllSpeakerOutput,        "volume_loop"},
    {LuShortcutAction::NightProtection_Decrease,           "nhp_decrease"},
    {LuShortcutAction::NightProtection_Increase,           "nhp_increase"},
    {LuShortcutAction::EcoPrivacy_TurnOnOff,               "ecoPrivacy_switch"},
    {LuShortcutAction::ExtraCopyPaste_Copy,                "extra_copy"},
    {LuShortcutAction::ExtraCopyPaste_Paste,               "extra_paste"},
    // clang-format on
};
static_assert(std::size(usageWords) == 38);

constexpr Row colorModes[] = {
    // clang-format off
    {LuShortcutAction::ColorMode_SwitchtoCoding,           "Coding"},
    {LuShortcutAction::ColorMode_SwitchtoCodingLightTheme, "Coding - Light Theme"},
    {LuShortcutAction::ColorMode_SwitchtoCodingDarkTheme,  "Coding - Dark Theme"},
    {LuShortcutAction::ColorMode_SwitchtoStandard,         "Standard"},
    {LuShortcutAction::ColorMode_SwitchtoMbook,            "M-book"},
    {LuShortcutAction::ColorMode_SwitchtoCinema,           "Cinema"},
    {LuShortcutAction::ColorMode_SwitchtoePaper,           "ePaper"},
    {LuShortcutAction::ColorMode_SwitchtoUser,             "User"},
    {LuShortcutAction::ColorMode_SwitchtosRGB,             "sRGB"},
    {LuShortcutAction::ColorMode_SwitchtoGame,             "Game"},
    {LuShortcutAction::ColorMode_SwitchtoCinemaHDRi,       "Cinema HDRi"},
    {LuShortcutAction::ColorMode_SwitchtoGameHDRi,         "Game HDRi"},
    {LuShortcutAction::ColorMode_SwitchtoHDR,              "HDR"},
    {LuShortcutAction::ColorMode_SwitchtoRec709,           "Rec.709"},
    {LuShortcutAction::ColorMode_SwitchtoDisplayP3,        "Display-P3"},
    {LuShortcutAction::ColorMode_SwitchtoDCIP3,            "DCI-P3"},
    {LuShortcutAction::ColorMode_SwitchtoUser1,            "User1"},
    {LuShortcutAction::ColorMode_SwitchtoUser2,            "User2"},
    {LuShortcutAction::ColorMode_SwitchtoCodingPaperColor, "Coding - Paper Color"},
    // clang-format on
};
static_assert(std::size(colorModes) == 19);

constexpr const char* reservedTexts[] = {
    // clang-format off
    "Ctrl+X",           "Ctrl+C",          "Ctrl+V",        "Ctrl+Z",
    "Alt+F4",           "Alt+A",           "Alt+F8",        "Alt+Space",
    "Alt+Right",        "Alt+Left",
    "Ctrl+F4",          "Ctrl+A",          "Ctrl+D",        "Ctrl+E",
    "Ctrl+R",           "Ctrl+F5",         "Ctrl+Y",
    "Ctrl+Right",       "Ctrl+Left",       "Ctrl+Up",       "Ctrl+Down",
    "Alt+Shift+Right",  "Alt+Shift+Left",  "Alt+Shift+Up",  "Alt+Shift+Down",
    "Ctrl+Shift+Right", "Ctrl+Shift+Left", "Ctrl+Shift+Up", "Ctrl+Shift+Down",
    "Ctrl+Space+Right", "Ctrl+Space+Left", "Ctrl+Space+Up", "Ctrl+Space+Down",
    "Ctrl+Space",       "Shift+F10",
    "Shift+Right",      "Shift+Left",      "Shift+Up",      "Shift+Down",
    // clang-format on
};
static_assert(std::size(reservedTexts) == 39);

template <std::size_t count>
QString textOf(const Row (&rows)[count], ActionName name)
{
    const auto* const found =
        std::find_if(std::begin(rows), std::end(rows), [name](const Row& row) { return row.name == name; });
    return found == std::end(rows) ? QString() : QString::fromLatin1(found->text);
}

QHash<ActionName, QString> readDefaults(const QString& resource)
{
    QHash<ActionName, QString> defaults;
    QFile file(LuUtils::schemaFile(resource));
    if (!file.open(QIODevice::ReadOnly))
        return defaults;
    const QString column = ZrEnvironment::deviceClass() == QLatin1String("osx") ? QStringLiteral("MacKeys")
                                                                                : QStringLiteral("WinKeys");
    QXmlStreamReader reader(&file);
    // The entries of these files stay open, so that the end of the root is an error in all of them.
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("Entry"))
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        const QString keys = attributes.value(column).toString();
        bool known = false;
        const int name = QMetaEnum::fromType<ActionName>().keyToValue(
            attributes.value(QLatin1String("Name")).toLatin1().constData(), &known);
        if (known && !keys.isEmpty())
            defaults.insert(ActionName(name), keys);
    }
    return defaults;
}

} // namespace

QString usageWord(ActionName name)
{
    return textOf(usageWords, name);
}

QString colorModeOf(ActionName name)
{
    return textOf(colorModes, name);
}

ActionName actionOfColorMode(const QString& displayName)
{
    const auto* const found = std::find_if(std::begin(colorModes), std::end(colorModes), [&](const Row& row) {
        return displayName == QLatin1String(row.text);
    });
    return found == std::end(colorModes) ? LuShortcutAction::ColorMode_NotSupported : found->name;
}

const QList<QKeySequence>& reserved()
{
    static const QList<QKeySequence> sequences = [] {
        QList<QKeySequence> list;
        for (const char* text : reservedTexts)
            list.append(QKeySequence::fromString(QLatin1String(text), QKeySequence::PortableText));
        return list;
    }();
    return sequences;
}

bool hasOwner(ActionTitle title)
{
    switch (title) {
    case LuActionInterface::Input:
    case LuActionInterface::Brightness:
    case LuActionInterface::Volume:
    case LuActionInterface::NightProtection:
    case LuActionInterface::EcoPrivacy:
    case LuActionInterface::KvmSwitch:
        return true;
    default:
        return false;
    }
}

QString settingKey(ActionTitle title, ActionName name)
{
    const QString titleKey = QString::fromLatin1(QMetaEnum::fromType<ActionTitle>().valueToKey(title));
    QString nameKey = QString::fromLatin1(QMetaEnum::fromType<ActionName>().valueToKey(name));
    nameKey.remove(titleKey + QLatin1Char('_'));
    return titleKey + QLatin1Char('/') + nameKey;
}

QString defaultKeys(const QString& resource, ActionName name)
{
    static QHash<QString, QHash<ActionName, QString>> files;
    auto file = files.constFind(resource);
    if (file == files.constEnd())
        file = files.insert(resource, readDefaults(resource));
    return file->value(name);
}

} // namespace LuShortcutTables
