// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A value on a line. `confirmedValue` is what the monitor holds: while it differs from the value that is on its way, a
// tick shows it. NaN shows none. Listen to moved() for what the user does and to released for its end.
T.Slider {
    id: control

    property real confirmedValue: NaN
    property string text
    signal released()

    implicitWidth: 160
    implicitHeight: 20
    padding: 0
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    live: true
    snapMode: stepSize > 0 ? T.Slider.SnapAlways : T.Slider.NoSnap
    opacity: enabled ? 1 : LuStyle.disabledOpacity
    onPressedChanged: {
        if (!pressed)
            released()
    }

    Accessible.role: Accessible.Slider
    Accessible.name: text
    Accessible.onIncreaseAction: control.assistiveSet(control.value + step())
    Accessible.onDecreaseAction: control.assistiveSet(control.value - step())

    function step(): real {
        return stepSize > 0 ? stepSize : (to - from) / 10
    }

    // A drag and its release, for assistive software and scripts. False if the value lies outside the range.
    function assistiveSet(wanted: var): bool {
        const number = Number(wanted)
        if (isNaN(number) || number < from || number > to)
            return false
        pressed = true
        value = stepSize > 0 ? from + Math.round((number - from) / stepSize) * stepSize : number
        moved()
        pressed = false
        return true
    }

    WheelHandler {
        onWheel: event => {
            const wanted = control.value + (event.angleDelta.y > 0 ? 1 : -1) * control.step()
            control.assistiveSet(Math.max(control.from, Math.min(control.to, wanted)))
        }
    }

    background: Item {
        implicitHeight: 20
        Rectangle {
            y: 8
            width: parent.width
            height: 4
            radius: 2
            color: LuStyle.track
            border.width: LuStyle.highContrast ? 1 : 0
            border.color: LuStyle.outline
        }
        Rectangle {
            readonly property real extent: control.handle.x + control.handle.width / 2
            x: control.mirrored ? extent : 0
            y: 8
            width: control.mirrored ? parent.width - extent : extent
            height: 4
            radius: 2
            color: LuStyle.accent
        }
        Rectangle {
            readonly property real position: (control.confirmedValue - control.from) / (control.to - control.from)
            visible: !isNaN(position) && Math.abs(control.confirmedValue - control.value) > 0.5 * control.step()
            x: 8 + (parent.width - 16) * (control.mirrored ? 1 - position : position) - 1
            y: 5
            width: 2
            height: 10
            radius: 1
            color: LuStyle.accentText
        }
    }
    handle: Rectangle {
        x: control.visualPosition * (control.availableWidth - width)
        y: (control.availableHeight - height) / 2
        implicitWidth: 16
        implicitHeight: 16
        radius: 8
        color: LuStyle.thumb
        border.width: 1
        border.color: LuStyle.outline
        scale: control.pressed ? 1.15 : control.hovered ? 1.06 : 1
        Behavior on scale {
            NumberAnimation { duration: LuStyle.motion }
        }
        LuFocusRing {
            control: control
            innerRadius: 8
        }
    }
}
