// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// The surface on which a detail page lies: title, way out, and the page, scrolling where the screen is low.
FocusScope {
    id: panel

    property Component page: null
    property real maximumHeight: 600
    // A page says its title and may say its width.
    readonly property var content: loader.item
    readonly property string title: content?.title ?? ""
    // Children with anchors have no width before the panel has one, so the page asks for it.
    readonly property real wantedWidth: content?.shownWidth ?? LuStyle.pageWidth
    signal closeRequested()

    objectName: "pagePanel"
    implicitWidth: wantedWidth
    implicitHeight: Math.min(maximumHeight, head.height + loader.implicitHeight + LuStyle.spaceLarge)
    focus: true

    Accessible.role: Accessible.Pane
    Accessible.name: title

    Keys.onEscapePressed: panel.closeRequested()

    // Keyboard users land on the first control of the page.
    function focusFirst(): void {
        forceActiveFocus()
        const first = nextItemInFocusChain(true)
        if (first)
            first.forceActiveFocus(Qt.OtherFocusReason)
    }

    Rectangle {
        anchors.fill: parent
        radius: LuContext.translucentWindows ? LuStyle.radiusWindow : 0
        color: LuStyle.background
        border.width: 1
        border.color: LuStyle.line
        MouseArea {
            anchors.fill: parent
        }
    }
    Item {
        id: head
        width: parent.width
        height: Math.max(52, heading.implicitHeight + 2 * LuStyle.spaceWide)
        LuLabel {
            id: heading
            anchors.left: parent.left
            anchors.leftMargin: LuStyle.spaceLarge
            anchors.right: control.item ? control.left : back.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            kind: LuLabel.Title
            wrapMode: Text.WordWrap
            text: panel.title
        }
        Loader {
            id: control
            anchors.right: back.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            sourceComponent: panel.content?.titleControl ?? null
        }
        LuIconButton {
            id: back
            objectName: "pageClose"
            anchors.right: parent.right
            anchors.rightMargin: LuStyle.spaceWide
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Close")
            iconName: "close"
            onClicked: panel.closeRequested()
        }
    }
    Flickable {
        id: view
        anchors.top: head.bottom
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        contentHeight: loader.implicitHeight + LuStyle.spaceLarge
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: interactive
        T.ScrollBar.vertical: LuScrollBar { }

        Loader {
            id: loader
            x: LuStyle.spaceLarge
            width: view.width - 2 * LuStyle.spaceLarge
            sourceComponent: panel.page
        }
    }
}
