// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// How the window looks: as the desktop, light or dark.
LuPage {
    id: page

    title: qsTr("Settings")

    LuLabel {
        kind: LuLabel.Strong
        text: qsTr("Theme")
    }
    Column {
        width: parent.width
        spacing: LuStyle.spaceHalf
        Repeater {
            model: [
                { "theme": "system", "label": qsTr("Follow the desktop") },
                { "theme": "light", "label": qsTr("Light") },
                { "theme": "dark", "label": qsTr("Dark") }
            ]
            LuRadio {
                required property var modelData
                text: modelData.label
                checked: LuContext.theme === modelData.theme
                onClicked: LuContext.theme = modelData.theme
            }
        }
    }
}
