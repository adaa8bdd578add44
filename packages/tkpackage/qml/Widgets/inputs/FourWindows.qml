// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Style
import "../.."

// The four windows of a layout; the upper left one is the main input.
Grid {
    id: grid

    required property var widget
    readonly property var pipPbp: widget?.pipPbp ?? null
    readonly property real cell: Math.min(202, (width - columnSpacing) / 2)

    columns: 2
    // Each stands where its window does, on a mirrored page too.
    layoutDirection: LuContext.rightToLeft ? Qt.RightToLeft : Qt.LeftToRight
    columnSpacing: LuStyle.space
    rowSpacing: LuStyle.space

    SourceRow {
        widget: grid.widget
        width: grid.cell
        picture: "ico48_pbp_c-LT"
        name: qsTr("Upper left")
        current: grid.widget?.inputSource?.currentMainInputSource ?? ""
        onChosen: source => grid.widget.inputSource.currentMainInputSource = source
    }
    SourceRow {
        widget: grid.widget
        width: grid.cell
        picture: "ico48_pbp_c-RT"
        name: qsTr("Upper right")
        current: grid.pipPbp?.pbp4SourceList[0] ?? ""
        onChosen: source => grid.pipPbp.setPbp4Source(LuPipPbp.WindowSelectPBP2, source)
    }
    SourceRow {
        widget: grid.widget
        width: grid.cell
        picture: "ico48_pbp_c-LB"
        name: qsTr("Lower left")
        current: grid.pipPbp?.pbp4SourceList[1] ?? ""
        onChosen: source => grid.pipPbp.setPbp4Source(LuPipPbp.WindowSelectPBP3, source)
    }
    SourceRow {
        widget: grid.widget
        width: grid.cell
        picture: "ico48_pbp_c-RB"
        name: qsTr("Lower right")
        current: grid.pipPbp?.pbp4SourceList[2] ?? ""
        onChosen: source => grid.pipPbp.setPbp4Source(LuPipPbp.WindowSelectPBP4, source)
    }
}
