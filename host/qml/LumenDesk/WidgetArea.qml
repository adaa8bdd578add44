// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
import LumenDesk.Style
import LumenDesk.Widgets

// The widgets of the current monitor: rows, then the card of tiles, wide tiles, and what stands last.
//
// A URL whose file is missing is left out without a word here: the program tells of it once.
Column {
    id: area

    required property Window window
    property var widgets: []
    readonly property bool empty: visibleCount(widgets, changes) === 0
    // Counts changes of visibility, so that `empty` is asked again.
    property int changes: 0
    signal pageRequested(LuWidgetBase widget)
    signal widgetsGoing()

    spacing: LuStyle.space

    function visibleCount(list: var, stamp: int): int {
        return list.filter(widget => widget?.functionSupported).length
    }

    function byName(name: string): LuWidgetBase {
        return widgets.find(widget => widget.widgetName === name) ?? null
    }

    function container(placement: string): Item {
        switch (placement) {
        case "tile":
            return tiles
        case "wide":
            return wides
        case "footer":
            return footer
        default:
            return rows
        }
    }

    function rebuild(): void {
        widgetsGoing()
        const old = widgets
        widgets = []
        for (const widget of old) {
            widget.visible = false
            widget.destroy()
        }
        const made = []
        for (const url of LuContext.widgetUrls) {
            const widget = LuContext.exists(url) ? make(url) : null
            if (widget)
                made.push(widget)
        }
        widgets = made
    }

    function make(url: url): Item {
        const component = Qt.createComponent(url)
        if (component.status !== Component.Ready) {
            console.warn(component.errorString())
            return null
        }
        const name = String(url).replace(/^.*\//, "").replace(/\.qml$/, "")
        const widget = component.createObject(area, {
            "monitor": LuContext.currentMonitor,
            "mainWindow": area.window,
            "widgetName": name,
            "objectName": name
        })
        if (!widget) {
            console.warn(component.errorString())
            return null
        }
        widget.parent = container(widget.placement)
        widget.width = Qt.binding(() => widget.parent === tiles ? tiles.cell : widget.parent?.width ?? 0)
        widget.pageRequested.connect(() => area.pageRequested(widget))
        widget.functionSupportedChanged.connect(() => ++area.changes)
        return widget
    }

    Connections {
        target: LuContext
        function onWidgetUrlsChanged() {
            area.rebuild()
        }
    }
    Component.onCompleted: rebuild()

    component Stack: Column {
        width: area.width
        spacing: LuStyle.space
        // An empty positioner would still take the outer spacing.
        visible: implicitHeight > 0
    }

    Stack {
        id: rows
    }
    Item {
        width: area.width
        implicitHeight: card.height
        visible: tiles.implicitHeight > 0
        Rectangle {
            id: card
            width: parent.width
            height: tiles.implicitHeight + 14 + LuStyle.spaceWide
            radius: LuStyle.radius
            color: LuStyle.card
            border.width: 1
            border.color: LuStyle.line
            Grid {
                id: tiles
                readonly property real cell: Math.floor((width - (columns - 1) * columnSpacing) / columns)
                x: 6
                y: 14
                width: parent.width - 12
                columns: 4
                columnSpacing: LuStyle.spaceHalf
                rowSpacing: LuStyle.spaceWide
            }
        }
    }
    Stack {
        id: wides
    }
    Stack {
        id: footer
    }
}
