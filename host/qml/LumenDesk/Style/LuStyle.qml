// SPDX-License-Identifier: Apache-2.0
pragma Singleton

import QtQuick
import LumenDesk

// The design tokens: every colour, size and duration of the window comes from here.
QtObject {
    id: style

    readonly property string colorScheme: LuContext.colorScheme
    readonly property bool dark: colorScheme === "dark"
    readonly property bool highContrast: LuContext.highContrast

    // Surfaces
    readonly property color background: pick("#F7F8FA", "#1C1F24", "#FFFFFF", "#000000")
    readonly property color card: pick("#FFFFFF", "#262A31", "#FFFFFF", "#000000")
    readonly property color raised: pick("#FFFFFF", "#2B3038", "#FFFFFF", "#000000")
    readonly property color line: pick("#E4E7EC", "#343A44", "#000000", "#FFFFFF")
    readonly property color field: pick("#EEF1F5", "#323842", "#FFFFFF", "#000000")
    readonly property color fieldHover: pick("#E5E9EF", "#3A414C", "#E6E6E6", "#333333")
    readonly property color fieldPress: pick("#DADFE7", "#434B57", "#CCCCCC", "#4D4D4D")
    readonly property color hover: pick("#0D000000", "#12FFFFFF", "#1A000000", "#26FFFFFF")
    readonly property color press: pick("#1A000000", "#1FFFFFFF", "#33000000", "#40FFFFFF")
    readonly property color scrim: pick("#52101620", "#8A000000", "#99000000", "#B3000000")
    // The third surface: behind the zones of a desktop, under everything else.
    readonly property color backdrop: pick("#E3E7ED", "#14171B", "#FFFFFF", "#000000")

    // Text and glyphs
    readonly property color text: pick("#16191D", "#F1F3F6", "#000000", "#FFFFFF")
    readonly property color textDim: pick("#5B6470", "#A0A9B6", "#000000", "#FFFFFF")
    readonly property color glyph: pick("#9E000000", "#D1FFFFFF", "#000000", "#FFFFFF")
    readonly property color glyphFill: pick("#1A000000", "#1FFFFFFF", "#FFFFFF", "#000000")
    readonly property color glyphFillHover: pick("#26000000", "#2BFFFFFF", "#E6E6E6", "#333333")

    // Accent. Text on a filled button needs more contrast than a glyph on a disc.
    readonly property color accent: pick("#097BF8", "#097BF8", "#0050B0", "#6CB4FF")
    readonly property color accentHover: pick("#0A6FE0", "#2C8FFB", "#003F8C", "#8CC4FF")
    readonly property color accentFill: pick("#0A6CDB", "#0A6CDB", "#0050B0", "#6CB4FF")
    readonly property color accentFillHover: pick("#0960C4", "#0960C4", "#003F8C", "#8CC4FF")
    readonly property color accentInk: pick("#FFFFFF", "#FFFFFF", "#FFFFFF", "#000000")
    readonly property color accentText: pick("#0660C6", "#69B1FF", "#0050B0", "#6CB4FF")
    readonly property color accentSoft: pick("#1F097BF8", "#33097BF8", "#1F0050B0", "#336CB4FF")
    readonly property color accentSoftHover: pick("#33097BF8", "#4D097BF8", "#330050B0", "#4D6CB4FF")
    readonly property color caution: pick("#C42B1C", "#FF8A80", "#A80000", "#FF9C94")
    readonly property color cautionFill: pick("#C42B1C", "#B3261E", "#A80000", "#FF9C94")
    readonly property color cautionFillHover: pick("#A82418", "#C63A31", "#8A0000", "#FFB3AD")

    // What a person should notice: pink for a state that keeps a feature from working, yellow for a clash.
    readonly property color notice: pick("#BE1E5C", "#FF8FB8", "#A0003C", "#FF9CC2")
    readonly property color warningFill: pick("#FFD84D", "#F2C230", "#FFE066", "#FFE066")
    readonly property color warningInk: pick("#3A2E00", "#2A2100", "#000000", "#000000")

    // Control parts
    readonly property color track: pick("#DFE3E9", "#3D444F", "#FFFFFF", "#000000")
    readonly property color trackHover: pick("#D0D6DE", "#49515E", "#E6E6E6", "#333333")
    readonly property color outline: pick("#868F9C", "#7E8896", "#000000", "#FFFFFF")
    readonly property color thumb: pick("#FFFFFF", "#FFFFFF", "#FFFFFF", "#FFFFFF")
    readonly property color focus: pick("#0660C6", "#8CC4FF", "#000000", "#FFFF00")
    readonly property color shadow: pick("#FF14233B", "#FF000000", "#00000000", "#00000000")
    readonly property real disabledOpacity: 0.3

    // Space: an 8 px grid with a half step.
    readonly property int spaceHalf: 4
    readonly property int space: 8
    readonly property int spaceWide: 12
    readonly property int spaceLarge: 16
    readonly property int spaceHuge: 24

    readonly property int radius: 10
    readonly property int radiusWindow: 14
    readonly property int radiusSmall: 7
    readonly property int focusWidth: 2

    // Elevation: how far the shadow of what lies above the window reaches.
    readonly property int elevationPopup: 12
    readonly property int elevationDialog: 20

    // Type
    readonly property string fontFamily: LuContext.fontFamily
    readonly property real fontScale: LuContext.fontScale
    readonly property int fontSmall: Math.round(10 * fontScale)
    readonly property int fontCaption: Math.round(11 * fontScale)
    readonly property int fontSegment: Math.round(12 * fontScale)
    readonly property int fontBody: Math.round(13 * fontScale)
    readonly property int fontTitle: Math.round(15 * fontScale)
    readonly property int fontDisplay: Math.round(20 * fontScale)
    readonly property int weightStrong: Font.DemiBold

    // Sizes grow with the desktop's font and never shrink below the drawn ones.
    readonly property int windowWidth: scaled(340)
    readonly property int pageWidth: scaled(270)
    readonly property int tile: scaled(40)
    readonly property int glyphSize: scaled(22)
    readonly property int rowHeight: scaled(48)
    readonly property int controlHeight: scaled(30)

    // Motion
    readonly property int motion: LuContext.reducedMotion ? 0 : 150
    readonly property int motionSlow: LuContext.reducedMotion ? 0 : 250

    function pick(light: color, darkColor: color, lightContrast: color, darkContrast: color): color {
        if (highContrast)
            return dark ? darkContrast : lightContrast
        return dark ? darkColor : light
    }

    // A size of the drawing at the size of the desktop's font.
    function scaled(size: real): int {
        return Math.round(size * Math.max(1, fontScale))
    }

    // Whether an item can be drawn as one picture where a renderer draws on a screen of that many pixels a point: the
    // software renderer puts such a picture beside its place on any but the coarsest.
    function drawsLayers(api: int, ratio: real): bool {
        return api !== GraphicsInfo.Software || ratio === 1
    }

    // The opacity of an item by itself: full, or faded where it is disabled and nothing that it lies in is faded yet.
    // So a disabled group is faded once, whether the group does it or its items do.
    function dim(item: Item): real {
        if (item.enabled)
            return 1
        for (let above = item.parent; above && !above.enabled; above = above.parent) {
            if (above.opacity < 1)
                return 1
        }
        return disabledOpacity
    }
}
