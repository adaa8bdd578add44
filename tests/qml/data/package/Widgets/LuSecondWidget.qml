// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Widgets

LuWidget {
    text: "Second row"
    widgetHidable: false
    LuLabel {
        text: "Second row"
    }
}
