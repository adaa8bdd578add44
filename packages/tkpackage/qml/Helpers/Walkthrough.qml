// SPDX-License-Identifier: Apache-2.0
import QtQml
import LumenDesk

LuWalkthroughBase {
    pages: [
        LuWalkthroughPage {
            title: qsTr("BackGlow Auto-dimming")
            description: qsTr("The light behind your monitor dims with the room, so that your eyes stay at ease.")
            animationSource: "qrc:/lottieAnimation/intro_tk01_glow_a_ok.json"
        },
        LuWalkthroughPage {
            title: qsTr("Night Hours Protection")
            description: qsTr("After dark the picture turns darker than the lowest brightness, without losing its details.")
            animationSource: "qrc:/lottieAnimation/intro_tk02_night_v2_ok.json"
        }
    ]
}
