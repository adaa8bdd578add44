// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk.Style

// A free window for on-screen feedback: above all others, without frame, and never taking the focus.
Window {
    id: window

    default property alias content: surface.data
    property string text
    // Feedback goes by itself after this time in ms; 0 keeps it.
    property int timeout: 2000

    title: text
    color: "transparent"
    flags: Qt.ToolTip | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint | Qt.WindowDoesNotAcceptFocus | Qt.WindowTransparentForInput

    function open(): void {
        visible = true
        if (timeout > 0)
            away.restart()
    }

    Timer {
        id: away
        interval: window.timeout
        onTriggered: window.visible = false
    }
    Rectangle {
        id: surface
        anchors.fill: parent
        radius: LuStyle.radiusWindow
        color: LuStyle.raised
        border.width: 1
        border.color: LuStyle.line
    }
}
