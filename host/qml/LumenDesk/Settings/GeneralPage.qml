// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// How the program looks, speaks and starts.
LuPage {
    id: page

    readonly property var themes: [
        { "theme": "system", "label": qsTr("Follow the desktop") },
        { "theme": "light", "label": qsTr("Light") },
        { "theme": "dark", "label": qsTr("Dark") },
        { "theme": "contrast", "label": qsTr("High contrast") }
    ]

    objectName: "generalPage"
    title: qsTr("General")
    spacing: LuStyle.spaceLarge

    LuLabel {
        width: page.width
        kind: LuLabel.Strong
        wrapMode: Text.WordWrap
        text: qsTr("Theme")
    }
    Grid {
        id: themeGrid
        width: page.width
        columns: 4
        columnSpacing: LuStyle.spaceWide
        Repeater {
            model: page.themes
            ThemeCard {
                required property var modelData
                width: Math.floor((themeGrid.width - 3 * themeGrid.columnSpacing) / 4)
                height: themeGrid.tallest
                theme: modelData.theme
                text: modelData.label
            }
        }
        readonly property real tallest: {
            let height = 0
            for (let i = 0; i < children.length; ++i)
                height = Math.max(height, children[i].implicitHeight)
            return height
        }
    }
    SettingsCard {
        SettingsRow {
            text: qsTr("Language")
            last: true
            LuComboBox {
                objectName: "languageBox"
                text: qsTr("Language")
                readonly property var entries: LuPreferences.languages.map(entry => entry.code ? entry.name : qsTr("As the desktop"))
                readonly property int chosen: LuPreferences.languages.findIndex(entry => entry.code === LuPreferences.language)
                model: entries
                currentIndex: chosen
                onEntriesChanged: currentIndex = chosen
                onActivated: index => LuPreferences.language = LuPreferences.languages[index].code
            }
        }
    }
    SettingsCard {
        SettingsRow {
            text: qsTr("Start at login")
            description: qsTr("Schedules and shortcuts work from the moment that you log in.")
            LuSwitch {
                text: qsTr("Start at login")
                enabled: LuPreferences.canStartAtLogin
                confirmed: LuPreferences.startAtLogin
                onToggled: LuPreferences.startAtLogin = checked
            }
        }
        SettingsRow {
            text: qsTr("Keep running when the window is closed")
            description: LuPreferences.trayVisible ? qsTr("The icon in the tray brings the window back.") : qsTr("Starting Lumen Desk again brings the window back.")
            LuSwitch {
                text: qsTr("Keep running when the window is closed")
                confirmed: LuPreferences.closeToTray
                onToggled: LuPreferences.closeToTray = checked
            }
        }
        SettingsRow {
            text: qsTr("Restore my settings at start")
            description: qsTr("Monitors get the values of your last session. Switched off, they keep what they have.")
            last: true
            LuSwitch {
                text: qsTr("Restore my settings at start")
                confirmed: LuPreferences.restoreAtStart
                onToggled: LuPreferences.restoreAtStart = checked
            }
        }
    }
}
