// SPDX-License-Identifier: Apache-2.0
import QtQuick

// A tile whose switch stands on its page: a click opens the page.
LuTile { }
