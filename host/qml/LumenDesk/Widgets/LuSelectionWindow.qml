// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls

// Asks before something is done, over the main window. confirmed() is the only way to a yes: Escape and a click beside
// the card cancel.
LuDialog {
    id: selection

    property string confirmText: qsTr("OK")
    property string cancelText: qsTr("Cancel")
    // What is confirmed cannot be undone.
    property bool caution: false
    property bool confirmEnabled: true
    signal confirmed()
    signal canceled()

    objectName: "selectionWindow"
    firstFocus: confirm

    function dismiss(): void {
        cancel()
    }

    function cancel(): void {
        canceled()
        close()
    }

    buttons: [
        LuButton {
            id: confirm
            objectName: "selectionConfirm"
            kind: selection.caution ? LuButton.Caution : LuButton.Highlighted
            text: selection.confirmText
            enabled: selection.confirmEnabled
            onClicked: {
                selection.confirmed()
                selection.close()
            }
        },
        LuButton {
            objectName: "selectionCancel"
            text: selection.cancelText
            onClicked: selection.cancel()
        }
    ]
}
