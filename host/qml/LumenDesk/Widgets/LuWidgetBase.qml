// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk.Style
import LumenDesk.Tools

// What every widget has: the monitor that it serves, whether it shows, its bindings, its page and its click.
//
// The shell makes the widgets of the current monitor, sets `monitor` and `mainWindow`, and removes them when another
// monitor becomes current.
Item {
    id: widget

    // The model's class belongs to a package, so the shell cannot name its type.
    property var monitor: null
    property Window mainWindow: null
    readonly property bool isCurrentModel: monitor?.isCurrentModel ?? false
    property string widgetName
    property string text
    property bool functionSupported: true
    property bool active: false
    // LuBinding elements, live as long as the widget.
    property list<Component> bindings
    property QtObject controlPalette: LuStyle
    // Details; a click opens them.
    property Component page: null
    property Component settingsInnerPage: null
    // Not null: a click opens this LuPopupLoader in place of everything else.
    property var popupWindow: null
    property bool imageButtonOpenPage: true
    property bool widgetHidable: true
    // The feature is switched off when the user takes the widget out of the window.
    property bool deactivateOnRemoved: false
    property int targetWidth: 0
    property int targetHeight: 0
    // Where the shell puts it: "row", "tile", "wide" or "footer".
    property string placement: "row"
    readonly property bool pageOpen: mainWindow?.openWidget === widget
    property url currentImage

    signal pageRequested()

    visible: functionSupported

    // Switches the feature; widgets redefine it.
    function setActive(state: var): void { }

    // What a click does.
    function trigger(): void {
        if (popupWindow)
            popupWindow.open()
        else if (page && imageButtonOpenPage)
            pageRequested()
        else
            setActive(!active)
    }

    // The shell tells that the user took the widget away.
    function removed(): void {
        if (deactivateOnRemoved && active)
            setActive(false)
    }

    property LuBindingHost bindingHost: LuBindingHost {
        owner: widget
        components: widget.bindings
    }

    Component.onCompleted: bindingHost.activate()
    Component.onDestruction: bindingHost.release()
}
