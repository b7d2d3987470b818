pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Glass

// What the floating views stand on. A press on it does not reach the video; scrolling does.
Item {
    id: surface

    property Item backdrop: null
    property real radius: height / 2

    GlassSurface {
        anchors.fill: parent
        backdrop: surface.backdrop
        radius: surface.radius
        place: surface.y
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
    }
}
