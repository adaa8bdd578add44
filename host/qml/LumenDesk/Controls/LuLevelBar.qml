// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// A level in steps, to be looked at and not touched: on-screen feedback.
Item {
    id: bar

    property int levels: 16
    property int level: 0
    property string text

    implicitWidth: 120
    implicitHeight: 6
    Accessible.role: Accessible.ProgressBar
    Accessible.name: text

    Row {
        spacing: 2
        Repeater {
            model: bar.levels
            Rectangle {
                required property int index
                width: (bar.width - (bar.levels - 1) * 2) / bar.levels
                height: bar.height
                radius: 1.5
                color: index < bar.level ? LuStyle.accent : LuStyle.track
                border.width: LuStyle.highContrast ? 1 : 0
                border.color: LuStyle.outline
            }
        }
    }
}
