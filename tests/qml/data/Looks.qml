// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// What is seen well and badly, and controls that are off together.
Window {
    id: window

    property bool groupOn: true
    property color ink: "#000000"
    property bool inkEnabled: true
    property bool covered: false
    property int inkSize: 13

    width: 300
    height: 300
    color: "#ffffff"
    visible: true

    Text {
        objectName: "text"
        x: 20
        y: 20
        text: "Words to read"
        color: window.ink
        enabled: window.inkEnabled
        font.pixelSize: window.inkSize
    }
    Rectangle {
        width: 300
        height: 80
        color: "#808080"
        visible: window.covered
    }
    LuIcon {
        objectName: "icon"
        x: 20
        y: 100
        name: "gear"
        color: window.ink
    }
    LuPageGroup {
        id: group
        x: 100
        y: 150
        width: 100
        enabled: window.groupOn

        Rectangle {
            width: 100
            height: 20
            color: "#102030"
        }
        LuSeparator { }
        LuPageGroup {
            width: 100
            Rectangle {
                width: 100
                height: 20
                color: "#203040"
            }
        }
    }
}
