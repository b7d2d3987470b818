pragma Singleton

import QtQuick

// Every colour, size and font that more than one view uses.
QtObject {
    // Surfaces, from back to front.
    readonly property color backdrop: Qt.rgba(0.035, 0.043, 0.06, 1)
    readonly property color surface: Qt.rgba(1, 1, 1, 0.08)
    readonly property color surfaceHovered: Qt.rgba(1, 1, 1, 0.13)
    readonly property color surfacePressed: Qt.rgba(1, 1, 1, 0.05)
    readonly property color surfaceEdge: Qt.rgba(1, 1, 1, 0.12)

    // Over the video: to be told from white pictures and from black ones.
    readonly property color overlaySurface: Qt.rgba(0.07, 0.08, 0.1, 0.76)
    readonly property color overlayHovered: Qt.rgba(0.2, 0.21, 0.24, 0.82)
    readonly property color overlayPressed: Qt.rgba(0.04, 0.045, 0.06, 0.82)
    readonly property color overlayEdge: Qt.rgba(1, 1, 1, 0.16)
    readonly property color overlayText: Qt.rgba(1, 1, 1, 0.92)
    readonly property color overlayFaintText: Qt.rgba(1, 1, 1, 0.62)

    readonly property color primaryText: Qt.rgba(1, 1, 1, 0.92)
    readonly property color secondaryText: Qt.rgba(1, 1, 1, 0.58)
    // Translucent surfaces, as a plain material and as glass.
    readonly property color material: Qt.rgba(0.07, 0.075, 0.09, 0.74)
    readonly property color materialEdge: Qt.rgba(1, 1, 1, 0.1)
    readonly property real hairline: 1
    readonly property color glassTint: Qt.rgba(0.028, 0.032, 0.045, 0.62) // how much it covers
    readonly property real glassHovered: 0.06 // light that is added
    readonly property real glassPressed: -0.04
    readonly property real glassReach: 28 // how far around what is behind blurs into a point
    readonly property real glassDetail: 0.25 // of what is behind, for its blur

    readonly property color warning: "#ff9f0a"
    readonly property color accent: "#4aa8ff"

    readonly property string fontFamily: "Inter"
    readonly property font title: ({ family: fontFamily, pixelSize: 34, weight: Font.DemiBold })
    readonly property font body: ({ family: fontFamily, pixelSize: 14 })
    readonly property font callout: ({ family: fontFamily, pixelSize: 13, weight: Font.Medium })

    readonly property font overlayTitle: ({ family: fontFamily, pixelSize: 12, weight: Font.DemiBold })
    readonly property font overlayClock: ({ family: fontFamily, pixelSize: 11, weight: Font.Medium, features: { "tnum": 1 } })
    readonly property font overlayToast: ({ family: fontFamily, pixelSize: 13, weight: Font.DemiBold })
    readonly property font overlayHeader: ({ family: fontFamily, pixelSize: 15, weight: Font.DemiBold })

    // Where the player's floating views are.
    readonly property real overlayMargin: 18 // of those at the top corners
    readonly property real controlBarMargin: 22 // and of the toast
    readonly property real controlBarWidth: 760
    readonly property real overlayInset: 20 // no view comes nearer to the sides
    readonly property real badgeGap: 16
    readonly property real infoGap: 10

    // The player's panels.
    readonly property font panelText: ({ family: fontFamily, pixelSize: 13 })
    readonly property font panelStrong: ({ family: fontFamily, pixelSize: 13, weight: Font.DemiBold })
    readonly property font panelNumber: ({ family: fontFamily, pixelSize: 13, features: { "tnum": 1 } })
    readonly property font panelHeader: ({ family: fontFamily, pixelSize: 13, weight: Font.Bold })
    readonly property font panelCallout: ({ family: fontFamily, pixelSize: 12 })
    readonly property font panelTime: ({ family: fontFamily, pixelSize: 12, features: { "tnum": 1 } })
    readonly property font panelCaption: ({ family: fontFamily, pixelSize: 11 })
    readonly property font panelIndex: ({ family: fontFamily, pixelSize: 11, features: { "tnum": 1 } })
    readonly property font panelSection: ({ family: fontFamily, pixelSize: 10, weight: Font.Bold, letterSpacing: 1.2, capitalization: Font.AllUppercase })
    readonly property color rowHovered: Qt.rgba(1, 1, 1, 0.08)
    readonly property color rowPressed: Qt.rgba(1, 1, 1, 0.14)
    readonly property color currentChapter: Qt.rgba(accent.r, accent.g, accent.b, 0.25)
    readonly property color currentItem: Qt.rgba(accent.r, accent.g, accent.b, 0.18)
    readonly property color panelDivider: Qt.rgba(1, 1, 1, 0.12)
    readonly property color popoverBacking: Qt.rgba(0.07, 0.075, 0.09, 0.75)
    readonly property real popoverMargin: 10 // to the window's edges
    readonly property real popoverGap: 8 // to the bar
    readonly property real popoverRadius: 14
    readonly property real panelDisabled: 0.35 // opacity
    readonly property real tracksWidth: 360
    readonly property real tracksHeight: 520 // at most, as are the next two
    readonly property real chaptersWidth: 320
    readonly property real chaptersHeight: 420
    readonly property real queueWidth: 340
    readonly property real queueRowsHeight: 360
    readonly property real panelPadding: 16
    readonly property real listPadding: 10
    readonly property real headerPadding: 12
    readonly property real sectionSpacing: 16
    readonly property real groupedSpacing: 6
    readonly property real listSpacing: 2
    readonly property real rowRadius: 7
    readonly property real rowSide: 8
    readonly property real rowRise: 6
    readonly property real rowSpacing: 10
    readonly property real rowGap: 8 // before what stands at its end
    readonly property real trackSpacing: 8
    readonly property real trackRise: 3
    readonly property real trackOutset: 6
    readonly property real detailsSpacing: 1
    readonly property real checkmarkWidth: 14
    readonly property real chapterNumberWidth: 22
    readonly property real queueSymbolWidth: 18
    readonly property real delayWidth: 64 // at least
    readonly property real panelButtonSpacing: 5
    readonly property real panelButtonSide: 5
    readonly property real panelButtonRise: 3
    readonly property real rowSymbolSize: 12

    // Fields and controls of settings.
    readonly property color fieldSurface: Qt.rgba(1, 1, 1, 0.1)
    readonly property color fieldHovered: Qt.rgba(1, 1, 1, 0.16)
    readonly property color fieldPressed: Qt.rgba(1, 1, 1, 0.06)
    readonly property color fieldEdge: Qt.rgba(1, 1, 1, 0.1)
    readonly property color fieldChosen: Qt.rgba(1, 1, 1, 0.26)
    readonly property color fieldOn: Qt.rgba(accent.r, accent.g, accent.b, 0.75)
    readonly property color fieldTrack: Qt.rgba(1, 1, 1, 0.24)
    readonly property color fieldKnob: "white"
    readonly property color fieldKnobHeld: Qt.rgba(0.84, 0.84, 0.86, 1)
    readonly property color fieldList: Qt.rgba(0.13, 0.135, 0.15, 0.98)
    readonly property color swatchEdge: Qt.rgba(1, 1, 1, 0.35)
    readonly property color scrollHandle: Qt.rgba(1, 1, 1, 0.3)
    readonly property color scrollHandleHeld: Qt.rgba(1, 1, 1, 0.55)
    readonly property font field: ({ family: fontFamily, pixelSize: 12 })
    readonly property font fieldNumber: ({ family: fontFamily, pixelSize: 12, features: { "tnum": 1 } })
    readonly property real fieldHeight: 22
    readonly property real fieldSide: 8
    readonly property real fieldRadius: 6
    readonly property real fieldInset: 2
    readonly property real fieldListHeight: 240 // at most
    readonly property real fieldSymbolSize: 13
    readonly property real fieldTrackHeight: 4
    readonly property real fieldKnobSize: 14
    readonly property real swatchSize: 18
    readonly property real wellWidth: 36
    readonly property real checkBoxSize: 14
    readonly property real checkBoxRadius: 4
    readonly property real scrollWidth: 4
    readonly property real scrollPadding: 3
    readonly property real scrollLeast: 0.06 // of the track
    readonly property real settingLabelWidth: 42
    readonly property real settingSpacing: 10
    readonly property real fontPickerWidth: 170 // at most
    readonly property real sizeTextWidth: 26

    readonly property real symbolScale: 1.32 // a symbol fills less of its font's square than a letter

    readonly property real spacing: 16
    readonly property real margin: 24
    readonly property real focusWidth: 2
    readonly property int quick: 150 // milliseconds
}
