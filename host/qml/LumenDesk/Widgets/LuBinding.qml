// SPDX-License-Identifier: Apache-2.0
import QtQml

// A binding of a widget: it holds while the widget lives. At its end the target's property gets `defaultValue`, if
// there is one, and otherwise keeps what it has.
Binding {
    property var defaultValue
    property var afterBindAction
    property var beforeUnbindAction

    restoreMode: Binding.RestoreNone
}
