// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import "../.."

// Size and place of the small window over the picture.
Column {
    id: options

    required property var widget
    readonly property var pipPbp: widget?.pipPbp ?? null

    spacing: LuStyle.space

    LuLabel {
        anchors.left: parent.left
        kind: LuLabel.Strong
        text: qsTr("Sub size")
    }
    Flow {
        width: parent.width
        spacing: LuStyle.spaceLarge
        Accessible.role: Accessible.Grouping
        Accessible.name: qsTr("Sub size")
        Repeater {
            model: [
                { "size": LuPipPbp.PIPSmall, "name": qsTr("Small") },
                { "size": LuPipPbp.PIPMedium, "name": qsTr("Medium") },
                { "size": LuPipPbp.PIPLarge, "name": qsTr("Large") }
            ]
            LuRadio {
                required property var modelData

                text: modelData.name
                confirmed: options.pipPbp?.pipSize === modelData.size
                onToggled: options.pipPbp.pipSize = modelData.size
            }
        }
    }
    LuLabel {
        anchors.left: parent.left
        topPadding: LuStyle.spaceHalf
        kind: LuLabel.Strong
        text: qsTr("Sub position")
    }
    Row {
        anchors.left: parent.left
        spacing: LuStyle.spaceLarge
        Accessible.role: Accessible.Grouping
        Accessible.name: qsTr("Sub position")
        Repeater {
            model: [
                { "place": LuPipPbp.PIPUpperRight, "picture": "btn_pip_RT", "name": qsTr("Upper right") },
                { "place": LuPipPbp.PIPUpperLeft, "picture": "btn_pip_LT", "name": qsTr("Upper left") },
                { "place": LuPipPbp.PIPLowerRight, "picture": "btn_pip_RB", "name": qsTr("Lower right") },
                { "place": LuPipPbp.PIPLowerLeft, "picture": "btn_pip_LB", "name": qsTr("Lower left") }
            ]
            LuImageRadio {
                required property var modelData

                text: modelData.name
                showText: false
                confirmed: options.pipPbp?.pipPosition === modelData.place
                normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/%1.svg".arg(modelData.picture), options.widget, LuStyle.colorScheme)
                checkedImage: LuContext.resolvedResourceUrl("qrc:/images/packages/%1_active.svg".arg(modelData.picture), options.widget, LuStyle.colorScheme)
                onToggled: options.pipPbp.pipPosition = modelData.place
            }
        }
    }
}
