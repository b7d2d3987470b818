pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import Tromelo.Theme

// A dashed outline around what would take the files.
Shape {
    id: highlight

    // The line lies inside the bounds.
    readonly property real middle: Theme.highlightWidth / 2

    preferredRendererType: Shape.CurveRenderer

    ShapePath {
        fillColor: "transparent"
        strokeColor: Theme.accent
        strokeWidth: Theme.highlightWidth
        strokeStyle: ShapePath.DashLine
        dashPattern: Theme.highlightDashes.map(length => length / Theme.highlightWidth)
        capStyle: ShapePath.FlatCap

        PathRectangle {
            x: highlight.middle
            y: highlight.middle
            width: highlight.width - Theme.highlightWidth
            height: highlight.height - Theme.highlightWidth
            radius: Theme.highlightRadius - highlight.middle
        }
    }
}
