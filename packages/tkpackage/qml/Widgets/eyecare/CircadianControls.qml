// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import "../.."

// The schedule of the filter: whose sun it follows, the day's curve, and the user's own times.
Column {
    id: controls

    required property Item widget
    required property var lowBlueLight

    readonly property var weather: lowBlueLight?.weather ?? null
    readonly property bool running: lowBlueLight?.circadianState || false
    readonly property bool manual: weather?.circadianMode === LuWeather.Manual
    readonly property bool known: weather?.status === LuWeather.Success
    readonly property bool failed: running && !manual && !known && weather?.status !== LuWeather.Process

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.spaceWide

    function minutesOf(text: string): int {
        const parts = text.split(":")
        return Number(parts[0]) * 60 + Number(parts[1])
    }

    // The edited times count from now on, unless the sunset stands in the morning.
    function apply(): void {
        if (_sunset.hour < _sunset.hourFrom) {
            _sunset.highlightHour = true
            _outOfRange.open()
            return
        }
        _sunset.highlightHour = false
        weather.manualSunRiseHour = _sunrise.hour
        weather.manualSunRiseMinute = _sunrise.minute
        weather.manualSunSetHour = _sunset.hour
        weather.manualSunSetMinute = _sunset.minute
        weather.startCircadianFunction()
    }

    LuPopupLoader {
        id: _outOfRange
        LuWarningWindow {
            text: qsTr("Out of Range")
            message: qsTr("Set the sunrise time range from 00:00 to 11:59 and the sunset time range from 12:00 to 23:59.")
        }
    }
    Timer {
        running: controls.running
        repeat: true
        triggeredOnStart: true
        interval: 20000
        onTriggered: {
            const date = new Date()
            _plot.now = date.getHours() * 60 + date.getMinutes()
        }
    }

    LuPageRow {
        text: qsTr("Circadian Mode")
        strong: true
        LuSwitch {
            objectName: "circadianSwitch"
            text: qsTr("Circadian Mode")
            confirmed: controls.running
            onToggled: controls.lowBlueLight.circadianState = checked
        }
    }
    LuPageGroup {
        enabled: controls.running
        fadedOpacity: 0.3
        LuSegmented {
            text: qsTr("Circadian Mode")
            model: [qsTr("Sunrise to Sunset"), qsTr("Manual")]
            confirmedIndex: controls.manual ? 1 : 0
            onActivated: index => controls.weather.circadianMode = index === 1 ? LuWeather.Manual : LuWeather.Auto
        }
        CircadianPlot {
            id: _plot
            visible: controls.running && (controls.manual || controls.known)
            sunrise: controls.manual ? _sunrise.hour * 60 + _sunrise.minute : controls.minutesOf(controls.weather?.autoSunRise || "06:00")
            sunset: controls.manual ? _sunset.hour * 60 + _sunset.minute : controls.minutesOf(controls.weather?.autoSunSet || "18:00")
        }
        LuPageRow {
            text: qsTr("Sunrise")
            LuLabel {
                objectName: "sunriseTime"
                visible: !_sunrise.visible
                kind: LuLabel.Value
                text: controls.known && !controls.manual ? controls.weather.autoSunRise : "--:--"
            }
            LuTimeButton {
                id: _sunrise
                objectName: "sunriseButton"
                visible: controls.manual && controls.running
                text: qsTr("Sunrise")
                hour: controls.weather?.manualSunRiseHour ?? 6
                minute: controls.weather?.manualSunRiseMinute ?? 0
                hourTo: 11
                onHourEdited: value => {
                    controls.weather.manualSunRiseHour = value
                    hour = Qt.binding(() => controls.weather?.manualSunRiseHour ?? 6)
                }
                onMinuteEdited: value => {
                    controls.weather.manualSunRiseMinute = value
                    minute = Qt.binding(() => controls.weather?.manualSunRiseMinute ?? 0)
                }
            }
        }
        LuPageRow {
            text: qsTr("Sunset")
            LuLabel {
                objectName: "sunsetTime"
                visible: !_sunset.visible
                kind: LuLabel.Value
                text: controls.known && !controls.manual ? controls.weather.autoSunSet : "--:--"
            }
            LuTimeButton {
                id: _sunset
                objectName: "sunsetButton"
                visible: controls.manual && controls.running
                text: qsTr("Sunset")
                hour: controls.weather?.manualSunSetHour ?? 18
                minute: controls.weather?.manualSunSetMinute ?? 0
                hourFrom: 12
                onHourEdited: value => {
                    highlightHour = false
                    controls.weather.manualSunSetHour = value
                    hour = Qt.binding(() => controls.weather?.manualSunSetHour ?? 18)
                }
                onMinuteEdited: value => {
                    controls.weather.manualSunSetMinute = value
                    minute = Qt.binding(() => controls.weather?.manualSunSetMinute ?? 0)
                }
            }
        }
    }
    LuButton {
        objectName: "circadianApply"
        visible: controls.manual && controls.running
        anchors.right: parent.right
        kind: LuButton.Highlighted
        text: qsTr("Apply")
        onClicked: controls.apply()
    }
    LuLabel {
        objectName: "circadianHint"
        width: parent.width
        visible: controls.running && !controls.manual && controls.known && _plot.present !== null
        kind: LuLabel.Caption
        wrapMode: Text.WordWrap
        text: qsTr("The filter follows the sun where you are. Level %1 until %2.").arg(_plot.present?.level ?? 0).arg(_plot.timeText(_plot.present?.to ?? 0))
    }
    LuLabel {
        objectName: "circadianFailure"
        width: parent.width
        visible: controls.failed
        kind: LuLabel.Notice
        wrapMode: Text.WordWrap
        text: qsTr("Due to an unstable internet connection or other issues, the system failed to receive the sunset and sunrise times. Please switch to manual mode.")
    }
    LuButton {
        objectName: "circadianLocation"
        visible: controls.failed && !LuPlace.present
        kind: LuButton.Link
        leftPadding: 0
        text: qsTr("Set your location")
        onClicked: LuContext.openSettings("location")
    }
    Item {
        width: parent.width
        height: Math.max(_provider.implicitHeight, _logo.height)
        visible: controls.running && !controls.manual
        LuLabel {
            id: _provider
            anchors.left: parent.left
            anchors.right: _logo.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            kind: LuLabel.Caption
            wrapMode: Text.WordWrap
            text: qsTr("Weather data provided by")
        }
        LuImageButton {
            id: _logo
            objectName: "weatherProvider"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Weather data provided by")
            normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/ic_weather.svg", controls.widget, LuStyle.colorScheme)
            onClicked: Qt.openUrlExternally(LuContext.env("openweather.url"))
        }
    }
}
