// SPDX-License-Identifier: Apache-2.0
import QtQml

// Lets the main window reach the controller without loading it at the start.
QtObject {
    readonly property var controller: LuPopupController
}
