// SPDX-License-Identifier: Apache-2.0
import QtQml

// Makes the elements of a list of components live from activate() to release().
//
// An element may bring `afterBindAction`, called once it is live, `beforeUnbindAction`, called before it ends, and
// `defaultValue`, which its target's property gets at the end (see LuBinding).
QtObject {
    id: host

    // A list of components.
    property var components: []
    required property QtObject owner
    property var alive: []

    function activate(): void {
        const made = []
        for (let i = 0; i < components.length; ++i) {
            const element = components[i].createObject(owner)
            if (!element) {
                console.warn("binding cannot be made:", components[i].errorString())
                continue
            }
            made.push(element)
            if (typeof element.afterBindAction === "function")
                element.afterBindAction()
        }
        alive = made
    }

    function release(): void {
        for (const element of alive.reverse()) {
            if (!element)
                continue
            if (typeof element.beforeUnbindAction === "function")
                element.beforeUnbindAction()
            const target = element.target
            const property = element.property
            const last = element.defaultValue
            element.when = false
            if (target && property && last !== undefined)
                target[property] = last
            element.destroy()
        }
        alive = []
    }
}
