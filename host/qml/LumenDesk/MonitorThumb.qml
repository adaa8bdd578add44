// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// A small picture of a monitor, upright where its desktop is; a notebook for the built-in panel.
Item {
    id: thumb

    property bool builtIn: false
    property bool upright: false
    property color frame: LuStyle.text

    implicitWidth: 32
    implicitHeight: 28
    Accessible.ignored: true

    Rectangle {
        id: panel
        anchors.horizontalCenter: parent.horizontalCenter
        y: thumb.builtIn ? 4 : thumb.upright ? 0 : 2
        width: thumb.upright && !thumb.builtIn ? 15 : thumb.builtIn ? 24 : 30
        height: thumb.upright && !thumb.builtIn ? 22 : thumb.builtIn ? 16 : 19
        radius: 3
        color: thumb.frame
        Rectangle {
            anchors.fill: parent
            anchors.margins: 1.5
            radius: 1.5
            gradient: Gradient {
                orientation: Gradient.Vertical
                GradientStop { position: 0; color: LuStyle.dark ? "#1E6FD0" : "#7FBBFF" }
                GradientStop { position: 1; color: LuStyle.dark ? "#0A2F63" : "#097BF8" }
            }
        }
    }
    Rectangle {
        visible: !thumb.builtIn
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: panel.bottom
        width: 3
        height: 3
        color: thumb.frame
    }
    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        y: thumb.builtIn ? 21 : panel.y + panel.height + 3
        width: thumb.builtIn ? 32 : 13
        height: thumb.builtIn ? 3 : 2
        radius: 1
        color: thumb.frame
    }
}
