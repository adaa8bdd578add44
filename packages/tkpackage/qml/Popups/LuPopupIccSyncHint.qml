// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// Tells that the colour profile of the desktop follows the colour mode of the monitor.
LuWindow {
    id: _self


    text: qsTr("Color Sync")
    timeout: 4000
    width: 280
    height: column.implicitHeight + 2 * LuStyle.spaceLarge

    Row {
        id: column
        x: LuStyle.spaceLarge
        y: LuStyle.spaceLarge
        width: parent.width - 2 * LuStyle.spaceLarge
        spacing: LuStyle.spaceWide
        LuIcon {
            name: "palette"
            size: 28
        }
        Column {
            width: parent.width - 28 - parent.spacing
            spacing: LuStyle.spaceHalf
            LuLabel {
                width: parent.width
                kind: LuLabel.Strong
                text: _self.text
            }
            LuLabel {
                width: parent.width
                kind: LuLabel.Caption
                wrapMode: Text.WordWrap
                text: qsTr("The color profile of the desktop now follows the color mode of this monitor.")
            }
        }
    }
}
