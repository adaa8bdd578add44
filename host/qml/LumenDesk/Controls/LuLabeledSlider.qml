// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// A slider below its name, with its value at the end of the line. Two of them make the two-slider form of a page.
Column {
    id: form

    property string text
    // How the value reads; a panel may translate it, or write "-" while the feature is off.
    property string valueText: Number(slider.value).toLocaleString(Qt.locale(), "f", 0)
    // Below the ends of the line.
    property string startText
    property string endText
    readonly property alias slider: slider
    property alias from: slider.from
    property alias to: slider.to
    property alias stepSize: slider.stepSize
    property alias value: slider.value
    property alias confirmedValue: slider.confirmedValue
    property alias color: slider.color
    signal moved(real value)
    signal settled(real value)

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.spaceHalf

    Item {
        width: parent.width
        implicitHeight: Math.max(20, label.implicitHeight)
        LuLabel {
            id: label
            anchors.left: parent.left
            anchors.right: number.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            repeatsName: true
            wrapMode: Text.WordWrap
            text: form.text
        }
        LuLabel {
            id: number
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            kind: LuLabel.Value
            horizontalAlignment: Text.AlignRight
            text: form.valueText
        }
    }
    LuSlider {
        id: slider
        width: parent.width
        stepSize: 1
        text: form.text
        onMoved: form.moved(value)
        onSettled: form.settled(value)
    }
    Item {
        width: parent.width
        implicitHeight: start.implicitHeight
        visible: start.text.length > 0 || end.text.length > 0
        LuLabel {
            id: start
            anchors.left: parent.left
            kind: LuLabel.Caption
            text: form.startText
        }
        LuLabel {
            id: end
            anchors.right: parent.right
            kind: LuLabel.Caption
            text: form.endText
        }
    }
}
