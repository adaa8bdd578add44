// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// Shows on the monitor how bright a shortcut has made it.
LuWindow {
    id: _self

    readonly property int brightness: monitor?.brightness?.displayBrightness ?? 0
    // Steps of the bar.
    readonly property int levels: 16
    readonly property int level: Math.round(brightness / 100 * levels)

    text: qsTr("Brightness")
    width: 172
    height: 177

    LuIcon {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 28
        name: "sun"
        size: 72
    }
    LuLabel {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 112
        kind: LuLabel.Title
        text: _self.brightness
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 146
        spacing: 2
        Accessible.role: Accessible.ProgressBar
        Accessible.name: _self.text
        Repeater {
            model: _self.levels
            Rectangle {
                required property int index
                width: 6
                height: 8
                radius: 1
                color: index < _self.level ? LuStyle.accent : LuStyle.track
            }
        }
    }
}
