// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// The window's arrangement, beside the window itself.
LuPage {
    id: page

    property alias widgets: list.widgets

    objectName: "arrangePage"
    title: qsTr("Arrange")
    pageWidth: Math.round(300 * Math.max(1, LuStyle.fontScale))

    LuLabel {
        width: page.width
        wrapMode: Text.WordWrap
        color: LuStyle.textDim
        lineHeight: 1.2
        text: qsTr("Choose what the window shows, and in which order.")
    }
    ArrangeList {
        id: list
        width: page.width
    }
}
