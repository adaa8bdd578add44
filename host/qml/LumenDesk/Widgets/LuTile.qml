// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import LumenDesk.Controls
import LumenDesk.Style

// A round button with its name below; filled while the feature is active.
LuWidgetBase {
    id: tile

    readonly property LuWidgetImage widgetImage: LuWidgetImage { }

    placement: "tile"
    currentImage: active && String(widgetImage.checked) ? widgetImage.checked : widgetImage.normal
    implicitWidth: 72
    implicitHeight: LuStyle.tile + LuStyle.spaceHalf + 2 + label.implicitHeight
    opacity: enabled ? 1 : LuStyle.disabledOpacity

    T.AbstractButton {
        id: button

        objectName: tile.widgetName + ".button"
        readonly property url image: tile.currentImage
        anchors.fill: parent
        focusPolicy: Qt.StrongFocus
        hoverEnabled: true
        text: tile.text
        onClicked: tile.trigger()

        // What a click does, for the return key, assistive software and scripts.
        function assistivePress(): void {
            clicked()
        }

        Keys.onReturnPressed: button.assistivePress()
        Keys.onEnterPressed: button.assistivePress()

        Accessible.role: Accessible.Button
        Accessible.name: tile.text
        Accessible.checkable: true
        Accessible.checked: tile.active
        Accessible.onPressAction: button.assistivePress()

        contentItem: Item {
            Rectangle {
                id: disc
                readonly property bool lit: button.hovered || button.down
                anchors.horizontalCenter: parent.horizontalCenter
                width: LuStyle.tile
                height: LuStyle.tile
                radius: LuStyle.tile / 2
                color: tile.active ? (lit ? LuStyle.accentHover : LuStyle.accent) : (lit ? LuStyle.glyphFillHover : LuStyle.glyphFill)
                border.width: LuStyle.highContrast ? 1 : 0
                border.color: LuStyle.outline
                scale: button.down ? 0.94 : 1
                Behavior on color {
                    ColorAnimation { duration: LuStyle.motion }
                }
                Behavior on scale {
                    NumberAnimation { duration: LuStyle.motion; easing.type: Easing.OutCubic }
                }

                Image {
                    readonly property int pixels: Math.round(LuStyle.glyphSize * Screen.devicePixelRatio)
                    anchors.centerIn: parent
                    width: LuStyle.glyphSize
                    height: LuStyle.glyphSize
                    sourceSize.width: pixels
                    sourceSize.height: pixels
                    source: tile.currentImage
                }
                LuFocusRing {
                    control: button
                    innerRadius: LuStyle.tile / 2
                }
                // The page of this tile is open.
                Rectangle {
                    anchors.fill: parent
                    anchors.margins: -3
                    radius: width / 2
                    color: "transparent"
                    border.width: 1.5
                    border.color: LuStyle.accentText
                    visible: tile.pageOpen && !button.visualFocus
                }
            }
            LuLabel {
                id: label
                anchors.top: disc.bottom
                anchors.topMargin: LuStyle.spaceHalf + 2
                anchors.left: parent.left
                anchors.right: parent.right
                repeatsName: true
                text: tile.text
                color: LuStyle.text
                kind: LuLabel.Caption
                lineHeight: 1.1
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                maximumLineCount: 2
            }
        }
    }
}
