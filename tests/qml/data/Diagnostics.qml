// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk.Settings
import LumenDesk.Style

// The page as the settings window shows it.
Window {
    width: 560
    height: page.implicitHeight + 2 * LuStyle.spaceHuge
    visible: true
    color: LuStyle.background
    DiagnosticsPage {
        id: page
        x: LuStyle.spaceHuge
        y: LuStyle.spaceHuge
        width: parent.width - 2 * LuStyle.spaceHuge
    }
}
