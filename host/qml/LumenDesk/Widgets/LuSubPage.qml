// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// A page that a widget's page leads to, for what is seldom needed: a column below a title of its own. It stands in the
// page's `subPages` and is reached through a LuPageLink. It lives as long as the page.
Column {
    property string title

    spacing: LuStyle.spaceWide
}
