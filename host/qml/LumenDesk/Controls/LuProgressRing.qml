// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// Something is under way: an arc that turns once a second. With reduced motion it stands still.
Item {
    id: ring

    property int size: 40
    property bool running: visible
    property string text: qsTr("Please wait…")

    implicitWidth: size
    implicitHeight: size
    Accessible.role: Accessible.ProgressBar
    Accessible.name: text

    LuIcon {
        id: arc
        anchors.fill: parent
        name: "progress"
        size: ring.size
        color: LuStyle.accentText
        RotationAnimator on rotation {
            from: 0
            to: 360
            duration: 1000
            loops: Animation.Infinite
            running: ring.running && LuStyle.motion > 0
        }
    }
}
