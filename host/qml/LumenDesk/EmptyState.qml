// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// What the window says when there is nothing to control, and what to look at.
Column {
    id: state

    spacing: LuStyle.space
    topPadding: LuStyle.spaceHuge
    bottomPadding: LuStyle.spaceLarge

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 72
        height: 72
        radius: 36
        color: LuStyle.accentSoft
        LuIcon {
            anchors.centerIn: parent
            name: "monitor-off"
            size: 36
            color: LuStyle.accentText
        }
    }
    Item {
        width: 1
        height: LuStyle.spaceHalf
    }
    LuLabel {
        width: parent.width
        kind: LuLabel.Title
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: qsTr("No supported monitor found")
    }
    LuLabel {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        color: LuStyle.textDim
        lineHeight: 1.2
        text: qsTr("Plug one in and it appears here by itself.")
    }
    Item {
        width: 1
        height: LuStyle.spaceHalf
    }
    Rectangle {
        width: parent.width
        height: checks.height + 2 * LuStyle.spaceWide
        radius: LuStyle.radius
        color: LuStyle.card
        border.width: 1
        border.color: LuStyle.line
        Column {
            id: checks
            x: LuStyle.spaceWide
            y: LuStyle.spaceWide
            width: parent.width - 2 * LuStyle.spaceWide
            spacing: LuStyle.space + 2
            Repeater {
                model: [
                    { "picture": "cable", "label": qsTr("The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.") },
                    { "picture": "sliders", "label": qsTr("DDC/CI is switched on in the monitor's own menu.") },
                    { "picture": "key", "label": qsTr("This account may use the I2C devices: install the device rule or join the group \"i2c\", then log in again.") }
                ]
                Item {
                    id: check
                    required property var modelData
                    width: checks.width
                    height: Math.max(20, sentence.implicitHeight)
                    LuIcon {
                        id: picture
                        name: check.modelData.picture
                        color: LuStyle.textDim
                        size: 20
                    }
                    LuLabel {
                        id: sentence
                        anchors.left: picture.right
                        anchors.leftMargin: LuStyle.spaceWide
                        anchors.right: parent.right
                        y: Math.max(0, (20 - implicitHeight) / 2)
                        wrapMode: Text.WordWrap
                        lineHeight: 1.15
                        text: check.modelData.label
                    }
                }
            }
        }
    }
}
