// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Widgets

// The editor of one action of a flow or an application mode.
//
// recordProps() is called before the user changes anything, restoreProps() when the editor is left, since it previews
// live; both are the editor's own. accepted() carries the module and what the action stores.
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
    signal accepted(var module, var properties)

    function recordProps(): void { }
    function restoreProps(): void { }
    // The properties to store; editors redefine it.
    function collectProps(): var {
        return {}
    }
    // What the editor shows of a stored action; editors redefine it.
    function applyStored(): void { }

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
