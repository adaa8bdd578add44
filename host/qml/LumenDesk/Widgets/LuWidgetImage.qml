// SPDX-License-Identifier: Apache-2.0
import QtQml

// The pictures of one button in its states; a state without a picture shows the normal one.
QtObject {
    property url normal
    property url checked
    property url hovered
    // The normal picture brings its own disc of 40 by 40, drawn for a light surface.
    property bool ownDisc: false
    // Counts new contents of the same file: a picture that may change is not cached.
    property int revision: -1
}
