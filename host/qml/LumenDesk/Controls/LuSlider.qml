// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A value on a line, lying or upright.
//
// Bind `confirmedValue`, not `value`, to what the monitor holds: the handle follows it, except while the user moves it
// and until the monitor has taken that value; a tick shows the confirmed value meanwhile. Without it (NaN) the handle
// stays where it is put. moved() tells of each step of the user, released() of the end of a drag or a key, settled() of
// an end that left another value than there was before.
T.Slider {
    id: control

    property real confirmedValue: NaN
    property string text
    property color color: LuStyle.accent
    // Where the filled part begins: the start of the line, or a middle between two sides.
    property real origin: from
    // Milliseconds for each step while the monitor itself moves the value; 0 jumps.
    property int glideInterval: 0
    // What a key or the wheel moves where there is no step; 0 means a tenth of the line.
    property real keyStep: 0
    // The user's value is on its way.
    readonly property bool waiting: wait.running
    property real valueBefore: NaN
    signal released()
    signal settled()

    implicitWidth: horizontal ? 160 : LuStyle.scaled(20)
    implicitHeight: horizontal ? LuStyle.scaled(20) : 120
    padding: 0
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    live: true
    snapMode: stepSize > 0 ? T.Slider.SnapAlways : T.Slider.NoSnap
    opacity: LuStyle.dim(control)
    // Faded as one picture: the line does not show through the knob.
    layer.enabled: opacity < 1 && LuStyle.drawsLayers(GraphicsInfo.api, Screen.devicePixelRatio)
    onPressedChanged: {
        if (pressed) {
            valueBefore = value
            return
        }
        released()
        if (value !== valueBefore)
            settled()
        follow()
    }
    onMoved: {
        glide.stop()
        wait.restart()
    }
    onConfirmedValueChanged: follow()
    onFromChanged: follow()
    onToChanged: follow()
    Component.onCompleted: follow()

    Accessible.role: Accessible.Slider
    Accessible.name: text
    Accessible.onIncreaseAction: control.assistiveStep(1)
    Accessible.onDecreaseAction: control.assistiveStep(-1)

    function step(): real {
        return keyStep > 0 ? keyStep : stepSize > 0 ? stepSize : (to - from) / 10
    }

    // Takes the monitor's value, unless the user's is on its way.
    function follow(): void {
        if (isNaN(confirmedValue))
            return
        const target = Math.max(Math.min(from, to), Math.min(Math.max(from, to), confirmedValue))
        if (Math.abs(target - value) < 1e-9)
            wait.stop()
        if (pressed || wait.running)
            return
        const distance = Math.abs(target - value)
        if (glideInterval > 0 && distance > step() && LuStyle.motion > 0) {
            glide.to = target
            glide.duration = distance / step() * glideInterval
            glide.restart()
        } else {
            glide.stop()
            value = target
        }
    }

    // A drag and its release, for assistive software and scripts. False if the value lies outside the range.
    function assistiveSet(wanted: var): bool {
        const number = Number(wanted)
        if (isNaN(number) || number < Math.min(from, to) || number > Math.max(from, to))
            return false
        pressed = true
        value = stepSize > 0 ? from + Math.round((number - from) / stepSize) * stepSize : number
        moved()
        pressed = false
        return true
    }

    function assistiveStep(by: real): void {
        assistiveSet(Math.max(Math.min(from, to), Math.min(Math.max(from, to), value + by * step())))
    }

    NumberAnimation {
        id: glide
        target: control
        property: "value"
    }
    // The template knows its own step alone, and the keys along the line.
    function stepByKey(by: int, along: bool, event: var): void {
        if (along && keyStep === 0)
            event.accepted = false
        else
            assistiveStep(by)
    }
    Keys.onRightPressed: event => control.stepByKey(control.mirrored ? -1 : 1, control.horizontal, event)
    Keys.onLeftPressed: event => control.stepByKey(control.mirrored ? 1 : -1, control.horizontal, event)
    Keys.onUpPressed: event => control.stepByKey(1, !control.horizontal, event)
    Keys.onDownPressed: event => control.stepByKey(-1, !control.horizontal, event)
    Keys.onPressed: event => {
        // A page is a tenth of the line.
        const page = Math.max(1, Math.round((to - from) / 10 / step()))
        switch (event.key) {
        case Qt.Key_Home:
            assistiveSet(from)
            break
        case Qt.Key_End:
            assistiveSet(to)
            break
        case Qt.Key_PageUp:
            assistiveStep(page)
            break
        case Qt.Key_PageDown:
            assistiveStep(-page)
            break
        default:
            return
        }
        event.accepted = true
    }

    Timer {
        id: wait
        interval: 2500
        onTriggered: control.follow()
    }
    WheelHandler {
        enabled: control.enabled
        onWheel: event => control.assistiveStep(event.angleDelta.y + event.angleDelta.x > 0 ? 1 : -1)
    }

    background: Item {
        id: groove

        readonly property real handleAt: control.horizontal ? control.handle.x + control.handle.width / 2
                                                            : control.handle.y + control.handle.height / 2
        readonly property real originAt: {
            if (control.origin === control.from)
                return !control.horizontal ? height : control.mirrored ? width : 0
            const part = (control.origin - control.from) / (control.to - control.from)
            const fromStart = control.horizontal && !control.mirrored
            return 8 + ((control.horizontal ? width : height) - 16) * (fromStart ? part : 1 - part)
        }
        readonly property real confirmedPosition: (control.confirmedValue - control.from) / (control.to - control.from)
        readonly property real confirmedAt: {
            const half = control.handle.width / 2
            const run = (control.horizontal ? width : height) - 2 * half
            const fromStart = control.horizontal ? control.mirrored : true
            return half + run * (fromStart ? 1 - confirmedPosition : confirmedPosition)
        }

        Rectangle {
            x: control.horizontal ? 0 : (groove.width - width) / 2
            y: control.horizontal ? (groove.height - height) / 2 : 0
            width: control.horizontal ? groove.width : 4
            height: control.horizontal ? 4 : groove.height
            radius: 2
            color: LuStyle.track
            border.width: LuStyle.highContrast ? 1 : 0
            border.color: LuStyle.outline
        }
        Rectangle {
            x: !control.horizontal ? (groove.width - width) / 2 : Math.min(groove.originAt, groove.handleAt)
            y: control.horizontal ? (groove.height - height) / 2 : Math.min(groove.originAt, groove.handleAt)
            width: !control.horizontal ? 4 : Math.abs(groove.handleAt - groove.originAt)
            height: control.horizontal ? 4 : Math.abs(groove.handleAt - groove.originAt)
            radius: 2
            color: control.color
        }
        Rectangle {
            visible: !isNaN(groove.confirmedPosition)
                     && Math.abs(control.confirmedValue - control.value) > 0.5 * (control.stepSize > 0 ? control.stepSize : 0.01)
            x: (control.horizontal ? groove.confirmedAt : groove.width / 2) - width / 2
            y: (control.horizontal ? groove.height / 2 : groove.confirmedAt) - height / 2
            width: control.horizontal ? 2 : 10
            height: control.horizontal ? 10 : 2
            radius: 1
            color: LuStyle.accentText
        }
    }
    handle: Rectangle {
        x: control.horizontal ? control.visualPosition * (control.availableWidth - width) : (control.availableWidth - width) / 2
        y: control.horizontal ? (control.availableHeight - height) / 2 : control.visualPosition * (control.availableHeight - height)
        implicitWidth: LuStyle.scaled(16)
        implicitHeight: LuStyle.scaled(16)
        radius: width / 2
        color: LuStyle.thumb
        border.width: 1
        border.color: control.pressed || control.visualFocus ? control.color : LuStyle.outline
        scale: control.pressed ? 1.15 : control.hovered ? 1.06 : 1
        Behavior on scale {
            NumberAnimation { duration: LuStyle.motion }
        }
        LuFocusRing {
            control: control
            innerRadius: LuStyle.scaled(8)
        }
    }
}
