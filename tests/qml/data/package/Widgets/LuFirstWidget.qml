// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Widgets

LuWidget {
    text: "First row"
    LuLabel {
        text: "First row"
    }
}
