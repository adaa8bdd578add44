// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// Lines of settings that belong together, with a rule between them.
Rectangle {
    id: card

    default property alias content: lines.data

    width: parent ? parent.width : implicitWidth
    implicitHeight: lines.implicitHeight + 2 * LuStyle.spaceHalf
    radius: LuStyle.radius
    color: LuStyle.card
    border.width: 1
    border.color: LuStyle.line

    Column {
        id: lines
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: LuStyle.spaceLarge
        anchors.rightMargin: LuStyle.spaceLarge
        anchors.verticalCenter: parent.verticalCenter
    }
}
