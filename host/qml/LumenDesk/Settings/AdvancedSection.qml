// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// One section of the advanced settings: a column below the section's title, which the settings window draws.
//
// It is offered while `requirements` hold and its own `visible` is not false. The settings window makes it with the
// current monitor, and removes it when the window closes or another monitor becomes current.
Column {
    id: section

    property var monitor: null
    // As the file without ".qml", such as "SectionFlow".
    property string sectionName
    property string title
    // What the section is about, in a line below the title.
    property string description
    property bool requirements: true
    readonly property bool isCurrentModel: monitor?.isCurrentModel ?? false

    visible: requirements
    spacing: LuStyle.spaceLarge

    Accessible.role: Accessible.Pane
    Accessible.name: title
}
