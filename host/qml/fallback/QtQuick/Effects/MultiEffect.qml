// SPDX-License-Identifier: Apache-2.0
import QtQuick

// Stands in for the type of the same name where Qt is older than 6.5 or comes without it: colour, blur, shadow and mask
// of another item, with the same properties. The software renderer draws no shaders; there the source shows as it is.
Item {
    id: effect

    property Item source: null
    property bool autoPaddingEnabled: true
    property rect paddingRect: Qt.rect(0, 0, 0, 0)
    property real brightness: 0
    property real contrast: 0
    property real saturation: 0
    property real colorization: 0
    property color colorizationColor: Qt.rgba(1, 0, 0, 1)
    property bool blurEnabled: false
    property real blur: 0
    property int blurMax: 32
    property real blurMultiplier: 0
    property bool shadowEnabled: false
    property real shadowOpacity: 1
    property real shadowBlur: 1
    property real shadowHorizontalOffset: 0
    property real shadowVerticalOffset: 0
    property color shadowColor: Qt.rgba(0, 0, 0, 1)
    property real shadowScale: 1
    property bool maskEnabled: false
    property Item maskSource: null
    property bool maskInverted: false
    property real maskThresholdMin: 0
    property real maskSpreadAtMin: 0
    property real maskThresholdMax: 1
    property real maskSpreadAtMax: 0

    readonly property bool plain: GraphicsInfo.api === GraphicsInfo.Software
    // The source of a layer is a texture already; it has its own size and no room around it.
    readonly property bool layered: (source as ShaderEffectSource) !== null
    readonly property real reach: blurMax * (1 + blurMultiplier)
    readonly property real padding: {
        if (layered || !autoPaddingEnabled || plain)
            return 0
        const shadow = shadowEnabled ? shadowBlur * reach + Math.max(Math.abs(shadowHorizontalOffset), Math.abs(shadowVerticalOffset)) : 0
        return Math.ceil(Math.max(blurEnabled ? blur * reach : 0, shadow))
    }

    implicitWidth: source?.width ?? 0
    implicitHeight: source?.height ?? 0

    ShaderEffectSource {
        id: picture
        visible: effect.plain
        width: effect.width
        height: effect.height
        sourceItem: effect.layered ? (effect.plain ? (effect.source as ShaderEffectSource).sourceItem : null) : effect.source
        sourceRect: effect.padding > 0 ? Qt.rect(-effect.padding, -effect.padding, effect.width + 2 * effect.padding, effect.height + 2 * effect.padding)
                                       : Qt.rect(0, 0, 0, 0)
    }
    ShaderEffectSource {
        id: maskPicture
        visible: false
        sourceItem: effect.maskEnabled && !effect.plain ? effect.maskSource : null
    }

    component Pass: ShaderEffect {
        property var source: null
        property vector2d stride: Qt.vector2d(0, 0)
        visible: false
        fragmentShader: "qrc:/lumendesk/fallback/QtQuick/Effects/blur.frag.qsb"
        layer.enabled: true
        layer.smooth: true
    }

    Loader {
        id: drawing
        readonly property Item texture: effect.layered ? effect.source : picture
        readonly property bool soft: effect.blurEnabled || effect.shadowEnabled
        x: -effect.padding
        y: -effect.padding
        width: effect.width + 2 * effect.padding
        height: effect.height + 2 * effect.padding
        active: !effect.plain && effect.source !== null
        sourceComponent: Item {
            Pass {
                id: across
                anchors.fill: parent
                source: drawing.texture
                stride: Qt.vector2d((effect.blurEnabled ? effect.blur : effect.shadowBlur) * effect.reach / 12 / Math.max(1, width), 0)
                layer.enabled: drawing.soft
            }
            Pass {
                id: down
                anchors.fill: parent
                source: across
                stride: Qt.vector2d(0, (effect.blurEnabled ? effect.blur : effect.shadowBlur) * effect.reach / 12 / Math.max(1, height))
                layer.enabled: drawing.soft
            }
            ShaderEffect {
                anchors.fill: parent
                property var source: drawing.texture
                property var soft: drawing.soft ? down : drawing.texture
                property var mask: effect.maskEnabled ? maskPicture : drawing.texture
                property vector4d levels: Qt.vector4d(effect.brightness, effect.contrast, effect.saturation, effect.colorization)
                property color tint: effect.colorizationColor
                property color shade: Qt.rgba(effect.shadowColor.r, effect.shadowColor.g, effect.shadowColor.b, effect.shadowColor.a * effect.shadowOpacity)
                property vector4d shadow: Qt.vector4d(effect.shadowHorizontalOffset / Math.max(1, width), effect.shadowVerticalOffset / Math.max(1, height),
                                                      Math.max(0.01, effect.shadowScale), effect.shadowEnabled ? 1 : 0)
                property vector4d thresholds: Qt.vector4d(effect.maskThresholdMin, effect.maskSpreadAtMin, effect.maskThresholdMax, effect.maskSpreadAtMax)
                // Blur, mask, inverted mask; the part of the drawing that the source covers.
                property vector4d modes: Qt.vector4d(effect.blurEnabled ? 1 : 0, effect.maskEnabled ? 1 : 0, effect.maskInverted ? 1 : 0, 0)
                property vector4d inner: Qt.vector4d(effect.padding / Math.max(1, width), effect.padding / Math.max(1, height),
                                                     Math.max(1, effect.width) / Math.max(1, width), Math.max(1, effect.height) / Math.max(1, height))
                fragmentShader: "qrc:/lumendesk/fallback/QtQuick/Effects/effect.frag.qsb"
            }
        }
    }
}
