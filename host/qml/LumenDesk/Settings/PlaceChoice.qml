// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// A place by the name of a city, or by its degrees.
Column {
    id: choice

    required property var place
    property var cities: []
    property bool refused: false

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.space

    function show(): void {
        north.text = place.latitude
        east.text = place.longitude
        refused = false
    }
    function take(): void {
        refused = !place.choose(north.text, east.text)
    }
    function takeCity(city: var): void {
        place.choose(city.latitude, city.longitude, city.name)
        search.text = ""
        cities = []
    }

    Component.onCompleted: show()
    Connections {
        target: choice.place
        function onChanged(): void {
            if (!north.activeFocus && !east.activeFocus)
                choice.show()
        }
    }

    LuLabel {
        width: parent.width
        kind: LuLabel.Strong
        wrapMode: Text.WordWrap
        text: choice.place.placeName ? qsTr("Chosen place: %1").arg(choice.place.placeName) : qsTr("Chosen place")
    }
    SettingsCard {
        SettingsRow {
            text: qsTr("City")
            description: qsTr("Of the cities that name a time zone. They are known here: nothing is sent.")
            last: choice.cities.length === 0
            LuTextField {
                id: search
                objectName: "citySearch"
                width: LuStyle.scaled(200)
                name: qsTr("City")
                placeholderText: qsTr("Search")
                maximumLength: 60
                onTextEdited: choice.cities = choice.place.search(text)
                onAccepted: {
                    if (choice.cities.length > 0)
                        choice.takeCity(choice.cities[0])
                }
            }
        }
        Repeater {
            model: choice.cities
            LuListRow {
                required property var modelData
                width: parent?.width ?? 0
                focusPolicy: Qt.StrongFocus
                text: modelData.name
                description: modelData.country
                onClicked: choice.takeCity(modelData)
                Keys.onReturnPressed: choice.takeCity(modelData)
            }
        }
        Item {
            width: 1
            height: choice.cities.length > 0 ? LuStyle.spaceHalf : 0
        }
    }
    SettingsCard {
        SettingsRow {
            text: qsTr("Latitude")
            description: qsTr("Degrees, north of the equator. South is negative.")
            LuTextField {
                id: north
                objectName: "latitudeField"
                width: LuStyle.scaled(96)
                name: qsTr("Latitude")
                placeholderText: "52.52"
                maximumLength: 12
                inputMethodHints: Qt.ImhFormattedNumbersOnly
                onEditingFinished: choice.take()
            }
        }
        SettingsRow {
            text: qsTr("Longitude")
            description: qsTr("Degrees, east of Greenwich. West is negative.")
            last: true
            LuTextField {
                id: east
                objectName: "longitudeField"
                width: LuStyle.scaled(96)
                name: qsTr("Longitude")
                placeholderText: "13.41"
                maximumLength: 12
                inputMethodHints: Qt.ImhFormattedNumbersOnly
                onEditingFinished: choice.take()
            }
        }
    }
    LuLabel {
        objectName: "placeRefused"
        width: parent.width
        visible: choice.refused && (north.text.length > 0 && east.text.length > 0)
        kind: LuLabel.Notice
        wrapMode: Text.WordWrap
        text: qsTr("A latitude is a number from -90 to 90, a longitude one from -180 to 180.")
    }
}
