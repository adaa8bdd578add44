// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// A widget of full width that brings its own layout; the shell gives the width, the content the height.
LuWidgetBase {
    id: widget

    default property alias content: body.data

    implicitWidth: targetWidth
    implicitHeight: Math.max(LuStyle.rowHeight, targetHeight, body.childrenRect.height + 2 * LuStyle.space)

    Rectangle {
        anchors.fill: parent
        radius: LuStyle.radius
        color: LuStyle.card
        border.width: 1
        border.color: LuStyle.line
    }
    Item {
        id: body
        anchors.fill: parent
        anchors.leftMargin: LuStyle.spaceWide
        anchors.rightMargin: LuStyle.spaceWide
        anchors.topMargin: LuStyle.space
        anchors.bottomMargin: LuStyle.space
    }
}
