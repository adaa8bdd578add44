// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Controls
import LumenDesk.Style

// A line of a page that leads to one of its sub-pages.
T.AbstractButton {
    id: link

    required property LuPage page
    required property LuSubPage target
    // A second, quieter line: what stands there.
    property string description

    width: parent ? parent.width : implicitWidth
    implicitHeight: Math.max(LuStyle.controlHeight, words.implicitHeight + LuStyle.space)
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    text: target.title
    opacity: LuStyle.dim(link)
    onClicked: page.openSubPage = target

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: description
    Accessible.onPressAction: link.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        clicked()
    }

    background: Rectangle {
        // Beyond the edge of the column, so that the words stay in line with those around.
        anchors.fill: parent
        anchors.leftMargin: -LuStyle.space
        anchors.rightMargin: -LuStyle.space
        radius: LuStyle.radiusSmall
        color: link.down ? LuStyle.press : link.hovered ? LuStyle.hover : "transparent"
        LuFocusRing {
            control: link
            gap: -2
        }
    }
    contentItem: Item {
        Column {
            id: words
            anchors.left: parent.left
            anchors.right: arrow.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2
            LuLabel {
                width: parent.width
                kind: LuLabel.Strong
                repeatsName: true
                wrapMode: Text.WordWrap
                text: link.text
            }
            LuLabel {
                width: parent.width
                visible: text.length > 0
                kind: LuLabel.Caption
                repeatsName: true
                wrapMode: Text.WordWrap
                text: link.description
            }
        }
        LuIcon {
            id: arrow
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            name: link.mirrored ? "back" : "forward"
            size: 18
            color: LuStyle.textDim
        }
    }
    Keys.onReturnPressed: link.assistivePress()
    Keys.onEnterPressed: link.assistivePress()
}
