// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// The editor of one action of a flow or an application mode.
//
// recordProps() is called before the user changes anything, restoreProps() when the editor is left without saving;
// both are the editor's own. accepted() carries what the action stores.
FocusScope {
    id: editor

    property var monitor: null
    property string title
    // What a stored action holds; empty for a new one.
    property var storedProperties: ({})
    default property alias content: body.data
    signal accepted(var properties)
    signal canceled()
    signal closed()

    anchors.fill: parent
    z: 1000
    Accessible.role: Accessible.Dialog
    Accessible.name: title

    function recordProps(): void { }
    function restoreProps(): void { }
    // The properties to store; editors redefine it.
    function collectProps(): var {
        return {}
    }

    // A stored value, or undefined.
    function actionProperty(name: string): var {
        return storedProperties[name]
    }

    function open(): void {
        recordProps()
        save.forceActiveFocus()
    }

    function cancel(): void {
        restoreProps()
        canceled()
        closed()
    }

    Keys.onEscapePressed: editor.cancel()

    Rectangle {
        anchors.fill: parent
        radius: LuStyle.radiusWindow
        color: LuStyle.scrim
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
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

        Column {
            id: column
            x: LuStyle.spaceLarge
            y: LuStyle.spaceLarge
            width: parent.width - 2 * LuStyle.spaceLarge
            spacing: LuStyle.spaceWide
            LuLabel {
                width: parent.width
                kind: LuLabel.Title
                text: editor.title
            }
            Column {
                id: body
                width: parent.width
                spacing: LuStyle.spaceWide
            }
            Row {
                anchors.right: parent.right
                spacing: LuStyle.space
                LuButton {
                    text: qsTr("Cancel")
                    onClicked: editor.cancel()
                }
                LuButton {
                    id: save
                    kind: LuButton.Highlighted
                    text: qsTr("Save")
                    onClicked: {
                        editor.accepted(editor.collectProps())
                        editor.closed()
                    }
                }
            }
        }
    }
}
