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

    readonly property color primaryText: Qt.rgba(1, 1, 1, 0.92)
    readonly property color secondaryText: Qt.rgba(1, 1, 1, 0.58)
    readonly property color warning: "#ff9f0a"
    readonly property color accent: "#4aa8ff"

    readonly property string fontFamily: "Inter"
    readonly property font title: ({ family: fontFamily, pixelSize: 34, weight: Font.DemiBold })
    readonly property font body: ({ family: fontFamily, pixelSize: 14 })
    readonly property font callout: ({ family: fontFamily, pixelSize: 13, weight: Font.Medium })

    readonly property real spacing: 16
    readonly property real margin: 24
    readonly property real focusWidth: 2
    readonly property int quick: 150 // milliseconds
}
