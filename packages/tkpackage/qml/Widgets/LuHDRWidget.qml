// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Style
import LumenDesk.Widgets
import ".."

LuAdvancedWidget {
    id: _self

    // What the user chose last and the monitor has not shown yet.
    property var asked
    // From this many pixels on a scaled desktop leaves macOS no room for high dynamic range.
    readonly property int largeDesktop: 3840 * 2160
    readonly property size desktop: monitor?.resolution?.currentResolution ?? Qt.size(0, 0)
    readonly property bool scaledAway: LuContext.isMacOS && desktop.width * desktop.height >= largeDesktop && (monitor?.hidpi?.hidpiState ?? false)

    text: qsTr("HDR")
    functionSupported: LuContext.envDeviceChoice("using.hdr", false) || false
    active: monitor?.isHDR ?? false
    popupWindow: monitor?.isHDREnable ?? false ? null : _warning
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_hdr.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_hdr_active.svg", _self, LuStyle.colorScheme)

    function setActive(state: var): void {
        if (!monitor)
            return
        asked = state
        monitor.isHDR = state
        monitor.fireHdrChangedEvent(state, LuDataCollection.SOURCE_USER)
    }

    Connections {
        target: _self.monitor
        function onIsHDRChanged() {
            const state = _self.monitor.isHDR
            if (state !== _self.asked)
                _self.monitor.fireHdrChangedEvent(state, LuDataCollection.SOURCE_SYNC)
            _self.asked = undefined
        }
    }

    LuPopupLoader {
        id: _warning
        LuWarningWindow {
            text: _self.text
            message: _self.scaledAway ? qsTr("Due to macOS scaling settings, HDR is temporarily unavailable. Please try turning off HiDPI or lowering the resolution.") : qsTr("This monitor has no HDR mode to switch to.")
        }
    }
}
