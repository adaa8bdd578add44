// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// The pages of one window, one of which shows. `model` is a list of texts.
T.TabBar {
    id: bar

    property string text
    property var model: []

    implicitWidth: contentItem.implicitWidth
    implicitHeight: LuStyle.scaled(36)
    spacing: LuStyle.spaceHalf
    Accessible.role: Accessible.PageTabList
    Accessible.name: text

    contentItem: ListView {
        implicitWidth: contentWidth
        model: bar.contentModel
        currentIndex: bar.currentIndex
        spacing: bar.spacing
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        // Rows are cheap: none is made ahead and late.
        cacheBuffer: 0
        highlightMoveDuration: LuStyle.motion
    }
    background: Rectangle {
        y: bar.height - 1
        height: 1
        implicitHeight: 1
        color: LuStyle.line
    }
    Repeater {
        model: bar.model
        T.TabButton {
            id: tab

            required property string modelData

            implicitWidth: label.implicitWidth + 2 * LuStyle.spaceWide
            implicitHeight: LuStyle.scaled(36)
            width: implicitWidth
            text: modelData
            focusPolicy: Qt.StrongFocus
            hoverEnabled: true
            Accessible.role: Accessible.PageTab
            Accessible.name: text
            Accessible.checkable: true
            Accessible.checked: checked
            Accessible.onPressAction: tab.assistivePress()

            // What a click does, for assistive software and scripts.
            function assistivePress(): void {
                checked = true
                clicked()
            }

            background: Item {
                Rectangle {
                    anchors.fill: parent
                    anchors.bottomMargin: 4
                    radius: LuStyle.radiusSmall
                    color: tab.down ? LuStyle.press : tab.hovered && !tab.checked ? LuStyle.hover : "transparent"
                    LuFocusRing {
                        control: tab
                        gap: -2
                    }
                }
                Rectangle {
                    x: LuStyle.spaceWide
                    y: parent.height - 2
                    width: parent.width - 2 * LuStyle.spaceWide
                    height: 2
                    radius: 1
                    color: LuStyle.accentText
                    visible: tab.checked
                }
            }
            contentItem: LuLabel {
                id: label
                repeatsName: true
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                text: tab.text
                font.weight: tab.checked ? LuStyle.weightStrong : Font.Normal
                color: tab.checked ? LuStyle.text : LuStyle.textDim
            }
        }
    }
}
