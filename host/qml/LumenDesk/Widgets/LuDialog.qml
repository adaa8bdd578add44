// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// A card over the window that a person answers before anything else: title, text, what it brings, and its buttons.
FocusScope {
    id: dialog

    property string title
    property string message
    property string iconName
    property color iconColor: LuStyle.accentText
    property real cardWidth: 292
    default property alias content: body.data
    property alias buttons: actions.data
    // Takes the focus first; the last button if there is none.
    property Item firstFocus: null
    signal closed()

    anchors.fill: parent
    z: 1000
    visible: false

    Accessible.role: Accessible.Dialog
    Accessible.name: title
    Accessible.description: message

    function open(): void {
        visible = true
        if (firstFocus)
            firstFocus.forceActiveFocus(Qt.PopupFocusReason)
        else
            forceActiveFocus(Qt.PopupFocusReason)
        appear.start()
    }

    function close(): void {
        visible = false
        closed()
    }

    // What a click beside the card or Escape means.
    function dismiss(): void {
        close()
    }

    Keys.onEscapePressed: dialog.dismiss()

    readonly property bool still: LuStyle.motion === 0
    // Who asks for no motion does not wait for the end of one.
    onStillChanged: appear.complete()

    ParallelAnimation {
        id: appear
        NumberAnimation {
            target: dialog
            property: "opacity"
            from: LuStyle.motion > 0 ? 0 : 1
            to: 1
            duration: LuStyle.motion
        }
        NumberAnimation {
            target: card
            property: "scale"
            from: LuStyle.motion > 0 ? 0.96 : 1
            to: 1
            duration: LuStyle.motion
            easing.type: Easing.OutCubic
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: LuContext.translucentWindows ? LuStyle.radiusWindow : 0
        color: LuStyle.scrim
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            onClicked: dialog.dismiss()
            onWheel: event => event.accepted = true
        }
    }
    LuFocusFence {
        around: card
        before: true
    }
    LuSurface {
        id: card
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * LuStyle.spaceLarge, dialog.cardWidth * Math.max(1, LuStyle.fontScale))
        height: Math.min(parent.height - 2 * LuStyle.space, column.implicitHeight + 2 * LuStyle.spaceLarge)
        radius: LuStyle.radiusWindow
        reach: LuStyle.elevationDialog
        MouseArea {
            anchors.fill: parent
        }

        Flickable {
            id: sheet
            anchors.fill: parent
            anchors.topMargin: LuStyle.spaceLarge
            anchors.bottomMargin: LuStyle.spaceLarge
            contentHeight: column.implicitHeight
            interactive: contentHeight > height + 1
            clip: interactive
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: LuScrollBar { }
            LuScrollToFocus {
                view: sheet
            }

            Column {
                id: column
                x: LuStyle.spaceLarge
                width: card.width - 2 * LuStyle.spaceLarge
                spacing: LuStyle.spaceWide

                Row {
                    width: parent.width
                    spacing: LuStyle.space
                    visible: dialog.title.length > 0
                    LuIcon {
                        id: picture
                        name: dialog.iconName
                        visible: dialog.iconName.length > 0
                        y: (Math.min(heading.implicitHeight, titleMetrics.height) - height) / 2
                        color: dialog.iconColor
                    }
                    LuLabel {
                        id: heading
                        width: parent.width - (picture.visible ? picture.width + parent.spacing : 0)
                        kind: LuLabel.Title
                        repeatsName: true
                        wrapMode: Text.WordWrap
                        text: dialog.title
                    }
                    FontMetrics {
                        id: titleMetrics
                        font: heading.font
                    }
                }
                LuLabel {
                    width: parent.width
                    visible: text.length > 0
                    wrapMode: Text.WordWrap
                    color: LuStyle.textDim
                    lineHeight: 1.2
                    text: dialog.message
                }
                Column {
                    id: body
                    width: parent.width
                    spacing: LuStyle.spaceWide
                    visible: children.length > 0
                }
                Item {
                    width: parent.width
                    implicitHeight: actions.implicitHeight
                    visible: actions.children.length > 0
                    Flow {
                        id: actions
                        width: parent.width
                        spacing: LuStyle.space
                        layoutDirection: Qt.RightToLeft
                    }
                }
            }
        }
    }
    LuFocusFence {
        around: card
    }
}
