// SPDX-License-Identifier: Apache-2.0
import QtQuick

// A tile that a click toggles through setActive(), unless it has a page (imageButtonOpenPage) or a warning to show.
LuTile { }
