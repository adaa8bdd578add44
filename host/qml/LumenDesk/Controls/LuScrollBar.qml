// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A thin bar that shows while there is more than fits.
T.ScrollBar {
    id: control

    implicitWidth: 8
    implicitHeight: 8
    padding: 2
    minimumSize: 0.1
    // What fits but for a rounding error needs no bar.
    visible: size < 0.995 && policy !== T.ScrollBar.AlwaysOff
    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: 4
        implicitHeight: 4
        radius: 2
        color: LuStyle.outline
        opacity: control.pressed ? 1 : control.active || control.hovered ? 0.8 : 0.4
        Behavior on opacity {
            NumberAnimation { duration: LuStyle.motion }
        }
    }
}
