// SPDX-License-Identifier: Apache-2.0
import QtQml

// One page of a walkthrough. `os` lists the systems that it is for, empty for all.
QtObject {
    property string title
    property string description
    property url animationSource
    property var os: []
    property string tryItUrl
}
