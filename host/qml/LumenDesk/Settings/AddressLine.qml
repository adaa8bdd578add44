// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// Asks for the address of a computer, with the button that uses it.
Item {
    id: line

    property string text
    property string buttonText
    property bool cancelable: false
    signal entered(string address)
    signal canceled()

    width: parent ? parent.width : implicitWidth
    implicitHeight: Math.max(48, row.implicitHeight + 2 * LuStyle.spaceWide)
    onVisibleChanged: field.text = ""

    Row {
        id: row
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: LuStyle.space
        LuTextField {
            id: field
            objectName: line.objectName + ".field"
            width: row.width - go.width - row.spacing - (line.cancelable ? back.width + row.spacing : 0)
            anchors.verticalCenter: parent.verticalCenter
            name: line.text
            placeholderText: "192.168.1.7"
            maximumLength: 253
            inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
            onAccepted: {
                if (go.enabled)
                    go.clicked()
            }
        }
        LuButton {
            id: back
            anchors.verticalCenter: parent.verticalCenter
            visible: line.cancelable
            text: qsTr("Cancel")
            onClicked: line.canceled()
        }
        LuButton {
            id: go
            objectName: line.objectName + ".go"
            anchors.verticalCenter: parent.verticalCenter
            enabled: field.text.trim().length > 0
            text: line.buttonText
            onClicked: line.entered(field.text.trim())
        }
    }
}
