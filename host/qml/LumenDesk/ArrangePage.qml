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
    pageWidth: 300

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
