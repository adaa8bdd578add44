// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.BrightnessSync
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import "../.."

// The picture of a monitor: its colour mode, and of the controls those that the mode has.
LuPage {
    id: page

    required property var monitor
    required property PictureRules rules
    required property Item owner
    readonly property var brightness: monitor?.brightness ?? null
    readonly property var dimming: brightness?.softwareDimming ?? null
    readonly property var syncer: LuBrightnessSyncManager.brightnessSync

    title: qsTr("Color Mode / Brightness")

    module: brightness

    LuPageRow {
        text: qsTr("Color Mode")
        ColorModeChoice {
            objectName: "pageColorMode"
            width: Math.min(implicitWidth, 150)
            monitor: page.monitor
        }
    }
    Column {
        width: parent.width
        spacing: LuStyle.spaceHalf
        LuLabel {
            text: qsTr("Brightness")
            repeatsName: true
        }
        BrightnessSliders {
            rules: page.rules
            owner: page.owner
        }
    }
    LuPageRow {
        text: qsTr("Software Dimming")
        LuSwitch {
            objectName: "dimmingSwitch"
            text: qsTr("Software Dimming")
            enabled: page.dimming?.enabled ?? false
            confirmed: page.dimming?.state ?? false
            onToggled: page.dimming.state = checked
        }
    }
    LuLabel {
        width: parent.width
        kind: LuLabel.Caption
        wrapMode: Text.WordWrap
        text: qsTr("Darkens the picture below the lowest brightness of the monitor. Ambient brightness functions switch it off for as long as they run.")
    }
    LuAbsenceNote { needs: ["translucentWindows", "overlayOnTop"] }
    LuPageRow {
        visible: page.syncer.available && (page.brightness?.brightnessSyncEnable ?? false)
        text: qsTr("Brightness Sync")
        LuSwitch {
            objectName: "brightnessSyncSwitch"
            text: qsTr("Brightness Sync")
            confirmed: page.syncer.state
            onToggled: LuBrightnessSyncManager.toggle(checked)
        }
    }
    LuLabeledSlider {
        visible: page.rules.contrastShown
        enabled: page.rules.contrastEnabled
        text: qsTr("Contrast")
        from: 0
        to: 100
        confirmedValue: page.brightness?.displayContrast ?? NaN
        onMoved: value => page.brightness.displayContrast = value
    }
    LuLabeledSlider {
        visible: page.rules.allows("sharpnessEnable")
        text: qsTr("Sharpness")
        from: 1
        to: 10
        confirmedValue: page.brightness?.displaySharpness ?? NaN
        onMoved: value => page.brightness.displaySharpness = value
    }
    ColorTemperatureControls {
        visible: page.rules.presetTemperature || page.rules.customTemperature
        rules: page.rules
    }
    AxisControls {
        visible: page.rules.allows("hueEnable")
        text: qsTr("Hue")
        property: "displayHue"
        from: 0
        to: 100
        brightness: page.brightness
    }
    AxisControls {
        visible: page.rules.allows("saturationEnable")
        text: qsTr("Saturation")
        property: "displaySaturation"
        from: 1
        to: 10
        brightness: page.brightness
    }
    LuPageRow {
        visible: page.rules.allows("gammaEnable") && gammas.count > 0
        text: qsTr("Gamma")
        NumberChoice {
            id: gammas
            objectName: "gammaChoice"
            text: qsTr("Gamma")
            model: Array.from(page.brightness?.supportedGamma ?? [])
            textOf: gamma => strings.gamma(gamma)
            confirmed: page.brightness?.displayGamma
            onChosen: gamma => page.brightness.displayGamma = gamma
        }
    }
    LuPageRow {
        visible: page.rules.allows("gamutEnable") && gamuts.count > 0
        text: qsTr("Color Gamut")
        NumberChoice {
            id: gamuts
            objectName: "gamutChoice"
            text: qsTr("Color Gamut")
            model: Array.from(page.brightness?.supportedGamut ?? [])
            textOf: gamut => strings.gamut(gamut)
            confirmed: page.brightness?.displayGamut
            onChosen: gamut => page.brightness.displayGamut = gamut
        }
    }
    LuPageRow {
        visible: page.rules.allows("uniformityEnable")
        text: qsTr("Uniformity")
        LuSwitch {
            objectName: "uniformitySwitch"
            text: qsTr("Uniformity")
            confirmed: page.brightness?.displayUniformity ?? false
            onToggled: page.brightness.displayUniformity = checked
        }
    }
    LuButton {
        anchors.left: parent.left
        objectName: "resetColor"
        text: qsTr("Reset Color")
        onClicked: page.monitor.resetCurrentColorMode()
    }
    ModeBundleHint {
        monitor: page.monitor
        rules: page.rules
    }

    PackageStrings {
        id: strings
    }
}
