// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// The ring around a control that the keyboard is on; it stands outside the control's edge.
Rectangle {
    id: ring

    // Any control or text field.
    required property var control
    property real innerRadius: LuStyle.radiusSmall
    property int gap: 2
    property bool shown: control.visualFocus ?? control.activeFocus

    anchors.fill: parent
    anchors.margins: -gap - border.width
    radius: innerRadius + gap + border.width
    color: "transparent"
    border.width: LuStyle.focusWidth
    border.color: LuStyle.focus
    visible: shown
}
