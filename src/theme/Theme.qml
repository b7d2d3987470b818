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

    readonly property real symbolScale: 1.32 // a symbol fills less of its font's square than a letter

    readonly property real spacing: 16
    readonly property real margin: 24
    readonly property real focusWidth: 2
    readonly property int quick: 150 // milliseconds
}
