// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A time of day; a click opens the spins of its hours and minutes. `hourFrom` and `hourTo` bound the hours that the
// spins give; another hour is shown as it is. `text` names it for assistive software.
T.Button {
    id: control

    property int hour: 0
    property int minute: 0
    property int hourFrom: 0
    property int hourTo: 23
    // Draws the eye to an hour that is not allowed.
    property bool highlightHour: false
    readonly property string displayText: String(hour).padStart(2, "0") + ":" + String(minute).padStart(2, "0")
    readonly property bool opened: popup.visible
    signal hourEdited(int hour)
    signal minuteEdited(int minute)

    implicitWidth: Math.max(72, label.implicitWidth + 2 * LuStyle.spaceWide)
    implicitHeight: LuStyle.controlHeight
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: LuStyle.dim(control)
    onClicked: popup.visible ? popup.close() : popup.open()

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: displayText
    Accessible.onPressAction: control.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        clicked()
    }

    // Takes "7:30" as the spins would give it.
    function assistiveSet(wanted: var): bool {
        const parts = /^(\d{1,2}):(\d{2})$/.exec(String(wanted))
        if (!parts || Number(parts[1]) < hourFrom || Number(parts[1]) > hourTo || Number(parts[2]) > 59)
            return false
        setHour(Number(parts[1]))
        setMinute(Number(parts[2]))
        return true
    }

    function setHour(wanted: int): void {
        if (wanted === hour)
            return
        hour = wanted
        hourEdited(wanted)
    }

    function setMinute(wanted: int): void {
        if (wanted === minute)
            return
        minute = wanted
        minuteEdited(wanted)
    }

    background: Rectangle {
        radius: LuStyle.radiusSmall
        color: control.highlightHour ? LuStyle.warningFill
                                     : control.down || control.opened ? LuStyle.fieldPress
                                                                      : control.hovered ? LuStyle.fieldHover : LuStyle.field
        border.width: LuStyle.highContrast ? 1 : 0
        border.color: LuStyle.outline
        LuFocusRing {
            control: control
        }
    }
    contentItem: Item {
        LuLabel {
            id: label
            anchors.centerIn: parent
            repeatsName: true
            text: control.displayText
            font.weight: Font.Medium
            color: control.highlightHour ? LuStyle.warningInk : LuStyle.text
        }
    }
    Keys.onReturnPressed: control.assistivePress()
    Keys.onEnterPressed: control.assistivePress()

    T.Popup {
        id: popup

        y: control.height + LuStyle.spaceHalf
        x: control.mirrored ? 0 : control.width - width
        implicitWidth: contentItem.implicitWidth + 2 * padding
        implicitHeight: contentItem.implicitHeight + 2 * padding
        padding: LuStyle.space
        margins: LuStyle.space
        focus: true
        background: LuSurface { }
        onOpened: hours.forceActiveFocus(Qt.PopupFocusReason)
        contentItem: Row {
            spacing: LuStyle.spaceHalf
            // A time reads from hours to minutes in every language.
            layoutDirection: Qt.LeftToRight
            LayoutMirroring.enabled: false
            LuSpin {
                id: hours
                text: qsTr("Hours")
                value: control.hour
                from: control.hourFrom
                to: control.hourTo
                highlighted: control.highlightHour || value < from || value > to
                KeyNavigation.right: minutes
                Keys.onReturnPressed: popup.close()
                onEdited: number => {
                    control.setHour(number)
                    value = Qt.binding(() => control.hour)
                }
            }
            LuLabel {
                anchors.verticalCenter: parent.verticalCenter
                repeatsName: true
                kind: LuLabel.Title
                text: ":"
            }
            LuSpin {
                id: minutes
                text: qsTr("Minutes")
                value: control.minute
                KeyNavigation.left: hours
                Keys.onReturnPressed: popup.close()
                onEdited: number => {
                    control.setMinute(number)
                    value = Qt.binding(() => control.minute)
                }
            }
        }
        enter: Transition {
            NumberAnimation { property: "opacity"; from: 0; to: 1; duration: LuStyle.motion }
        }
    }
}
