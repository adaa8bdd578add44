// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A whole number with a step up and down, and round again at its ends. A value outside the range is shown, highlighted;
// the first step from it goes into the range. edited() tells of the user alone.
FocusScope {
    id: control

    property string text
    property int value: 0
    property int from: 0
    property int to: 59
    property int digits: 2
    property bool highlighted: value < from || value > to
    readonly property int stepSize: 1
    signal edited(int value)

    implicitWidth: Math.max(LuStyle.scaled(48), input.implicitWidth + 2 * LuStyle.spaceWide)
    implicitHeight: input.implicitHeight + 2 * LuStyle.scaled(24) + 2 * LuStyle.spaceHalf
    opacity: LuStyle.dim(control)
    activeFocusOnTab: true

    Accessible.role: Accessible.SpinBox
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onIncreaseAction: control.step(1)
    Accessible.onDecreaseAction: control.step(-1)

    function step(by: int): void {
        let next = value + by
        if (value < from || value > to)
            next = by > 0 ? from : to
        else if (next > to)
            next = from
        else if (next < from)
            next = to
        put(next)
    }

    function put(number: int): void {
        if (number === value)
            return
        value = number
        edited(number)
    }

    function assistiveSet(wanted: var): bool {
        const number = Number(wanted)
        if (!Number.isInteger(number) || number < from || number > to)
            return false
        put(number)
        return true
    }

    Keys.onUpPressed: control.step(1)
    Keys.onDownPressed: control.step(-1)
    WheelHandler {
        onWheel: event => control.step(event.angleDelta.y > 0 ? 1 : -1)
    }

    component Arrow: T.AbstractButton {
        id: arrow
        property string iconName
        width: control.width
        height: LuStyle.scaled(24)
        autoRepeat: true
        focusPolicy: Qt.NoFocus
        hoverEnabled: true
        Accessible.ignored: true
        background: Rectangle {
            radius: LuStyle.radiusSmall
            color: arrow.down ? LuStyle.press : arrow.hovered ? LuStyle.hover : "transparent"
        }
        contentItem: Item {
            LuIcon {
                anchors.centerIn: parent
                name: arrow.iconName
                size: 16
                color: LuStyle.textDim
            }
        }
    }

    Column {
        width: parent.width
        Arrow {
            iconName: "up"
            onClicked: control.step(1)
        }
        Rectangle {
            width: control.width
            height: input.implicitHeight + 2 * LuStyle.spaceHalf
            radius: LuStyle.radiusSmall
            color: control.highlighted ? LuStyle.warningFill : LuStyle.field
            border.width: input.activeFocus ? LuStyle.focusWidth : LuStyle.highContrast ? 1 : 0
            border.color: input.activeFocus ? LuStyle.accent : LuStyle.outline
            TextInput {
                id: input
                anchors.fill: parent
                focus: true
                horizontalAlignment: TextInput.AlignHCenter
                verticalAlignment: TextInput.AlignVCenter
                text: String(control.value).padStart(control.digits, "0")
                color: control.highlighted ? LuStyle.warningInk : LuStyle.text
                selectionColor: LuStyle.accentFill
                selectedTextColor: LuStyle.accentInk
                selectByMouse: true
                inputMethodHints: Qt.ImhDigitsOnly
                maximumLength: control.digits
                font.family: LuStyle.fontFamily
                font.pixelSize: LuStyle.fontTitle
                font.weight: LuStyle.weightStrong
                Accessible.ignored: true
                onActiveFocusChanged: {
                    if (activeFocus)
                        selectAll()
                }
                // What was typed is taken when it is complete; what is no number of the range goes back.
                onEditingFinished: {
                    const number = Number(text)
                    if (text.length > 0 && Number.isInteger(number) && number >= control.from && number <= control.to)
                        control.put(number)
                    text = Qt.binding(() => String(control.value).padStart(control.digits, "0"))
                }
            }
        }
        Arrow {
            iconName: "down"
            onClicked: control.step(-1)
        }
    }
}
