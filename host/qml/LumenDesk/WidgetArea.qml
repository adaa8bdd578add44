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
    readonly property bool empty: visibleCount(widgets, changes, LuPreferences.hiddenWidgets) === 0
    // The monitor has widgets, though the user may have taken all of them away.
    readonly property bool supported: widgets.length > 0 && visibleCount(widgets, changes, []) > 0
    // Counts changes of visibility, so that `empty` is asked again.
    property int changes: 0
    // The widgets in the order in which they stand, and the names that were hidden when this was last looked at.
    property var placed: []
    property var hiddenBefore: []
    signal pageRequested(var widget)
    signal widgetsGoing()

    spacing: LuStyle.space

    function visibleCount(list: var, stamp: int, hidden: list<string>): int {
        return list.filter(widget => widget?.functionSupported && !hidden.includes(widget.widgetName)).length
    }

    function byName(name: string): var {
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
        placed = []
        hiddenBefore = Array.from(LuPreferences.hiddenWidgets)
        for (const widget of old) {
            widget.visible = false
            // The widget itself goes later, maybe after its monitor: it writes nothing to it any more.
            widget.bindingHost.release()
            widget.destroy()
        }
        const made = []
        for (const url of LuContext.widgetUrls) {
            const widget = LuContext.exists(url) ? make(url) : null
            if (widget)
                made.push(widget)
        }
        widgets = made
        arrange()
    }

    // Puts the widgets into the user's order. A positioner goes by the order in which its items came.
    function arrange(): void {
        const order = LuPreferences.arranged(widgets.map(widget => widget.widgetName))
        const now = placed.filter(widget => widget !== null)
        const wanted = order.map(name => byName(name))
        if (wanted.length === now.length && wanted.every((widget, index) => widget === now[index]))
            return
        for (const widget of wanted)
            widget.parent = waiting
        for (const widget of wanted)
            widget.parent = container(widget.placement)
        placed = wanted
    }

    // The user took a widget away, or brought it back.
    function tellHidden(): void {
        for (const widget of widgets) {
            const hidden = LuPreferences.isWidgetHidden(widget.widgetName)
            const before = hiddenBefore.includes(widget.widgetName)
            if (hidden && !before) {
                if (window.openWidget === widget)
                    widgetsGoing()
                widget.removed()
            }
        }
        hiddenBefore = Array.from(LuPreferences.hiddenWidgets)
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
        widget.visible = Qt.binding(() => widget.functionSupported && !LuPreferences.hiddenWidgets.includes(widget.widgetName))
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
    Connections {
        target: LuPreferences
        function onArrangementChanged(): void {
            area.tellHidden()
            area.arrange()
        }
    }
    Component.onCompleted: rebuild()

    Item {
        id: waiting
        visible: false
    }

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
