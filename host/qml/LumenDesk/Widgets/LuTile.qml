// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Controls
import LumenDesk.Style

// A round button with its name below; filled while the feature is active.
LuWidgetBase {
    id: tile

    readonly property LuWidgetImage widgetImage: LuWidgetImage { }
    // Whether the button tells of an on and off.
    property bool checkable: true

    placement: "tile"
    currentImage: {
        if (active && String(widgetImage.checked))
            return widgetImage.checked
        return button.hovered && String(widgetImage.hovered) ? widgetImage.hovered : widgetImage.normal
    }
    implicitWidth: LuStyle.scaled(72)
    implicitHeight: LuStyle.tile + LuStyle.spaceHalf + 2 + label.implicitHeight
    opacity: LuStyle.dim(tile)

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
        Accessible.checkable: tile.checkable
        Accessible.checked: tile.active
        Accessible.onPressAction: button.assistivePress()

        contentItem: Item {
            LuTileDisc {
                id: disc
                anchors.horizontalCenter: parent.horizontalCenter
                images: tile.widgetImage
                image: tile.currentImage
                active: tile.active
                hovered: button.hovered
                pressed: button.down

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
                maximumLineCount: 3
            }
        }
    }
}
