// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style
import "../.."

// The two windows of a layout: the main input, and the one beside or over it.
Column {
    id: rows

    required property var widget
    readonly property var pipPbp: widget?.pipPbp ?? null
    // A layout without rows of its own gets those of the small window.
    readonly property var kind: {
        switch (pipPbp?.mode) {
        case LuPipPbp.PBP:
            return { "pictures": ["ico48_pbp_a-left", "ico48_pbp_a-right"], "labels": [qsTr("Main:"), qsTr("Sub:")], "source": "pbpSource" }
        case LuPipPbp.PBP5_9:
            return { "pictures": ["ico48_pbp_b-l", "ico48_pbp_b-r"], "labels": [qsTr("16 : 9"), qsTr("9 : 5")], "source": "pbp5_9Source" }
        case LuPipPbp.PBP3_1:
            return { "pictures": ["ico48_pbp_d-l", "ico48_pbp_d-s"], "labels": [qsTr("Left:"), qsTr("Right:")], "source": "pbp3_1Source" }
        case LuPipPbp.PBP2_1:
            return { "pictures": ["ico48_pbp_b-l", "ico48_pbp_b-r"], "labels": [qsTr("Left:"), qsTr("Right:")], "source": "pbp2_1Source" }
        default:
            return { "pictures": ["ico48_pip-main", "ico48_pip-sub"], "labels": [qsTr("Main:"), qsTr("Sub:")], "source": "pipSource" }
        }
    }

    spacing: LuStyle.space

    SourceRow {
        widget: rows.widget
        picture: rows.kind.pictures[0]
        label: rows.kind.labels[0]
        current: rows.widget?.inputSource?.currentMainInputSource ?? ""
        onChosen: source => rows.widget.inputSource.currentMainInputSource = source
    }
    SourceRow {
        widget: rows.widget
        picture: rows.kind.pictures[1]
        label: rows.kind.labels[1]
        current: rows.pipPbp?.[rows.kind.source] ?? ""
        onChosen: source => {
            rows.pipPbp[rows.kind.source] = source
            rows.widget.checkMonitorList()
        }
    }
}
