// SPDX-License-Identifier: Apache-2.0
import QtQml
import LumenDesk

LuWalkthroughBase {
    pages: [
        LuWalkthroughPage {
            title: "For all"
            description: "A page for every system."
            animationSource: "qrc:/tests/package/move.json"
        },
        LuWalkthroughPage {
            title: "For another system"
            os: ["windows", "osx"]
        },
        LuWalkthroughPage {
            title: "For Linux"
            os: ["linux"]
            tryItUrl: "https://example.org/"
        }
    ]
}
