// SPDX-License-Identifier: Apache-2.0
import QtQuick

// Keeps the tabulator inside what lies over the rest of a window: one stands before `around` in its way and one after,
// and each sends it to the other end.
Item {
    id: fence

    required property Item around
    // Stands before: what comes from there goes to the last control.
    property bool before: false
    // Tells a fence from what it stands around.
    readonly property bool fences: true

    // What the tabulator reaches below an item, in the order of the drawing.
    function stops(item: Item): var {
        let found = []
        for (const child of Array.from(item.children)) {
            if (!child.visible || !child.enabled)
                continue
            if (child.activeFocusOnTab && child.fences === undefined)
                found.push(child)
            found = found.concat(stops(child))
        }
        return found
    }

    activeFocusOnTab: true
    onActiveFocusChanged: {
        if (!activeFocus)
            return
        const all = stops(around)
        all[before ? all.length - 1 : 0]?.forceActiveFocus(before ? Qt.BacktabFocusReason : Qt.TabFocusReason)
    }
}
