// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Settings
import LumenDesk.Style

// The settings: pages of the program itself, and the advanced sections that the current monitor's package brings.
Window {
    id: window

    // The widgets of the main window, for their arrangement.
    property var widgets: []
    property string page: "general"
    readonly property var sections: keeper.sections
    readonly property url diagnostics: Qt.resolvedUrl("Settings/DiagnosticsPage.qml")
    readonly property var shellPages: [
        { "page": "general", "title": qsTr("General"), "icon": "gear", "file": "GeneralPage", "shown": true },
        { "page": "widgets", "title": qsTr("Widgets"), "icon": "grid", "file": "WidgetsPage", "shown": true },
        { "page": "location", "title": qsTr("Location"), "icon": "compass", "file": "LocationPage", "shown": true },
        { "page": "computers", "title": qsTr("Two computers"), "icon": "kvm", "file": "ComputersPage", "shown": LuContext.isLinux },
        { "page": "diagnostics", "title": qsTr("Diagnostics"), "icon": "pulse", "file": "DiagnosticsPage", "shown": LuContext.exists(diagnostics) },
        { "page": "about", "title": qsTr("About"), "icon": "info", "file": "AboutPage", "shown": true }
    ]
    // The section that is shown; one that is not offered any more is none.
    readonly property Item section: shownSection(keeper.byName(page, sections))
    readonly property string pageTitle: section ? (section as AdvancedSection).title : shell.item?.title ?? ""
    signal introductionRequested()

    objectName: "settingsWindow"
    title: qsTr("Settings")
    width: Math.round(760 * Math.max(1, LuStyle.fontScale))
    height: Math.round(560 * Math.max(1, LuStyle.fontScale))
    minimumWidth: 560
    minimumHeight: 360
    color: LuStyle.background
    flags: Qt.Window
    visible: false

    LayoutMirroring.enabled: LuContext.rightToLeft
    LayoutMirroring.childrenInherit: true

    // Shows a page or a section; false, and nothing, if there is none of that name.
    function open(name: string): bool {
        if (!shellPages.some(each => each.page === name && each.shown) && !keeper.offers(name))
            return false
        page = name
        visible = true
        requestActivate()
        // The keyboard begins where the page was chosen.
        nav.focusCurrent()
        return true
    }

    function shownSection(item: Item): Item {
        return item?.visible ? item : null
    }

    // A section that goes leaves the first page behind.
    function leaveLostSection(): void {
        if (!section && !shellPages.some(each => each.page === page))
            page = "general"
    }

    onPageChanged: view.contentY = 0
    onSectionChanged: settle.restart()
    onSectionsChanged: settle.restart()

    // In the next turn: bindings come first.
    Timer {
        id: settle
        interval: 0
        onTriggered: window.leaveLostSection()
    }

    SectionKeeper {
        id: keeper
        place: sectionPlace
        current: window.page
        active: true
    }

    Rectangle {
        id: side
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: Math.round(208 * Math.max(1, LuStyle.fontScale))
        color: LuStyle.card
        Rectangle {
            anchors.right: parent.right
            width: 1
            height: parent.height
            color: LuStyle.line
        }
        Flickable {
            id: tabs
            anchors.fill: parent
            anchors.margins: LuStyle.spaceWide
            contentHeight: nav.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height
            clip: true
            T.ScrollBar.vertical: LuScrollBar { }
            LuScrollToFocus {
                view: tabs
            }
            Column {
                id: nav
                width: parent.width
                spacing: 2
                function entries(): var {
                    return Array.from(children).filter(item => item instanceof SettingsTab && item.visible)
                }
                function moveFrom(tab: Item, step: int): void {
                    const all = entries()
                    all[all.indexOf(tab) + step]?.forceActiveFocus(Qt.TabFocusReason)
                }
                function focusCurrent(): void {
                    entries().find(tab => tab.checked)?.forceActiveFocus(Qt.OtherFocusReason)
                }
                Accessible.role: Accessible.List
                Accessible.name: window.title
                Repeater {
                    model: window.shellPages.filter(each => each.shown && each.page !== "about")
                    SettingsTab {
                        required property var modelData
                        width: nav.width
                        objectName: "tab." + modelData.page
                        text: modelData.title
                        iconName: modelData.icon
                        checked: window.page === modelData.page
                        onClicked: window.page = modelData.page
                        onNeighbourRequested: (tab, step) => nav.moveFrom(tab, step)
                    }
                }
                LuLabel {
                    width: nav.width
                    topPadding: LuStyle.spaceWide
                    bottomPadding: LuStyle.spaceHalf
                    leftPadding: LuStyle.space
                    kind: LuLabel.Caption
                    visible: keeper.anyOffered
                    text: qsTr("Advanced")
                }
                Repeater {
                    model: window.sections
                    SettingsTab {
                        required property var modelData
                        width: nav.width
                        visible: modelData?.visible ?? false
                        text: modelData?.title ?? ""
                        iconName: "layers"
                        checked: window.page === modelData?.sectionName
                        onClicked: window.page = modelData.sectionName
                        onNeighbourRequested: (tab, step) => nav.moveFrom(tab, step)
                    }
                }
                Item {
                    width: 1
                    height: keeper.anyOffered ? LuStyle.spaceWide : 0
                }
                SettingsTab {
                    width: nav.width
                    text: qsTr("About")
                    iconName: "info"
                    checked: window.page === "about"
                    onClicked: window.page = "about"
                    onNeighbourRequested: (tab, step) => nav.moveFrom(tab, step)
                }
            }
        }
    }

    Flickable {
        id: view
        objectName: "settingsBody"
        anchors.left: side.right
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        contentHeight: sheet.implicitHeight + 2 * LuStyle.spaceHuge
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: true
        T.ScrollBar.vertical: LuScrollBar { }
        LuScrollToFocus {
            view: view
        }

        Column {
            id: sheet
            anchors.horizontalCenter: parent.horizontalCenter
            y: LuStyle.spaceHuge
            width: Math.min(640, view.width - 2 * LuStyle.spaceHuge)
            spacing: LuStyle.spaceLarge
            LuLabel {
                width: parent.width
                font.pixelSize: LuStyle.fontTitle + 5
                kind: LuLabel.Title
                wrapMode: Text.WordWrap
                text: window.pageTitle
            }
            LuLabel {
                width: parent.width
                wrapMode: Text.WordWrap
                color: LuStyle.textDim
                visible: text.length > 0
                text: (window.section as AdvancedSection)?.description ?? ""
            }
            Loader {
                id: shell
                width: parent.width
                active: window.section === null
                visible: active
                source: "Settings/" + (window.shellPages.find(each => each.page === window.page)?.file ?? "GeneralPage") + ".qml"
                Binding {
                    target: shell.item
                    property: "widgets"
                    value: window.widgets
                    when: window.page === "widgets" && shell.item?.objectName === "widgetsPage"
                }
                Connections {
                    target: shell.item
                    ignoreUnknownSignals: true
                    function onIntroductionRequested(): void {
                        window.introductionRequested()
                    }
                }
            }
            Item {
                id: sectionPlace
                width: parent.width
                // Always visible, so that a section's own word on that is heard.
                implicitHeight: window.section ? window.section.implicitHeight : 0
            }
        }
    }
    Shortcut {
        sequences: [StandardKey.Cancel]
        onActivated: window.close()
    }
}
