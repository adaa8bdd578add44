// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// What the window says when there is nothing to control, and what to look at or to do.
Column {
    id: state

    // The monitor has widgets, but the user has taken all of them out of the window.
    property bool allHidden: false
    readonly property bool searching: LuContext.discovering && !allHidden
    readonly property string headline: allHidden ? qsTr("Every widget is hidden") : searching ? qsTr("Looking for monitors…") : qsTr("No supported monitor found")
    readonly property string explanation: allHidden ? qsTr("Bring back what you need; nothing was lost.") : searching ? qsTr("This takes a moment.") : qsTr("Plug one in and it appears here by itself.")
    signal arrangeRequested()

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
            name: state.allHidden ? "grid" : state.searching ? "monitor" : "monitor-off"
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
        text: state.headline
    }
    LuLabel {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        color: LuStyle.textDim
        lineHeight: 1.2
        text: state.explanation
    }
    LuButton {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: state.allHidden
        kind: LuButton.Highlighted
        text: qsTr("Arrange")
        onClicked: state.arrangeRequested()
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
        visible: !state.allHidden && !state.searching
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
                        anchors.left: parent.left
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
    Column {
        width: parent.width
        spacing: LuStyle.space
        topPadding: LuStyle.spaceHalf
        visible: !state.allHidden && !state.searching
        LuButton {
            objectName: "searchAgain"
            width: parent.width
            text: qsTr("Look again")
            onClicked: LuContext.searchRequested()
        }
        LuButton {
            objectName: "trySimulated"
            width: parent.width
            visible: LuContext.canSimulate
            text: qsTr("Try it with a simulated monitor")
            onClicked: LuContext.simulationRequested()
        }
    }
}
