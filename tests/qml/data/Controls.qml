// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// Every control in its states, for tests and for pictures.
Window {
    id: window

    property var log: []
    property real confirmed: NaN
    readonly property QtObject style: LuStyle

    function note(what: string): void {
        log = log.concat([what])
    }

    objectName: "controlsWindow"
    title: "Controls"
    width: 340
    height: column.implicitHeight + 32
    color: LuStyle.background
    visible: true

    Column {
        id: column
        x: 16
        y: 16
        width: parent.width - 32
        spacing: 12

        LuLabel { kind: LuLabel.Title; text: "Title" }
        LuLabel { text: "Body text" }
        LuLabel { kind: LuLabel.Caption; text: "Caption text" }
        Row {
            spacing: 8
            LuButton { text: "Normal"; onClicked: window.note("normal") }
            LuButton { text: "Highlighted"; kind: LuButton.Highlighted; onClicked: window.note("highlighted") }
            LuButton { text: "Caution"; kind: LuButton.Caution; onClicked: window.note("caution") }
        }
        Row {
            spacing: 8
            LuButton { text: "Link"; kind: LuButton.Link; onClicked: window.note("link") }
            LuButton { text: "Disabled"; enabled: false; onClicked: window.note("disabled") }
            LuIconButton { text: "Gear"; iconName: "gear"; onClicked: window.note("gear") }
        }
        LuPageRow {
            text: "Off and on"
            LuSwitch { text: "First switch"; onToggled: window.note("switch " + checked) }
            LuSwitch { text: "Second switch"; checked: true }
            LuSwitch { text: "Third switch"; checked: true; enabled: false }
        }
        LuPageRow {
            text: "Mode"
            LuComboBox {
                text: "Mode"
                model: ["M-book", "Cinema", "Game"]
                onActivated: index => window.note("combo " + index)
            }
        }
        Column {
            width: parent.width
            LuRadio { text: "Radio one"; checked: true }
            LuRadio { text: "Radio two"; onToggled: window.note("radio two") }
        }
        LuCheckBox { text: "Check"; onToggled: window.note("check " + checked) }
        LuPageRow {
            text: "Level"
            LuLabel { kind: LuLabel.Value; text: slider.value; repeatsName: true }
        }
        LuSlider {
            id: slider
            width: parent.width
            text: "Level"
            from: 0
            to: 100
            stepSize: 1
            value: 62
            confirmedValue: window.confirmed
            onSettled: window.note("settled " + value)
            onMoved: window.note("moved " + value)
            onReleased: window.note("released " + value)
        }
        LuSlider {
            width: parent.width
            text: "Disabled level"
            from: 0
            to: 10
            value: 4
            enabled: false
        }
        LuTextField { width: parent.width; placeholderText: "Search"; onTextEdited: window.note("edited " + text) }
        Row {
            spacing: 8
            LuImageRadio {
                text: "Chosen"
                checked: true
                normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_0.svg", window, LuStyle.colorScheme)
                checkedImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_0_active.svg", window, LuStyle.colorScheme)
            }
            LuImageRadio {
                text: "Other"
                normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_90.svg", window, LuStyle.colorScheme)
                checkedImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_90_active.svg", window, LuStyle.colorScheme)
            }
        }
    }
}
