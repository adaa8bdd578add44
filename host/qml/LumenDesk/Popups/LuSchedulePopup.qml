// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// Asks for a period of the day and the days of the week on which it comes again; no day means once.
LuSelectionWindow {
    id: popup

    property int startMinute: 9 * 60
    property int endMinute: 17 * 60
    // Seven booleans; the first is Sunday.
    property var repeatDays: [false, false, false, false, false, false, false]
    readonly property var weekdays: order(Qt.locale().firstDayOfWeek)

    objectName: "schedulePopup"
    title: qsTr("Schedule")
    confirmText: qsTr("Save")
    cardWidth: 320
    confirmEnabled: startMinute !== endMinute

    function order(first: int): var {
        const days = []
        for (let i = 0; i < 7; ++i)
            days.push((first + i) % 7)
        return days
    }

    function setDay(day: int, on: bool): void {
        const days = Array.from(repeatDays)
        days[day] = on
        repeatDays = days
    }

    component TimeLine: Item {
        id: line

        property string text
        property int minute: 0
        signal chosen(int minute)

        width: parent?.width ?? 0
        implicitHeight: Math.max(LuStyle.controlHeight, lineName.implicitHeight)
        LuLabel {
            id: lineName
            anchors.left: parent.left
            anchors.right: boxes.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            repeatsName: true
            wrapMode: Text.WordWrap
            text: line.text
        }
        Row {
            id: boxes
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: LuStyle.spaceHalf
            LuComboBox {
                text: qsTr("%1, hour").arg(line.text)
                model: Array.from({ length: 24 }, (each, index) => String(index).padStart(2, "0"))
                currentIndex: Math.floor(line.minute / 60)
                onActivated: index => line.chosen(index * 60 + line.minute % 60)
            }
            LuComboBox {
                text: qsTr("%1, minute").arg(line.text)
                model: Array.from({ length: 60 }, (each, index) => String(index).padStart(2, "0"))
                currentIndex: line.minute % 60
                onActivated: index => line.chosen(Math.floor(line.minute / 60) * 60 + index)
            }
        }
    }

    TimeLine {
        text: qsTr("Start")
        minute: popup.startMinute
        onChosen: minute => popup.startMinute = minute
    }
    TimeLine {
        text: qsTr("End")
        minute: popup.endMinute
        onChosen: minute => popup.endMinute = minute
    }
    LuLabel {
        width: parent?.width ?? 0
        kind: LuLabel.Caption
        wrapMode: Text.WordWrap
        visible: text.length > 0
        text: popup.endMinute < popup.startMinute ? qsTr("Ends on the next day.") : popup.endMinute === popup.startMinute ? qsTr("Start and end are the same.") : ""
    }
    LuLabel {
        anchors.left: parent?.left
        kind: LuLabel.Strong
        text: qsTr("Repeat")
    }
    Grid {
        width: parent?.width ?? 0
        columns: 2
        columnSpacing: LuStyle.spaceWide
        rowSpacing: LuStyle.spaceHalf
        Repeater {
            model: popup.weekdays
            LuCheckBox {
                required property int modelData
                text: Qt.locale().standaloneDayName(modelData, Locale.LongFormat)
                checked: popup.repeatDays[modelData]
                onToggled: popup.setDay(modelData, checked)
            }
        }
    }
}
