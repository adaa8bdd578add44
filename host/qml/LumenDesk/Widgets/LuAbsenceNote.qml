// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// Says what this session cannot do of what a panel needs; takes no room where nothing is missing.
Item {
    id: note

    // Names of LuContext.absences. Reasons that are the same are told once.
    property var needs: []
    readonly property string text: {
        const absences = LuContext.absences
        const reasons = needs.map(need => absences[need] ?? "").filter(reason => reason)
        return reasons.filter((reason, index) => reasons.indexOf(reason) === index).join("\n")
    }

    width: parent ? parent.width : implicitWidth
    implicitHeight: Math.max(sign.height, words.implicitHeight)
    visible: text.length > 0

    LuIcon {
        id: sign
        anchors.left: parent.left
        anchors.top: parent.top
        name: "info"
        size: 16
        color: LuStyle.textDim
    }
    LuLabel {
        id: words
        objectName: "absenceText"
        anchors.left: sign.right
        anchors.leftMargin: LuStyle.space
        anchors.right: parent.right
        kind: LuLabel.Caption
        wrapMode: Text.WordWrap
        text: note.text
    }
}
