// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// An explanation in a window of its own, to the left of the main window and level with its lower edge, beyond an open
// page. Made by a LuPopupLoader; a help button toggles it.
Window {
    id: hint

    property string text
    property string message
    // Further parts: a list of {"title", "text"}.
    property var entries: []
    default property alias content: extra.data
    readonly property var mainWindow: LuContext.mainWindow
    // The page's window stands at the same place, so the hint stands left of it.
    readonly property var neighbour: mainWindow?.pageWindow ?? mainWindow
    readonly property rect free: area(Screen.virtualX, Screen.desktopAvailableWidth, Screen.desktopAvailableHeight,
                                     LuContext.endlessRoom)
    signal closed()

    objectName: "hintWindow"
    title: text
    transientParent: mainWindow
    flags: Qt.Tool | Qt.FramelessWindowHint
    color: LuContext.translucentWindows ? "transparent" : LuStyle.background
    width: LuStyle.pageWidth
    height: Math.ceil(Math.min(column.implicitHeight + 2 * LuStyle.spaceLarge, free.height - 2 * LuStyle.space))
    visible: false
    onClosing: closed()

    LayoutMirroring.enabled: LuContext.rightToLeft
    LayoutMirroring.childrenInherit: true

    function area(...screen): rect {
        return LuContext.availableGeometry(mainWindow)
    }

    function open(): void {
        if (LuContext.canPlaceWindows && neighbour) {
            const left = neighbour.x - width - LuStyle.space
            const right = (mainWindow ?? neighbour).x + (mainWindow ?? neighbour).width + LuStyle.space
            x = left >= free.x ? left : Math.max(free.x, Math.min(right, free.x + free.width - width))
            y = Math.max(free.y, mainWindow.y + mainWindow.height - height)
        }
        visible = true
        requestActivate()
    }

    Shortcut {
        sequences: [StandardKey.Cancel]
        onActivated: hint.close()
    }

    Rectangle {
        anchors.fill: parent
        radius: LuContext.translucentWindows ? LuStyle.radiusWindow : 0
        color: LuStyle.background
        border.width: 1
        border.color: LuStyle.line
        Accessible.role: Accessible.Pane
        Accessible.name: hint.text
    }
    Flickable {
        anchors.fill: parent
        anchors.topMargin: LuStyle.spaceLarge
        anchors.bottomMargin: LuStyle.spaceLarge
        contentHeight: column.implicitHeight
        interactive: contentHeight > height + 1
        clip: interactive

        Column {
            id: column
            x: LuStyle.spaceLarge
            width: parent.width - 2 * LuStyle.spaceLarge
            spacing: LuStyle.spaceWide
            Item {
                width: parent.width
                implicitHeight: Math.max(28, heading.implicitHeight)
                LuLabel {
                    id: heading
                    anchors.left: parent.left
                    anchors.right: away.left
                    anchors.rightMargin: LuStyle.space
                    anchors.verticalCenter: parent.verticalCenter
                    kind: LuLabel.Title
                    wrapMode: Text.WordWrap
                    text: hint.text
                }
                LuIconButton {
                    id: away
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("Close")
                    iconName: "close"
                    onClicked: hint.close()
                }
            }
            LuLabel {
                width: parent.width
                visible: text.length > 0
                wrapMode: Text.WordWrap
                lineHeight: 1.2
                text: hint.message
            }
            Repeater {
                model: hint.entries
                Column {
                    id: entry
                    required property var modelData
                    width: column.width
                    spacing: LuStyle.spaceHalf
                    LuLabel {
                        width: parent.width
                        kind: LuLabel.Strong
                        wrapMode: Text.WordWrap
                        text: entry.modelData.title
                    }
                    LuLabel {
                        width: parent.width
                        wrapMode: Text.WordWrap
                        color: LuStyle.textDim
                        lineHeight: 1.2
                        text: entry.modelData.text
                    }
                }
            }
            Column {
                id: extra
                width: parent.width
                spacing: LuStyle.spaceWide
                visible: children.length > 0
            }
        }
    }
}
