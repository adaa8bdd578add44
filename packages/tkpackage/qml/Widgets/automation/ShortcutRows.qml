// SPDX-License-Identifier: Apache-2.0
import QtQml
import LumenDesk
import "../.."

// The functions of a monitor that have keys, by topic, in the order of the page.
QtObject {
    id: rows

    required property var monitor
    required property var shortcuts
    required property PackageStringsBase translator

    readonly property var inputs: [
        ["USB-C", LuShortcutAction.Input_SwitchtoUSBC],
        ["DisplayPort", LuShortcutAction.Input_SwitchtoDisplayport],
        ["HDMI", LuShortcutAction.Input_SwitchtoHDMI],
        ["HDMI1", LuShortcutAction.Input_SwitchtoHDMI1],
        ["HDMI2", LuShortcutAction.Input_SwitchtoHDMI2],
        ["HDMI3", LuShortcutAction.Input_SwitchtoHDMI3],
        ["Thunderbolt3", LuShortcutAction.Input_SwitchtoThunderbolt3],
    ]

    // Lists of {"text", "note", "rows": [{"title", "name", "text"}]}; topics without a row are left out.
    function groups(): var {
        if (!shortcuts)
            return []
        const all = [
            group(LuActionInterface.Input, qsTr("Input"), shortcuts.hasWidget("LuInputSourceWidget") ? inputRows() : []),
            group(LuActionInterface.ColorMode, qsTr("Color mode"), colorModeRows()),
            group(LuActionInterface.Brightness, qsTr("Brightness"), [
                [LuShortcutAction.Brightness_Decrease, qsTr("Decrease")],
                [LuShortcutAction.Brightness_Increase, qsTr("Increase")],
            ]),
            group(LuActionInterface.Volume, qsTr("Volume"), shortcuts.hasWidget("LuVolumeWidget") ? volumeRows() : []),
            group(LuActionInterface.NightProtection, qsTr("Night Hours Protection"), shortcuts.hasWidget("LuNightProtectionWidget") ? [
                [LuShortcutAction.NightProtection_Decrease, qsTr("Decrease")],
                [LuShortcutAction.NightProtection_Increase, qsTr("Increase")],
            ] : []),
            group(LuActionInterface.EcoPrivacy, qsTr("EcoPrivacy"), shortcuts.hasWidget("LuEcoPrivacyWidget") ? [
                [LuShortcutAction.EcoPrivacy_TurnOnOff, qsTr("TurnOn/Off")],
            ] : []),
            group(LuActionInterface.KvmSwitch, qsTr("KVM"), shortcuts.hasWidget("LuSmartKvmBasicWidget") ? [
                [LuShortcutAction.Kvm_LoopAllKvmSwitch, qsTr("Loop all KVM switch")],
            ] : []),
            group(LuActionInterface.ExtraCopyPaste, qsTr("Extra Copy/Paste"), [
                [LuShortcutAction.ExtraCopyPaste_Copy, qsTr("Copy")],
                [LuShortcutAction.ExtraCopyPaste_Paste, qsTr("Paste")],
            ], qsTr("This function supports image, text, file, and URL formats. Copying other types of content may impact the content of the clipboard.")),
        ]
        return all.filter(each => each.rows.length > 0)
    }

    function group(title: int, text: string, candidates: var, note: string): var {
        const listed = candidates.filter(row => isListed(title, row[0]))
        return {
            "text": text,
            "note": note ?? "",
            "rows": listed.map(row => ({ "title": title, "name": row[0], "text": row[1] })),
        }
    }

    // The loops of the sound have no keys at first: a person gives them some here.
    function isListed(title: int, name: int): bool {
        if (shortcuts.shortcutCombo(title, name) !== "")
            return true
        const isLoop = name === LuShortcutAction.Volume_LoopAllSpeakerOutput || name === LuShortcutAction.Volume_LoopAllAudioMode
        return isLoop && shortcuts.hasShortcut(name)
    }

    function inputRows(): var {
        const sources = monitor?.inputSource?.inputSourceList ?? []
        return inputs.filter(row => sources.includes(row[0]))
                     .map(row => [row[1], qsTr("Switch to %1").arg(translator.inputSource(row[0]))])
    }

    function colorModeRows(): var {
        let found = [[LuShortcutAction.ColorMode_LoopAllColorMode, qsTr("Loop all color mode")]]
        for (const mode of monitor?.colorModeList ?? []) {
            const name = shortcuts.stringToColorMode(mode.displayName)
            if (name !== LuShortcutAction.ColorMode_NotSupported)
                found.push([name, qsTr("Switch to %1").arg(translator.colorMode(mode))])
        }
        return found
    }

    function volumeRows(): var {
        const loop = [LuShortcutAction.Volume_LoopAllAudioMode, qsTr("Loop all Audio Mode")]
        const speakers = [LuShortcutAction.Volume_LoopAllSpeakerOutput, qsTr("Loop all speaker output")]
        if (Qt.platform.os === "osx")
            return [speakers, loop]
        return [
            [LuShortcutAction.Volume_Decrease, qsTr("Decrease")],
            [LuShortcutAction.Volume_Increase, qsTr("Increase")],
            [LuShortcutAction.Volume_Mute, qsTr("Mute")],
            speakers,
            loop,
        ]
    }
}
