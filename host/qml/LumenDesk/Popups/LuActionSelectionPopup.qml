// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Widgets

// Offers the actions that a flow does not have yet.
LuSelectionWindow {
    id: popup

    // {"title": number, "name": text} of each.
    property var choices: []
    property int chosen: choices.length > 0 ? choices[0].title : 0

    objectName: "actionSelection"
    title: qsTr("Set an Action")
    confirmText: qsTr("Next")
    confirmEnabled: choices.length > 0

    LuLabel {
        width: parent?.width ?? 0
        visible: popup.choices.length === 0
        wrapMode: Text.WordWrap
        text: qsTr("This flow has every action that the monitor offers.")
    }
    Repeater {
        model: popup.choices
        LuRadio {
            required property var modelData
            anchors.left: parent?.left
            text: modelData.name
            checked: popup.chosen === modelData.title
            onClicked: popup.chosen = modelData.title
        }
    }
}
