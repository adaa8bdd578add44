// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Effects
import QtQuick.Window

// One square a kind of effect, and a layer's.
Window {
    id: window

    width: 400
    height: 100
    color: "#ffffff"
    visible: true

    component Square: Rectangle {
        width: 40
        height: 40
        color: "#c04000"
    }

    Square {
        id: square
        visible: false
    }
    Rectangle {
        id: disc
        width: 40
        height: 40
        radius: 20
        color: "#000000"
        visible: false
        layer.enabled: true
    }
    // Five places of 80 pixels each.
    MultiEffect { x: 20; y: 30; width: 40; height: 40; source: square }
    MultiEffect { x: 100; y: 30; width: 40; height: 40; source: square; colorization: 1; colorizationColor: "#00ff00" }
    MultiEffect { x: 180; y: 30; width: 40; height: 40; source: square; blurEnabled: true; blur: 0.5; blurMax: 16 }
    MultiEffect { x: 260; y: 30; width: 40; height: 40; source: square; maskEnabled: true; maskSource: disc }
    Square {
        x: 340
        y: 30
        layer.enabled: true
        layer.effect: MultiEffect { saturation: -1 }
    }
}
