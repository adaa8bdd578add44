// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Widgets

// The editor of one action of a flow or an application mode.
//
// It previews live: it opens with what a stored action holds, its controls write the module's properties, and leaving it
// brings back what the module held before. accepted() carries the module and what the action stores.
LuSelectionWindow {
    id: editor

    confirmText: qsTr("Save")

    property var monitor: null
    // The module that the action belongs to.
    property var module: null
    // Id of the flow, and the action's title as a number.
    property string modeId
    property int actionTitle: 0
    // What a stored action holds; empty for a new one.
    property var storedProperties: ({})
    // Names of the module's properties that the action stores.
    property var storedNames: []
    // Names of all that the preview changes, in the order in which they come back.
    property var previewedNames: storedNames
    property var recorded: ({})
    signal accepted(var module, var properties)

    // Remembers what the preview will change.
    function recordProps(): void {
        const values = {}
        if (module)
            previewedNames.forEach(name => values[name] = module[name])
        recorded = values
    }
    function restoreProps(): void {
        if (module)
            previewedNames.forEach(name => module[name] = recorded[name])
    }
    // Lets the monitor show what a stored action holds.
    function applyStored(): void {
        if (module)
            storedNames.filter(name => actionProperty(name) !== undefined).forEach(name => module[name] = actionProperty(name))
    }
    // The properties to store: editors take them from their controls, since what these show may still be on its way to
    // the monitor.
    function collectProps(): var {
        return {}
    }

    // A stored value, or undefined.
    function actionProperty(name: string): var {
        return storedProperties[name]
    }

    Component.onCompleted: {
        recordProps()
        applyStored()
    }
    onConfirmed: accepted(module, collectProps())
    onCanceled: restoreProps()
}
