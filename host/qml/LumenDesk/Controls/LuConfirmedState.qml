// SPDX-License-Identifier: Apache-2.0
import QtQuick

// Lets a check follow its `confirmed` again when the monitor has not taken what the user chose for a while.
Timer {
    id: state

    // A check of any kind with a `confirmed` property.
    required property var control
    readonly property var confirmed: control.confirmed
    readonly property bool differs: confirmed !== undefined && control.checked !== confirmed

    interval: 2500
    onDiffersChanged: differs ? restart() : stop()
    onTriggered: control.checked = Qt.binding(() => state.control.confirmed ?? false)
}
