// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// The details of a widget: a column below a title. The shell draws the title, the surface and the way out.
Column {
    id: page

    property string title
    property int pageWidth: LuStyle.pageWidth

    spacing: LuStyle.spaceWide
}
