// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// The surface on which a detail page lies: title, way out, and the page, scrolling where the screen is low. A sub-page
// that the page leads to slides in over it, with a way back.
FocusScope {
    id: panel

    property Component page: null
    property real maximumHeight: 600
    // The panel lies over the window's own controls: the tabulator stays inside.
    property bool covering: false
    // How the page was asked for: who came by the keyboard sees where it is.
    property int focusReason: Qt.OtherFocusReason
    // A page says its title and may say its width.
    readonly property var content: loader.item
    // The sub-page that is shown in place of the page, or null.
    readonly property LuSubPage subPage: content?.openSubPage ?? null
    readonly property string title: subPage?.title ?? content?.title ?? ""
    // Children with anchors have no width before the panel has one, so the page asks for it.
    readonly property real wantedWidth: content?.shownWidth ?? LuStyle.pageWidth
    readonly property Item focused: Window.activeFocusItem
    // Which way a sub-page comes from.
    readonly property int side: LuContext.rightToLeft ? -1 : 1
    signal closeRequested()

    objectName: "pagePanel"
    implicitWidth: wantedWidth
    implicitHeight: Math.min(maximumHeight, head.height + (subPage?.implicitHeight ?? loader.implicitHeight) + LuStyle.spaceLarge)
    focus: true

    Accessible.role: Accessible.Pane
    Accessible.name: title

    Keys.onEscapePressed: {
        if (!panel.stepBack())
            panel.closeRequested()
    }

    // Keyboard users land on the first control of the page.
    function focusFirst(): void {
        forceActiveFocus()
        fence.stops(panel)[0]?.forceActiveFocus(focusReason)
    }

    // Leaves the sub-page; false if none is open.
    function stepBack(): bool {
        if (!subPage)
            return false
        content.openSubPage = null
        return true
    }

    function holds(page: Item, item: Item): bool {
        for (let each = item; each; each = each.parent) {
            if (each === page)
                return true
        }
        return false
    }

    // What has the focus is shown: the tabulator goes from the page to its sub-pages and back.
    onFocusedChanged: {
        if (!content?.subPages || !focused)
            return
        if (subPage && holds(loader.item, focused))
            content.openSubPage = null
        for (let i = 0; i < content.subPages.length; ++i) {
            if (holds(content.subPages[i], focused))
                content.openSubPage = content.subPages[i]
        }
    }
    onSubPageChanged: {
        // Whoever asked for the other page goes on there.
        const shown = subPage ?? loader.item
        if (!shown || !focused || holds(shown, focused) || !holds(panel, focused))
            return
        const first = shown.nextItemInFocusChain(true)
        if (first && holds(shown, first))
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
    LuFocusFence {
        id: fence
        around: panel
        before: true
        enabled: panel.covering
    }
    Item {
        id: head
        width: parent.width
        height: Math.max(52, heading.implicitHeight + 2 * LuStyle.spaceWide)
        LuIconButton {
            id: back
            objectName: "pageBack"
            anchors.left: parent.left
            anchors.leftMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            visible: panel.subPage !== null
            text: qsTr("Back")
            iconName: mirrored ? "forward" : "back"
            onClicked: panel.stepBack()
        }
        LuLabel {
            id: heading
            anchors.left: back.visible ? back.right : parent.left
            anchors.leftMargin: back.visible ? LuStyle.spaceHalf : LuStyle.spaceLarge
            anchors.right: control.item ? control.left : away.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            kind: LuLabel.Title
            wrapMode: Text.WordWrap
            text: panel.title
        }
        Loader {
            id: control
            anchors.right: away.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            visible: panel.subPage === null
            sourceComponent: panel.content?.titleControl ?? null
        }
        LuIconButton {
            id: away
            objectName: "pageClose"
            anchors.right: parent.right
            anchors.rightMargin: LuStyle.spaceWide
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Close")
            iconName: "close"
            onClicked: panel.closeRequested()
        }
    }

    // One page, scrolling where the screen is low; while it is not shown it stands aside.
    component View: Flickable {
        id: scroller

        property bool aside: false
        property int asideX: 0

        x: aside ? asideX : 0
        width: body.width
        height: body.height
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: interactive
        T.ScrollBar.vertical: LuScrollBar { }
        Behavior on x {
            enabled: views.count > 0
            NumberAnimation {
                duration: LuStyle.motion
                easing.type: Easing.OutCubic
            }
        }
        LuScrollToFocus {
            view: scroller
        }
    }
    Item {
        id: body
        anchors.top: head.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: views.count > 0

        View {
            aside: panel.subPage !== null
            asideX: -panel.side * width
            contentHeight: loader.implicitHeight + LuStyle.spaceLarge

            Loader {
                id: loader
                x: LuStyle.spaceLarge
                width: parent.width - 2 * LuStyle.spaceLarge
                sourceComponent: panel.page
            }
        }
        Repeater {
            id: views
            model: panel.content?.subPages ?? []
            View {
                id: subView
                required property LuSubPage modelData

                aside: panel.subPage !== modelData
                asideX: panel.side * width
                contentHeight: modelData.implicitHeight + LuStyle.spaceLarge
                onAsideChanged: contentY = 0

                Binding {
                    target: subView.modelData
                    property: "parent"
                    value: subView.contentItem
                }
                Binding {
                    target: subView.modelData
                    property: "x"
                    value: LuStyle.spaceLarge
                }
                Binding {
                    target: subView.modelData
                    property: "width"
                    value: subView.width - 2 * LuStyle.spaceLarge
                }
            }
        }
    }
    LuFocusFence {
        around: panel
        enabled: panel.covering
    }
}
