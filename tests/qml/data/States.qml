// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// Every control once, for the pictures of its states. What takes part has an object name.
Window {
    id: window

    property bool mirrored: false
    property var log: []
    readonly property real wide: Math.max(1, LuStyle.fontScale)

    function note(what: string): void {
        log = log.concat([what])
    }

    objectName: "statesWindow"
    title: "States"
    width: Math.round(560 * Math.max(1, LuStyle.fontScale))
    height: sheet.implicitHeight + 48
    color: LuStyle.background
    visible: true

    Item {
        id: content
        anchors.fill: parent
        LayoutMirroring.enabled: window.mirrored
        LayoutMirroring.childrenInherit: true

        Flow {
            id: sheet
            x: 24
            y: 24
            width: parent.width - 48
            spacing: 24

            LuButton { objectName: "button"; text: "Normal"; onClicked: window.note("button") }
            LuButton { objectName: "highlighted"; text: "Highlighted"; kind: LuButton.Highlighted }
            LuButton { objectName: "caution"; text: "Caution"; kind: LuButton.Caution }
            LuButton { objectName: "link"; text: "Link"; kind: LuButton.Link }
            LuIconButton { objectName: "iconButton"; text: "Settings"; iconName: "gear" }
            LuHelpButton { objectName: "help" }
            LuImageButton {
                objectName: "imageButton"
                text: "Upper right"
                normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pip_RT.svg", window, LuStyle.colorScheme)
                hoveredImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pip_RT_hover.svg", window, LuStyle.colorScheme)
            }
            LuSwitch { objectName: "switch"; text: "Off"; onToggled: window.note("switch") }
            LuSwitch { objectName: "switchOn"; text: "On"; checked: true }
            LuSwitch { objectName: "asking"; text: "Asking"; checkable: false; onClicked: window.note("asked") }
            LuCheckBox { objectName: "check"; text: "Check" }
            LuCheckBox { objectName: "checkOn"; text: "Checked"; checked: true }
            Row {
                spacing: 12
                LuRadio { objectName: "radio"; text: "Radio" }
                LuRadio { objectName: "radioOn"; text: "Chosen"; checked: true }
            }
            Row {
                spacing: 12
                LuImageRadio {
                    objectName: "imageRadio"
                    text: "90°"
                    normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_90.svg", window, LuStyle.colorScheme)
                    checkedImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_90_active.svg", window, LuStyle.colorScheme)
                }
                LuImageRadio {
                    objectName: "imageRadioOn"
                    text: "0°"
                    checked: true
                    normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_0.svg", window, LuStyle.colorScheme)
                    checkedImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_0_active.svg", window, LuStyle.colorScheme)
                }
            }
            Row {
                spacing: 12
                LuImageRadio {
                    objectName: "layout"
                    text: "Halves"
                    showText: false
                    imageSize: 48
                    normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/ico48_dp_02.svg", window, LuStyle.colorScheme)
                }
                LuImageRadio {
                    objectName: "layoutOn"
                    text: "Quarters"
                    showText: false
                    imageSize: 48
                    checked: true
                    normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/ico48_dp_04.svg", window, LuStyle.colorScheme)
                }
            }
            Row {
                spacing: 8
                LuColorSwatch { objectName: "swatch"; text: "Red"; swatch: "#E5484D" }
                LuColorSwatch { objectName: "swatchOn"; text: "Green"; swatch: "#30A46C"; checked: true }
            }
            LuSegmented {
                objectName: "segmented"
                width: 240 * window.wide
                text: "Circadian mode"
                model: ["Sunrise to Sunset", "Manual"]
                confirmedIndex: 0
                onActivated: index => window.note("segment " + index)
            }
            LuComboBox { objectName: "combo"; text: "Mode"; model: ["M-book", "Cinema", "Game"]; confirmedIndex: 0 }
            LuComboBox { objectName: "comboEmpty"; text: "Choose"; model: ["A", "B"]; confirmedIndex: -1; placeholder: "Select a mode" }
            LuTextField { objectName: "field"; width: 140 * window.wide; placeholderText: "Search" }
            LuTimeButton { objectName: "time"; text: "Sunrise"; hour: 6; minute: 12; hourTo: 11 }
            LuTimeButton { objectName: "timeWrong"; text: "Sunset"; hour: 6; minute: 0; hourFrom: 12; highlightHour: true }
            LuSpin { objectName: "spin"; text: "Hours"; value: 7; to: 23; onEdited: number => window.note("spin " + number) }
            LuSlider { objectName: "slider"; width: 160 * window.wide; text: "Level"; to: 10; stepSize: 1; value: 6 }
            LuSlider { objectName: "sliderUp"; text: "100"; orientation: Qt.Vertical; from: -6; to: 6; stepSize: 1; value: 2 }
            LuLabeledSlider { objectName: "labeled"; width: 200 * window.wide; text: "Brightness"; to: 100; confirmedValue: 40; startText: "Dark"; endText: "Bright" }
            LuList {
                id: list
                objectName: "list"
                width: 240 * window.wide
                text: "Flows"
                model: ["Work", "Film", "Reading", "Late at night"]
                maximumHeight: 120
                currentIndex: 1
                onActivated: index => window.note("activated " + index)
                onRemoveRequested: index => window.note("remove " + index)
                delegate: LuListRow {
                    required property int index
                    required property string modelData
                    objectName: "row" + index
                    text: modelData
                    badge: index === 0 ? "On" : ""
                    emphasized: index === 0
                    description: index === 1 ? "20:00-22:00 / Weekends" : ""
                    arrowVisible: true
                    onClicked: list.currentIndex = index
                }
            }
            LuList {
                objectName: "listEmpty"
                width: 200 * window.wide
                text: "Applications"
                placeholder: "Add applications"
            }
            LuTabs { objectName: "tabs"; text: "Sections"; model: ["General", "Advanced", "About"] }
            Row {
                spacing: 4
                LuChip { text: "Ctrl" }
                LuChip { text: "Alt" }
                LuChip { text: "!"; kind: LuChip.Warning }
                LuChip { text: "On"; kind: LuChip.Accent }
            }
            LuKeyRow { objectName: "keys"; width: 140 * window.wide; text: "Switch to USB-C"; keys: ["Ctrl", "Alt", "U", " ! "]; onClicked: window.note("keys") }
            LuKeyRow { objectName: "capturing"; width: 140 * window.wide; text: "Increase"; capturing: true; pending: "Ctrl+Alt" }
            LuProgressRing { }
            LuLevelBar { width: 120; level: 9; text: "Volume" }
            LuLabel { width: 200 * window.wide; kind: LuLabel.Notice; wrapMode: Text.WordWrap; text: "Temporarily disabled because of the input." }
            LuInfoBlock { width: 200 * window.wide; entries: [{ "name": "Brightness", "value": "7" }, { "name": "Light Mode", "value": "360°" }] }
            LuPageGroup {
                objectName: "group"
                width: 200 * window.wide
                enabled: false
                LuPageRow {
                    text: "Disabled group"
                    LuSwitch { objectName: "grouped"; text: "Grouped"; checked: true }
                }
                LuSlider { objectName: "groupedSlider"; width: parent.width; text: "Grouped level"; value: 0.4 }
            }
            LuMarquee { objectName: "marquee"; width: 80; text: "3840 x 2160 is a long text" }
        }
    }
}
