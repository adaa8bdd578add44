// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
import LumenDesk.Style

// The window of a detail page, to the left of the main window and level with its lower edge.
Window {
    id: pageWindow

    required property Window mainWindow
    property alias page: panel.page
    property alias focusReason: panel.focusReason
    readonly property Item panelItem: panel
    // The room on the screen of the main window.
    required property rect free
    signal closeRequested()

    objectName: "pageWindow"
    title: panel.title
    transientParent: mainWindow
    flags: Qt.Tool | Qt.FramelessWindowHint
    color: LuContext.translucentWindows ? "transparent" : LuStyle.background
    width: panel.implicitWidth
    height: panel.implicitHeight
    x: mainWindow.x - width - LuStyle.space
    y: Math.max(free.y + LuStyle.space, mainWindow.y + mainWindow.height - height)
    visible: mainWindow.visible

    LayoutMirroring.enabled: LuContext.rightToLeft
    LayoutMirroring.childrenInherit: true

    onClosing: close => {
        close.accepted = false
        closeRequested()
    }

    PagePanel {
        id: panel
        width: parent.width
        height: parent.height
        maximumHeight: pageWindow.free.height - 2 * LuStyle.space
        onCloseRequested: pageWindow.closeRequested()
    }
    readonly property bool still: LuStyle.motion === 0
    // Who asks for no motion does not wait for the end of one.
    onStillChanged: appear.complete()

    ParallelAnimation {
        id: appear
        NumberAnimation {
            target: panel
            property: "x"
            from: LuStyle.spaceHuge
            to: 0
            duration: LuStyle.motion
            easing.type: Easing.OutCubic
        }
        NumberAnimation {
            target: panel
            property: "opacity"
            from: 0
            to: 1
            duration: LuStyle.motion
        }
    }
    Component.onCompleted: {
        if (LuStyle.motion > 0)
            appear.start()
        requestActivate()
        panel.focusFirst()
    }
}
