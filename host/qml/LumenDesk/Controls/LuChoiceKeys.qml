// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T

// The arrow keys in a group of radio buttons: they go to the neighbour and choose it. A radio button forwards its keys
// to one of these, which has to be visible for it.
Item {
    id: keys

    required property T.RadioButton control
    // What holds the group.
    property Item group: control.parent

    function radiosIn(item: Item): var {
        let found = []
        for (const child of Array.from(item.children)) {
            if (!child.visible || !child.enabled)
                continue
            found = child instanceof T.RadioButton ? found.concat([child]) : found.concat(radiosIn(child))
        }
        return found
    }

    function step(by: int, event: var): void {
        const all = radiosIn(group)
        const next = all[all.indexOf(control) + by]
        event.accepted = next !== undefined
        if (!next)
            return
        next.forceActiveFocus(Qt.TabFocusReason)
        next.assistivePress()
    }

    Keys.onRightPressed: event => keys.step(keys.control.mirrored ? -1 : 1, event)
    Keys.onLeftPressed: event => keys.step(keys.control.mirrored ? 1 : -1, event)
    Keys.onDownPressed: event => keys.step(1, event)
    Keys.onUpPressed: event => keys.step(-1, event)
}
