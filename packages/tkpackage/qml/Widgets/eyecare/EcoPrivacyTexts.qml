// SPDX-License-Identifier: Apache-2.0
import QtQuick
import "../.."

// Words for the times and reaches of presence sensing.
QtObject {
    id: texts

    readonly property var times: [
        { "time": LuEcoPrivacy.FiveSecs, "text": qsTr("5 sec.") },
        { "time": LuEcoPrivacy.TenSecs, "text": qsTr("10 sec.") },
        { "time": LuEcoPrivacy.TwentySecs, "text": qsTr("20 sec.") },
        { "time": LuEcoPrivacy.ThirtySecs, "text": qsTr("30 sec.") },
        { "time": LuEcoPrivacy.SixtySecs, "text": qsTr("60 sec.") },
        { "time": LuEcoPrivacy.FiveMins, "text": qsTr("5 min.") },
        { "time": LuEcoPrivacy.TenMins, "text": qsTr("10 min.") }
    ]
    readonly property var sensitivities: [
        { "sensitivity": LuEcoPrivacy.Near, "text": qsTr("Near") },
        { "sensitivity": LuEcoPrivacy.Middle, "text": qsTr("Middle") },
        { "sensitivity": LuEcoPrivacy.Far, "text": qsTr("Far") }
    ]

    // A monitor may report a number that has no words.
    function timeText(time: int): string {
        return times.find(entry => entry.time === time)?.text ?? ""
    }
    function sensitivityText(sensitivity: int): string {
        return sensitivities.find(entry => entry.sensitivity === sensitivity)?.text ?? ""
    }
}
