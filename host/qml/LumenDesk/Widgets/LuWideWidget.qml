// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Controls
import LumenDesk.Style

// A tile of the window's width: picture, name, a line of state, and a switch.
LuWidgetBase {
    id: wide

    readonly property LuWidgetImage widgetImage: LuWidgetImage { }
    property string description
    property bool switchVisible: true

    placement: "wide"
    currentImage: active && String(widgetImage.checked) ? widgetImage.checked : widgetImage.normal
    implicitHeight: LuStyle.tile + 2 * LuStyle.space
    opacity: LuStyle.dim(wide)

    T.AbstractButton {
        id: button

        objectName: wide.widgetName + ".button"
        readonly property url image: wide.currentImage
        anchors.fill: parent
        focusPolicy: Qt.StrongFocus
        hoverEnabled: true
        text: wide.text
        onClicked: wide.trigger()

        // What a click does, for the return key, assistive software and scripts.
        function assistivePress(): void {
            clicked()
        }

        Keys.onReturnPressed: button.assistivePress()
        Keys.onEnterPressed: button.assistivePress()
        Accessible.role: Accessible.Button
        Accessible.name: wide.text
        Accessible.onPressAction: button.assistivePress()

        background: Rectangle {
            radius: LuStyle.radius
            color: LuStyle.card
            border.width: 1
            border.color: LuStyle.line
            Rectangle {
                anchors.fill: parent
                radius: LuStyle.radius
                color: button.down ? LuStyle.press : button.hovered ? LuStyle.hover : "transparent"
            }
            LuFocusRing {
                control: button
                innerRadius: LuStyle.radius
                gap: 0
            }
        }
        contentItem: Item {
            LuTileDisc {
                id: disc
                anchors.left: parent.left
                anchors.leftMargin: LuStyle.spaceWide
                anchors.verticalCenter: parent.verticalCenter
                images: wide.widgetImage
                image: wide.currentImage
                active: wide.active
            }
            Column {
                anchors.left: disc.right
                anchors.right: parent.right
                anchors.leftMargin: LuStyle.spaceWide
                anchors.rightMargin: LuStyle.spaceWide + (toggle.visible ? toggle.width + LuStyle.spaceWide : 0)
                anchors.verticalCenter: parent.verticalCenter
                spacing: 1
                LuLabel {
                    width: parent.width
                    kind: LuLabel.Strong
                    repeatsName: true
                    text: wide.text
                }
                LuLabel {
                    width: parent.width
                    kind: LuLabel.Caption
                    visible: text.length > 0
                    text: wide.description
                }
            }
        }
    }
    LuSwitch {
        id: toggle
        anchors.right: parent.right
        anchors.rightMargin: LuStyle.spaceWide
        anchors.verticalCenter: parent.verticalCenter
        visible: wide.switchVisible
        text: wide.text
        confirmed: wide.active
        onToggled: wide.setActive(checked)
    }
}
