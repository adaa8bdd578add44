// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// Tells why a function is not available, over the main window, until the user has read it.
FocusScope {
    id: warning

    // The function's name.
    property string text
    property string message: qsTr("%1 is not available in the current color mode.").arg(text)
    signal closed()

    objectName: "warningWindow"
    anchors.fill: parent
    z: 1000
    visible: false

    Accessible.role: Accessible.Dialog
    Accessible.name: text
    Accessible.description: message

    function open(): void {
        visible = true
        confirm.forceActiveFocus(Qt.PopupFocusReason)
        appear.start()
    }

    function close(): void {
        visible = false
        closed()
    }

    Keys.onEscapePressed: warning.close()
    // Focus stays inside while the warning is there.
    Keys.onTabPressed: event => event.accepted = true
    Keys.onBacktabPressed: event => event.accepted = true

    NumberAnimation {
        id: appear
        target: warning
        property: "opacity"
        from: LuStyle.motion > 0 ? 0 : 1
        to: 1
        duration: LuStyle.motion
    }

    Rectangle {
        anchors.fill: parent
        radius: LuStyle.radiusWindow
        color: LuStyle.scrim
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            onClicked: warning.close()
            onWheel: event => event.accepted = true
        }
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * LuStyle.spaceHuge, 292)
        height: column.implicitHeight + 2 * LuStyle.spaceLarge
        radius: LuStyle.radiusWindow
        color: LuStyle.raised
        border.width: 1
        border.color: LuStyle.line
        MouseArea {
            anchors.fill: parent
        }

        Column {
            id: column
            x: LuStyle.spaceLarge
            y: LuStyle.spaceLarge
            width: parent.width - 2 * LuStyle.spaceLarge
            spacing: LuStyle.spaceWide

            Row {
                width: parent.width
                spacing: LuStyle.space
                LuIcon {
                    name: "warning"
                    anchors.verticalCenter: title.verticalCenter
                    color: LuStyle.accentText
                }
                LuLabel {
                    id: title
                    width: parent.width - 20 - parent.spacing
                    kind: LuLabel.Title
                    repeatsName: true
                    wrapMode: Text.WordWrap
                    text: warning.text
                }
            }
            LuLabel {
                width: parent.width
                wrapMode: Text.WordWrap
                color: LuStyle.textDim
                lineHeight: 1.2
                text: warning.message
            }
            LuButton {
                id: confirm
                objectName: "warningConfirm"
                anchors.right: parent.right
                kind: LuButton.Highlighted
                text: qsTr("OK")
                focus: true
                onClicked: warning.close()
            }
        }
    }
}
