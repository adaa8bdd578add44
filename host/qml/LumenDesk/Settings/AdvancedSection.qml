// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// One section of the advanced settings. It shows while `requirements` hold.
Column {
    id: section

    property var monitor: null
    property string title
    property bool requirements: true

    visible: requirements
    spacing: LuStyle.spaceWide

    Accessible.role: Accessible.Pane
    Accessible.name: title

    LuLabel {
        kind: LuLabel.Title
        repeatsName: true
        text: section.title
    }
}
