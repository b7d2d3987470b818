pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// The translucent background of everything that floats. Text on it is legible whatever is behind
// it; text behind it isn't.
Item {
    id: surface

    // Blurred where surfaces are glass; without one, glass is a plain tint.
    property Item backdrop: null
    property real radius: height / 2
    // Glass that answers to the pointer. The material doesn't.
    property bool interactive: false
    property bool hovered: false
    property bool pressed: false
    // Changes when it moves over what is behind it, if it can.
    property real place: 0

    Loader {
        anchors.fill: parent
        active: !Glass.blurs
        sourceComponent: Rectangle {
            objectName: "glassMaterial"
            radius: surface.radius
            color: Theme.material

            // The line is centred on the outline.
            Rectangle {
                anchors.fill: parent
                anchors.margins: -Theme.hairline / 2
                radius: surface.radius + Theme.hairline / 2
                color: "transparent"
                border.width: Theme.hairline
                border.color: Theme.materialEdge
            }
        }
    }

    Loader {
        anchors.fill: parent
        active: Glass.blurs
        sourceComponent: GlassPane {
            objectName: "glassPane"
            backdrop: surface.backdrop
            radius: surface.radius
            place: surface.place
            light: !surface.interactive ? 0 : surface.pressed ? Theme.glassPressed : surface.hovered ? Theme.glassHovered : 0
        }
    }
}
