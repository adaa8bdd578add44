// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
import LumenDesk.Style

// A free window for on-screen feedback: above all others, without frame, never taking the focus nor a click.
//
// It stands on the screen of `monitor`, in the middle across and at `verticalShare` of the room above it; a screen that
// is no larger than the window has it at its corner. A session that would give it the focus (Wayland without Plasma's
// shell) does not get to see it: it closes as it is opened.
Window {
    id: window

    default property alias content: surface.data
    property string text
    // The monitor that the feedback is about; without one it stands on the first screen.
    property var monitor: null
    // How far down it stands: 0 is the upper edge, 1 the lower.
    property real verticalShare: 5 / 6
    // Feedback goes by itself after this time in ms; 0 keeps it.
    property int timeout: 2000
    property bool shown: false
    signal closed()

    title: text
    color: LuContext.translucentWindows ? "transparent" : LuStyle.raised
    flags: Qt.ToolTip | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint | Qt.WindowDoesNotAcceptFocus | Qt.WindowTransparentForInput
    visible: false

    LayoutMirroring.enabled: LuContext.rightToLeft
    LayoutMirroring.childrenInherit: true

    // Shows it, or lets it stay for its time anew.
    function open(): void {
        if (!place()) {
            closed()
            return
        }
        shown = true
        visible = true
        if (timeout > 0)
            away.restart()
    }

    // False where the session would give it the focus.
    function place(): bool {
        const screen = LuContext.screenGeometry(monitor)
        const left = screen.x + Math.max(0, Math.round((screen.width - width) / 2))
        const top = screen.y + Math.max(0, Math.round((screen.height - height) * verticalShare))
        if (!LuContext.canPlaceWindows)
            return LuContext.placeFeedback(window, Qt.point(left, top))
        x = left
        y = top
        return true
    }

    onWidthChanged: if (shown) place()
    onHeightChanged: if (shown) place()
    onMonitorChanged: if (shown) place()
    onVisibleChanged: {
        if (visible || !shown)
            return
        shown = false
        away.stop()
        closed()
    }

    Timer {
        id: away
        interval: window.timeout
        onTriggered: window.visible = false
    }
    Rectangle {
        id: surface
        anchors.fill: parent
        radius: LuContext.translucentWindows ? LuStyle.radiusWindow : 0
        color: LuStyle.raised
        border.width: 1
        border.color: LuStyle.line
        Accessible.role: Accessible.AlertMessage
        Accessible.name: window.text
    }
}
