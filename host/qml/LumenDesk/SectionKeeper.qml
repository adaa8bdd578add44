// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk

// Makes the advanced sections of the current monitor and puts the chosen one into its place.
//
// The others wait in a window that is never shown: there an item's `visible` keeps telling what the section itself says.
QtObject {
    id: keeper

    required property Item place
    // Name of the section that stands in the place.
    property string current
    property bool active: false
    property var sections: []
    readonly property bool anyOffered: sections.some(section => section?.visible)
    readonly property Window store: Window {
        visible: false
    }

    function byName(name: string, list: var): Item {
        return list.find(section => section?.sectionName === name) ?? null
    }

    // Whether a person can open it.
    function offers(name: string): bool {
        return byName(name, sections)?.visible ?? false
    }

    function rebuild(): void {
        const old = sections
        sections = []
        for (const section of old) {
            section.parent = store.contentItem
            section.destroy()
        }
        if (!active || !LuContext.currentMonitor)
            return
        const made = []
        for (const url of LuContext.sectionUrls) {
            const section = make(url)
            if (section)
                made.push(section)
        }
        sections = made
        settle()
    }

    function make(url: url): Item {
        const component = Qt.createComponent(url)
        const name = String(url).replace(/^.*\//, "").replace(/\.qml$/, "")
        const section = component.status === Component.Ready ? component.createObject(store.contentItem, {
            "monitor": LuContext.currentMonitor,
            "sectionName": name,
            "objectName": name
        }) : null
        if (!section)
            console.warn(component.errorString())
        else
            section.width = Qt.binding(() => keeper.place?.width ?? 0)
        return section
    }

    function settle(): void {
        for (const section of sections)
            section.parent = section.sectionName === current ? place : store.contentItem
    }

    onCurrentChanged: settle()
    onActiveChanged: rebuild()

    readonly property Connections watch: Connections {
        target: LuContext
        function onWidgetUrlsChanged(): void {
            keeper.rebuild()
        }
    }
    Component.onCompleted: rebuild()
}
