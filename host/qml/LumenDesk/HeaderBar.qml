// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk.Controls
import LumenDesk.Style

// Top of the window: which monitor, settings, close. Dragging it moves the window.
Item {
    id: bar

    required property Window window
    // A person has begun to move the window.
    signal moved()
    signal settingsClicked()
    signal closeClicked()

    implicitHeight: Math.max(62, switcher.implicitHeight + LuStyle.spaceLarge)

    DragHandler {
        target: null
        onActiveChanged: {
            if (active && bar.window.startSystemMove())
                bar.moved()
        }
    }
    MonitorSwitcher {
        id: switcher
        anchors.left: parent.left
        anchors.leftMargin: LuStyle.space
        anchors.right: buttons.left
        anchors.rightMargin: LuStyle.space
        anchors.verticalCenter: parent.verticalCenter
    }
    LuLabel {
        anchors.left: parent.left
        anchors.leftMargin: LuStyle.spaceLarge
        anchors.right: buttons.left
        anchors.verticalCenter: parent.verticalCenter
        visible: !switcher.visible
        kind: LuLabel.Title
        text: bar.window.title
    }
    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: LuStyle.spaceWide
        anchors.verticalCenter: parent.verticalCenter
        spacing: LuStyle.spaceHalf
        LuIconButton {
            objectName: "settingsButton"
            text: qsTr("Settings")
            iconName: "gear"
            onClicked: bar.settingsClicked()
        }
        LuIconButton {
            objectName: "closeButton"
            text: qsTr("Close")
            iconName: "close"
            onClicked: bar.closeClicked()
        }
    }
}
