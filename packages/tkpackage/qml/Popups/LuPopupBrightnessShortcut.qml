// SPDX-License-Identifier: Apache-2.0
import QtQuick
import "../Widgets/automation"

// Shows on the monitor how bright a shortcut has made it.
StepFeedback {
    text: qsTr("Brightness")
    picture: "ico48_brightness"
    value: monitor?.brightness?.displayBrightness ?? 0
    level: Math.round(value / 100 * levels)
}
