// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// One choice of a few short ones, side by side. `model` is a list of texts; `confirmedIndex` is what the monitor holds:
// a press shows at once and falls back if the monitor does not follow. activated() tells of the user's choice alone.
Rectangle {
    id: control

    property var model: []
    property int confirmedIndex: -1
    property string text
    readonly property int count: repeater.count
    signal activated(int index)

    implicitWidth: Math.max(repeater.count * 64, 120)
    implicitHeight: Math.max(LuStyle.controlHeight + 2, repeater.highest + 4)
    width: parent ? parent.width : implicitWidth
    radius: LuStyle.radiusSmall + 2
    color: LuStyle.field
    border.width: LuStyle.highContrast ? 1 : 0
    border.color: LuStyle.outline
    opacity: LuStyle.dim(control)

    Accessible.role: Accessible.Grouping
    Accessible.name: text

    Row {
        x: 2
        y: 2
        width: parent.width - 4
        height: parent.height - 4
        Repeater {
            id: repeater
            property real highest: 0
            model: control.model
            T.RadioButton {
                id: segment

                required property int index
                required property string modelData
                // What the monitor holds.
                readonly property bool confirmed: control.confirmedIndex === index

                width: parent ? parent.width / Math.max(1, repeater.count) : 0
                height: parent ? parent.height : 0
                text: modelData
                checked: confirmed
                focusPolicy: Qt.StrongFocus
                hoverEnabled: true
                padding: 2
                onToggled: control.activated(index)

                Accessible.role: Accessible.RadioButton
                Accessible.name: text
                Accessible.checkable: true
                Accessible.checked: checked
                Accessible.onPressAction: segment.assistivePress()
                Accessible.onToggleAction: segment.assistivePress()

                // What a click does, for the return key, assistive software and scripts.
                function assistivePress(): void {
                    if (!checked) {
                        toggle()
                        toggled()
                    }
                    clicked()
                }

                indicator: null
                background: Item {
                    LuShadow {
                        visible: segment.checked && !LuStyle.highContrast && segment.enabled
                        reach: 3
                        cornerRadius: LuStyle.radiusSmall
                    }
                    Rectangle {
                        anchors.fill: parent
                        radius: LuStyle.radiusSmall
                        color: {
                            if (segment.checked)
                                return LuStyle.highContrast ? LuStyle.accent : LuStyle.dark ? LuStyle.fieldPress : LuStyle.card
                            return segment.down ? LuStyle.press : segment.hovered ? LuStyle.hover : "transparent"
                        }
                        Behavior on color {
                            ColorAnimation { duration: LuStyle.motion }
                        }
                    }
                    LuFocusRing {
                        control: segment
                        gap: -1
                    }
                }
                contentItem: LuLabel {
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    repeatsName: true
                    text: segment.text
                    wrapMode: Text.WordWrap
                    maximumLineCount: 2
                    font.pixelSize: LuStyle.fontSegment
                    font.weight: segment.checked ? LuStyle.weightStrong : Font.Normal
                    color: segment.checked && LuStyle.highContrast ? LuStyle.accentInk : LuStyle.text
                    onImplicitHeightChanged: repeater.highest = Math.max(repeater.highest, implicitHeight + 8)
                }
                Keys.forwardTo: [arrows]
                LuChoiceKeys {
                    id: arrows
                    control: segment
                }
                LuConfirmedState {
                    control: segment
                }
            }
        }
    }
}
