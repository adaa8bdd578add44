// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// The control centre: header, the widgets of the current monitor, and the detail page beside it or over it.
Window {
    id: window

    // The room on the screen; what it depends on is named, since a call tells of no change.
    readonly property rect free: freeArea(header.Screen.virtualX, header.Screen.virtualY, header.Screen.width,
                                          header.Screen.height, header.Screen.desktopAvailableWidth,
                                          header.Screen.desktopAvailableHeight, LuContext.endlessRoom)
    // The widget whose page is open, or null. A page of the shell's own has no widget.
    property Item openWidget: null
    property Component openPageComponent: null
    readonly property bool pageOpen: openPageComponent !== null
    readonly property Item pagePanel: (beside.item as PageWindow)?.panelItem ?? over.item as Item
    readonly property Window pageWindow: beside.item as Window
    readonly property bool empty: area.empty
    readonly property Window settingsWindow: settings.item as Window
    readonly property Window walkthroughWindow: introduction.item as Window
    // What had the focus when the page was opened, and why.
    property Item opener: null
    property int openerReason: Qt.OtherFocusReason
    property bool movedByUser: false
    property var popupAccess: null

    objectName: "mainWindow"
    title: qsTr("Lumen Desk")
    width: LuStyle.windowWidth
    // Whole pixels, rounded up: a fraction less than the content would make it scroll.
    height: Math.max(120, Math.min(free.height - 2 * LuStyle.spaceWide,
                                   Math.ceil(header.implicitHeight + body.contentHeight)))
    flags: Qt.Window | Qt.FramelessWindowHint
    color: LuContext.translucentWindows ? "transparent" : LuStyle.background
    visible: false

    LayoutMirroring.enabled: LuContext.rightToLeft
    LayoutMirroring.childrenInherit: true

    function freeArea(...screen): rect {
        return LuContext.availableGeometry(window)
    }

    function place(): void {
        if (!LuContext.canPlaceWindows || movedByUser || LuContext.endlessRoom)
            return
        x = free.x + free.width - width - LuStyle.spaceWide
        y = free.y + free.height - height - LuStyle.spaceWide
    }

    onVisibleChanged: {
        if (visible)
            place()
        else
            closePage()
        // Whoever opens it anew finds it where it always opens.
        if (!visible)
            movedByUser = false
    }
    // The window has the desktop's focus again.
    onActiveFocusItemChanged: {
        if (activeFocusItem && opener && !pageOpen)
            returnFocus()
    }
    onHeightChanged: place()
    onWidthChanged: place()
    onFreeChanged: place()
    onClosing: {
        closePage()
        if (!LuPreferences.closeToTray)
            LuContext.quitRequested()
    }

    // Opens the page of a widget, in place of one that is open. False if it has none.
    function openPage(widgetName: string): bool {
        const widget = area.byName(widgetName)
        if (!widget || !widget.page)
            return false
        showPage(widget, widget.page)
        return true
    }

    function closePage(): void {
        const wasBeside = pageWindow?.active ?? false
        openPageComponent = null
        openWidget = null
        if (!visible || !opener)
            return
        // Whoever was at work on the page goes on where it was opened.
        if (wasBeside)
            requestActivate()
        else
            returnFocus()
    }

    // The control gets the focus in the way in which it had it, so that its ring is there again.
    function returnFocus(): void {
        const control = opener
        opener = null
        control?.forceActiveFocus(openerReason)
        if (control?.focusReason !== undefined)
            control.focusReason = openerReason
    }

    // Opens the settings, at a page or section if one is named; false if there is none of that name.
    function openSettings(name: string): bool {
        const before = settings.active
        settings.active = true
        const target = settings.item as SettingsWindow
        const opened = target !== null && target.open(name || target.page)
        if (opened)
            closePage()
        else if (!before)
            closeSettings()
        return opened
    }

    function closeSettings(): void {
        settings.active = false
    }

    // Lets the user arrange the widgets beside the window.
    function openArrangement(): void {
        showPage(null, arrangement)
    }

    // Opens a popup of the package by its name; false if there is none.
    function openPopup(name: string): bool {
        return popupController()?.openNamed(name) ?? false
    }

    // Loaded when it is asked for the first time.
    function popupController(): var {
        if (!popupAccess)
            popupAccess = Qt.createComponent(Qt.resolvedUrl("Popups/PopupAccess.qml")).createObject(window)
        return popupAccess?.controller ?? null
    }

    // Shows the introduction of the monitor's package; false if it has none.
    function openWalkthrough(): bool {
        const url = LuContext.walkthroughUrl
        if (!String(url))
            return false
        introduction.active = false
        const component = Qt.createComponent(url)
        const story = component.status === Component.Ready ? component.createObject(window) : null
        if (!story) {
            console.warn(component.errorString())
            return false
        }
        introduction.story = story
        introduction.active = true
        return introduction.item !== null
    }

    function closeWalkthrough(): void {
        LuPreferences.introductionSeen = true
        introduction.active = false
        introduction.story?.destroy()
        introduction.story = null
    }

    function showPage(widget: Item, page: Component): void {
        const control = activeFocusItem ?? opener
        opener = null
        closePage()
        opener = control
        openerReason = control?.focusReason ?? Qt.OtherFocusReason
        const room = x - free.x >= LuStyle.pageWidth + 2 * LuStyle.space
        beside.active = Qt.binding(() => window.pageOpen && LuContext.canPlaceWindows && room)
        over.active = Qt.binding(() => window.pageOpen && !(LuContext.canPlaceWindows && room))
        openWidget = widget
        openPageComponent = page
    }

    // The widgets in the package's order.
    function widgetItems(): var {
        return area.widgets
    }

    function widgetItem(name: string): Item {
        return area.byName(name)
    }

    Component {
        id: arrangement
        ArrangePage {
            widgets: area.widgets
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: LuContext.translucentWindows ? LuStyle.radiusWindow : 0
        color: LuStyle.background
        border.width: 1
        border.color: LuStyle.line
    }

    HeaderBar {
        id: header
        width: parent.width
        height: implicitHeight
        window: window
        onMoved: window.movedByUser = true
        onSettingsClicked: LuContext.openSettings("")
        onCloseClicked: window.close()
    }

    Flickable {
        id: body
        objectName: "body"
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        contentHeight: notices.taken + (window.empty ? (emptyState.item as Item)?.implicitHeight ?? 0 : area.implicitHeight) + LuStyle.spaceLarge
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: interactive
        T.ScrollBar.vertical: LuScrollBar { }

        LuScrollToFocus {
            view: body
        }
        TapHandler {
            acceptedButtons: Qt.RightButton
            enabled: !window.empty
            onTapped: window.openArrangement()
        }
        NoticeList {
            id: notices
            objectName: "notices"
            x: LuStyle.spaceLarge
            width: body.width - 2 * LuStyle.spaceLarge
        }
        WidgetArea {
            id: area
            x: LuStyle.spaceLarge
            y: notices.taken
            width: body.width - 2 * LuStyle.spaceLarge
            window: window
            onPageRequested: widget => {
                if (window.openWidget === widget)
                    window.closePage()
                else
                    window.showPage(widget, widget.page)
            }
            onWidgetsGoing: window.closePage()
        }
        Loader {
            id: emptyState
            x: LuStyle.spaceLarge
            y: notices.taken
            width: body.width - 2 * LuStyle.spaceLarge
            active: window.empty
            sourceComponent: EmptyState {
                allHidden: area.supported
                onArrangeRequested: window.openArrangement()
            }
        }
    }

    Loader {
        id: beside
        active: false
        sourceComponent: PageWindow {
            mainWindow: window
            free: window.free
            page: window.openPageComponent
            focusReason: window.openerReason
            onCloseRequested: window.closePage()
        }
    }
    Loader {
        id: over
        active: false
        anchors.fill: parent
        sourceComponent: Component {
            PagePanel {
                page: window.openPageComponent
                covering: true
                focusReason: window.openerReason
                onCloseRequested: window.closePage()
                Component.onCompleted: focusFirst()
            }
        }
    }

    Loader {
        id: settings
        active: false
        sourceComponent: SettingsWindow {
            widgets: area.widgets
            onClosing: Qt.callLater(window.closeSettings)
            onIntroductionRequested: window.openWalkthrough()
        }
    }
    Loader {
        id: introduction
        property LuWalkthroughBase story: null
        active: false
        sourceComponent: WalkthroughWindow {
            walkthrough: introduction.story
            visible: true
            onFinished: Qt.callLater(window.closeWalkthrough)
        }
    }
    Connections {
        target: LuContext
        function onSettingsRequested(section: string): void {
            if (!window.openSettings(section))
                window.openSettings("")
        }
    }

    Shortcut {
        sequences: ["F10", "Menu"]
        enabled: !window.empty
        onActivated: window.openArrangement()
    }
    Shortcut {
        sequences: [StandardKey.Preferences]
        onActivated: LuContext.openSettings("")
    }
    Shortcut {
        sequences: [StandardKey.Cancel]
        enabled: window.pageOpen
        onActivated: {
            if (!(over.item as PagePanel)?.stepBack())
                window.closePage()
        }
    }
    Component.onCompleted: LuContext.mainWindow = window
}
