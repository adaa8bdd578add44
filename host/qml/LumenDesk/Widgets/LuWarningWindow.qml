// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls

// Tells why something is not available, over the main window, until the user has read it. `text` is the title, as a rule
// the function's name; without a `message` of its own it tells that the colour mode forbids the function.
LuDialog {
    id: warning

    property string text

    objectName: "warningWindow"
    title: text
    message: qsTr("%1 is not available in the current color mode.").arg(text)
    iconName: "warning"
    firstFocus: confirm

    buttons: LuButton {
        id: confirm
        objectName: "warningConfirm"
        kind: LuButton.Highlighted
        text: qsTr("OK")
        focus: true
        onClicked: warning.close()
    }
}
