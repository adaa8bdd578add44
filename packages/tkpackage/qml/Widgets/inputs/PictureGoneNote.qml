// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// Tells that this computer's picture goes away with its input, and how it comes back.
Column {
    id: note

    required property var widget
    // The connector that this computer is on.
    property string home
    signal backRequested()

    readonly property var shortcuts: widget?.monitor?.shortcuts ?? null
    // Topic and actions of the table of shortcuts.
    readonly property int inputTopic: 1
    readonly property var actions: ({ "USB-C": 0, "DisplayPort": 1, "HDMI": 2, "HDMI1": 3, "HDMI2": 4, "HDMI3": 27, "Thunderbolt3": 38 })
    readonly property string keys: home in actions ? shortcuts?.shortcutCombo?.(inputTopic, actions[home]) ?? "" : ""
    readonly property bool keysWork: keys.length > 0 && (shortcuts?.active || false)
    readonly property string name: widget?.translator.inputSource(home) ?? home

    spacing: LuStyle.spaceHalf

    LuSeparator { }
    LuLabel {
        objectName: "pictureGoneText"
        width: parent.width
        topPadding: LuStyle.spaceHalf
        kind: LuLabel.Caption
        wrapMode: Text.WordWrap
        color: LuStyle.text
        text: note.keysWork
              ? qsTr("This computer's picture goes away with its input. %1 brings it back.").arg(note.keys)
              : qsTr("This computer's picture goes away with its input. Choose %1 in the monitor's menu to bring it back.").arg(note.name)
    }
    Flow {
        width: parent.width
        spacing: LuStyle.space
        LuButton {
            kind: LuButton.Link
            leftPadding: 0
            text: qsTr("Back to %1").arg(note.name)
            onClicked: note.backRequested()
        }
        LuButton {
            kind: LuButton.Link
            leftPadding: 0
            visible: note.keys.length > 0 && !note.keysWork
            text: qsTr("Turn on shortcuts")
            onClicked: note.shortcuts.active = true
        }
    }
}
