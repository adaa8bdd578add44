// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
import LumenDesk.BrightnessSync
import LumenDesk.Controls
import LumenDesk.Popups
import LumenDesk.Settings
import LumenDesk.Style
import LumenDesk.Widgets
import TKPackage

// The base types that no panel of the package uses yet.
Window {
    id: window

    property var log: []
    property bool wideActive: false
    property bool sectionRequired: true
    property bool rowAlive: true
    readonly property PackageStrings strings: PackageStrings { }
    readonly property PackageStringsBase baseStrings: PackageStringsBase { }
    readonly property Walkthrough walkthrough: Walkthrough { }
    readonly property bool syncActive: LuBrightnessSyncManager.brightnessSync.active

    function note(what: string): void {
        log = log.concat([what])
    }

    width: 340
    height: 700
    color: LuStyle.background
    visible: true

    QtObject {
        id: feature
        objectName: "target"
        property bool syncEnable: false
    }

    Column {
        x: 16
        y: 16
        width: parent.width - 32
        spacing: 8

        Loader {
            width: parent.width
            active: window.rowAlive
            sourceComponent: LuWidget {
                id: row
                objectName: "row"
                widgetName: "RowWidget"
                text: "Volume"
                bindings: [
                    Component {
                        LuBinding {
                            target: feature
                            property: "syncEnable"
                            value: true
                            defaultValue: false
                            afterBindAction: () => window.note("bound")
                            beforeUnbindAction: () => window.note("unbinding " + feature.syncEnable)
                        }
                    }
                ]
                LuLabel {
                    text: row.text
                }
                LuSlider {
                    y: 24
                    width: parent.width
                    text: "Volume"
                }
            }
        }
        LuWideWidget {
            id: wide
            objectName: "wide"
            widgetName: "WideWidget"
            width: parent.width
            text: "FloW"
            description: "Next: Work · 09:00"
            active: window.wideActive
            widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot.svg", wide, LuStyle.colorScheme)
            widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_active.svg", wide, LuStyle.colorScheme)
            page: Component {
                LuPage { }
            }
            onPageRequested: window.note("page")
            function setActive(state: var): void {
                window.wideActive = state
                window.note("active " + state)
            }
        }
        LuShortcutWidget {
            id: shortcut
            objectName: "shortcut"
            widgetName: "ShortcutWidget"
            text: "Focus"
            imageSource.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_0.svg", shortcut, LuStyle.colorScheme)
            onClicked: window.note("shortcut")
        }
        AdvancedSection {
            title: "Section title"
            requirements: window.sectionRequired
            width: parent.width
            LuLabel {
                text: "Section body"
            }
        }
    }

    LuPopupLoader {
        id: editor
        objectName: "editor"
        LuPopupAction {
            title: "Edit action"
            storedProperties: ({ "level": 3 })
            onAccepted: (module, properties) => window.note("accepted " + properties.level)
            function recordProps(): void {
                window.note("record")
            }
            function restoreProps(): void {
                window.note("restore")
            }
            function collectProps(): var {
                return { "level": actionProperty("level") + 1 }
            }
        }
    }
    function edit(): void {
        editor.open()
    }

    LuWindow {
        id: feedback
        objectName: "feedback"
        text: "Brightness"
        width: 200
        height: 60
        timeout: 30
        LuLabel {
            text: "Brightness 60"
        }
    }
    function showFeedback(): void {
        feedback.open()
    }
}
