// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// Asks for a name. One of `taken` is refused, with a word about it.
LuSelectionWindow {
    id: popup

    property alias name: field.text
    property var taken: []
    readonly property string wanted: field.text.trim()
    readonly property bool duplicate: taken.includes(wanted)

    objectName: "namePopup"
    confirmText: qsTr("Save")
    confirmEnabled: wanted.length > 0 && !duplicate
    firstFocus: field

    LuTextField {
        id: field
        width: parent?.width ?? 0
        name: qsTr("Name")
        placeholderText: qsTr("Name")
        maximumLength: 40
        onAccepted: {
            if (!popup.confirmEnabled)
                return
            popup.confirmed()
            popup.close()
        }
    }
    LuLabel {
        width: parent?.width ?? 0
        visible: popup.duplicate
        color: LuStyle.caution
        wrapMode: Text.WordWrap
        text: qsTr("There is one of that name already.")
    }
}
