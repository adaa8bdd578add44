// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// Where the position for sunrise and sunset comes from, and who gets to know it.
LuPage {
    id: page

    readonly property var place: LuPlace
    readonly property string weather: String(LuContext.env("openweather.api", ""))
    // Whose service gets the position; empty where the sun is computed here.
    readonly property string recipient: /^https?:/.test(weather) ? weather.replace(/^https?:\/\/([^\/:]+).*$/, "$1") : ""
    readonly property var sources: [
        {
            "source": "service", "text": qsTr("Location service of the system"),
            "description": qsTr("GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.")
        },
        {
            "source": "zone", "text": qsTr("City of the time zone"),
            "description": place.zoneCity ? qsTr("%1. Nobody is asked.").arg(place.zoneCity) : qsTr("Your time zone has no city.")
        },
        {
            "source": "place", "text": qsTr("A place that I choose"),
            "description": qsTr("Nobody is asked.")
        },
        {
            "source": "off", "text": qsTr("Off"),
            "description": qsTr("Nothing follows the sun. Times that you set yourself still work.")
        }
    ]

    objectName: "locationPage"
    title: qsTr("Location")
    spacing: LuStyle.spaceLarge

    LuLabel {
        width: page.width
        wrapMode: Text.WordWrap
        color: LuStyle.textDim
        text: qsTr("Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.")
    }
    SettingsCard {
        SettingsRow {
            text: qsTr("Position in use")
            description: page.recipient
                         ? qsTr("It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.").arg(page.recipient)
                         : qsTr("The times of sunrise and sunset are computed on this computer. The position is sent to nobody.")
            last: true
            LuLabel {
                objectName: "presentPosition"
                anchors.verticalCenter: parent?.verticalCenter
                kind: LuLabel.Value
                text: page.place.present || qsTr("None")
                Accessible.name: qsTr("Position in use") + ": " + text
            }
        }
    }
    SettingsCard {
        id: choices
        Accessible.role: Accessible.Grouping
        Accessible.name: page.title
        Repeater {
            model: page.sources
            Item {
                id: row
                required property var modelData
                required property int index
                width: parent?.width ?? 0
                implicitHeight: words.implicitHeight + 2 * LuStyle.spaceWide
                Column {
                    id: words
                    anchors.left: parent.left
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: 2
                    LuRadio {
                        id: choice
                        anchors.left: parent.left
                        objectName: "source." + row.modelData.source
                        group: choices
                        text: row.modelData.text
                        Accessible.description: row.modelData.description
                        confirmed: page.place.source === row.modelData.source
                        onToggled: page.place.source = row.modelData.source
                    }
                    LuLabel {
                        width: parent.width
                        leftPadding: choice.mirrored ? 0 : choice.indicator.width + choice.spacing
                        rightPadding: choice.mirrored ? choice.indicator.width + choice.spacing : 0
                        kind: LuLabel.Caption
                        wrapMode: Text.WordWrap
                        text: row.modelData.description
                    }
                }
                Rectangle {
                    anchors.left: parent.left
                    anchors.right: parent.right
                    anchors.bottom: parent.bottom
                    height: 1
                    color: LuStyle.line
                    visible: row.index < page.sources.length - 1
                }
            }
        }
    }
    PlaceChoice {
        visible: page.place.source === "place"
        place: page.place
    }
}
