// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls

// A slider of whole numbers for a value that need not be known.
LuSlider {
    id: slider

    // What the monitor holds; undefined where nobody knows.
    property var confirmed
    property alias stepInterval: slider.glideInterval
    signal chosen(int value)

    stepSize: 1
    confirmedValue: confirmed ?? NaN
    onMoved: chosen(Math.round(value))
}
