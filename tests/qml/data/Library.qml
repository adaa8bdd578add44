// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// Controls on values that a monitor holds, widgets with their mechanisms, and the popups.
Window {
    id: window

    property var log: []
    property bool pageAlive: true
    // What the monitor holds; it follows a choice only when the test says so.
    property int held: 3
    property int heldChoice: 1
    property var monitor: null
    property bool mirrored: false

    function note(what: string): void {
        log = log.concat([what])
    }

    objectName: "libraryWindow"
    title: "Library"
    width: 400
    height: 900
    color: LuStyle.background
    visible: true

    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    QtObject {
        id: feature
        objectName: "feature"
        property bool syncEnable: false
        property int snapshots: 0
        property int updates: 0
        function takePropertySnapshot(): void {
            ++snapshots
        }
        function fireUpdateSettingEvent(): void {
            ++updates
        }
    }

    Column {
        x: 16
        y: 16
        width: parent.width - 32
        spacing: 8

        LuSlider {
            id: slider
            objectName: "slider"
            width: 200
            text: "Level"
            to: 10
            stepSize: 1
            confirmedValue: window.held
            onMoved: window.note("moved " + value)
            onSettled: window.note("settled " + value)
        }
        LuSlider {
            objectName: "gain"
            text: "1K"
            orientation: Qt.Vertical
            from: -6
            to: 6
            stepSize: 1
            confirmedValue: -2
            onMoved: window.note("gain " + value)
        }
        LuSlider {
            objectName: "stops"
            width: 200
            text: "Resolution"
            to: 4
            keyStep: 1
            confirmedValue: 1.5
            onMoved: window.note("stop " + value)
        }
        LuKeyRow {
            text: "Switch to HDMI"
            keys: ["Ctrl", "Alt", "H", " ! "]
            onClicked: window.note("keys")
        }
        LuRowTitle {
            objectName: "rowTitle"
            widget: tile
            iconName: "input"
        }
        LuComboBox {
            id: combo
            objectName: "combo"
            text: "Mode"
            model: [{ "name": "a", "open": true }, { "name": "b", "open": true }, { "name": "c", "open": false }]
            textOf: entry => entry.name.toUpperCase()
            enabledOf: entry => entry.open
            confirmedIndex: window.heldChoice
            onActivated: index => window.note("combo " + index)
        }
        Row {
            LuRadio {
                objectName: "near"
                text: "Near"
                checked: true
                onToggled: window.note("near")
            }
            LuRadio {
                text: "Middle"
                enabled: false
            }
            LuRadio {
                objectName: "far"
                text: "Far"
                onToggled: window.note("far")
            }
        }
        LuSegmented {
            objectName: "segmented"
            text: "Size"
            model: ["Small", "Medium", "Large"]
            confirmedIndex: window.heldChoice
            onActivated: index => window.note("segment " + index)
        }
        LuTimeButton {
            id: time
            objectName: "time"
            text: "Sunset"
            hour: 6
            minute: 30
            hourFrom: 12
            hourTo: 23
            onHourEdited: hour => window.note("hour " + hour)
            onMinuteEdited: minute => window.note("minute " + minute)
        }
        LuSpin {
            objectName: "spin"
            text: "Hours"
            value: 11
            to: 11
            onEdited: number => window.note("spin " + number)
        }
        LuList {
            id: list
            objectName: "list"
            width: 240
            text: "Flows"
            model: ["Work", "Film", "Reading"]
            placeholder: "Nothing here"
            onActivated: index => window.note("activated " + index)
            onRemoveRequested: index => window.note("remove " + index)
            delegate: LuListRow {
                required property int index
                required property string modelData
                text: modelData
                arrowVisible: true
                onClicked: list.currentIndex = index
                onArrowClicked: window.note("edit " + index)
            }
        }
        LuSwitch {
            objectName: "asking"
            text: "Asking"
            checkable: false
            onToggled: window.note("toggled")
            onClicked: window.note("asked")
        }
        LuAdvancedWidget {
            id: tile
            objectName: "tile"
            widgetName: "Tile"
            monitor: window.monitor
            mainWindow: LuContext.mainWindow
            text: "Tile"
            colorModeAllowed: false
            widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_dp_a.svg", tile, LuStyle.colorScheme)
            widgetImage.hovered: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_dp_a_hover.svg", tile, LuStyle.colorScheme)
            widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_dp_a_active.svg", tile, LuStyle.colorScheme)
            bindings: [
                Component {
                    LuSyncBinding {
                        widget: tile
                        module: feature
                    }
                }
            ]
            function setActive(state: var): void {
                window.note("set " + state)
            }
        }
        Loader {
            active: window.pageAlive
            sourceComponent: LuPage {
                title: "Page"
                module: feature
            }
        }
    }

    function word(what: string): string {
        return tile.translator.audioMode(what) + "," + tile.translator.inputSource("HDMI1") + ","
            + tile.translator.gamut(LuVCPNode.Gamut_Native)
    }

    LuPopupLoader {
        id: selection
        objectName: "selection"
        LuSelectionWindow {
            title: "Reset All Shortcuts"
            message: "Once confirmed, the defaults are restored."
            confirmText: "Reset"
            caution: true
            onConfirmed: window.note("confirmed")
            onCanceled: window.note("canceled")
        }
    }
    LuPopupLoader {
        id: warning
        objectName: "warning"
        LuWarningWindow {
            text: "Low DPI"
        }
    }
    LuPopupLoader {
        id: hint
        objectName: "hint"
        LuHintWindow {
            text: "About Tiles"
            message: "A tile is round."
            entries: [{ "title": "Press", "text": "It does something." }]
        }
    }
    function ask(): void {
        selection.open()
    }
    function warn(): void {
        warning.openWith({ "message": "Only HiDPI here." })
    }
    function toggleHint(): void {
        hint.toggle()
    }
}
