// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
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
    // The program's own window holds this widget, and not a settings page: shared things are this widget's to change.
    readonly property bool inMainWindow: mainWindow !== null && mainWindow === LuContext.mainWindow
    property string widgetName
    property string text
    property bool functionSupported: true
    property bool active: false
    // LuBinding elements, live as long as the widget.
    property list<Component> bindings
    property QtObject controlPalette: LuStyle
    // The words of the monitor's values, as its package calls them.
    readonly property PackageStringsBase translator: LuTranslators.of(widget)
    // Details; a click opens them.
    property Component page: null
    property Component settingsInnerPage: null
    // False: the colour mode forbids the function, and a click tells so.
    property bool colorModeAllowed: true
    // Not null: a click opens this LuPopupLoader in place of everything else.
    property var popupWindow: colorModeAllowed ? null : forbidden
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

    property LuPopupLoader forbidden: LuPopupLoader {
        LuWarningWindow {
            text: widget.text
        }
    }
    property LuBindingHost bindingHost: LuBindingHost {
        owner: widget
        components: widget.bindings
    }

    Component.onCompleted: bindingHost.activate()
    Component.onDestruction: bindingHost.release()
}
