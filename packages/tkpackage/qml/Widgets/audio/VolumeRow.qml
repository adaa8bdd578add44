// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// The row of the window: how loud the monitor is, on a slider behind a glyph that opens the page.
Item {
    id: row

    required property LuWidgetBase widget
    required property MonitorVolume state
    // The user left the slider at another value.
    signal settled(int value)

    width: parent ? parent.width : implicitWidth
    implicitHeight: Math.max(title.implicitHeight, 32)

    LuRowTitle {
        id: title
        anchors.left: parent.left
        anchors.leftMargin: -LuStyle.spaceHalf
        anchors.verticalCenter: parent.verticalCenter
        widget: row.widget
        iconName: row.state.iconOf(slider.value)
        labelVisible: false
    }
    LuSlider {
        id: slider
        objectName: "volumeSlider"
        anchors.left: title.right
        anchors.leftMargin: LuStyle.spaceHalf
        anchors.right: number.left
        anchors.rightMargin: LuStyle.space
        anchors.verticalCenter: parent.verticalCenter
        text: row.widget.text
        from: 0
        to: row.state.maximum
        stepSize: 1
        enabled: row.state.played
        confirmedValue: row.state.shown
        onMoved: row.state.take(value)
        onSettled: row.settled(Math.round(value))
    }
    LuLabel {
        id: number
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(24, metrics.width)
        horizontalAlignment: Text.AlignRight
        kind: LuLabel.Value
        repeatsName: true
        enabled: slider.enabled
        text: Math.round(slider.value)
    }
    TextMetrics {
        id: metrics
        font: number.font
        text: "100"
    }
}
