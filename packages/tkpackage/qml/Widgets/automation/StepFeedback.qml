// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// Shows on the monitor how far a key has stepped a value.
LuWindow {
    id: _self

    required property int value
    // Steps of the bar that are lit.
    required property int level
    readonly property int levels: 16
    // A picture of the package.
    required property string picture

    width: 172
    height: 177

    LuImage {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 24
        size: 80
        drawing: LuContext.resolvedResourceUrl("qrc:/images/packages/" + _self.picture + ".svg", _self.contentItem, LuStyle.colorScheme)
        tint: LuStyle.text
    }
    LuLabel {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 112
        kind: LuLabel.Title
        text: _self.value
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
