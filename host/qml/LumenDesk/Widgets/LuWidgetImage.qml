// SPDX-License-Identifier: Apache-2.0
import QtQml

// The pictures of one button in its states; a state without a picture shows the normal one.
QtObject {
    property url normal
    property url checked
    property url hovered
}
