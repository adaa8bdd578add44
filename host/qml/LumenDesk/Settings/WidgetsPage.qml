// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// Which widgets the main window shows, and in which order.
LuPage {
    id: page

    property var widgets: []

    objectName: "widgetsPage"
    title: qsTr("Widgets")
    spacing: LuStyle.spaceLarge

    LuLabel {
        width: page.width
        wrapMode: Text.WordWrap
        color: LuStyle.textDim
        text: page.widgets.length > 0 ? qsTr("Choose what the window shows, and in which order.") : qsTr("Widgets can be arranged while a supported monitor is connected.")
    }
    ArrangeList {
        width: page.width
        visible: page.widgets.length > 0
        widgets: page.widgets
    }
}
