// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// The day's curve of the filter as steps over 24 hours, with the present moment.
Item {
    id: plot

    // Minutes of the day.
    property int sunrise: 6 * 60
    property int sunset: 18 * 60
    property int now: 0
    readonly property int maximum: 5

    // The spans of today: {"from", "to", "level"}, minutes of the day. The night falls into fifths as the daylight does.
    readonly property var spans: {
        // At a place far away the sun may set after midnight of the clock.
        const daylight = (sunset - sunrise + 1440) % 1440
        const night = 1440 - daylight
        const byDay = [2, 1, 0, 1, 2]
        const byNight = [3, 4, 5, 4, 3]
        let found = []
        for (const day of [-1440, 0]) {
            for (let fifth = 0; fifth < 5; ++fifth) {
                found.push({ from: day + sunrise + fifth * daylight / 5, to: day + sunrise + (fifth + 1) * daylight / 5, level: byDay[fifth] })
            }
            for (let fifth = 0; fifth < 5; ++fifth) {
                found.push({ from: day + sunset + fifth * night / 5, to: day + sunset + (fifth + 1) * night / 5, level: byNight[fifth] })
            }
        }
        return found.filter(span => span.to > 0 && span.from < 1440 && span.to > span.from).map(span => ({
            from: Math.max(0, span.from),
            to: Math.min(1440, span.to),
            level: span.level
        }))
    }
    readonly property var present: spans.find(span => now >= span.from && now < span.to) ?? null

    function timeText(minute: real): string {
        const whole = Math.floor(minute) % 1440
        return String(Math.floor(whole / 60)).padStart(2, "0") + ":" + String(whole % 60).padStart(2, "0")
    }
    function levelY(level: real): real {
        return field.height - 1 - level / maximum * (field.height - 4)
    }

    width: parent ? parent.width : implicitWidth
    implicitWidth: 220
    implicitHeight: 78

    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Level over the day")
    Accessible.description: spans.map(span => "%1 %2".arg(timeText(span.from)).arg(span.level)).join(", ")

    Item {
        id: field
        width: parent.width
        height: 60
        // Time runs from left to right in every language.
        LayoutMirroring.enabled: false

        Repeater {
            model: plot.spans
            Item {
                id: step
                required property var modelData
                required property int index
                readonly property real line: plot.levelY(modelData.level)
                readonly property real before: index > 0 ? plot.levelY(plot.spans[index - 1].level) : line
                x: Math.round(modelData.from / 1440 * field.width)
                width: Math.round(modelData.to / 1440 * field.width) - x
                height: field.height
                Rectangle {
                    y: step.line
                    width: parent.width
                    height: parent.height - y
                    color: LuStyle.accent
                    opacity: LuStyle.dark ? 0.22 : 0.14
                }
                Rectangle {
                    y: step.line - 1
                    width: parent.width + 1
                    height: 2
                    color: LuStyle.accentText
                }
                Rectangle {
                    visible: step.index > 0
                    y: Math.min(step.line, step.before) - 1
                    width: 2
                    height: Math.abs(step.line - step.before) + 2
                    color: LuStyle.accentText
                }
            }
        }
        Rectangle {
            y: field.height
            width: parent.width
            height: 1
            color: LuStyle.line
        }
        Column {
            x: Math.round(plot.now / 1440 * field.width)
            spacing: 2
            Repeater {
                model: 15
                Rectangle {
                    width: 1
                    height: 2
                    color: LuStyle.textDim
                }
            }
        }
        Rectangle {
            visible: plot.present !== null
            x: Math.round(plot.now / 1440 * field.width) - 4
            y: plot.levelY(plot.present?.level ?? 0) - 4
            width: 9
            height: 9
            radius: 4.5
            color: LuStyle.accentText
            border.width: 1.5
            border.color: LuStyle.card
        }
    }
    Item {
        y: field.height + 3
        width: parent.width
        height: 15
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true
        Repeater {
            model: [0, 6, 12, 18, 24]
            LuLabel {
                required property int modelData
                x: Math.max(0, Math.min(parent.width - width, modelData / 24 * parent.width - width / 2))
                kind: LuLabel.Caption
                repeatsName: true
                text: modelData
            }
        }
    }
}
