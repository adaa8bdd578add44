// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A choice from a list that opens below. `text` names it for assistive software.
//
// Bind `confirmedIndex` to what the monitor holds (-1 for nothing of the list): a choice shows at once and falls back if
// the monitor does not follow. `textOf` gives an entry's text from the entry, where the model's own texts are not meant
// for people; `enabledOf` says whether an entry may be chosen.
T.ComboBox {
    id: control

    property string text
    property string placeholder
    property var confirmedIndex
    property var textOf
    property var enabledOf
    readonly property bool opened: popup.visible

    implicitWidth: Math.max(72, Math.ceil(metrics.advanceWidth) + leftPadding + rightPadding + 1)
    // A long choice in a narrow place takes a second line.
    implicitHeight: Math.max(LuStyle.controlHeight, Math.ceil(contentItem.implicitHeight) + LuStyle.space)
    leftPadding: mirrored ? 12 + indicator.width : LuStyle.space + 2
    rightPadding: mirrored ? LuStyle.space + 2 : 12 + indicator.width
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font.family: LuStyle.fontFamily
    font.pixelSize: LuStyle.fontBody
    opacity: LuStyle.dim(control)
    displayText: labelAt(currentIndex)
    // A new list puts the template's index back to its start.
    onModelChanged: follow()
    Component.onCompleted: follow()

    Accessible.role: Accessible.ComboBox
    Accessible.name: text
    Accessible.description: displayText
    Accessible.onPressAction: control.popup.open()

    function follow(): void {
        if (confirmedIndex !== undefined)
            currentIndex = Qt.binding(() => control.confirmedIndex ?? -1)
    }

    // The entry itself: an element of the list, or a row's text.
    function entryAt(index: int): var {
        if (index < 0 || index >= count)
            return undefined
        return Array.isArray(model) || (model?.length !== undefined && typeof model !== "string") ? model[index] : textAt(index)
    }

    function labelAt(index: int): string {
        if (index < 0 || index >= count)
            return ""
        const translate = textOf
        return translate ? String(translate(entryAt(index)) ?? "") : textAt(index)
    }

    function choosable(index: int): bool {
        const allow = enabledOf
        return !allow || allow(entryAt(index)) === true
    }

    function choose(index: int): void {
        if (index < 0 || index === currentIndex)
            return
        currentIndex = index
        activated(index)
    }

    // The nearest entry in one direction that may be chosen, or -1; `fits` says which ones are meant.
    function neighbour(index: int, by: int, fits: var): int {
        for (let each = index + by; each >= 0 && each < count; each += by) {
            if (choosable(each) && (!fits || fits(labelAt(each))))
                return each
        }
        return -1
    }

    // The next entry, round the list, that begins with a letter as it is shown.
    function withLetter(letter: string): int {
        const fits = label => label.toLocaleLowerCase().startsWith(letter.toLocaleLowerCase())
        const after = neighbour(currentIndex, 1, fits)
        return after >= 0 ? after : neighbour(-1, 1, fits)
    }

    // Return and space take the entry that is highlighted in the open list.
    function takesForbidden(event: var): bool {
        return opened && [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key) && !choosable(highlightedIndex)
    }

    // The template knows nothing of entries that may not be chosen, nor of the texts that are shown.
    Keys.onPressed: event => {
        if (opened || event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)) {
            event.accepted = takesForbidden(event)
            return
        }
        event.accepted = true
        if (event.key === Qt.Key_Up)
            choose(neighbour(currentIndex, -1, null))
        else if (event.key === Qt.Key_Down)
            choose(neighbour(currentIndex, 1, null))
        else if (event.key === Qt.Key_Home)
            choose(neighbour(-1, 1, null))
        else if (event.key === Qt.Key_End)
            choose(neighbour(count, -1, null))
        else if (event.key > Qt.Key_Space && event.key < Qt.Key_Escape && event.text.length > 0)
            choose(withLetter(event.text))
        else
            event.accepted = false
    }
    Keys.onReleased: event => event.accepted = takesForbidden(event)

    // Chooses the entry of that text, as a click on it does. False if there is none or it may not be chosen.
    function assistiveSet(wanted: var): bool {
        for (let index = 0; index < count; ++index) {
            if (labelAt(index) === String(wanted) && choosable(index)) {
                currentIndex = index
                activated(index)
                return true
            }
        }
        return false
    }

    // A choice that does not fit can be read in full.
    LuToolTip {
        visible: control.hovered && !control.opened && (control.contentItem as LuLabel).truncated
        text: control.displayText
    }
    Timer {
        interval: 2500
        running: control.confirmedIndex !== undefined && control.currentIndex !== control.confirmedIndex
        onTriggered: control.follow()
    }
    TextMetrics {
        id: metrics
        font: control.font
        text: control.displayText || control.placeholder
    }

    background: Rectangle {
        radius: LuStyle.radiusSmall
        color: control.down ? LuStyle.fieldPress : control.hovered ? LuStyle.fieldHover : LuStyle.field
        border.width: LuStyle.highContrast ? 1 : 0
        border.color: LuStyle.outline
        Behavior on color {
            ColorAnimation { duration: LuStyle.motion }
        }
        LuFocusRing {
            control: control
        }
    }
    contentItem: LuLabel {
        repeatsName: true
        text: control.displayText || control.placeholder
        color: control.displayText ? LuStyle.text : LuStyle.textDim
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.WordWrap
        maximumLineCount: 2
    }
    indicator: LuIcon {
        x: control.mirrored ? 8 : control.width - width - 8
        y: (control.height - height) / 2
        name: "down"
        size: 14
        color: LuStyle.textDim
        rotation: control.opened ? 180 : 0
        Behavior on rotation {
            NumberAnimation { duration: LuStyle.motion }
        }
    }
    delegate: T.ItemDelegate {
        id: entry

        required property int index
        readonly property bool chosen: control.currentIndex === index

        width: ListView.view ? ListView.view.width : implicitWidth
        implicitHeight: LuStyle.controlHeight
        horizontalPadding: LuStyle.space
        text: control.labelAt(index)
        enabled: control.choosable(index)
        highlighted: control.highlightedIndex === index
        hoverEnabled: true
        opacity: LuStyle.dim(entry)
        Accessible.role: Accessible.ListItem
        Accessible.name: text
        Accessible.selected: chosen
        background: Rectangle {
            radius: LuStyle.radiusSmall - 1
            color: entry.down ? LuStyle.press : entry.highlighted && entry.enabled ? LuStyle.hover : "transparent"
            border.width: LuStyle.highContrast && entry.highlighted ? 1 : 0
            border.color: LuStyle.outline
        }
        contentItem: LuLabel {
            rightPadding: control.mirrored ? 0 : LuStyle.scaled(20)
            leftPadding: control.mirrored ? LuStyle.scaled(20) : 0
            repeatsName: true
            text: entry.text
            verticalAlignment: Text.AlignVCenter
            font.weight: entry.chosen ? LuStyle.weightStrong : Font.Normal
            color: entry.chosen ? LuStyle.accentText : LuStyle.text
        }
        LuIcon {
            x: control.mirrored ? LuStyle.space - 2 : entry.width - width - LuStyle.space + 2
            y: (entry.height - height) / 2
            name: "check"
            size: 16
            color: LuStyle.accentText
            visible: entry.chosen
        }
    }
    popup: T.Popup {
        id: list

        readonly property real widest: {
            let wide = 0
            for (let i = 0; i < control.count; ++i)
                wide = Math.max(wide, measure.advanceWidth(control.labelAt(i)))
            return wide + 2 * LuStyle.space + LuStyle.scaled(20) + 2 * padding + 4
        }

        y: control.height + LuStyle.spaceHalf
        x: control.mirrored ? 0 : Math.min(0, control.width - width)
        width: Math.max(control.width, 96, opened ? Math.min(LuStyle.scaled(300), widest) : 0)
        height: Math.min(contentItem.implicitHeight + 2 * padding, 280)
        padding: LuStyle.spaceHalf
        margins: LuStyle.space
        background: LuSurface { }
        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: control.delegateModel
            currentIndex: control.highlightedIndex
            highlightMoveDuration: 0
            boundsBehavior: Flickable.StopAtBounds
            // Rows are cheap: none is made ahead and late.
            cacheBuffer: 0
            T.ScrollBar.vertical: LuScrollBar { }
        }
        enter: Transition {
            NumberAnimation { property: "opacity"; from: 0; to: 1; duration: LuStyle.motion }
        }
        exit: Transition {
            NumberAnimation { property: "opacity"; from: 1; to: 0; duration: LuStyle.motion }
        }
        FontMetrics {
            id: measure
            font: control.font
        }
    }
}
