// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// A line of text that moves to and fro where it is wider than its place; with reduced motion it is cut.
Item {
    id: marquee

    property string text
    property alias kind: label.kind
    property alias color: label.color
    property alias repeatsName: label.repeatsName
    readonly property real excess: Math.max(0, label.implicitWidth - width)
    readonly property bool moves: excess > 0 && LuStyle.motion > 0 && visible

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight
    clip: excess > 0

    LuLabel {
        id: label
        width: marquee.moves ? implicitWidth : marquee.width
        text: marquee.text
    }
    SequentialAnimation {
        running: marquee.moves
        loops: Animation.Infinite
        onRunningChanged: {
            if (!running)
                label.x = 0
        }
        PauseAnimation { duration: 1500 }
        NumberAnimation { target: label; property: "x"; from: 0; to: -marquee.excess; duration: Math.max(1, marquee.excess) * 30 }
        PauseAnimation { duration: 1500 }
        NumberAnimation { target: label; property: "x"; from: -marquee.excess; to: 0; duration: Math.max(1, marquee.excess) * 30 }
    }
}
