pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// What the floating views stand on. A press on it does not reach the video; scrolling does.
Rectangle {
    color: Theme.overlaySurface
    border.width: 1
    border.color: Theme.overlayEdge

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
    }
}
