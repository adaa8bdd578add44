// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// What keeps monitors from being controlled until the user does something about it.
Column {
    id: notices

    readonly property real taken: visible ? implicitHeight + LuStyle.space : 0

    visible: LuContext.notices.length > 0
    spacing: LuStyle.space

    Repeater {
        model: LuContext.notices
        Rectangle {
            id: notice
            required property string modelData
            width: notices.width
            height: sentence.implicitHeight + 2 * LuStyle.spaceWide
            radius: LuStyle.radius
            color: LuStyle.card
            border.width: 1
            border.color: LuStyle.warningFill
            LuIcon {
                id: picture
                anchors.left: parent.left
                anchors.leftMargin: LuStyle.spaceWide
                y: LuStyle.spaceWide
                name: "key"
                color: LuStyle.textDim
                size: 20
            }
            LuLabel {
                id: sentence
                anchors.left: picture.right
                anchors.leftMargin: LuStyle.spaceWide
                anchors.right: parent.right
                anchors.rightMargin: LuStyle.spaceWide
                y: LuStyle.spaceWide
                wrapMode: Text.WordWrap
                lineHeight: 1.15
                text: notice.modelData
            }
        }
    }
}
