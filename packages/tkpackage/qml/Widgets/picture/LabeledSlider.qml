// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// A slider of a page below its name and its number.
Column {
    id: row

    property string text
    property alias from: slider.from
    property alias to: slider.to
    property alias confirmed: slider.confirmed
    // Colour of a spot before the name, for sliders that belong to a colour.
    property color spot: "transparent"
    signal chosen(int value)

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.spaceHalf
    opacity: enabled ? 1 : LuStyle.disabledOpacity

    Item {
        width: parent.width
        height: Math.max(20, name.implicitHeight)
        Rectangle {
            id: dot
            anchors.verticalCenter: parent.verticalCenter
            width: visible ? 10 : 0
            height: 10
            radius: 5
            visible: row.spot.a > 0
            color: row.spot
            border.width: 1
            border.color: LuStyle.line
        }
        LuLabel {
            id: name
            anchors.left: dot.right
            anchors.leftMargin: dot.visible ? LuStyle.space : 0
            anchors.right: number.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            repeatsName: true
            text: row.text
        }
        LuLabel {
            id: number
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            kind: LuLabel.Value
            repeatsName: true
            text: Math.round(slider.value)
        }
    }
    FollowingSlider {
        id: slider
        width: parent.width
        text: row.text
        // The column shows it already.
        opacity: 1
        onChosen: value => row.chosen(value)
    }
}
