// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// Present values below an editor's controls, to be read only: a list of {"name", "value"}.
Rectangle {
    id: block

    property var entries: []

    width: parent ? parent.width : implicitWidth
    implicitWidth: 200
    implicitHeight: rows.implicitHeight + 2 * LuStyle.space
    visible: entries.length > 0
    radius: LuStyle.radiusSmall
    color: LuStyle.field
    border.width: LuStyle.highContrast ? 1 : 0
    border.color: LuStyle.outline

    Column {
        id: rows
        x: LuStyle.space + 2
        y: LuStyle.space
        width: parent.width - 2 * x
        spacing: LuStyle.spaceHalf
        Repeater {
            model: block.entries
            Item {
                id: row
                required property var modelData
                width: rows.width
                implicitHeight: Math.max(name.implicitHeight, value.implicitHeight)
                LuLabel {
                    id: name
                    anchors.left: parent.left
                    // A sentence without a value has the line for itself.
                    width: Math.min(implicitWidth, parent.width * (row.modelData.value ? 0.62 : 1))
                    kind: LuLabel.Caption
                    wrapMode: Text.WordWrap
                    color: LuStyle.text
                    text: row.modelData.name
                }
                LuLabel {
                    id: value
                    anchors.left: name.right
                    anchors.leftMargin: LuStyle.space
                    anchors.right: parent.right
                    horizontalAlignment: Text.AlignRight
                    kind: LuLabel.Caption
                    wrapMode: Text.WordWrap
                    color: LuStyle.text
                    font.weight: Font.Medium
                    text: row.modelData.value
                }
            }
        }
    }
}
