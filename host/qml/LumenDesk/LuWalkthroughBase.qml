// SPDX-License-Identifier: Apache-2.0
import QtQml

// The introduction that a package gives to a new user.
QtObject {
    property list<LuWalkthroughPage> pages
}
